// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/walkbutton.h"

#include <QKeyEvent>

void WalkButton::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        click();
        break;
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
        emit walked(event->key());
        break;
    default:
        QAbstractButton::keyPressEvent(event);
    }
}
