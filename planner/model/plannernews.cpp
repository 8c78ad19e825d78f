// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/model/plannernews.h"

#include "planner/model/dayrecord.h"
#include "planner/model/plannerfiles.h"
#include "shell/core/timeofday.h"

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A filled row of today, its time read where it can be.
struct Item {
    QTime time; ///< invalid: any time of the day
    QString timeText;
    QString text;
};

QList<Item> itemsOf(const PlannerDay &day)
{
    QList<Item> items;
    for (std::size_t row = 0; row < PlannerDay::rowCount; ++row) {
        if (!day.isRowEmpty(row))
            items.append({TimeOfDay::of(day.times[row]), day.times[row], day.texts[row]});
    }
    return items;
}

/// Whether `time`, read from `text`, may be twelve hours later as well.
bool isHalfOpen(const QString &text, QTime time)
{
    return time.isValid() && time.hour() >= 1 && time.hour() <= 12 &&
           !text.contains(u'm', Qt::CaseInsensitive);
}

QString lineOf(const Item &item)
{
    return item.timeText.isEmpty() ? item.text : item.timeText + u"  "_s + item.text;
}

/// The first timed item that is not over yet; "8:00" may be that of the evening.
const Item *nextItem(const QList<Item> &items, QTime now)
{
    const QTime minute(now.hour(), now.minute());
    const Item *next = nullptr;
    QTime first;
    for (const Item &item : items) {
        QTime time = item.time;
        if (time < minute && isHalfOpen(item.timeText, time))
            time = time.addSecs(12 * 60 * 60);
        if (time.isValid() && time >= minute && (!next || time < first)) {
            next = &item;
            first = time;
        }
    }
    return next;
}

QString countWord(qsizetype count)
{
    static const std::array words{u"No"_s,   u"One"_s, u"Two"_s,   u"Three"_s, u"Four"_s,
                                  u"Five"_s, u"Six"_s, u"Seven"_s, u"Eight"_s, u"Nine"_s};
    return count < qsizetype(words.size()) ? words[std::size_t(count)] : QString::number(count);
}

LiveLine today(const QList<Item> &items, QTime now)
{
    const QString count =
        countWord(items.size()) + (items.size() == 1 ? u" appointment today"_s : u" appointments today"_s);
    if (const Item *next = nextItem(items, now)) {
        const QString which = items.size() == 1 ? u", at "_s : u", the next one at "_s;
        return {lineOf(*next), LiveLine::Plain, count + which + next->timeText + u'.'};
    }
    const auto untimed =
        std::find_if(items.begin(), items.end(), [](const Item &item) { return !item.time.isValid(); });
    if (untimed != items.end())
        return {lineOf(*untimed), LiveLine::Plain, count + u'.'};
    return {u"Nothing more today"_s, LiveLine::Plain, u"Today's appointments are behind you."_s};
}

} // namespace

namespace PlannerNews {

std::optional<LiveLine> liveLine(const DataFolder &folder, const QDateTime &now)
{
    const PlannerFiles files(folder);
    if (const QList<Item> items = itemsOf(files.peek(now.date())); !items.isEmpty())
        return today(items, now.time());
    if (const QList<Item> items = itemsOf(files.peek(now.date().addDays(1))); !items.isEmpty())
        return LiveLine{u"Tomorrow: "_s + lineOf(items.first()), LiveLine::Plain, {}};
    return {};
}

QList<DayNote> dayNotes(const DataFolder &folder, QDate from, QDate to)
{
    QList<DayNote> notes;
    for (const auto &[date, day] : PlannerFiles(folder).days(from, to)) {
        for (std::size_t row = 0; row < PlannerDay::rowCount; ++row) {
            if (day.isRowEmpty(row))
                continue;
            const QString timeText = day.times[row].trimmed();
            const QString text = day.texts[row].trimmed();
            const QTime time = TimeOfDay::of(timeText);
            const bool isTimeRead = time.isValid() || timeText.isEmpty();
            notes.append({date,
                          isTimeRead ? text : QString(timeText + u"  "_s + text).trimmed(),
                          u"Daily Planner"_s,
                          NoteKind::Appointment,
                          time,
                          {.date = date, .row = int(row)},
                          0,
                          isHalfOpen(timeText, time) ? timeText : QString()});
        }
    }
    return notes;
}

QStringList files(const DataFolder &folder)
{
    QStringList files;
    for (const int year : PlannerFiles(folder).years())
        files << DayRecord::yearFileName(year);
    return files;
}

} // namespace PlannerNews
