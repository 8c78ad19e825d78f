// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/window/daysview.h"

#include <QAbstractItemView>
#include <QKeyEvent>

void DaysView::takeKeysOf(QAbstractItemView *view)
{
    view->installEventFilter(this);
    setFocusProxy(view);
}

bool DaysView::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    switch (static_cast<QKeyEvent *>(event)->key()) {
    case Qt::Key_PageUp:
        emit stepped(-1);
        return true;
    case Qt::Key_PageDown:
        emit stepped(1);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        emit dayOpened(date());
        return true;
    default:
        return QWidget::eventFilter(watched, event);
    }
}
