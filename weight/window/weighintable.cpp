// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/window/weighintable.h"

#include "shell/controls/controls.h"
#include "shell/look/icons.h"
#include "shell/look/theme.h"
#include "weight/window/weighinmodel.h"
#include "weight/window/windowlines.h"

#include <QHeaderView>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {
/// Beside the words of a heading, and above and below them.
constexpr int headingMargins = 20;
constexpr int headingAir = 12;
constexpr int sortSign = 16;

/// Headings of two lines leave no room above them for the arrow of the style; it stands before them.
class Headings final : public QHeaderView
{
public:
    explicit Headings(QWidget *parent)
        : QHeaderView(Qt::Horizontal, parent)
    {
        setSectionsClickable(true);
        setHighlightSections(false);
    }
    void setSorting(int section, Qt::SortOrder order)
    {
        m_sorted = section;
        m_order = order;
        viewport()->update();
    }

protected:
    void paintSection(QPainter *painter, const QRect &section, int index) const override
    {
        painter->save();
        QHeaderView::paintSection(painter, section, index);
        painter->restore();
        if (index != m_sorted)
            return;
        const QPoint at(section.left() + 4, section.center().y() - sortSign / 2);
        painter->drawPixmap(at, Icons::pixmap(m_order == Qt::AscendingOrder ? "up"_L1 : "down"_L1,
                                              Theme::of(this).scheme, sortSign, devicePixelRatioF()));
    }

private:
    int m_sorted = -1;
    Qt::SortOrder m_order = Qt::AscendingOrder;
};

} // namespace

WeighInTable::WeighInTable(WeighInModel *model, QWidget *parent)
    : CellGrid(parent)
    , m_weighIns(model)
{
    named(this, u"Grid4"_s);
    setPlainRows();
    setModel(model);
    setAccessibleName(u"Weigh-ins"_s);
    auto *heading = new Headings(this);
    setHorizontalHeader(heading);
    heading->setSectionResizeMode(QHeaderView::Stretch);
    for (const auto &[column, width] : {std::pair(WeighInModel::Date, 100), {WeighInModel::Weight, 84}}) {
        heading->setSectionResizeMode(column, QHeaderView::Fixed);
        heading->resizeSection(column, TypeScale::wide(width));
    }
    // A click sorts; it would choose the whole column, too.
    disconnect(heading, &QHeaderView::sectionPressed, this, nullptr);
    connect(heading, &QHeaderView::sectionClicked, this, &WeighInTable::sortBy);
    connect(heading, &QHeaderView::sectionResized, this, &WeighInTable::fitHeadings);
    fitHeadings();
    keepEndInSight();
}

/// The last two columns share what the others leave. Where there is little of it, the last one has two lines
/// for its heading and the one before it the rest.
void WeighInTable::shareWidth()
{
    QHeaderView *heading = horizontalHeader();
    const int room = viewport()->width() - heading->sectionSize(WeighInModel::Date) -
                     heading->sectionSize(WeighInModel::Weight);
    const QFontMetrics metrics(TypeScale::body());
    const int last = metrics.horizontalAdvance(u"Beginning Weight"_s) + headingMargins + 1;
    const int least = metrics.horizontalAdvance(u"Change from"_s) + headingMargins + 1;
    const bool isNarrow = room / 2 < last && room - last >= least;
    heading->setSectionResizeMode(WeighInModel::Change, isNarrow ? QHeaderView::Fixed : QHeaderView::Stretch);
    if (isNarrow)
        heading->resizeSection(WeighInModel::Change, room - last);
}

void WeighInTable::resizeEvent(QResizeEvent *event)
{
    shareWidth();
    CellGrid::resizeEvent(event);
}

/// A heading in a narrow column has as many lines as its words need.
void WeighInTable::fitHeadings()
{
    QHeaderView *heading = horizontalHeader();
    const QFontMetrics metrics(TypeScale::body());
    int height = 2 * metrics.lineSpacing();
    for (int column = 0; column < WeighInModel::columns; ++column) {
        const QRect room(0, 0, heading->sectionSize(column) - headingMargins, QWIDGETSIZE_MAX);
        const QString words = model()->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
        height = std::max(height, metrics.boundingRect(room, Qt::TextWordWrap, words).height());
    }
    if (height + headingAir == heading->height())
        return;
    heading->setFixedHeight(height + headingAir);
    updateGeometry(); // what it stands in leaves room for whole rows below the heading
}

/// The last weigh-in stays in sight when the table becomes lower, until somebody scrolls to another.
void WeighInTable::keepEndInSight()
{
    QScrollBar *bar = verticalScrollBar();
    connect(bar, &QScrollBar::valueChanged, this, [this, bar](int at) { m_isAtEnd = at == bar->maximum(); });
    connect(bar, &QScrollBar::rangeChanged, this, [this, bar](int, int end) {
        if (m_isAtEnd)
            bar->setValue(end);
    });
}

void WeighInTable::showRow(int row)
{
    const bool isLast = row < 0;
    const qsizetype shown = m_weighIns->shownRow(isLast ? m_weighIns->rowCount() - 1 : row);
    const QModelIndex index = m_weighIns->index(int(shown), WeighInModel::Weight);
    if (!isLast)
        setCurrentIndex(index);
    scrollTo(index);
}

qsizetype WeighInTable::chosenRow() const
{
    return currentIndex().isValid() ? m_weighIns->tableRow(currentIndex().row()) : -1;
}

void WeighInTable::turnByWeight()
{
    finishEdit();
    const std::optional<Qt::SortOrder> before = m_weighIns->shownByWeight();
    showByWeight(!before                         ? std::optional(Qt::AscendingOrder)
                 : *before == Qt::AscendingOrder ? std::optional(Qt::DescendingOrder)
                                                 : std::nullopt);
}

/// A click on the heading of the dates sorts the file, one on that of the weights only what is shown.
void WeighInTable::sortBy(int column)
{
    finishEdit();
    if (column == WeighInModel::Weight)
        turnByWeight();
    else if (column == WeighInModel::Date && m_weighIns->shownByWeight())
        showByWeight({});
    else if (column == WeighInModel::Date)
        emit sortWanted();
}

void WeighInTable::showByWeight(std::optional<Qt::SortOrder> order)
{
    m_weighIns->showByWeight(order);
    if (order)
        scrollToTop();
    else
        scrollToBottom();
    refresh();
    emit said(!order                         ? TrackerLines::inFileOrder()
              : *order == Qt::AscendingOrder ? TrackerLines::lightestFirst()
                                             : TrackerLines::heaviestFirst());
}

void WeighInTable::refresh()
{
    const std::optional<Qt::SortOrder> order = m_weighIns->shownByWeight();
    static_cast<Headings *>(horizontalHeader())
        ->setSorting(order ? WeighInModel::Weight : -1, order.value_or(Qt::AscendingOrder));
}
