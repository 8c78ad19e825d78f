// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/window/worksheetview.h"

#include "budget/model/budgetnews.h"
#include "budget/model/lines.h"
#include "budget/window/budgetyear.h"
#include "budget/window/sheetgrid.h"
#include "budget/window/sheetmodel.h"
#include "budget/window/spentyear.h"
#include "budget/window/worksheetpane.h"
#include "budget/window/yearbox.h"
#include "shell/controls/buttonrow.h"
#include "shell/controls/titleline.h"
#include "shell/core/framelines.h"
#include "shell/program/program.h"

#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

WorksheetView::WorksheetView(const Program &program, Desk desk, QWidget *parent)
    : QWidget(parent)
    , m_program(program)
    , m_desk(desk)
    , m_title(new TitleLine(u"budgetTitle"_s, {}, this))
    , m_years(new YearBox(this))
    , m_pane(new WorksheetPane(m_desk.model, this))
    , m_foot(new ButtonRow(this))
{
    setObjectName("sheetView"_L1);
    m_title->addAtRight(m_years);
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(20, 14, 20, 14);
    rows->setSpacing(12);
    rows->addWidget(m_title);
    rows->addWidget(m_pane, 1);
    rows->addWidget(m_foot);
    setFocusProxy(m_pane);
    connect(m_years, &YearBox::done, m_pane, qOverload<>(&QWidget::setFocus));
    connect(&m_desk.model, &SheetModel::recomputed, this, &WorksheetView::refresh);
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

void WorksheetView::refresh()
{
    m_title->setTitle(title());
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

/// What is left of the month of today; of another year, what is left of all its months.
QString WorksheetView::title() const
{
    const QString year = QString::number(m_desk.year.year());
    if (isEmpty())
        return BudgetLines::noBudgetYet(m_desk.year.year());
    const auto leftOf = [this](int month) {
        const auto cents = BudgetNews::left(m_desk.model.sheet(), m_desk.spent.sums(), std::size_t(month));
        return double(cents.value_or(0)) / 100;
    };
    if (isOfThisYear()) {
        const int month = m_program.clock.today().month();
        return BudgetLines::balance(QLocale::c().monthName(month) + u' ' + year, leftOf(month - 1));
    }
    double left = 0;
    for (int month = 0; month < int(BudgetSheet::monthCount); ++month)
        left += leftOf(month);
    return BudgetLines::balance(year, left);
}

QString WorksheetView::words() const
{
    if (m_desk.year.isModified())
        return FrameLines::unsavedChanges();
    if (m_desk.model.isReadOnly())
        return {};
    return isEmpty() ? BudgetLines::howToBegin() : BudgetLines::howToEnterIncome();
}

/// The month of today; where nothing is entered yet, the first item.
void WorksheetView::goToBeginning()
{
    const int month = isOfThisYear() ? m_program.clock.today().month() : SheetColumn::firstMonth;
    grid().setCurrentIndex(m_desk.model.index(0, isEmpty() ? SheetColumn::item : month));
}
