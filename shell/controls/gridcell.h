// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <Qt>

/// What a model tells a `CellGrid` of a cell beside its text.
namespace GridCell {

/// What is typed into a cell, by which the box for it is chosen.
enum class Kind { Words, Number, Date };

enum Role {
    kindRole = Qt::UserRole, ///< a `Kind`; without one, words
    quietRole,               ///< true for a text that nobody typed: a proposal, or what was computed
    signRole,                ///< the name of a sign before the text; the tool tip says what it means
    choicesRole,             ///< a list of texts that are offered while one types
    alarmRole,               ///< an `Alarm`
    passedRole,              ///< true for a cell that may be typed into, but which Tab and Enter pass over
    groupRole,               ///< of a heading: what stands above it and its neighbours of the same group
    shortGroupRole,          ///< the same in a word, where it has less room
    furtherRole              ///< the first of a function's own
};

/// What a text tells of something to be done.
enum Alarm { NoAlarm, Due, Overdue };

} // namespace GridCell
