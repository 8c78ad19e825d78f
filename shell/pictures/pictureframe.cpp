// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pictures/pictureframe.h"

#include "shell/look/theme.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImageReader>
#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace {

constexpr int matWidth = 8;
constexpr int rim = 1;
/// The shape of an empty frame.
constexpr QSize emptySize(258, 238);
/// What the frame keeps of a picture: enough to fill it on a fine screen.
constexpr QSize keptPixels(1200, 1200);
/// Beyond this many pixels a file is no photograph of anybody, and reading it would stall the window.
constexpr qint64 greatestPixelCount = 250'000'000;

} // namespace

QImage PictureFile::read(const QString &path, QSize bound)
{
    if (!QFileInfo(path).isFile())
        return {};
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    if (size.isValid()) {
        if (qint64(size.width()) * size.height() > greatestPixelCount)
            return {};
        // A picture that lies on its side is turned after scaling, so the longer side must fit either way.
        const int side = std::min(bound.width(), bound.height());
        if (std::max(size.width(), size.height()) > side)
            reader.setScaledSize(size.scaled(side, side, Qt::KeepAspectRatio).expandedTo({1, 1}));
    }
    return reader.read();
}

QByteArray PictureFile::asPhotograph(const QImage &image)
{
    QImage opaque(image.size(), QImage::Format_RGB32);
    opaque.fill(Qt::white);
    QPainter(&opaque).drawImage(0, 0, image);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    return opaque.save(&buffer, "JPG", 92) ? bytes : QByteArray();
}

PictureFrame::PictureFrame(QWidget *parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

bool PictureFrame::setPicture(const QString &path)
{
    setImage(PictureFile::read(path, keptPixels));
    return hasPicture();
}

void PictureFrame::setImage(const QImage &picture)
{
    m_picture = QPixmap::fromImage(picture);
    tellChange();
}

void PictureFrame::clear()
{
    m_picture = {};
    tellChange();
}

void PictureFrame::setWords(const QString &words)
{
    m_words = words;
    tellChange();
}

/// What is painted is told to those who cannot see it as well.
void PictureFrame::tellChange()
{
    setAccessibleDescription(hasPicture() ? QString() : m_words);
    update();
    emit matChanged();
}

void PictureFrame::setAlignment(Qt::Alignment alignment)
{
    m_alignment = alignment;
    update();
}

QSize PictureFrame::matFor(QSize room) const
{
    constexpr QSize border(2 * (matWidth + rim), 2 * (matWidth + rim));
    const QSize own = hasPicture() ? m_picture.size() : emptySize - border;
    const double stretch = hasPicture() ? m_stretch : 1.4;
    QSize shown = own.scaled((room - border).expandedTo({1, 1}), Qt::KeepAspectRatio);
    if (shown.width() > own.width() * stretch)
        shown = (QSizeF(own) * stretch).toSize();
    return shown + border;
}

QRect PictureFrame::mat() const
{
    return QStyle::alignedRect(layoutDirection(), m_alignment, matFor(size()), rect());
}

int PictureFrame::tallestMat() const
{
    return matFor({width(), QWIDGETSIZE_MAX}).height();
}

void PictureFrame::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    hasPicture() ? paintPicture(painter) : paintEmpty(painter);
    if (!hasFocus())
        return;
    painter.setPen(QPen(Theme::of(this).accent, 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(mat()).adjusted(1, 1, -1, -1), 4, 4);
}

void PictureFrame::paintPicture(QPainter &painter) const
{
    const Theme &theme = Theme::of(this);
    const bool dark = theme.scheme == Icons::Scheme::Dark;
    const QRect outside = mat();
    painter.setPen(QPen(theme.line, rim));
    painter.setBrush(dark ? theme.field : QColor(Qt::white));
    painter.drawRoundedRect(QRectF(outside).adjusted(.5, .5, -.5, -.5), 4, 4);
    constexpr int inset = matWidth + rim;
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QRect place = outside.adjusted(inset, inset, -inset, -inset);
    // Scaled in device pixels: one smooth step looks better than the painter's bilinear one.
    const QSize dots = place.size() * devicePixelRatioF();
    painter.drawPixmap(place, m_picture.scaled(dots, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

void PictureFrame::paintEmpty(QPainter &painter) const
{
    const Theme &theme = Theme::of(this);
    const QRect outside = mat();
    QPen pen(theme.edge, 1, Qt::CustomDashLine);
    pen.setDashPattern({3, 3});
    painter.setPen(pen);
    painter.setBrush(theme.locked);
    painter.drawRoundedRect(QRectF(outside).adjusted(.5, .5, -.5, -.5), 4, 4);
    painter.setPen(theme.quiet);
    painter.setFont(TypeScale::body());
    painter.drawText(outside.adjusted(16, 16, -16, -16), Qt::AlignCenter | Qt::TextWordWrap, m_words);
}

void PictureFrame::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    emit matChanged();
}
