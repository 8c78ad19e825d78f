// SPDX-License-Identifier: GPL-3.0-or-later
// How long a full budget takes from the click on its card to the painted sheet, and from an edit to the
// painted sums.

#include "benchmarks/windowdesk.h"
#include "budget/model/budgetfiles.h"
#include "budget/window/budgetwindow.h"

#include <QAbstractItemView>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A program with a full sheet for this year.
class Desk final : public WindowDesk
{
public:
    Desk()
    {
        BudgetSheet sheet;
        for (std::size_t row = 0; row < sheet.rows.size(); ++row) {
            sheet.rows[row].item = u"Item %1"_s.arg(row);
            sheet.rows[row].amounts.fill(u"%1.50"_s.arg(row + 10));
        }
        sheet.incomes.fill(u"2500.00"_s);
        if (!BudgetFiles(folder()).write(BudgetFiles::yearOf(clock().today()), sheet))
            qFatal("cannot write the budget");
    }
};

void openBudget(benchmark::State &state)
{
    Desk desk;
    BestTime best(state, mostToOpen);
    for ([[maybe_unused]] auto round : state) {
        best.start();
        Budget1 window(desk.program);
        PaintWatch watch(window.findChild<QAbstractItemView *>(u"VSGd1"_s)->viewport());
        window.show();
        watch.wait();
        best.stop();
    }
}
BENCHMARK(openBudget)->Iterations(10)->Unit(benchmark::kMillisecond);

void editACell(benchmark::State &state)
{
    Desk desk;
    Budget1 window(desk.program);
    auto *grid = window.findChild<QAbstractItemView *>(u"VSGd1"_s);
    PaintWatch watch(grid->viewport());
    window.show();
    watch.wait();
    int amount = 100;
    BestTime best(state, mostToEdit);
    for ([[maybe_unused]] auto round : state) {
        best.start();
        grid->model()->setData(grid->currentIndex(), QString::number(++amount));
        watch.wait();
        best.stop();
    }
}
BENCHMARK(editACell)->Iterations(50)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char *argv[])
{
    return runOnScreen(argc, argv);
}
