// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/window/worksheetview.h"

#include "budget/model/budgetnews.h"
#include "budget/model/lines.h"
#include "budget/model/spentlines.h"
#include "budget/window/budgetyear.h"
#include "budget/window/sheetgrid.h"
#include "budget/window/sheetmodel.h"
#include "budget/window/spentyear.h"
#include "budget/window/worksheetpane.h"
#include "budget/window/yearbox.h"
#include "shell/controls/buttonrow.h"
#include "shell/controls/lowwindow.h"
#include "shell/controls/titleline.h"
#include "shell/core/framelines.h"
#include "shell/program/program.h"

#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

WorksheetView::WorksheetView(const Program &program, Desk desk, QWidget *parent)
    : QWidget(parent)
    , m_program(program)
    , m_desk(desk)
    , m_title(new TitleLine(u"budgetTitle"_s, {}, this))
    , m_years(new YearBox(this))
    , m_pane(new WorksheetPane(m_desk.model, this))
    , m_foot(new ButtonRow(this))
    , m_layout(new QVBoxLayout(this))
    , m_low(new LowWindow(this))
{
    setObjectName("sheetView"_L1);
    m_title->addAtRight(m_years);
    m_layout->addWidget(m_title);
    m_layout->addWidget(m_pane, 1);
    m_layout->addWidget(m_foot);
    fit(m_low->isLow());
    setFocusProxy(m_pane);
    connect(m_low, &LowWindow::changed, this, &WorksheetView::fit);
    connect(m_years, &YearBox::done, m_pane, qOverload<>(&QWidget::setFocus));
    connect(&m_desk.model, &SheetModel::recomputed, this, &WorksheetView::refresh);
    connect(&m_desk.model, &SheetModel::layerChanged, this, &WorksheetView::refresh);
    connect(&m_desk.spent, &SpentYear::changed, this, &WorksheetView::refresh);
    connect(&m_desk.year, &BudgetYear::fileTouched, this, &WorksheetView::refresh);
    connect(&m_desk.year, &BudgetYear::loaded, m_years, &YearBox::setYear);
    connect(&m_desk.year, &BudgetYear::opened, this, &WorksheetView::goToBeginning);
}

SheetGrid &WorksheetView::grid() const
{
    return m_pane->grid();
}

TotalsRows &WorksheetView::totals() const
{
    return m_pane->totals();
}

void WorksheetView::setSwitch(QWidget *layers)
{
    m_title->addAtRight(layers);
    m_title->addAtRight(m_years);
}

/// In a low window the rows have what room there is.
void WorksheetView::fit(bool isLow)
{
    const int edge = isLow ? 6 : 14;
    m_layout->setContentsMargins(20, edge, 20, edge);
    m_layout->setSpacing(isLow ? 6 : 12);
    m_pane->setRows(isLow ? SheetLook::Rows::Dense : SheetLook::Rows::Roomy);
}

void WorksheetView::refresh()
{
    m_title->setTitle(title(QLocale::LongFormat), title(QLocale::ShortFormat));
    m_foot->setWords(words());
}

bool WorksheetView::isEmpty() const
{
    return m_desk.model.sheet() == BudgetSheet();
}

bool WorksheetView::isOfThisYear() const
{
    return BudgetFiles::yearOf(m_program.clock.today()) == m_desk.year.year();
}

/// What is left of `month` (from 0): of what is planned, or of the income after what was spent.
double WorksheetView::leftOf(std::size_t month) const
{
    if (m_desk.model.layer() == SheetLayer::Spent) {
        const qint64 income = centsOf(m_desk.model.sheet().incomes[month]);
        return double(std::max(qint64(0), income) - m_desk.spent.sums().months[month]) / 100;
    }
    const auto cents = BudgetNews::left(m_desk.model.sheet(), m_desk.spent.sums(), month);
    return double(cents.value_or(0)) / 100;
}

/// What is left of the month of today, which in short is named without its year; of another year, what is
/// left of all its months.
QString WorksheetView::title(QLocale::FormatType format) const
{
    const QString year = QString::number(m_desk.year.year());
    const bool isSpent = m_desk.model.layer() == SheetLayer::Spent;
    if (isEmpty() && !(isSpent && m_desk.spent.sums().hasAny()))
        return BudgetLines::noBudgetYet(m_desk.year.year());
    const auto words = isSpent ? BudgetLines::notSpent : BudgetLines::balance;
    if (isOfThisYear()) {
        const int month = m_program.clock.today().month();
        const QString name = QLocale::c().monthName(month, format);
        return words(format == QLocale::LongFormat ? QString(name + u' ' + year) : name,
                     leftOf(std::size_t(month - 1)));
    }
    double left = 0;
    for (std::size_t month = 0; month < BudgetSheet::monthCount; ++month)
        left += leftOf(month);
    return words(year, left);
}

QString WorksheetView::words() const
{
    if (m_desk.year.isModified())
        return FrameLines::unsavedChanges();
    if (m_desk.model.isReadOnly())
        return {};
    if (isEmpty())
        return BudgetLines::howToBegin();
    return m_desk.model.layer() == SheetLayer::Spent ? SpentLines::howToAdd()
                                                     : BudgetLines::howToEnterIncome();
}

/// The month of today; where nothing is entered yet, the first item.
void WorksheetView::goToBeginning()
{
    const int month = isOfThisYear() ? m_program.clock.today().month() : SheetColumn::firstMonth;
    grid().setCurrentIndex(m_desk.model.index(0, isEmpty() ? SheetColumn::item : month));
}
