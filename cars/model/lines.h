// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/vehiclefiles.h"

#include <QLocale>
#include <QString>

/// The quiet words of the automobile tracker's window: titles, lines of the status bar, reasons.
namespace CarLines {

using namespace Qt::Literals::StringLiterals;

inline QString countOfCars(qsizetype count)
{
    return count == 1 ? u"1 car"_s : QString::number(count) + u" cars"_s;
}

inline QString newCar()
{
    return u"New car"_s;
}

inline QString saved(const QString &name)
{
    return u"Saved: "_s + name;
}

inline QString created(const QString &name)
{
    return u"Created: "_s + name;
}

inline QString deleted(const QString &name)
{
    return u"Deleted: "_s + name;
}

inline QString broughtBack(const QString &name)
{
    return u"Brought back: "_s + name;
}

/// "Rotate Tires entered".
inline QString done(const QString &action)
{
    return action + u" entered"_s;
}

/// When an action was done last, `reading` as "81,210 miles"; empty where nothing is known.
inline QString lastDone(const QString &date, const QString &reading)
{
    if (date.isEmpty() && reading.isEmpty())
        return u"It was never entered before."_s;
    QString words = u"Last done"_s;
    if (!date.isEmpty())
        words += u" on "_s + date;
    if (!reading.isEmpty())
        words += u" at "_s + reading;
    return words + u'.';
}

inline QString whereDoneGoes()
{
    return u"This goes into the maintenance history, and into the schedule as the last time. A reading above "
           "the car's present one becomes its new reading."_s;
}

inline QString inThousands(double number)
{
    return QLocale(QLocale::English, QLocale::UnitedStates).toString(number, 'f', 0);
}

// What is typed and not taken; what was there before stays.

inline QString noNumber(const QString &typed)
{
    return u"\"%1\" cannot be read as a number; nothing was changed"_s.arg(typed);
}

/// Of a purchase or an expiration, which is kept as it is.
inline QString noDate(const QString &typed)
{
    return u"\"%1\" is no date; it is kept as it was typed"_s.arg(typed);
}

inline QString beyondOdometers(double reading)
{
    return u"No odometer reads %1; nothing was changed"_s.arg(inThousands(reading));
}

inline QString tooFar(double reading, double current)
{
    return u"%1 is far from the present reading, %2; if it is right, change that one on the information "
           "sheet first"_s.arg(inThousands(reading), inThousands(current));
}

/// "Step 1 of 5"
inline QString step(int number, int count)
{
    return u"Step %1 of %2"_s.arg(number).arg(count);
}

inline QString unitNow(DistanceUnit unit)
{
    return unit == DistanceUnit::Miles
               ? u"All cars count in miles and gallons now; the figures stay as they were typed"_s
               : u"All cars count in kilometers and liters now; the figures stay as they were typed"_s;
}

/// Before there is a car.
inline QString firstUnit(DistanceUnit unit)
{
    return unit == DistanceUnit::Miles ? u"The first car will count in miles and gallons"_s
                                       : u"The first car will count in kilometers and liters"_s;
}

inline QString whatIsRequired()
{
    return u"A name, the make or model and the odometer reading are enough to begin"_s;
}

inline QString notDeleted()
{
    return u"The disk refused; nothing was deleted"_s;
}

inline QString notSaved()
{
    return u"The disk refused; nothing was saved, and what was typed is still here"_s;
}

inline QString changedElsewhere(const QString &name)
{
    return name + u" was changed elsewhere and is shown as it is now"_s;
}

inline QString changedElsewhereToo(const QString &name)
{
    return name + u" was changed elsewhere too; saving writes over that"_s;
}

/// What is wrong with a file of the open car; empty when nothing is.
inline QString stateOf(const QString &fileName, VehicleFiles::State state)
{
    switch (state) {
    case VehicleFiles::State::Cut:
        return fileName + u" ends early; the rest of it is blank here"_s;
    case VehicleFiles::State::Foreign:
        return fileName + u" is no file of a car; it is left as it is"_s;
    case VehicleFiles::State::OutOfReach:
        return fileName + u" cannot be read; it is left as it is"_s;
    default:
        return {};
    }
}

inline QString pictureNotFound(const QString &path)
{
    return u"The picture cannot be shown: "_s + path;
}

inline QString nothingDue()
{
    return u"nothing due"_s;
}

/// "oil change and 2 more": what a car needs, as its row of the list says it.
inline QString needAndMore(const QString &need, int others)
{
    return others == 0 ? need : QString(need + u" and "_s + QString::number(others) + u" more"_s);
}

/// "oil change +2", where there is less room.
inline QString needPlus(const QString &need, int others)
{
    return others == 0 ? need : QString(need + u" +"_s + QString::number(others));
}

inline QString newReading()
{
    return u"Enter what the odometer reads now"_s;
}

/// Behind the cards of what is due; `count` more have no card.
inline QString moreBelow(int count)
{
    return u"and "_s + QString::number(count) + u" more, marked in the schedule"_s;
}

/// On a card: the distance has probably been driven.
inline QString lookAtOdometer()
{
    return u"Look at the odometer"_s;
}

/// `distance` as "84,210 miles", or as it was typed.
inline QString odometer(const QString &distance)
{
    return distance.trimmed().isEmpty() ? u"Enter the odometer reading"_s : u"Odometer: "_s + distance;
}

inline QString howToBegin()
{
    return u"Enter in the schedule after what distance or how many months an action comes again, and when it "
           u"was "
           "done last. What is due then stands here."_s;
}

inline QString pathNotStorable()
{
    return u"This path cannot be kept: it is longer than 260 characters, or one of them is not in the "
           u"character "
           "set of the files"_s;
}

// Reasons

inline QString noPictureToDelete()
{
    return u"The car has no picture"_s;
}

inline QString noCarYet()
{
    return u"No car is in the list yet"_s;
}

inline QString inViewsOnly()
{
    return u"This can be used when the car is in front again"_s;
}

inline QString notWhileCreating()
{
    return u"First finish the new car, or leave it"_s;
}

inline QString alreadyShown()
{
    return u"This is shown already"_s;
}

} // namespace CarLines
