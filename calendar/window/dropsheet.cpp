// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/window/dropsheet.h"

#include "calendar/window/linedrag.h"

#include <QDrag>
#include <QDragMoveEvent>

#include <utility>

DropSheet::DropSheet(QWidget *parent)
    : DrawnSheet(parent)
{
    setAcceptDrops(true);
}

void DropSheet::drag(QDate day, int line)
{
    auto *drag = new QDrag(this);
    drag->setMimeData(LineDrag::mimeData({day, line}));
    drag->exec(Qt::CopyAction | Qt::MoveAction, Qt::MoveAction);
    setDropCell(-1);
}

void DropSheet::paintMarks(QPainter &painter) const
{
    if (m_dropCell >= 0 && m_dropCell < int(plan().cells.size()))
        drawRim(painter, onScreen(plan().cells[std::size_t(m_dropCell)].place), 2);
}

void DropSheet::dragEnterEvent(QDragEnterEvent *event)
{
    event->setAccepted(LineDrag::read(event->mimeData()).has_value());
}

void DropSheet::dragMoveEvent(QDragMoveEvent *event)
{
    setDropCell(plan().cellAt(onSheet(event->position().toPoint())));
    event->setAccepted(m_dropCell >= 0 && LineDrag::read(event->mimeData()).has_value());
}

void DropSheet::dragLeaveEvent(QDragLeaveEvent *)
{
    setDropCell(-1);
}

void DropSheet::dropEvent(QDropEvent *event)
{
    const std::optional<LineDrag::Line> dragged = LineDrag::read(event->mimeData());
    const int place = plan().cellAt(onSheet(event->position().toPoint()));
    setDropCell(-1);
    if (!dragged || place < 0)
        return;
    event->acceptProposedAction();
    emit lineDropped(dragged->date, dragged->line, plan().cells[std::size_t(place)].date,
                     event->dropAction() == Qt::CopyAction);
}

void DropSheet::setDropCell(int cell)
{
    if (std::exchange(m_dropCell, cell) != cell)
        viewport()->update();
}
