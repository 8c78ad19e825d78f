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

inline constexpr std::array beginnings{spending,           "Quillery.changes"_L1, "Quillery.trash"_L1,
                                       "Quillery.lock"_L1, "CarMnt1"_L1,          "Secfile"_L1,
                                       "Photobk"_L1};

/// Whether `name` is `beginning` with a number behind it, upper and lower case alike, ".Fil" or not.
inline bool isNumbered(QStringView name, QStringView beginning)
{
    QStringView number = name.sliced(std::min(name.size(), beginning.size()));
    if (number.endsWith(".fil"_L1, Qt::CaseInsensitive))
        number.chop(4);
    return name.startsWith(beginning, Qt::CaseInsensitive) && !number.isEmpty() &&
           std::ranges::all_of(number, [](QChar digit) { return digit >= u'0' && digit <= u'9'; });
}

/// Whether `name` is that of a car's file: "ACar1", "MCar12.Fil".
inline bool isOfACar(QStringView name)
{
    static constexpr std::array<QStringView, 4> kinds{u"ACar", u"MCar", u"RCar", u"GCar"};
    return std::ranges::any_of(kinds, [name](QStringView kind) { return isNumbered(name, kind); });
}

/// Whether `name` is that of a file of the journal or of the calendar maker: "DJour1", "DJour2026 set aside",
/// "CalMk2".
inline bool isOfPages(QStringView name)
{
    const qsizetype aside = name.indexOf(u" set aside", 0, Qt::CaseInsensitive);
    const QStringView journal = aside < 0 ? name : name.left(aside);
    return isNumbered(journal, u"DJour") ||
           (aside > 0 && journal.startsWith(u"DJourKey", Qt::CaseInsensitive)) || isNumbered(name, u"CalMk");
}

/// Whether a file called `name` could be mistaken for one of these, upper and lower case alike.
inline bool isReserved(QStringView name)
{
    return isOfACar(name.trimmed()) || std::ranges::any_of(beginnings, [name](QLatin1StringView beginning) {
               return name.trimmed().startsWith(beginning, Qt::CaseInsensitive);
           });
}

/// The files of the program whose names end in ".Fil", without that ending. The years, of which the budget
/// has a file each, and the files of cars, of the journal and of the calendar maker are beyond them.
inline constexpr std::array programFiles{
    "Addbk1"_L1,   "Addbk2"_L1,   "Auto1"_L1,      "Auto2"_L1,   "CarMnt1"_L1,  "DJourKey"_L1, "GColor1"_L1,
    "GColor14"_L1, "GColor2"_L1,  "GColor3"_L1,    "GColor4"_L1, "GColor44"_L1, "GColor5"_L1,  "GHINV1"_L1,
    "HINV2"_L1,    "HInvName"_L1, "Holiday1"_L1,   "PCtrl1"_L1,  "Photobk3"_L1, "Photobk4"_L1, "Secfile1"_L1,
    "Secfile2"_L1, "SWR2"_L1,     "Spell1"_L1,     "Spell2"_L1,  "Temp"_L1,     "ToDo1"_L1,    "TODOActv"_L1,
    "TODONAME"_L1, "Video2"_L1,   "WeightTrker"_L1};

/// Whether `name` with ".Fil" behind it is a file of the program's own, upper and lower case alike.
inline bool isProgramFile(QStringView name)
{
    const bool isYear = name.size() == 4 &&
                        std::ranges::all_of(name, [](QChar digit) { return digit >= u'0' && digit <= u'9'; });
    return isYear || isOfACar(name) || isOfPages(name) ||
           std::ranges::any_of(programFiles, [name](QLatin1StringView file) {
               return name.compare(file, Qt::CaseInsensitive) == 0;
           });
}

/// Whether a system takes a file called `name`, whatever its ending, for a device: "Con", "LPT1.old".
inline bool isDevice(QStringView name)
{
    static constexpr std::array devices{"CON"_L1,    "PRN"_L1,     "AUX"_L1,   "NUL"_L1,
                                        "CONIN$"_L1, "CONOUT$"_L1, "CLOCK$"_L1};
    const QStringView begin = name.left(name.indexOf(u'.') < 0 ? name.size() : name.indexOf(u'.')).trimmed();
    const auto isCalled = [begin](QLatin1StringView device) {
        return begin.compare(device, Qt::CaseInsensitive) == 0;
    };
    const bool isPort =
        begin.size() == 4 && u"0123456789\u00b9\u00b2\u00b3"_s.contains(begin[3]) &&
        (begin.startsWith("COM"_L1, Qt::CaseInsensitive) || begin.startsWith("LPT"_L1, Qt::CaseInsensitive));
    return isPort || std::ranges::any_of(devices, isCalled);
}

} // namespace ReservedNames
