// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/model/plannerrecords.h"

#include "planner/model/daylines.h"
#include "planner/model/dayrecord.h"
#include "shell/core/bringingback.h"
#include "shell/core/calendardates.h"
#include "shell/core/dates.h"

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

QString keyOf(QDate date)
{
    return date.toString(Qt::ISODate);
}

QDate dateOf(const QString &key)
{
    const QDate date = QDate::fromString(key, Qt::ISODate);
    return CalendarDates::has(date) ? date : QDate();
}

} // namespace

PlannerRecords::PlannerRecords(const DataFolder &folder, DateStyle style)
    : m_folder(folder)
    , m_style(style)
{}

QString PlannerRecords::counted(int count) const
{
    return BringingBack::counted(count, u"day"_s, u"days"_s);
}

std::vector<FunctionRecord> PlannerRecords::all() const
{
    std::vector<FunctionRecord> records;
    const PlannerFiles files(m_folder);
    for (const int year : files.years()) {
        files.forEachDay(year, [&](QDate date, const PlannerDay &day) {
            if (!day.isEmpty())
                records.push_back({keyOf(date), Dates::longText(date, m_style),
                                   BringingBack::markOf(plannerDayLayout.encode(day))});
        });
    }
    return records;
}

QStringList PlannerRecords::lines(const QString &key) const
{
    QStringList lines;
    const DayLines day(PlannerFiles(m_folder).peek(dateOf(key)));
    for (int entry = 0; entry < day.count(); ++entry)
        lines.append(day.joined(entry));
    return lines;
}

RecordsBack PlannerRecords::bringBack(const FunctionRecords &from, const QStringList &keys)
{
    const auto *source = dynamic_cast<const PlannerRecords *>(&from);
    if (!source)
        return {};
    if (const QString why = BringingBack::whyNot(m_folder); !why.isEmpty())
        return BringingBack::refused(why);
    const PlannerFiles here(m_folder);
    const PlannerFiles there(source->m_folder);
    const auto change = std::make_shared<RecordChange>();
    QStringList back;
    for (const QString &key : keys) {
        const QDate date = dateOf(key);
        const PlannerDay day = there.peek(date);
        if (day.isEmpty())
            continue;
        // What cannot be read is not empty.
        if (!here.isReadable(date.year()))
            return BringingBack::refused(BringingBack::unreadable(DayRecord::yearFileName(date.year())));
        here.add(date, day, *change);
        back.append(key);
    }
    if (change->isEmpty())
        return {back, {}, {}};
    const QString what =
        back.size() == 1 ? Dates::longText(dateOf(back.first()), m_style) : counted(int(back.size()));
    return BringingBack::done(change, m_folder, back, what);
}
