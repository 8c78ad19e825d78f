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
                                       "Quillery.lock"_L1, "CarMnt1"_L1};

/// Whether `name` is that of a car's file: "ACar1", "MCar12.Fil".
inline bool isOfACar(QStringView name)
{
    const QStringView kind = name.left(4);
    QStringView slot = name.sliced(kind.size());
    if (slot.endsWith(".fil"_L1, Qt::CaseInsensitive))
        slot.chop(4);
    return kind.endsWith("Car"_L1, Qt::CaseInsensitive) && "AMRG"_L1.contains(kind[0], Qt::CaseInsensitive) &&
           !slot.isEmpty() &&
           std::ranges::all_of(slot, [](QChar digit) { return digit >= u'0' && digit <= u'9'; });
}

/// Whether a file called `name` could be mistaken for one of these, upper and lower case alike.
inline bool isReserved(QStringView name)
{
    return isOfACar(name.trimmed()) || std::ranges::any_of(beginnings, [name](QLatin1StringView beginning) {
               return name.trimmed().startsWith(beginning, Qt::CaseInsensitive);
           });
}

} // namespace ReservedNames
