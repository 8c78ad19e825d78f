// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/fuelfigures.h"
#include "cars/model/historysums.h"
#include "cars/model/vehiclefiles.h"
#include "shell/core/dates.h"

#include <QLocale>
#include <QString>

/// The quiet words about the histories of a car and its fuel tracker.
namespace HistoryLines {

using namespace Qt::Literals::StringLiterals;

inline QString added(const QString &what)
{
    return u"Added: "_s + what;
}

inline QString deleted(const QString &what)
{
    return u"Deleted: "_s + what;
}

/// Of a cell: "Changed: Cost of Battery".
inline QString changed(const QString &heading, const QString &what)
{
    return u"Changed: "_s + heading + u" of "_s + what;
}

inline QString pasted(qsizetype cells)
{
    return cells == 1 ? u"1 cell pasted"_s : QString::number(cells) + u" cells pasted"_s;
}

/// `leftOut` of the cells that were pasted are not as they were on the clipboard.
inline QString pastedInPart(qsizetype cells, qsizetype leftOut)
{
    return pasted(cells) + u"; "_s + QString::number(leftOut) + u" could not be taken"_s;
}

inline QString copied(qsizetype cells)
{
    return cells == 1 ? u"1 cell copied"_s : QString::number(cells) + u" cells copied"_s;
}

/// Of a block for the row of something new, which is one row.
inline QString firstRowPasted()
{
    return u"The first row is pasted; \"Bring In a File\" in the Utilities menu takes many"_s;
}

inline QString nothingToPaste()
{
    return u"There is nothing on the clipboard that can be pasted here"_s;
}

/// What the row of something new asks for in its description.
inline QString whatWasDone(CarPart part)
{
    return part == CarPart::Maintenance ? u"What was done?"_s : u"What was paid for?"_s;
}

inline QString nothingTyped(CarPart part)
{
    return part == CarPart::Fuel ? u"First type the readings and the fuel of the fill-up"_s
                                 : u"First type what was done"_s;
}

/// `heading` is a distance or a consumption that the other cells decide.
inline QString workedOut(const QString &heading)
{
    return heading + u" is worked out from the other cells of the row"_s;
}

/// A fill-up whose reading is below the one before it.
inline QString below(const QString &current, const QString &previous)
{
    return u"%1 is below the reading before it, %2; please look at both"_s.arg(current, previous);
}

/// What an entry needs to tell something, and has not.
inline QStringList missing(CarPart part, const QStringList &cells)
{
    QStringList missing;
    const auto look = [&](qsizetype column, const QString &name) {
        if (cells.value(column).trimmed().isEmpty())
            missing << name;
    };
    if (part == CarPart::Fuel) {
        look(2, u"reading"_s);
        look(4, u"fuel"_s);
        look(6, u"cost"_s);
    } else {
        look(2, u"description"_s);
    }
    return missing;
}

/// An entry that was left before it was added by its person: "Added: fill-up, Nov 21, 2026, without its
/// cost".
inline QString addedOnLeaving(const QString &what, const QStringList &missing)
{
    return missing.isEmpty() ? added(what) : added(what) + u", without its "_s + missing.join(u" and "_s);
}

inline QString cleared(qsizetype cells)
{
    return cells == 1 ? u"1 cell cleared"_s : QString::number(cells) + u" cells cleared"_s;
}

// Reasons

inline QString inHistoriesOnly()
{
    return u"This can be used in the histories and in the fuel tracker"_s;
}

/// Of rows that leave as a file, or come from one.
inline QString openAHistory()
{
    return u"First open the history, or the fuel tracker, whose rows are meant"_s;
}

inline QString chooseAnEntry()
{
    return u"First choose the entry to delete"_s;
}

inline QString chooseAFillUp()
{
    return u"First choose the fill-up to delete"_s;
}

inline QString noneYet(CarPart part)
{
    switch (part) {
    case CarPart::Maintenance:
        return u"No maintenance is entered yet. Type in the row above what was done, and press Enter."_s;
    case CarPart::Repairs:
        return u"No repair and no other expenditure is entered yet. Type in the row above what was paid for, "
               "and press Enter."_s;
    default:
        return u"No fill-up is entered yet. Type the reading and the fuel in the row above, and press Enter."_s;
    }
}

inline QString countOf(CarPart part, qsizetype count)
{
    const QString one = part == CarPart::Fuel ? u"1 fill-up"_s : u"1 entry"_s;
    const QString many = part == CarPart::Fuel ? u" fill-ups"_s : u" entries"_s;
    return count == 1 ? one : QString::number(count) + many;
}

/// "1,234.50"
inline QString money(double cents)
{
    return QLocale(QLocale::English, QLocale::UnitedStates).toString(cents / 100, 'f', 2);
}

/// "Last done: Rotate Tires, May 6, 2025"
inline QString newest(const HistorySums &sums, CarPart part, DateStyle style)
{
    if (sums.newest.isNull())
        return part == CarPart::Maintenance ? u"Maintenance history"_s : u"Repairs and other expenditures"_s;
    return (part == CarPart::Maintenance ? u"Last done: "_s : u"Last: "_s) +
           (sums.newestName.isEmpty() ? QString() : sums.newestName + u", "_s) +
           Dates::shortWithYear(sums.newest, style);
}

/// "none" for nothing.
inline QString moneyOrNone(qint64 cents)
{
    return cents == 0 ? u"none"_s : money(double(cents));
}

/// What stands in place of a consumption that does not count, before the number where there is one.
inline QString mark(FillUp::Kind kind, const QString &economy)
{
    const auto with = [&economy](const QString &word) {
        return economy.isEmpty() ? word : word + u", "_s + economy;
    };
    switch (kind) {
    case FillUp::Kind::Partial:
        return with(u"partial"_s);
    case FillUp::Kind::Missing:
        return with(u"one missing"_s);
    case FillUp::Kind::Unlikely:
        return with(u"unlikely"_s);
    default:
        return economy;
    }
}

/// What an entry without a description is called.
inline QString entry()
{
    return u"entry"_s;
}

inline QString fillUp()
{
    return u"fill-up"_s;
}

} // namespace HistoryLines
