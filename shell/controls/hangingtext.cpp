// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/hangingtext.h"

#include <QTextLayout>

namespace {

constexpr int mostHanging = 20'000; ///< letters of a block: a longer one would be broken twice for too long

} // namespace

HangingText::HangingText(QTextDocument *document)
    : QPlainTextDocumentLayout(document)
{}

/// Breaks a block that goes over several lines anew. False where nothing is to be done.
bool HangingText::hang(QTextBlock block, QTextLayout &layout) const
{
    if (layout.lineCount() < 2 || block.length() > mostHanging || layout.lineAt(1).x() > layout.lineAt(0).x())
        return false;
    const QTextLine first = layout.lineAt(0);
    const double left = first.x();
    const double width = first.width();
    const double inset = insetOf(block, first);
    if (inset <= 0 || inset > width / 2)
        return false;
    double y = first.y();
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        const double in = line.textStart() == 0 ? 0 : inset;
        line.setLeadingIncluded(true);
        line.setLineWidth(width - in);
        line.setPosition({left + in, y});
        y += line.height();
    }
    layout.endLayout();
    block.setLineCount(layout.lineCount());
    return true;
}

/// Everybody asks for it before a block is drawn.
QRectF HangingText::blockBoundingRect(const QTextBlock &block) const
{
    const QRectF place = QPlainTextDocumentLayout::blockBoundingRect(block);
    QTextLayout *layout = block.isValid() ? block.layout() : nullptr;
    return layout && hang(block, *layout) ? QPlainTextDocumentLayout::blockBoundingRect(block) : place;
}
