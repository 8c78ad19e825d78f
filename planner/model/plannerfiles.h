// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "planner/model/dayorder.h"
#include "planner/model/plannerday.h"
#include "storage/datafolder.h"
#include "storage/recordchange.h"
#include "storage/recordfile.h"

#include <QDate>

#include <functional>
#include <map>

/// The year files of the planner: reads and writes the day of a date. Nothing is kept open or cached. A date
/// beyond `CalendarDates` has no file: it is read as an empty day and cannot be written.
class PlannerFiles
{
public:
    explicit PlannerFiles(const DataFolder &folder);

    /// False when the year's file is there and cannot be read.
    bool isReadable(int year) const;

    /// The appointments of `date`; an empty day when its file or record is missing or was never saved. A
    /// missing year file is made, empty, as the planner's files have it.
    PlannerDay read(QDate date) const;

    /// The same without making anything: for readers beside the planner.
    PlannerDay peek(QDate date) const;

    /// Writes `day`, marked as saved, into `date`'s record: 850 bytes, cut and padded to the fields' widths.
    /// False when the disk refuses; the rest of the file keeps what it held.
    [[nodiscard]] bool write(QDate date, const PlannerDay &day);
    /// Adds to `change` that `day`, marked as saved, stands in `date`'s record; a date beyond has none.
    void add(QDate date, const PlannerDay &day, RecordChange &change) const;
    /// The same as `write`, noted in `change`.
    [[nodiscard]] bool write(QDate date, const PlannerDay &day, RecordChange &change);

    /// Visits the saved days of `year` by date, after one read of its file; nothing when the file is missing.
    void forEachDay(int year, const std::function<void(QDate date, const PlannerDay &day)> &visit) const;

    /// The saved days from `from` to `to` by date; each year's file is read once.
    std::map<QDate, PlannerDay> days(QDate from, QDate to) const;

    /// The bytes of all day records of `year`; fewer when the file is short, none when it is missing.
    QByteArray yearBytes(int year) const;

    /// The years that have a file, in order.
    QList<int> years() const;

private:
    RecordFile yearFile(int year) const;

    const DataFolder &m_folder;
};
