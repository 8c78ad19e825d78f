// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringView>

#include <algorithm>
#include <array>

/// Beginnings of the names that files of the program's own have in the household's folder. Where a person's
/// name becomes the name of a file, none of these may be taken.
namespace ReservedNames {

using namespace Qt::Literals::StringLiterals;

inline constexpr QLatin1StringView spending = "Quillery.spent-"_L1;

inline constexpr std::array beginnings{spending, "Quillery.changes"_L1, "Quillery.trash"_L1,
                                       "Quillery.lock"_L1};

/// Whether a file called `name` could be mistaken for one of these, upper and lower case alike.
inline bool isReserved(QStringView name)
{
    return std::ranges::any_of(beginnings, [name](QLatin1StringView beginning) {
        return name.trimmed().startsWith(beginning, Qt::CaseInsensitive);
    });
}

} // namespace ReservedNames
