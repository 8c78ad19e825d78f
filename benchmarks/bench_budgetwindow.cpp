// SPDX-License-Identifier: GPL-3.0-or-later
// How long a full budget takes from the click on its card to the painted sheet, and from an edit to the
// painted sums.

#include "benchmarks/limit.h"
#include "benchmarks/paintwatch.h"
#include "budget/model/budgetfiles.h"
#include "budget/window/budgetwindow.h"
#include "shell/access/gate.h"
#include "shell/look/theme.h"
#include "shell/program/program.h"
#include "shell/program/qtdialogs.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QElapsedTimer>
#include <QSettings>
#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double mostToOpen = 150; ///< milliseconds
constexpr double mostToEdit = 16;  ///< a frame of the screen

/// A program with a full sheet for this year.
class Desk
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
        if (!BudgetFiles(m_folder).write(BudgetFiles::yearOf(m_clock.today()), sheet))
            qFatal("cannot write the budget");
    }

private:
    QTemporaryDir m_data;
    DataFolder m_folder{m_data.path()};
    Settings m_settings{m_folder};
    ProgramState m_state;
    SystemClock m_clock;
    QtDialogs m_dialogs;
    FunctionCatalogue m_functions;
    AccessGate m_gate{{}};
    QSettings m_store{m_data.filePath(u"desk.ini"_s), QSettings::IniFormat};
    ProgramSignals m_changes;

public:
    Program program{m_folder,  m_folder,    m_settings, m_state, m_clock,
                    m_dialogs, m_functions, m_gate,     m_store, m_changes};
};

void hold(benchmark::State &state, double best, double most)
{
    state.counters["best_ms"] = best;
    state.counters["limit"] = most;
    if (best > most)
        state.SkipWithError("takes too long");
}

void openBudget(benchmark::State &state)
{
    Desk desk;
    double best = 1e9;
    for ([[maybe_unused]] auto round : state) {
        QElapsedTimer timer;
        timer.start();
        Budget1 window(desk.program);
        PaintWatch watch(window.findChild<QAbstractItemView *>(u"VSGd1"_s)->viewport());
        window.show();
        watch.wait();
        best = std::min(best, double(timer.nsecsElapsed()) / 1e6);
    }
    hold(state, best, mostToOpen);
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
    double best = 1e9;
    int amount = 100;
    for ([[maybe_unused]] auto round : state) {
        QElapsedTimer timer;
        timer.start();
        grid->model()->setData(grid->currentIndex(), QString::number(++amount));
        watch.wait();
        best = std::min(best, double(timer.nsecsElapsed()) / 1e6);
    }
    hold(state, best, mostToEdit);
}
BENCHMARK(editACell)->Iterations(50)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    Theme::apply(application);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return EXIT_SUCCESS;
}
