// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/window/totalstable.h"

#include "budget/model/amount.h"
#include "budget/window/sheetheadings.h"
#include "budget/window/sheetlook.h"

#include <QPainter>
#include <QStyledItemDelegate>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int frame = 4; ///< rim and padding
constexpr int fewestRows = 4;
constexpr int scrollWidth = 14;
constexpr int leastItemWidth = 100;
constexpr int mostItemWidth = 170; ///< what is longer is cut where there is no room

using Row = BudgetTotals::Row;

std::vector<TableColumn<Row>> columns()
{
    const QStringList heads = TotalsLines::columns();
    return {{heads[0], Qt::AlignLeft, [](const Row &row) { return row.item; }},
            {heads[1], Qt::AlignRight, [](const Row &row) { return Amount::text(row.total); }},
            {heads[2], Qt::AlignRight, [](const Row &row) { return row.share; }}};
}

int widthOf(const QString &figure)
{
    return QFontMetrics(TypeScale::strong()).horizontalAdvance(figure) + 2 * SheetLook::inset;
}

/// The sum of a year's largest amounts.
int totalWidth()
{
    return widthOf(u"119999.88"_s);
}

int shareWidth()
{
    return widthOf(u"100.00%"_s);
}

/// The current row is marked as a whole.
class RowDelegate final : public QStyledItemDelegate
{
public:
    explicit RowDelegate(QTableView *view)
        : QStyledItemDelegate(view)
        , m_view(view)
    {}

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        const Theme &theme = Theme::of(m_view);
        const QModelIndex current = m_view->currentIndex();
        const bool isCurrent = current.isValid() && current.row() == index.row();
        if (isCurrent)
            painter->fillRect(option.rect, theme.mark);
        else if (index.row() % 2 != 0)
            painter->fillRect(option.rect, theme.alternate);
        if (isCurrent && m_view->hasFocus()) {
            painter->fillRect(QRect(option.rect.topLeft(), QSize(option.rect.width(), 2)), theme.accent);
            painter->fillRect(QRect(option.rect.x(), option.rect.bottom() - 1, option.rect.width(), 2),
                              theme.accent);
        }
        painter->setFont(option.font);
        painter->setPen(theme.text);
        const QRect place = option.rect.adjusted(SheetLook::inset, 0, -SheetLook::inset, 0);
        const auto alignment = index.data(Qt::TextAlignmentRole).value<Qt::Alignment>();
        painter->drawText(
            place, int(alignment),
            option.fontMetrics.elidedText(index.data().toString(), Qt::ElideRight, place.width()));
    }

private:
    QTableView *m_view;
};

} // namespace

TotalsTable::TotalsTable(QWidget *parent)
    : QTableView(parent)
    , m_model(columns())
    , m_itemWidth(leastItemWidth)
{
    setModel(&m_model);
    setItemDelegate(new RowDelegate(this));
    setHorizontalHeader(new SheetHeadings(Qt::Horizontal, this));
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setDefaultSectionSize(SheetLook::rowHeight());
    horizontalHeader()->setSectionsClickable(false);
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerItem);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setFont(TypeScale::body());
    setAccessibleName(u"Totals of the items"_s);
}

/// The current row stays, whatever it holds now.
void TotalsTable::setRows(const QList<BudgetTotals::Row> &rows)
{
    const int row = currentIndex().row();
    m_model.setRows({rows.begin(), rows.end()});
    m_itemWidth = leastItemWidth;
    for (const BudgetTotals::Row &one : rows)
        m_itemWidth = std::clamp(widthOf(one.item), m_itemWidth, mostItemWidth);
    if (row >= 0 && m_model.rowCount() > 0)
        setCurrentIndex(m_model.index(std::min(row, m_model.rowCount() - 1), 0));
    updateGeometry();
}

int TotalsTable::heightOf(int rows) const
{
    return horizontalHeader()->sizeHint().height() + rows * SheetLook::rowHeight() + 2 * frame;
}

int TotalsTable::heightIn(int room) const
{
    const int rows = (room - heightOf(0)) / SheetLook::rowHeight();
    return heightOf(std::clamp(rows, 1, std::max(1, m_model.rowCount())));
}

QSize TotalsTable::sizeHint() const
{
    return {m_itemWidth + totalWidth() + shareWidth() + scrollWidth + 2 * frame,
            heightOf(m_model.rowCount())};
}

QSize TotalsTable::minimumSizeHint() const
{
    return {sizeHint().width(), heightOf(fewestRows)};
}

void TotalsTable::resizeEvent(QResizeEvent *event)
{
    QTableView::resizeEvent(event);
    setColumnWidth(1, totalWidth());
    setColumnWidth(2, shareWidth());
    setColumnWidth(0, viewport()->width() - totalWidth() - shareWidth());
}

void TotalsTable::focusInEvent(QFocusEvent *event)
{
    if (!currentIndex().isValid() && m_model.rowCount() > 0)
        setCurrentIndex(m_model.index(0, 0));
    QTableView::focusInEvent(event);
}
