// SPDX-License-Identifier: GPL-3.0-or-later
// How long the budget takes from the click on its card to the painted sheet.

#include "app/assembly.h"
#include "benchmarks/limit.h"
#include "shell/look/theme.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
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
    const DataFolder programFolder(QStringLiteral(QUILLERY_PROGRAM));
    Assembly assembly(programFolder, folder);
    double best = 1e9;
    for ([[maybe_unused]] auto round : state) {
        PaintWatch watch;
        QElapsedTimer clock;
        clock.start();
        QWidget *window = assembly.program().functions.open(Function::Budget, assembly.program());
        window->findChild<QWidget *>(u"VSGd1"_s)->installEventFilter(&watch);
        window->show();
        while (!watch.isPainted())
            QApplication::processEvents();
        best = std::min(best, double(clock.nsecsElapsed()) / 1e6);
        delete window;
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
