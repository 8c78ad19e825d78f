// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// What the password demands of a restore: nobody gets past it by way of a backup.
namespace RestoreRule {

/// What a file of the password is.
enum class Password {
    None, ///< none is set, or there is no such file
    Set,
    Damaged ///< it cannot be told; everything that can be guarded is
};

/// What is known before a restore.
struct Case {
    Password here = Password::None;
    Password copy = Password::None;
    bool isSame = false;          ///< both are set, and it is one password
    bool isFileChosen = false;    ///< the copy's file of the password is to be restored as well
    bool isGuardedByCopy = false; ///< the copy's flags guard a function of which files are chosen
    bool isGuardable = false;     ///< files of a function are chosen that a password could guard

    bool operator==(const Case &) const = default;
};

/// What is to be done before anything is written.
struct Demand {
    bool asksHere = false;  ///< for the password that is set here
    bool asksCopy = false;  ///< for the copy's, checked by its verifier
    bool takesFile = false; ///< the copy's file of the password comes along
    QString refusal{};      ///< a sentence for the user: this cannot be restored; empty otherwise

    bool operator==(const Demand &) const = default;
};

Demand of(const Case &known);

/// Why the copy's file of the password cannot be chosen; empty where it can.
QString whyFileIsRefused(Password copy);

} // namespace RestoreRule
