// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pictures/picturecanvas.h"

#include "shell/look/theme.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>

namespace {
constexpr int keyStep = 64;
} // namespace

PictureCanvas::PictureCanvas(QWidget *parent)
    : QAbstractScrollArea(parent)
{
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setCursor(Qt::ArrowCursor);
}

void PictureCanvas::setPicture(const QImage &image, const QString &words)
{
    const bool isOther = image.size() != m_image.size();
    m_image = image;
    m_words = words;
    if (isOther)
        fitBars();
    viewport()->update();
}

void PictureCanvas::setZoom(Zoom zoom)
{
    m_zoom = zoom;
    viewport()->setCursor(zoom == Zoom::OneToOne ? Qt::OpenHandCursor : Qt::ArrowCursor);
    fitBars();
    viewport()->update();
}

int PictureCanvas::side() const
{
    return qRound(std::max(viewport()->width(), viewport()->height()) * devicePixelRatioF());
}

/// Of the picture at one of its pixels for one of the screen.
QSize PictureCanvas::logicalSize() const
{
    return (QSizeF(m_image.size()) / devicePixelRatioF()).toSize();
}

/// The middle of what was seen stays in the middle.
void PictureCanvas::fitBars()
{
    const bool isWhole = m_zoom == Zoom::Whole;
    setHorizontalScrollBarPolicy(isWhole ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
    setVerticalScrollBarPolicy(isWhole ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
    const QSize size = isWhole ? QSize() : logicalSize();
    const auto fit = [](QScrollBar *bar, int length, int room) {
        const int before = bar->maximum();
        const double middle =
            before > 0 ? (bar->value() + bar->pageStep() / 2.0) / (before + bar->pageStep()) : 0.5;
        bar->setPageStep(room);
        bar->setSingleStep(keyStep);
        bar->setRange(0, std::max(0, length - room));
        bar->setValue(qRound(middle * length - room / 2.0));
    };
    fit(horizontalScrollBar(), size.width(), viewport()->width());
    fit(verticalScrollBar(), size.height(), viewport()->height());
}

void PictureCanvas::paintEvent(QPaintEvent *)
{
    QPainter painter(viewport());
    const QRect room = viewport()->rect();
    if (m_image.isNull()) {
        const QString words = painter.fontMetrics().elidedText(m_words, Qt::ElideRight, 4 * room.width());
        painter.setPen(palette().color(ThemeRole::quiet));
        painter.drawText(room.adjusted(16, 16, -16, -16), Qt::AlignCenter | Qt::TextWordWrap, words);
        return;
    }
    QRect place(QPoint(), logicalSize());
    if (m_zoom == Zoom::Whole)
        place.setSize(logicalSize().scaled(room.size(), Qt::KeepAspectRatio).expandedTo({1, 1}));
    place.moveCenter(room.center());
    if (place.width() > room.width())
        place.moveLeft(-horizontalScrollBar()->value());
    if (place.height() > room.height())
        place.moveTop(-verticalScrollBar()->value());
    painter.setRenderHint(QPainter::SmoothPixmapTransform, m_zoom == Zoom::Whole);
    painter.drawImage(place, m_image);
}

void PictureCanvas::resizeEvent(QResizeEvent *event)
{
    QAbstractScrollArea::resizeEvent(event);
    fitBars();
    emit resized();
}

/// False where there is nothing to scroll.
bool PictureCanvas::scrollBy(int dx, int dy)
{
    const bool canScroll = horizontalScrollBar()->maximum() > 0 || verticalScrollBar()->maximum() > 0;
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() + dx);
    verticalScrollBar()->setValue(verticalScrollBar()->value() + dy);
    return canScroll;
}

void PictureCanvas::keyPressEvent(QKeyEvent *event)
{
    const bool isWhole = m_zoom == Zoom::Whole;
    switch (event->key()) {
    case Qt::Key_Left:
        if (isWhole || !scrollBy(-keyStep, 0))
            emit stepRequested(-1);
        return;
    case Qt::Key_Right:
        if (isWhole || !scrollBy(keyStep, 0))
            emit stepRequested(1);
        return;
    case Qt::Key_Up:
        if (!isWhole)
            scrollBy(0, -keyStep);
        return;
    case Qt::Key_Down:
        if (!isWhole)
            scrollBy(0, keyStep);
        return;
    case Qt::Key_PageUp:
    case Qt::Key_Backspace:
        emit stepRequested(-1);
        return;
    case Qt::Key_PageDown:
    case Qt::Key_Space:
        emit stepRequested(1);
        return;
    case Qt::Key_Home:
    case Qt::Key_End:
        emit endRequested(event->key() == Qt::Key_End);
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        emit zoomRequested();
        return;
    default:
        QAbstractScrollArea::keyPressEvent(event);
    }
}

void PictureCanvas::mousePressEvent(QMouseEvent *event)
{
    m_pushed = event->position().toPoint();
}

void PictureCanvas::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint now = event->position().toPoint();
    if (m_zoom == Zoom::OneToOne && (event->buttons() & Qt::LeftButton)) {
        scrollBy(m_pushed.x() - now.x(), m_pushed.y() - now.y());
        m_pushed = now;
    }
}

void PictureCanvas::mouseDoubleClickEvent(QMouseEvent *)
{
    emit zoomRequested();
}

void PictureCanvas::wheelEvent(QWheelEvent *event)
{
    if (m_zoom == Zoom::OneToOne)
        QAbstractScrollArea::wheelEvent(event);
    else if (const int turned = event->angleDelta().y(); turned != 0)
        emit stepRequested(turned > 0 ? -1 : 1);
}
