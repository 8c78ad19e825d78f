// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/wronganswers.h"

#include <QByteArray>
#include <QDeadlineTimer>
#include <QString>

#include <optional>

/// How long the last wrong answer still waits, whichever prompt it was given to.
struct AttemptMemory {
    QDeadlineTimer wait{0};
    bool isBegun = false; ///< what an earlier run left to wait was counted in
};

/// What the program remembers of the password until it ends, whatever happens to the file or the prompt.
struct PasswordMemory {
    /// The last whole content of `PCtrl1.Fil`: guards on where the file vanishes.
    QByteArray file;
    /// As this run knows them, also where the disk takes nothing; nothing while no answer was given.
    std::optional<WrongAnswers> wrong;
    AttemptMemory attempts;
    /// Those before the recovery code was given: told with the first right password after it.
    WrongAnswers beforeCode;
    /// A new recovery code that nobody has said yet to have kept: the next right answer shows it again.
    QString newCode;
};
