// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/window/worksheetpane.h"

#include "budget/model/budgetsheet.h"
#include "budget/window/sheetgrid.h"
#include "budget/window/totalsrows.h"
#include "shell/controls/controls.h"

#include <QScrollBar>
#include <QSignalBlocker>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int barGap = 4;
constexpr int fewestRows = 4;
constexpr int fewestDenseRows = 6;
constexpr int leastWidth = 480;
constexpr int monthCount = int(BudgetSheet::monthCount);

} // namespace

WorksheetPane::WorksheetPane(SheetModel &model, QWidget *parent)
    : QWidget(parent)
    , m_grid(named(new SheetGrid(model, this), u"VSGd1"_s))
    , m_totals(new TotalsRows(model, *m_grid, this))
    , m_bar(named(new QScrollBar(Qt::Horizontal, this), u"monthBar"_s))
{
    m_grid->setAccessibleName(u"Budget worksheet"_s);
    m_bar->setAccessibleName(u"Months in view"_s);
    m_bar->hide();
    connect(m_grid, &SheetGrid::columnsMoved, this, &WorksheetPane::fitBar);
    connect(m_bar, &QScrollBar::valueChanged, m_grid, &SheetGrid::setFirstMonth);
    setFocusProxy(m_grid);
}

void WorksheetPane::setRows(SheetLook::Rows rows)
{
    m_rows = rows;
    m_grid->setRows(rows);
    m_totals->setRows(rows);
    updateGeometry();
    arrange();
}

int WorksheetPane::gap() const
{
    return m_rows == SheetLook::Rows::Roomy ? 8 : 4;
}

int WorksheetPane::barHeight() const
{
    return m_bar->isHidden() ? 0 : m_bar->sizeHint().height() + barGap;
}

int WorksheetPane::heightFor(int rows) const
{
    return m_grid->heightOfRows(rows) + gap() + m_totals->sizeHint().height() + barHeight();
}

QSize WorksheetPane::sizeHint() const
{
    return {leastWidth, heightFor(int(BudgetSheet::rowCount))};
}

QSize WorksheetPane::minimumSizeHint() const
{
    return {leastWidth, heightFor(m_rows == SheetLook::Rows::Roomy ? fewestRows : fewestDenseRows)};
}

void WorksheetPane::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    arrange();
}

/// Whole rows, the totals right below them.
void WorksheetPane::arrange()
{
    const int room = height() - heightFor(0);
    const int rows = std::clamp(room / SheetLook::rowHeight(m_rows), 1, int(BudgetSheet::rowCount));
    m_grid->setGeometry(0, 0, width(), m_grid->heightOfRows(rows));
    const int top = m_grid->height() + gap();
    m_totals->setGeometry(0, top, width(), m_totals->sizeHint().height());
    m_bar->setGeometry(0, top + m_totals->height() + barGap, width(), m_bar->sizeHint().height());
}

void WorksheetPane::fitBar()
{
    const QSignalBlocker quiet(m_bar);
    const int inView = m_grid->monthsInView();
    m_bar->setRange(0, monthCount - inView);
    m_bar->setPageStep(inView);
    m_bar->setValue(m_grid->firstMonth());
    if (const bool isNeeded = inView < monthCount; isNeeded == m_bar->isHidden()) {
        m_bar->setVisible(isNeeded);
        updateGeometry();
        arrange();
    }
}
