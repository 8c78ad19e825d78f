// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/window/pagetextlayout.h"

#include "shell/core/lightmarks.h"

#include <QTextDocument>
#include <QTextLayout>

#include <algorithm>
#include <utility>

namespace {

constexpr int mostHanging = 20'000; ///< letters of a row: a longer one would be broken twice for too long

/// What makes a line a row of a list stands here; some lines are too long to be asked for as a whole.
QString beginOf(const QTextBlock &line)
{
    constexpr int most = 40;
    QString begin;
    begin.reserve(most);
    for (int i = 0; i < std::min(most, line.length() - 1); ++i)
        begin += line.document()->characterAt(line.position() + i);
    return begin;
}

} // namespace

PageTextLayout::PageTextLayout(QTextDocument *document, RoomAbove roomAbove)
    : QPlainTextDocumentLayout(document)
    , m_roomAbove(std::move(roomAbove))
{}

/// Breaks a row of a list that goes over several lines anew: below its first words, not below its sign.
/// False where nothing is to be done.
bool PageTextLayout::hang(QTextBlock block, QTextLayout &layout)
{
    if (layout.lineCount() < 2 || block.length() > mostHanging || layout.lineAt(1).x() > layout.lineAt(0).x())
        return false;
    const MarkedLine marked = LightMarks::of(beginOf(block));
    if (marked.kind != MarkedLine::List)
        return false;
    const QTextLine first = layout.lineAt(0);
    const double left = first.x();
    const double width = first.width();
    const double inset = first.cursorToX(int(marked.begin)) - left;
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

/// A line that was just laid out stands at the top: whoever asks for its place, which everybody does before
/// it is drawn, finds it below its room.
QRectF PageTextLayout::blockBoundingRect(const QTextBlock &block) const
{
    const QRectF place = QPlainTextDocumentLayout::blockBoundingRect(block);
    QTextLayout *layout = block.isValid() ? block.layout() : nullptr;
    if (layout && hang(block, *layout))
        return QPlainTextDocumentLayout::blockBoundingRect(block);
    const int room = layout && layout->lineCount() > 0 ? m_roomAbove(block) : 0;
    if (room == 0 || layout->lineAt(0).y() >= room)
        return place;
    for (int i = 0; i < layout->lineCount(); ++i) {
        QTextLine line = layout->lineAt(i);
        line.setPosition(line.position() + QPointF(0, room));
    }
    return QPlainTextDocumentLayout::blockBoundingRect(block);
}
