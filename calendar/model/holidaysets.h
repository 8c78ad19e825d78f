// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/model/holidayfile.h"
#include "storage/datafolder.h"

#include <QLocale>
#include <QStringList>

/// The holidays that calendars choose from: the built-in sets, and the household's own in their place or
/// beside them.
class HolidaySets
{
public:
    static const QString fileName;

    /// Those of a household without a file of its own.
    HolidaySets();
    /// Reads the household's file, if there is one. Reads only, whatever it holds.
    static HolidaySets of(const DataFolder &folder);

    /// The set of a country; empty where there is none.
    static QString nameFor(QLocale::Territory territory);

    /// The built-in ones first, then those that the household has added.
    QStringList names() const;
    /// Null where there is none of this name.
    const HolidaySet *set(const QString &name) const;
    bool isBuiltIn(const QString &name) const { return m_builtIn.set(name) != nullptr; }
    /// The built-in set of this name as it comes with the program.
    HolidaySet builtIn(const QString &name) const;

    /// The days of the sets `names`, by date; a text that two of them have on a date stands there once.
    QList<HolidayDay> days(const QStringList &names, QDate from, QDate to) const;

    /// What the household's file holds, to be changed and saved.
    const HolidayFile &own() const { return m_own; }
    /// A sentence; empty where the file may be written.
    const QString &whyLocked() const { return m_whyLocked; }
    /// False, with the old file as it was, where the disk refuses.
    [[nodiscard]] static bool save(const DataFolder &folder, const HolidayFile &own);

private:
    HolidayFile m_builtIn;
    HolidayFile m_own;
    QString m_whyLocked;
};
