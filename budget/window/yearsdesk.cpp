// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/window/yearsdesk.h"

#include "budget/model/lines.h"
#include "budget/model/yearspages.h"
#include "budget/window/budgetyear.h"
#include "budget/window/sheetgrid.h"
#include "budget/window/sheetmodel.h"
#include "budget/window/yearsview.h"
#include "shell/frame/commonkeys.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/workviews.h"
#include "shell/program/program.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// Nothing where `year` has no budget.
std::optional<BudgetSheet> sheetOf(const BudgetFiles &files, int year)
{
    const bool isThere = year >= BudgetFiles::firstYear && year <= BudgetFiles::lastYear && files.has(year);
    return isThere ? std::optional(files.read(year).sheet) : std::nullopt;
}

} // namespace

YearsDesk::YearsDesk(Program &program, Desk desk, FunctionWindow *window)
    : QObject(window)
    , m_program(program)
    , m_desk(desk)
    , m_window(window)
    , m_view(new YearsView)
{
    m_desk.views.addPanel(m_view);
    connect(m_view, &YearsView::printWanted, this, &YearsDesk::print);
    const auto follow = [this] {
        if (m_desk.views.isShown(m_view))
            refresh();
    };
    connect(&desk.model, &SheetModel::recomputed, this, follow);
    connect(&desk.year, &BudgetYear::loaded, this, follow);
}

void YearsDesk::addCommand(Commands &commands, QMenu *view)
{
    commands.add(
        view, u"mVYears"_s, u"Compare &Years"_s, [this] { open(); },
        [this] {
            return m_desk.views.isHome() && !m_window->isPreviewShown() ? QString()
                                                                        : BudgetLines::inSheetOnly();
        },
        CommonKeys::views[3]);
}

void YearsDesk::open()
{
    m_desk.grid.finishEdit();
    m_desk.views.open(m_view);
    refresh();
    m_view->setFocus();
}

void YearsDesk::refresh()
{
    m_view->show(m_desk.year.year(), comparison(), layAside());
}

YearComparison YearsDesk::comparison() const
{
    return {m_desk.model.sheet(), sheetOf(m_desk.year.files(), m_desk.year.year() - 1)};
}

LayAside YearsDesk::layAside() const
{
    const int year = m_desk.year.year();
    return LayAside::of(year, m_desk.model.sheet(), sheetOf(m_desk.year.files(), year + 1),
                        m_program.clock.today());
}

void YearsDesk::print()
{
    const int year = m_desk.year.year();
    m_window->showPreview(
        [year, years = comparison(), aside = layAside(), what = m_view->compared()](
            const PageContext &context) { return YearsPages::comparison(year, years, what, aside, context); },
        u"Budgets %1 and %2"_s.arg(year - 1).arg(year));
}
