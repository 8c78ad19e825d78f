// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/area.h"
#include "shell/core/message.h"
#include "shell/program/functions.h"

#include <QString>

#include <optional>
#include <span>
#include <variant>

/// What the buttons of the top toolbar do. They are known by their position, which never changes: customising
/// the bar only chooses which of them stand on it and in which order.
namespace TopButtons {

inline constexpr int count = 42;

/// Opens a function of this edition behind a guard of the button's own.
struct OpensFunction {
    Function function;
    int area = Area::None;
};

/// Does what a menu entry does.
struct SameAsEntry {
    const char *entry;
};

/// Belongs to a function of another edition: runs its guard and opens nothing.
struct OtherEdition {
    int area = Area::None;
};

/// As `OtherEdition`, but says first when the list that it would show is empty.
struct ShowsListFile {
    const char *file;
    const char *title; ///< of the notice
    enum Purpose { View, Rollup } purpose;
    int area;
};

/// No button: a gap in the count.
struct Gap {};

using Effect = std::variant<OpensFunction, SameAsEntry, OtherEdition, ShowsListFile, Gap>;

/// A place of the top toolbar: what it shows and what it does.
struct TopButton {
    const char *word; ///< at most 9 letters; empty for a gap
    const char *description;
    const char *icon;
    Effect effect;
    /// The function that must be built in for the button to be of use; none for those that always are.
    std::optional<Function> needs = std::nullopt;

    QString wordText() const { return QString::fromLatin1(word); }
    QString descriptionText() const { return QString::fromLatin1(description); }
    bool isGap() const { return std::holds_alternative<Gap>(effect); }
    bool isOfOtherEdition() const
    {
        return std::holds_alternative<OtherEdition>(effect) || std::holds_alternative<ShowsListFile>(effect);
    }
};

/// All buttons by position.
std::span<const TopButton, count> all();

/// The object name of a button: "Toolbar1_" and its position.
QString objectName(int position);

/// The notice of a list-file button whose list is empty.
Message emptyListNotice(const ShowsListFile &button);

/// The positions of the designed bar in order; -1 stands for a separator.
std::span<const int> designedLayout();

} // namespace TopButtons
