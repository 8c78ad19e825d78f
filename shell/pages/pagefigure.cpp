// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pages/pagefigure.h"

#include "shell/pages/pagepicture.h"

#include <QFileInfo>
#include <QPainter>

#include <algorithm>

using PageMetrics::pointsPerInch;

namespace {

constexpr double fewestDots = 100; ///< an inch of paper shows at least so many of them
constexpr double captionGap = 5;
constexpr qsizetype captionLines = 4;
constexpr double mostGivenWay = 1.0 / 3;
constexpr QSizeF missing{216, 72}; ///< the frame of a picture that is not there
constexpr QColor rimColor(0xB0, 0xB0, 0xB0);
constexpr double inset = 8;

/// An empty frame with the name of the picture that belongs there.
void drawFrame(QPainter &painter, const QRectF &place, const QString &path, const PageType &type)
{
    painter.save();
    painter.setPen(QPen(rimColor, 0.5));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(place);
    painter.restore();
    const double width = place.width() - 2 * inset;
    const QString name = type.elided(QFileInfo(path).fileName(), width);
    const QPointF at(place.left() + inset, place.center().y() - type.lineHeight() / 2);
    type.draw(painter, at, width, Qt::AlignHCenter, name);
}

} // namespace

PageFigure::PageFigure(const PageItem::Figure &figure, const PageTypes &types, QSizeF body)
    : m_figure(figure)
    , m_type(types.small)
    , m_body(body)
{
    const QSizeF dots = PagePicture::shapeOf(figure.path);
    m_isThere = !dots.isEmpty();
    if (!figure.caption.isEmpty()) {
        const QString caption = PageType::onOneLine(figure.caption);
        m_caption = m_type.shortened(m_type.wrapped(caption, body.width()), captionLines, body.width());
    }
    QSizeF most = (figure.within * pointsPerInch).boundedTo(body - QSizeF(0, captionHeight()));
    most = most.expandedTo({1, 1}); // whatever the font, something of it is to be seen
    const QSizeF good = dots * (pointsPerInch / fewestDots);
    m_picture = m_isThere ? dots.scaled(most.boundedTo(good), Qt::KeepAspectRatio) : missing.boundedTo(most);
}

double PageFigure::captionHeight() const
{
    return m_caption.isEmpty() ? 0 : captionGap + double(m_caption.size()) * m_type.lineHeight();
}

bool PageFigure::giveWay(double height)
{
    const double room = height - captionHeight();
    if (room < m_picture.height() * (1 - mostGivenWay))
        return false;
    if (room < m_picture.height())
        m_picture *= room / m_picture.height();
    return true;
}

void PageFigure::draw(QPainter &painter, QPointF top) const
{
    const QRectF place(top + QPointF((m_body.width() - m_picture.width()) / 2, 0), m_picture);
    if (m_isThere)
        drawPagePicture(painter, place, m_figure.path);
    else
        drawFrame(painter, place, m_figure.path, m_type);
    drawCaption(painter, {top.x(), place.bottom() + captionGap});
}

double PageFigure::drawIn(QPainter &painter, const QRectF &place, const QString &path, const PageType &type)
{
    const QSizeF dots = PagePicture::shapeOf(path);
    if (dots.isEmpty()) {
        drawFrame(painter, place, path, type);
        return place.bottom();
    }
    const QRectF picture = placeIn(place, dots);
    drawPagePicture(painter, picture, path);
    return picture.bottom();
}

QRectF PageFigure::placeIn(const QRectF &place, QSizeF dots)
{
    const QSizeF good = dots * (pointsPerInch / fewestDots);
    const QSizeF size = dots.scaled(place.size().boundedTo(good), Qt::KeepAspectRatio);
    return {place.center() - QPointF(size.width() / 2, size.height() / 2), size};
}

void PageFigure::drawCaption(QPainter &painter, QPointF top) const
{
    for (const QString &line : m_caption) {
        m_type.draw(painter, top, m_body.width(), Qt::AlignHCenter, line);
        top.ry() += m_type.lineHeight();
    }
}
