// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/window/photodrop.h"

#include "calendar/window/monthcells.h"
#include "shell/pictures/carriedpicture.h"

#include <QClipboard>
#include <QDropEvent>
#include <QGuiApplication>
#include <QImage>
#include <QKeyEvent>
#include <QMimeData>

PhotoDrop::PhotoDrop(MonthCells &cells)
    : QObject(&cells)
{
    cells.installEventFilter(this);
    cells.viewport()->installEventFilter(this);
}

bool PhotoDrop::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        return drop(*static_cast<QDropEvent *>(event));
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
        if (!static_cast<QKeyEvent *>(event)->matches(QKeySequence::Paste))
            break;
        event->accept();
        return event->type() == QEvent::ShortcutOverride || take(QGuiApplication::clipboard()->mimeData());
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

/// A line that is drawn to another day is left to the sheet.
bool PhotoDrop::drop(QDropEvent &event)
{
    if (!CarriedPicture::mayBeIn(event.mimeData()))
        return false;
    event.setDropAction(Qt::CopyAction); // the file stays where it comes from
    event.accept();
    return event.type() != QEvent::Drop || take(event.mimeData());
}

bool PhotoDrop::take(const QMimeData *data)
{
    if (!CarriedPicture::mayBeIn(data))
        return false;
    if (const QString file = CarriedPicture::fileIn(*data); !file.isEmpty())
        emit fileTaken(file);
    else
        emit imageTaken(qvariant_cast<QImage>(data->imageData()));
    return true;
}
