// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/preview/sheetview.h"

#include "shell/look/theme.h"
#include "shell/pages/pagepainter.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace {

constexpr int deskMargin = 18;
constexpr double deskCorner = 8;
constexpr int shadowDepth = 9;
constexpr double rim = 2; ///< of the focused desk
/// An enlarged sheet is at least this much larger, also where its width already filled the desk.
constexpr double leastEnlargement = 1.2;
constexpr double plainEnlargement = 1.5;
/// The widest picture of a sheet that is kept, in device pixels.
constexpr int widestPicture = 4000;
constexpr int settlingTime = 90; // ms
constexpr int wheelStep = 120;
constexpr int arrowStep = 40;

void drawShadow(QPainter &painter, const QRectF &sheet, const QColor &desk)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const int strength = desk.lightnessF() < 0.4F ? 20 : 6;
    for (int i = shadowDepth; i > 0; --i) {
        painter.setBrush(QColor(30, 20, 10, strength));
        painter.drawRoundedRect(sheet.adjusted(-i, -i + 2, i, i + 2), i, i);
    }
    painter.restore();
}

} // namespace

SheetView::SheetView(QWidget *parent)
    : QAbstractScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(160, 160);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    viewport()->setAutoFillBackground(false);
    m_settling.setSingleShot(true);
    m_settling.setInterval(settlingTime);
    connect(&m_settling, &QTimer::timeout, viewport(), qOverload<>(&QWidget::update));
}

void SheetView::setSheet(const PagePainter *painter, int index, Edge edge)
{
    m_painter = painter;
    m_index = index;
    m_picture = {};
    setAccessibleDescription(painter ? painter->text(index) : QString());
    updateScrollBars();
    QScrollBar *bar = verticalScrollBar();
    bar->setValue(edge == Edge::Top ? bar->minimum() : bar->maximum());
    viewport()->update();
}

void SheetView::setZoom(Zoom zoom)
{
    m_zoom = zoom;
    const bool isEnlarged = zoom == Zoom::Enlarged;
    // Always or never: a bar that came and went would change the width that the sheet takes.
    setVerticalScrollBarPolicy(isEnlarged ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(isEnlarged ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
    m_picture = {};
    updateScrollBars();
    verticalScrollBar()->setValue(0);
    viewport()->update();
}

void SheetView::setDeskColor(const QColor &color)
{
    m_deskColor = color;
    viewport()->update();
}

QColor SheetView::deskColor() const
{
    return m_deskColor.isValid() ? m_deskColor : Theme::of(this).desk;
}

QSize SheetView::sizeHint() const
{
    return {720, 640};
}

QSizeF SheetView::sheetSize() const
{
    if (!m_painter)
        return {};
    const QSizeF points = m_painter->sheetSize();
    const QSizeF desk = QSizeF(viewport()->size()) - QSizeF(2 * deskMargin, 2 * deskMargin);
    const double whole = std::min(desk.width() / points.width(), desk.height() / points.height());
    const double toWidth = desk.width() / points.width();
    double scale = whole;
    if (m_zoom == Zoom::Enlarged)
        scale = toWidth >= whole * leastEnlargement ? toWidth : whole * plainEnlargement;
    const double ratio = devicePixelRatioF();
    const double width = std::floor(std::clamp(points.width() * scale * ratio, 16.0, double(widestPicture)));
    // Whole device pixels in both directions keep the edges sharp.
    return {width / ratio, std::round(width * points.height() / points.width()) / ratio};
}

QRectF SheetView::sheetRect() const
{
    const QSizeF size = sheetSize();
    const auto place = [ratio = devicePixelRatioF()](double desk, double sheet, int scrolled) {
        const double start = sheet + 2 * deskMargin > desk ? deskMargin - scrolled : (desk - sheet) / 2;
        return std::round(start * ratio) / ratio;
    };
    return {QPointF(place(viewport()->width(), size.width(), horizontalScrollBar()->value()),
                    place(viewport()->height(), size.height(), verticalScrollBar()->value())),
            size};
}

void SheetView::updateScrollBars()
{
    const QSizeF size = sheetSize();
    const auto set = [](QScrollBar *bar, double sheet, int desk) {
        bar->setRange(0, std::max(0, int(std::ceil(sheet)) + 2 * deskMargin - desk));
        bar->setPageStep(desk);
        bar->setSingleStep(arrowStep);
    };
    const bool scrolls = m_zoom == Zoom::Enlarged && m_painter;
    set(horizontalScrollBar(), scrolls ? size.width() : 0, viewport()->width());
    set(verticalScrollBar(), scrolls ? size.height() : 0, viewport()->height());
}

const QImage &SheetView::picture(QSize pixels)
{
    // While the window is dragged larger the old picture is stretched: a sheet full of photographs takes a
    // while.
    const bool isSettling = m_settling.isActive() && !m_picture.isNull();
    if (m_picture.size() != pixels && !isSettling) {
        m_picture = m_painter->image(m_index, pixels.width() * PageMetrics::pointsPerInch /
                                                  m_painter->sheetSize().width());
    }
    return m_picture;
}

void SheetView::paintEvent(QPaintEvent *)
{
    QPainter painter(viewport());
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF desk = QRectF(viewport()->rect());
    painter.setPen(Qt::NoPen);
    painter.setBrush(deskColor());
    painter.drawRoundedRect(desk, deskCorner, deskCorner);
    if (m_painter) {
        const QRectF sheet = sheetRect();
        drawShadow(painter, sheet, deskColor());
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(sheet, picture((sheet.size() * devicePixelRatioF()).toSize()));
    }
    if (hasFocus()) {
        painter.setPen(QPen(Theme::of(this).accent, rim));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(desk.adjusted(rim / 2, rim / 2, -rim / 2, -rim / 2), deskCorner, deskCorner);
    }
}

void SheetView::resizeEvent(QResizeEvent *event)
{
    QAbstractScrollArea::resizeEvent(event);
    if (!m_picture.isNull())
        m_settling.start();
    updateScrollBars();
}

bool SheetView::scrollPage(int direction)
{
    // A whole sheet has nothing to scroll, whatever range its hidden bar still has.
    if (m_zoom != Zoom::Enlarged)
        return false;
    QScrollBar *bar = verticalScrollBar();
    const int before = bar->value();
    bar->setValue(before + direction * (bar->pageStep() - arrowStep));
    return bar->value() != before;
}

bool SheetView::handleKey(int key)
{
    QScrollBar *bar = verticalScrollBar();
    switch (key) {
    case Qt::Key_PageDown:
        if (!scrollPage(1))
            emit stepRequested(1, Edge::Top);
        return true;
    case Qt::Key_PageUp:
        if (!scrollPage(-1))
            emit stepRequested(-1, Edge::Bottom);
        return true;
    case Qt::Key_Right:
        emit stepRequested(1, Edge::Top);
        return true;
    case Qt::Key_Left:
        emit stepRequested(-1, Edge::Top);
        return true;
    case Qt::Key_Home:
        emit firstRequested();
        return true;
    case Qt::Key_End:
        emit lastRequested();
        return true;
    case Qt::Key_Down:
        bar->setValue(bar->value() + arrowStep);
        return true;
    case Qt::Key_Up:
        bar->setValue(bar->value() - arrowStep);
        return true;
    default:
        return false;
    }
}

void SheetView::keyPressEvent(QKeyEvent *event)
{
    const bool isPlain = !(event->modifiers() & ~Qt::KeypadModifier);
    event->setAccepted(isPlain && handleKey(event->key()));
}

void SheetView::wheelEvent(QWheelEvent *event)
{
    const int turn = event->angleDelta().y();
    const QScrollBar *bar = verticalScrollBar();
    const bool canScroll = turn > 0 ? bar->value() > bar->minimum() : bar->value() < bar->maximum();
    if (turn == 0 || canScroll) {
        m_wheel = 0;
        QAbstractScrollArea::wheelEvent(event);
        return;
    }
    event->accept();
    m_wheel = (m_wheel > 0) == (turn > 0) ? m_wheel + turn : turn;
    // Over the end of an enlarged sheet it takes a second notch, so that nobody turns the page by accident.
    if (std::abs(m_wheel) < (m_zoom == Zoom::Enlarged ? 2 : 1) * wheelStep)
        return;
    m_wheel = 0;
    emit stepRequested(turn > 0 ? -1 : 1, turn > 0 ? Edge::Bottom : Edge::Top);
}

void SheetView::changeEvent(QEvent *event)
{
    QAbstractScrollArea::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange)
        viewport()->update();
}

void SheetView::focusInEvent(QFocusEvent *event)
{
    QAbstractScrollArea::focusInEvent(event);
    viewport()->update();
}

void SheetView::focusOutEvent(QFocusEvent *event)
{
    QAbstractScrollArea::focusOutEvent(event);
    viewport()->update();
}
