// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/window/pagetextlayout.h"

#include <QTextLayout>

#include <utility>

PageTextLayout::PageTextLayout(QTextDocument *document, RoomAbove roomAbove)
    : QPlainTextDocumentLayout(document)
    , m_roomAbove(std::move(roomAbove))
{}

/// A line that was just laid out stands at the top: whoever asks for its place, which everybody does before
/// it is drawn, finds it below its room.
QRectF PageTextLayout::blockBoundingRect(const QTextBlock &block) const
{
    const QRectF place = QPlainTextDocumentLayout::blockBoundingRect(block);
    QTextLayout *layout = block.isValid() ? block.layout() : nullptr;
    const int room = layout && layout->lineCount() > 0 ? m_roomAbove(block) : 0;
    if (room == 0 || layout->lineAt(0).y() >= room)
        return place;
    for (int i = 0; i < layout->lineCount(); ++i) {
        QTextLine line = layout->lineAt(i);
        line.setPosition(line.position() + QPointF(0, room));
    }
    return QPlainTextDocumentLayout::blockBoundingRect(block);
}
