// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frame/picturetaker.h"

#include "shell/controls/busycursor.h"
#include "shell/core/framelines.h"
#include "shell/pictures/carriedpicture.h"
#include "shell/pictures/pictureframe.h"
#include "shell/pictures/picturelines.h"
#include "shell/program/program.h"

#include <QAction>
#include <QClipboard>
#include <QDir>
#include <QDropEvent>
#include <QFileInfo>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMimeData>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Pixels of a picture that is kept as a copy, on its longer side.
constexpr int greatestSide = 2400;

bool isKindOfPanel(const QString &path)
{
    return QDir::match(PictureFolder::fileKinds(), QFileInfo(path).fileName());
}

} // namespace

PictureTaker::PictureTaker(Program &program, PictureFrame *frame, PictureUse use, const QAction &load,
                           Hands hands)
    : QObject(frame)
    , m_frame(frame)
    , m_use(std::move(use))
    , m_load(load)
    , m_hands(std::move(hands))
    , m_pictures(program.folder)
{
    frame->setAcceptDrops(true);
    frame->setFocusPolicy(Qt::StrongFocus);
    frame->setToolTip(u"Drop a picture here, or paste one with Ctrl+V"_s);
    frame->installEventFilter(this);
}

bool PictureTaker::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove: {
        auto &drag = *static_cast<QDropEvent *>(event);
        if (!CarriedPicture::mayBeIn(drag.mimeData()))
            return false;
        drag.setDropAction(Qt::CopyAction); // the file stays where it comes from
        drag.accept();
        return true;
    }
    case QEvent::Drop: {
        auto &drop = *static_cast<QDropEvent *>(event);
        drop.setDropAction(Qt::CopyAction);
        drop.accept();
        take(*drop.mimeData());
        return true;
    }
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
        if (!static_cast<QKeyEvent *>(event)->matches(QKeySequence::Paste))
            break;
        event->accept();
        if (const QMimeData *data = QGuiApplication::clipboard()->mimeData();
            data && event->type() == QEvent::KeyPress)
            take(*data);
        return true;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void PictureTaker::take(const QMimeData &data)
{
    const BusyCursor busy;
    if (!m_load.isEnabled())
        emit said(m_load.statusTip());
    else if (const QString file = CarriedPicture::fileIn(data); !file.isEmpty())
        takeFile(file);
    else if (const QImage image = qvariant_cast<QImage>(data.imageData()); !image.isNull())
        keep(image.width() <= greatestSide && image.height() <= greatestSide
                 ? image
                 : image.scaled(greatestSide, greatestSide, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    else
        emit said(PictureLines::noPictureToTake());
}

void PictureTaker::takeFile(const QString &path)
{
    const QImage image = PictureFile::read(path, {greatestSide, greatestSide});
    const QString native = QDir::toNativeSeparators(path);
    if (image.isNull()) {
        emit said(PictureLines::notAPicture());
    } else if (!isKindOfPanel(path)) {
        keep(image); // other programs that read the records could not show it
    } else if (!PictureFolder::isStorable(native, m_use.width)) {
        emit said(m_use.notStorable);
    } else {
        const bool isRemembered = m_pictures.remember(QFileInfo(path).absolutePath());
        setPicture(native);
        if (!isRemembered)
            emit said(FrameLines::settingNotSaved());
    }
}

void PictureTaker::keep(const QImage &image)
{
    const PictureFolder::Kept kept =
        m_pictures.keep(PictureFile::asPhotograph(image), m_hands.name(), m_use.width);
    if (!kept.isStorable) {
        emit said(m_use.notStorable);
    } else if (kept.path.isEmpty()) {
        emit said(PictureLines::pictureNotKept());
    } else {
        setPicture(kept.path);
        emit said(PictureLines::pictureKept(kept.path));
    }
}

void PictureTaker::setPicture(const QString &path)
{
    m_hands.setPicture(path);
    m_frame->setFocus(Qt::OtherFocusReason);
}
