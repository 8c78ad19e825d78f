// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "benchmarks/paintwatch.h"
#include "shell/access/gate.h"
#include "shell/look/theme.h"
#include "shell/program/idleclock.h"
#include "shell/program/program.h"
#include "shell/program/qtdialogs.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QSettings>
#include <QTemporaryDir>

#include <algorithm>
#include <benchmark/benchmark.h>

/// What a window may take: milliseconds from the click to the painted window, and a frame of the screen from
/// an edit to all that follows from it.
inline constexpr double mostToOpen = 150;
inline constexpr double mostToEdit = 16;

/// A program on an empty folder of its own, in which the windows of a function are opened.
class WindowDesk
{
public:
    DataFolder &folder() { return m_folder; }
    const Clock &clock() const { return m_clock; }

private:
    QTemporaryDir m_data;
    DataFolder m_folder{m_data.path()};
    Settings m_settings{m_folder};
    ProgramState m_state;
    SystemClock m_clock;
    QtDialogs m_dialogs;
    FunctionCatalogue m_functions;
    AccessGate m_gate{{}};
    QSettings m_store{m_data.filePath(QStringLiteral("desk.ini")), QSettings::IniFormat};
    ProgramSignals m_changes;
    IdleClock m_idle;

public:
    Program program{m_folder,    m_folder, m_settings, m_state,   m_clock, m_dialogs,
                    m_functions, m_gate,   m_store,    m_changes, m_idle};
};

/// The best of the times that a benchmark takes; longer than `most` milliseconds, and it has failed.
class BestTime
{
public:
    BestTime(benchmark::State &state, double most)
        : m_state(state)
        , m_most(most)
    {}
    ~BestTime()
    {
        m_state.counters["best_ms"] = m_best;
        m_state.counters["limit"] = m_most;
        if (m_best > m_most)
            m_state.SkipWithError("takes too long");
    }
    Q_DISABLE_COPY_MOVE(BestTime)

    void start() { m_timer.start(); }
    void stop() { take(double(m_timer.nsecsElapsed()) / 1e6); }
    /// For what was timed elsewhere, in milliseconds.
    void take(double milliseconds) { m_best = std::min(m_best, milliseconds); }

private:
    benchmark::State &m_state;
    double m_most;
    double m_best = 1e9;
    QElapsedTimer m_timer;
};

/// The `main` of a benchmark that shows windows.
inline int runOnScreen(int argc, char *argv[])
{
    QApplication application(argc, argv);
    Theme::apply(application);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return EXIT_SUCCESS;
}
