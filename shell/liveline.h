#pragma once

#include <QString>

/// The one line of news that a function shows on its card on the main menu.
struct LiveLine {
    enum Urgency { Plain, Due, Overdue };

    QString text;
    Urgency urgency = Plain;
    /// A whole sentence for the line under the date, or empty when the function has nothing to say there.
    QString sentence;

    bool operator==(const LiveLine &) const = default;
};
