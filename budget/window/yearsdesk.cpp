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
    const int year = m_desk.year.year();
    const BudgetFiles &files = m_desk.year.files();
    const BudgetSheet &sheet = m_desk.model.sheet();
    m_view->show(year, {sheet, sheetOf(files, year - 1)},
                 LayAside::of(year, sheet, sheetOf(files, year + 1), m_program.clock.today()));
}

void YearsDesk::print()
{
    const int year = m_desk.year.year();
    const BudgetFiles &files = m_desk.year.files();
    const BudgetSheet sheet = m_desk.model.sheet();
    const YearComparison comparison(sheet, sheetOf(files, year - 1));
    const LayAside aside = LayAside::of(year, sheet, sheetOf(files, year + 1), m_program.clock.today());
    m_window->showPreview(
        [=, what = m_view->compared()](const PageContext &context) {
            return YearsPages::comparison(year, comparison, what, aside, context);
        },
        u"Budgets %1 and %2"_s.arg(year - 1).arg(year));
}
