// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

/// What can be said of a password that somebody has typed. How hard it is to guess is told where the program
/// was built with libzxcvbn; elsewhere there are facts and no estimate.
struct PasswordStrength {
    int length = 0;      ///< characters
    bool isWord = false; ///< the spelling dictionary has it
    bool isUsedBefore = false;
    std::optional<double> bits{};

    /// Below this a master password is called weak.
    static constexpr double enough = 50;
    bool isWeak() const { return bits && *bits < enough; }

    /// Whom to ask; a function that is missing answers no.
    struct Knowledge {
        std::function<bool(const QString &)> isWord{};
        std::function<bool(const QString &)> isUsedBefore{};
        QStringList alsoGuessed{}; ///< title, user name and the like, which are tried first
    };

    static PasswordStrength of(const QString &password, const Knowledge &knowledge);
    /// Whether passwords can be judged in this build.
    static bool canEstimate();

    /// "12 characters, about 41 bits", "7 characters, a word in the dictionary, used before"; empty for none.
    QString words() const;

    bool operator==(const PasswordStrength &) const = default;
};
