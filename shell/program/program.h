// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/clock.h"
#include "shell/core/programstate.h"
#include "shell/core/settings.h"
#include "shell/program/dialogs.h"
#include "shell/program/functions.h"
#include "shell/program/programsignals.h"
#include "storage/datafolder.h"

class AccessGate;
class IdleClock;
class QSettings;

/// What every window is given: the household's folder and settings, the program-wide state, the time, the
/// seam to the user, the other functions. One for the whole run, owned by main.
struct Program {
    const DataFolder &folder;
    /// The folder of the executable: backgrounds and whatever else was shipped with the program.
    const DataFolder &programFolder;
    Settings &settings;
    ProgramState &state;
    const Clock &clock;
    Dialogs &dialogs;
    FunctionCatalogue &functions;
    AccessGate &gate;
    /// Toolbar layouts, column widths, splitter places: what belongs to the user's desk and not to the
    /// household.
    QSettings &store;
    ProgramSignals &changes;
    const IdleClock &idle;
};
