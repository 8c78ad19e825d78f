// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/recordchange.h"

#include <QString>

#include <functional>

/// Something that a person did in a window and may take back.
struct UndoStep {
    /// Of what was typed nothing is on the disk yet: such a step goes with the text, and asks nothing.
    enum Kind { Written, Typed };

    QString title; ///< as the status bar said it: "Deleted: Josephine Holm"
    std::function<ChangeResult()> undo;
    std::function<ChangeResult()> redo;
    Kind kind = Written;
};
