// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

/// The one line of news that a function shows on its card on the main menu.
struct LiveLine {
    enum Urgency { Plain, Due, Overdue };

    QString text;
    Urgency urgency = Plain;
    /// A whole sentence for the line under the date, or empty when the function has nothing to say there.
    QString sentence;
    /// The part of `text` that is cut first where not all of it has room: a name. None when the length is 0.
    qsizetype nameAt = 0;
    qsizetype nameLength = 0;
    /// What stands for `text` where not all of it has room: the first that has, or the last.
    QStringList shorter{};

    bool operator==(const LiveLine &) const = default;
};
