// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/model/calendarfiles.h"
#include "shell/core/functionrecords.h"
#include "shell/core/programstate.h"

/// The calendars for the wall, to be compared with another version of them and brought back from there. A
/// calendar is known by its title, a further one of that title by its number too.
class CalendarRecords final : public FunctionRecords
{
public:
    CalendarRecords(const DataFolder &folder, DateStyle style);

    QString counted(int count) const override;
    std::vector<FunctionRecord> all() const override;
    QStringList lines(const QString &key) const override;
    /// The file of a calendar as it was, byte for byte: in the place of the one that has its number and title
    /// still, else under the lowest free number.
    RecordsBack bringBack(const FunctionRecords &from, const QStringList &keys) override;

private:
    struct Found {
        QString key;
        CalendarHead head;
    };

    QList<Found> found() const;
    void addDays(QStringList &lines, const WallCalendar &calendar) const;

    DataFolder m_folder;
    DateStyle m_style;
};
