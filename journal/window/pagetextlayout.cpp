// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/window/pagetextlayout.h"

#include "shell/core/lightmarks.h"

#include <QTextDocument>
#include <QTextLayout>

#include <algorithm>
#include <utility>

namespace {

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
    : HangingText(document)
    , m_roomAbove(std::move(roomAbove))
{}

/// Below the first words of a row of a list, not below its sign.
double PageTextLayout::insetOf(const QTextBlock &line, const QTextLine &first) const
{
    const MarkedLine marked = LightMarks::of(beginOf(line));
    return marked.kind == MarkedLine::List ? first.cursorToX(int(marked.begin)) - first.x() : 0;
}

/// A line that was just laid out stands at the top: whoever asks for its place, which everybody does before
/// it is drawn, finds it below its room.
QRectF PageTextLayout::blockBoundingRect(const QTextBlock &block) const
{
    const QRectF place = HangingText::blockBoundingRect(block);
    QTextLayout *layout = block.isValid() ? block.layout() : nullptr;
    const int room = layout && layout->lineCount() > 0 ? m_roomAbove(block) : 0;
    const double more =
        room > 0 ? room - layout->lineAt(0).y() : 0; // it may have had room for another height
    if (more == 0)
        return place;
    for (int i = 0; i < layout->lineCount(); ++i) {
        QTextLine line = layout->lineAt(i);
        line.setPosition(line.position() + QPointF(0, more));
    }
    return HangingText::blockBoundingRect(block);
}
