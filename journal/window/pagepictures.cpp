// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/window/pagepictures.h"

#include "shell/pictures/keptpictures.h"
#include "shell/pictures/pictureloader.h"
#include "storage/datafolder.h"

#include <QFileInfo>
#include <QPainter>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int mostHeight = 340;
constexpr int leastHeight = 96;
constexpr int above = 8;
constexpr int below = 4;
/// Of the frame with the name of one that is missing.
constexpr QSize missingSize(280, 72);
/// Until it is read.
constexpr int waitingHeight = 120;
constexpr double corner = 4;

} // namespace

PagePictures::PagePictures(const DataFolder &folder, QObject *parent)
    : QObject(parent)
    , m_folder(folder)
    , m_loader(new PictureLoader(folder, this))
{}

void PagePictures::setPictures(const QList<JournalPicture> &pictures)
{
    m_pictures = pictures;
    std::erase_if(m_shown, [&](const auto &shown) {
        return std::ranges::none_of(
            pictures, [&](const JournalPicture &picture) { return picture.path == shown.first; });
    });
}

void PagePictures::forget()
{
    m_loader->forget();
    m_pictures.clear();
    m_shown.clear();
}

void PagePictures::setRoom(QSize room, qreal pixelRatio)
{
    room.setHeight(std::clamp(room.height(), leastHeight, mostHeight));
    if (room == m_room && pixelRatio == m_pixelRatio)
        return;
    m_room = room;
    m_pixelRatio = pixelRatio;
    m_loader->forget();
    m_shown.clear();
}

QString PagePictures::caption(int number) const
{
    return has(number) ? m_pictures[number - 1].caption : QString();
}

QSize PagePictures::sizeOf(const Shown &shown) const
{
    if (shown.isMissing)
        return missingSize;
    if (shown.image.isNull())
        return {0, waitingHeight};
    return (QSizeF(shown.image.size()) / m_pixelRatio).toSize();
}

int PagePictures::height(int number) const
{
    if (!has(number))
        return 0;
    const auto shown = m_shown.find(m_pictures[number - 1].path);
    return above + sizeOf(shown == m_shown.end() ? Shown() : shown->second).height() + below;
}

void PagePictures::read(const QString &path)
{
    m_shown[path].isAsked = true;
    const QSize bound = (QSizeF(m_room) * m_pixelRatio).toSize();
    m_loader->load(KeptPictures::locate(m_folder, path), bound, [this, path](const LoadedPicture &loaded) {
        Shown &shown = m_shown[path];
        shown.image = loaded.image;
        shown.isMissing = loaded.image.isNull();
        for (int i = 0; i < m_pictures.size(); ++i) {
            if (m_pictures[i].path == path)
                emit changed(i + 1);
        }
    });
}

void PagePictures::paint(QPainter &painter, int number, const QRectF &place)
{
    if (!has(number) || m_room.width() <= 0)
        return;
    const QString path = m_pictures[number - 1].path;
    const Shown shown = m_shown[path];
    if (!shown.isAsked)
        read(path);
    const QRectF frame(place.topLeft() + QPointF(0, above), sizeOf(shown));
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    if (!shown.image.isNull()) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(frame, shown.image);
    } else if (shown.isMissing) {
        QPen pen = painter.pen();
        pen.setStyle(Qt::DashLine);
        painter.setPen(pen);
        painter.drawRoundedRect(frame.adjusted(0.5, 0.5, -0.5, -0.5), corner, corner);
        const QString name = u"Not found: "_s + QFileInfo(path).fileName();
        const QRectF words = frame.adjusted(12, 0, -12, 0);
        painter.drawText(words, Qt::AlignCenter,
                         painter.fontMetrics().elidedText(name, Qt::ElideMiddle, int(words.width())));
    }
    painter.restore();
}
