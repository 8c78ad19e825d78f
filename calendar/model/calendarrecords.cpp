// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/model/calendarrecords.h"

#include "calendar/model/calendarfile.h"
#include "shell/core/bringingback.h"
#include "shell/core/dates.h"
#include "storage/wholefileschange.h"

#include <algorithm>
#include <memory>

using namespace Qt::Literals::StringLiterals;

CalendarRecords::CalendarRecords(const DataFolder &folder, DateStyle style)
    : m_folder(folder)
    , m_style(style)
{}

QString CalendarRecords::counted(int count) const
{
    return BringingBack::counted(count, u"calendar"_s, u"calendars"_s);
}

QList<CalendarRecords::Found> CalendarRecords::found() const
{
    QList<Found> found;
    QStringList titles;
    for (const CalendarHead &head : CalendarFiles::heads(m_folder)) {
        if (!head.isCalendar())
            continue;
        const bool isFirst = !titles.contains(head.title);
        titles.append(head.title);
        found.append({isFirst ? head.title : head.title + u'\n' + QString::number(head.number), head});
    }
    return found;
}

std::vector<FunctionRecord> CalendarRecords::all() const
{
    std::vector<FunctionRecord> records;
    for (const auto &[key, head] : found()) {
        const QByteArray bytes = CalendarFiles::read(m_folder, head.number).value_or(QByteArray());
        records.push_back({key, head.title, BringingBack::markOf(bytes)});
    }
    return records;
}

QStringList CalendarRecords::lines(const QString &key) const
{
    QStringList lines;
    for (const auto &[known, head] : found()) {
        if (known != key)
            continue;
        const WallCalendar calendar =
            CalendarFile::read(CalendarFiles::read(m_folder, head.number).value_or(QByteArray()));
        BringingBack::addLine(lines, u"From:"_s,
                              calendar.from.isValid() ? Dates::monthYear(calendar.from) : QString());
        BringingBack::addLine(lines, u"Months:"_s, QString::number(calendar.months));
        BringingBack::addLine(lines, u"Paper:"_s, calendar.look.paper);
        BringingBack::addLine(lines, u"Holidays:"_s, calendar.holidaySets.join(u", "_s));
        BringingBack::addLine(lines, u"Persons:"_s, calendar.persons.join(u", "_s));
        for (const MonthPhoto &photo : calendar.photos)
            BringingBack::addLine(lines, u"Picture:"_s, photo.path + u' ' + photo.caption);
        for (const CalendarRule &rule : calendar.rules)
            lines.append(rule.text + u": "_s + rule.rule);
        for (const CalendarSpan &span : calendar.spans)
            lines.append(Dates::range(span.from, span.lastDay(), m_style) + u": "_s + span.text);
        addDays(lines, calendar);
    }
    return lines;
}

void CalendarRecords::addDays(QStringList &lines, const WallCalendar &calendar) const
{
    for (auto day = calendar.days.begin(); day != calendar.days.end(); ++day) {
        for (const DayLine &line : *day) {
            if (!line.shown.isEmpty())
                lines.append(Dates::shortWithYear(day.key(), m_style) + u": "_s + line.shown);
        }
    }
}

RecordsBack CalendarRecords::bringBack(const FunctionRecords &from, const QStringList &keys)
{
    const auto *source = dynamic_cast<const CalendarRecords *>(&from);
    if (!source)
        return {};
    if (const QString why = BringingBack::whyNot(m_folder); !why.isEmpty())
        return BringingBack::refused(why);
    QList<int> taken = CalendarFiles::numbers(m_folder);
    const QList<Found> here = found();
    const auto change = std::make_shared<WholeFilesChange>();
    QStringList back;
    QString last;
    for (const auto &[key, head] : source->found()) {
        if (!keys.contains(key))
            continue;
        const std::optional<QByteArray> bytes = CalendarFiles::read(source->m_folder, head.number);
        if (!bytes)
            return BringingBack::refused(BringingBack::unreadable(CalendarFiles::name(head.number)));
        const auto isSame = [&head = head](const Found &other) {
            return other.head.number == head.number && other.head.title == head.title;
        };
        int number = head.number;
        if (std::ranges::none_of(here, isSame)) {
            number = 1;
            while (taken.contains(number))
                ++number;
            taken.append(number);
        }
        if (number > CalendarFiles::most)
            return BringingBack::refused(
                u"There are 99 calendars: delete one that is not needed any more first"_s);
        change->replace(m_folder, CalendarFiles::name(number), *bytes);
        back.append(key);
        last = head.title;
    }
    if (change->isEmpty())
        return {back, {}, {}};
    return BringingBack::done(change, m_folder, back, back.size() == 1 ? last : counted(int(back.size())));
}
