// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/window/drawnsheet.h"

#include "shell/look/theme.h"

#include <QAbstractButton>
#include <QHeaderView>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr int deskMargin = 8;
constexpr double unseen = 22;      ///< of the sheet's empty margins, in points, so that its days are larger
constexpr double mostScale = 2.0;  ///< pixels for a point
constexpr double leastRead = 0.8;  ///< below which a sheet can hardly be read
constexpr double nearlyAll = 0.85; ///< of a larger sheet, for which it is rather shown whole
constexpr double mostAcross = 96.0 / 72; ///< the same of a sheet as wide as the view: as it is printed

} // namespace

DrawnSheet::DrawnSheet(QWidget *parent)
    : QTableView(parent)
    , m_days(new DaysOfSheet(this))
{
    setModel(m_days);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setTabKeyNavigation(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFrameShape(NoFrame);
    horizontalHeader()->hide();
    verticalHeader()->hide();
    for (QAbstractButton *corner : findChildren<QAbstractButton *>(QString(), Qt::FindDirectChildrenOnly))
        corner->hide(); // the table would place it with its headers
}

bool DrawnSheet::setSheet(std::shared_ptr<const CalendarSheet> sheet, DaysOfSheet::Words words)
{
    m_sheet = std::move(sheet);
    m_picture = {};
    setAccessibleDescription(m_sheet->description);
    const bool isOther = m_days->setPlan(m_sheet->plan, std::move(words));
    updateGeometries();
    viewport()->update();
    return isOther;
}

void DrawnSheet::setZoom(Zoom zoom)
{
    if (std::exchange(m_zoom, zoom) == zoom)
        return;
    updateGeometries();
    scrollTo(currentIndex());
    viewport()->update();
}

double DrawnSheet::scale() const
{
    const QSizeF size = seen().size();
    if (!m_sheet || size.isEmpty())
        return 1;
    const double across = (viewport()->width() - 2 * deskMargin) / size.width();
    const double down = (viewport()->height() - 2 * deskMargin) / size.height();
    if (m_zoom == Zoom::SheetWidth)
        return std::clamp(across, 0.1, mostAcross);
    const double larger = std::min(across, std::max(down, leastRead));
    const bool isWhole = m_zoom == Zoom::WholeSheet || down > nearlyAll * larger;
    return std::clamp(isWhole ? std::min(across, down) : larger, 0.1, mostScale);
}

bool DrawnSheet::isWhole() const
{
    return m_zoom == Zoom::WholeSheet || (m_zoom == Zoom::Readable && verticalScrollBar()->maximum() == 0);
}

/// The part of the sheet that is shown, in points.
QRectF DrawnSheet::seen() const
{
    return QRectF({}, plan().sheet).adjusted(unseen, unseen, -unseen, -unseen);
}

QPoint DrawnSheet::origin() const
{
    const QSizeF size = seen().size() * scale();
    const int x = std::max(deskMargin, int((viewport()->width() - size.width()) / 2));
    const int y = std::max(deskMargin, int((viewport()->height() - size.height()) / 2));
    const QPoint corner = (seen().topLeft() * scale()).toPoint();
    return QPoint(x, y - verticalScrollBar()->value()) - corner;
}

QPointF DrawnSheet::onSheet(QPoint point) const
{
    return QPointF(point - origin()) / scale();
}

QRect DrawnSheet::onScreen(const QRectF &place) const
{
    return QRectF(place.topLeft() * scale(), place.size() * scale()).toAlignedRect().translated(origin());
}

QRect DrawnSheet::visualRect(const QModelIndex &index) const
{
    const int place = m_days->cellOf(index);
    return place < 0 ? QRect() : onScreen(plan().cells[std::size_t(place)].place);
}

QModelIndex DrawnSheet::indexAt(const QPoint &point) const
{
    return m_sheet ? m_days->indexOf(plan().cellAt(onSheet(point))) : QModelIndex();
}

void DrawnSheet::scrollTo(const QModelIndex &index, ScrollHint)
{
    if (const int cell = m_days->cellOf(index); cell >= 0)
        bring(plan().cells[std::size_t(cell)].place);
}

void DrawnSheet::bring(const QRectF &part)
{
    const QRect place = onScreen(part);
    QScrollBar *bar = verticalScrollBar();
    if (bar->maximum() == 0)
        return;
    if (place.top() < deskMargin)
        bar->setValue(bar->value() + place.top() - deskMargin);
    else if (place.bottom() > viewport()->height() - deskMargin)
        bar->setValue(bar->value() + place.bottom() - viewport()->height() + deskMargin);
}

void DrawnSheet::updateGeometries()
{
    const int height = int(std::ceil(seen().height() * scale() - 0.01)) + 2 * deskMargin;
    verticalScrollBar()->setPageStep(viewport()->height());
    verticalScrollBar()->setSingleStep(40);
    verticalScrollBar()->setRange(0, std::max(0, height - viewport()->height()));
}

void DrawnSheet::scrollContentsBy(int, int)
{
    placeOver();
    viewport()->update();
}

void DrawnSheet::resizeEvent(QResizeEvent *event)
{
    QTableView::resizeEvent(event);
    scrollTo(currentIndex());
    placeOver();
}

QModelIndex DrawnSheet::moveCursor(CursorAction, Qt::KeyboardModifiers)
{
    return currentIndex();
}

void DrawnSheet::setSelection(const QRect &rect, QItemSelectionModel::SelectionFlags flags)
{
    selectionModel()->select(indexAt(rect.topLeft()), flags);
}

QRegion DrawnSheet::visualRegionForSelection(const QItemSelection &selection) const
{
    QRegion region;
    for (const QModelIndex &index : selection.indexes())
        region += visualRect(index);
    return region;
}

const QPixmap &DrawnSheet::picture()
{
    const double pixels = scale() * devicePixelRatioF();
    if (m_picture.isNull() || m_pictureScale != pixels) {
        m_pictureScale = pixels;
        const QSizeF size = seen().size() * pixels;
        m_picture =
            QPixmap(std::max(1, int(std::ceil(size.width()))), std::max(1, int(std::ceil(size.height()))));
        m_picture.fill(Qt::white);
        QPainter painter(&m_picture);
        painter.scale(pixels, pixels);
        painter.translate(-seen().topLeft());
        m_sheet->paint(painter);
        painter.end();
        m_picture.setDevicePixelRatio(devicePixelRatioF());
    }
    return m_picture;
}

void DrawnSheet::layOver(QPainter &painter, const QRect &place, const QColor &color)
{
    painter.setCompositionMode(QPainter::CompositionMode_Multiply);
    painter.fillRect(place, color);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
}

void DrawnSheet::drawRim(QPainter &painter, const QRect &place, double width)
{
    painter.setPen(QPen(Theme::light().accent, width));
    painter.drawRect(QRectF(place).adjusted(width / 2, width / 2, -width / 2, -width / 2));
}

void DrawnSheet::paintEvent(QPaintEvent *)
{
    QPainter painter(viewport());
    const Theme &theme = Theme::of(this);
    painter.fillRect(viewport()->rect(), theme.desk);
    if (!m_sheet)
        return;
    const QRect sheet = onScreen(seen());
    painter.fillRect(sheet.translated(2, 3), QColor(0, 0, 0, 36));
    painter.drawPixmap(sheet.topLeft(), picture());
    paintMarks(painter);
}
