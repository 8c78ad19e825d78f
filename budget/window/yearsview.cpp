// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/window/yearsview.h"

#include "budget/model/yearslines.h"
#include "budget/window/comparisonmodel.h"
#include "budget/window/sheetlook.h"
#include "budget/window/sumrow.h"
#include "shell/controls/listrowdelegate.h"
#include "shell/controls/rowsmodel.h"
#include "shell/controls/titleline.h"

#include <QComboBox>
#include <QEvent>
#include <QHeaderView>
#include <QResizeEvent>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int leastItemWidth = 90;
constexpr int leastWidthForBoth = 860;
const auto leastFigure = u"-99999.99"_s;

/// Gives the figures room for the widest of `texts`.
void setFigureWidth(QTableView *view, const QStringList &texts)
{
    const QFontMetrics metrics(TypeScale::strong());
    int width = 0;
    for (const QString &text : texts)
        width = std::max(width, metrics.horizontalAdvance(text) + 2 * SheetLook::inset);
    for (int column = 1; column < view->model()->columnCount(); ++column)
        view->setColumnWidth(column, width);
}

/// Rows as elsewhere; the words take what room the figures, as wide as `figure`, leave.
void setFigureRows(QTableView *view, const QString &figure)
{
    setGridRows(view);
    view->verticalHeader()->setMinimumSectionSize(1);
    view->verticalHeader()->setDefaultSectionSize(SheetLook::rowHeight());
    QHeaderView *head = view->horizontalHeader();
    head->setStretchLastSection(false);
    head->setMinimumSectionSize(1);
    setFigureWidth(view, {figure});
    head->setSectionResizeMode(0, QHeaderView::Stretch);
    view->setMinimumWidth(leastItemWidth + (view->model()->columnCount() - 1) * view->columnWidth(1) +
                          2 * view->frameWidth());
}

QVBoxLayout *column(QWidget *part)
{
    auto *rows = new QVBoxLayout(part);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(8);
    return rows;
}

} // namespace

YearsView::YearsView(QWidget *parent)
    : TaskPanel(u"yearsPanel"_s, {}, parent)
    , m_model(new ComparisonModel(this))
    , m_asideModel(new RowsModel<LayAside::Item>(
          [] {
              std::vector<TableColumn<LayAside::Item>> columns;
              const QStringList headings = YearsLines::asideHeadings();
              columns.reserve(std::size_t(headings.size()));
              for (int i = 0; i < int(headings.size()); ++i)
                  columns.push_back(
                      {headings[i], i == 0 ? Qt::AlignLeft : Qt::AlignRight,
                       [i](const LayAside::Item &item) { return YearsLines::asideCells(item)[i]; }});
              return columns;
          }(),
          this))
{
    makeChoice();
    auto *work = new QWidget(this);
    m_sides = new QBoxLayout(QBoxLayout::LeftToRight, work);
    m_sides->setContentsMargins(0, 0, 0, 0);
    m_sides->addWidget(makeComparison(), 5);
    m_sides->addWidget(makeAside(), 4);
    setContent(work);
    QPushButton *print = addButton(u"yearsPrint"_s, u"&Print"_s);
    connect(print, &QPushButton::clicked, this, &YearsView::printWanted);
    setLeaveButton(u"yearsClose"_s, u"C&lose"_s);
    setFocusProxy(m_table);
}

void YearsView::makeChoice()
{
    m_compared = named(new QComboBox, u"yearsCompared"_s);
    m_compared->addItems(YearsLines::compared());
    m_compared->setAccessibleName(u"What is compared"_s);
    titleLine().addAtRight(m_compared);
    connect(m_compared, &QComboBox::currentIndexChanged, this, &YearsView::showComparison);
}

QWidget *YearsView::makeComparison()
{
    auto *part = new QWidget(this);
    m_missing = named(makeQuietLabel({}, part), u"yearsMissing"_s);
    m_missing->setWordWrap(true);
    m_table = named(new QTableView(part), u"yearsTable"_s);
    m_table->setModel(m_model);
    m_table->setAccessibleName(u"This year and the year before"_s);
    setFigureRows(m_table, leastFigure);
    m_sum = named(new SumRow(m_table), u"yearsSum"_s);
    QVBoxLayout *rows = column(part);
    m_missing->setMinimumHeight(SheetLook::rowHeight() - rows->spacing());
    rows->addWidget(m_missing);
    m_tableRows = new WholeRows(m_table, m_sum);
    rows->addWidget(m_tableRows, 1);
    return part;
}

QWidget *YearsView::makeAside()
{
    auto *part = new QWidget(this);
    m_asideWords = named(makeQuietLabel({}, part), u"asideWords"_s);
    m_asideWords->setWordWrap(true);
    auto *table = named(new QTableView(part), u"asideTable"_s);
    table->setModel(m_asideModel);
    table->setAccessibleName(YearsLines::layAside());
    setFigureRows(table, u"Nov 2026"_s);
    m_asideSum = named(new SumRow(table), u"asideSum"_s);
    m_asideRows = new WholeRows(table, m_asideSum);
    QVBoxLayout *rows = column(part);
    QLabel *heading = makeHeading(YearsLines::layAside(), part);
    // Two rows high with what stands above the table: the sums of both tables are level then.
    m_asideWords->setAlignment(Qt::AlignTop);
    m_asideWords->setMinimumHeight(2 * (SheetLook::rowHeight() - rows->spacing()) -
                                   heading->sizeHint().height());
    rows->addWidget(heading);
    rows->addWidget(m_asideWords);
    rows->addWidget(m_asideRows, 1);
    rows->addStretch();
    return part;
}

Compared YearsView::compared() const
{
    return Compared(m_compared->currentIndex());
}

void YearsView::show(int year, const YearComparison &comparison, const LayAside &aside)
{
    m_year = year;
    m_comparison = comparison;
    setTitle(YearsLines::headline(year, comparison));
    m_missing->setText(YearsLines::noBudget(year - 1));
    m_missing->setVisible(!comparison.hasBefore());
    showComparison();
    const bool isEmpty = aside.items.isEmpty();
    m_asideModel->setRows({aside.items.begin(), aside.items.end()});
    m_asideWords->setText(isEmpty ? YearsLines::nothingToLayAside() : YearsLines::layAsideHow());
    m_asideRows->setVisible(!isEmpty);
    m_asideSum->setCells(YearsLines::asideSum(aside));
}

void YearsView::showComparison()
{
    const int row = std::max(0, m_table->currentIndex().row());
    refreshColors();
    m_model->show(m_year, compared(), m_comparison.table(compared()));
    m_sum->setCells(m_model->sum(), m_model->isSumRed());
    setFigureWidth(m_table, m_model->sum().mid(1) << leastFigure);
    if (m_model->rowCount() > 0)
        m_table->selectRow(std::min(row, m_model->rowCount() - 1));
}

void YearsView::refreshColors()
{
    m_model->setRed(SheetLook::red(Theme::of(this)));
}

/// Both tables side by side where there is room for both.
void YearsView::resizeEvent(QResizeEvent *event)
{
    const bool isNarrow = event->size().width() < leastWidthForBoth;
    m_sides->setDirection(isNarrow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    m_sides->setSpacing(isNarrow ? 12 : 24);
    for (WholeRows *rows : {m_tableRows, m_asideRows})
        rows->setGivesWay(!isNarrow);
    TaskPanel::resizeEvent(event);
}

bool YearsView::event(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::Polish)
        refreshColors();
    return TaskPanel::event(event);
}
