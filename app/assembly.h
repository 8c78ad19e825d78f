// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/window/dailysnapshot.h"
#include "backup/window/guardedsnapshots.h"
#include "shell/access/gate.h"
#include "shell/access/sessionwatch.h"
#include "shell/access/windowguard.h"
#include "shell/manual/helpviewer.h"
#include "shell/program/idleclock.h"
#include "shell/program/program.h"
#include "shell/program/qtdialogs.h"

#include <QSettings>

#include <memory>

/// The parts of a running program, put together for one data folder: settings and password flags are read,
/// the functions stand in the catalogue; no window is made yet. The manual is one window, made when help is
/// first asked for. One assembly for the whole run.
class Assembly
{
public:
    /// Both folders must outlive the assembly. Unfinished saves of an earlier run are finished first.
    Assembly(const DataFolder &programFolder, const DataFolder &folder);
    Assembly(const Assembly &) = delete;
    Assembly &operator=(const Assembly &) = delete;

    Program &program() { return m_program; }

private:
    void openManual(int context);

    QSettings m_store;
    Settings m_settings;
    ProgramState m_state;
    SystemClock m_clock;
    QtDialogs m_dialogs;
    FunctionCatalogue m_functions;
    AccessGate m_gate;
    ProgramSignals m_changes;
    IdleClock m_idle;
    Program m_program;
    WindowGuard m_guard;
    SessionWatch m_session;
    DailySnapshot m_snapshot;
    GuardedSnapshots m_guarded;
    std::unique_ptr<HelpViewer> m_manual;
};
