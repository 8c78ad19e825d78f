// SPDX-License-Identifier: GPL-3.0-or-later
// How long the budget takes from the click on its card to the painted sheet.

#include "benchmarks/limit.h"
#include "budget/window/budgetwindow.h"
#include "shell/access/gate.h"
#include "shell/look/theme.h"
#include "shell/program/program.h"
#include "shell/program/qtdialogs.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double mostMilliseconds = 150;

/// Sees the first painting of what it watches.
class PaintWatch final : public QObject
{
public:
    using QObject::QObject;
    bool isPainted() const { return m_isPainted; }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        m_isPainted = m_isPainted || event->type() == QEvent::Paint;
        return false;
    }

private:
    bool m_isPainted = false;
};

void openBudget(benchmark::State &state)
{
    QTemporaryDir data;
    const QDir household(QStringLiteral(QUILLERY_HOUSEHOLD));
    for (const QString &name : household.entryList(QDir::Files)) {
        if (!QFile::copy(household.filePath(name), data.filePath(name)))
            qFatal("cannot copy the household");
    }
    const DataFolder folder(data.path());
    Settings settings(folder);
    ProgramState programState;
    const SystemClock clock;
    QtDialogs dialogs;
    FunctionCatalogue functions;
    AccessGate gate({});
    QSettings store(data.filePath(u"desk.ini"_s), QSettings::IniFormat);
    ProgramSignals changes;
    Program program{folder, folder, settings, programState, clock, dialogs, functions, gate, store, changes};
    double best = 1e9;
    for ([[maybe_unused]] auto round : state) {
        PaintWatch watch;
        QElapsedTimer timer;
        timer.start();
        const auto window = std::make_unique<Budget1>(program);
        window->findChild<QAbstractScrollArea *>(u"VSGd1"_s)->viewport()->installEventFilter(&watch);
        window->show();
        while (!watch.isPainted())
            QApplication::processEvents();
        best = std::min(best, double(timer.nsecsElapsed()) / 1e6);
    }
    state.counters["best_ms"] = best;
    state.counters["limit"] = mostMilliseconds;
    if (best > mostMilliseconds)
        state.SkipWithError("the window takes too long");
}
BENCHMARK(openBudget)->Iterations(10)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    Theme::apply(application);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return EXIT_SUCCESS;
}
