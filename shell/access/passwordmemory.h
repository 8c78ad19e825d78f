// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QDeadlineTimer>

/// What the program remembers of the password until it ends, whatever happens to the file or the prompt.
struct PasswordMemory {
    /// The last whole content of `PCtrl1.Fil`: guards on where the file vanishes.
    QByteArray file;
    /// Wrong answers since the last right one, and how long the last of them still waits.
    int wrongAnswers = 0;
    QDeadlineTimer wait{0};
};
