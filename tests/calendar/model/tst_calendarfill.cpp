// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/model/calendaredits.h"
#include "calendar/model/calendarfill.h"
#include "calendar/model/holidaysets.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QDate today(2026, 11, 23);
const QDate day(2027, 3, 14);
const QDate other(2027, 3, 15);

WallCalendar emptyCalendar()
{
    WallCalendar calendar;
    calendar.from = QDate(2027, 1, 1);
    return calendar;
}

/// A note of the planner, "9:00 Dentist"; behind "birthday: ", "todo: " or "due: " of that kind.
DayNote noteOf(const QString &words, QDate date = day)
{
    DayNote note{
        .date = date, .text = words.section(u": "_s, -1), .source = {}, .kind = NoteKind::Appointment};
    if (words.startsWith(u"birthday: "))
        note.kind = NoteKind::Birthday;
    else if (words.startsWith(u"todo: "))
        note.kind = NoteKind::ToDo;
    else if (words.startsWith(u"due: "))
        note.kind = NoteKind::Due;
    else if (const QTime time = QTime::fromString(words.section(u' ', 0, 0), u"h:mm"_s); time.isValid()) {
        note.time = time;
        note.timeText = words.section(u' ', 0, 0);
        note.text = words.section(u' ', 1);
    }
    return note;
}

QList<FillSource> sourcesOf(const QStringList &words)
{
    // What was filled from is there in any case, perhaps with nothing.
    QMap<LineSource, FillSource> sources;
    for (const LineSource source :
         {LineSource::Planner, LineSource::ToDo, LineSource::Birthday, LineSource::Due})
        sources[source].source = source;
    for (const QString &note : words)
        sources[*CalendarFill::sourceOf(noteOf(note).kind)].notes.append(noteOf(note));
    return sources.values();
}

QStringList linesOf(const WallCalendar &calendar, QDate date = day)
{
    QStringList lines;
    for (const DayLine &line : calendar.days.value(date))
        lines.append(line.isRemoved() ? u"-"_s + line.original : line.shown);
    return lines;
}

using Act = std::function<WallCalendar(const WallCalendar &)>;

} // namespace

/// Filling a calendar, and filling it again.
class TestCalendarFill : public QObject
{
    Q_OBJECT
private slots:
    void putsACellInOrder()
    {
        WallCalendar calendar = emptyCalendar();
        calendar.holidaySets = {u"Ireland"_s};
        calendar.rules = {{u"03-17"_s, u"\u267b"_s, u"Paper bin"_s}, {u"no rule"_s, {}, u"Nothing"_s}};
        const QDate patrick(2027, 3, 17);
        calendar = CalendarEdits::setCell(calendar, patrick, {u"10:00 Parade"_s, u"Wear green"_s});
        const HolidaySets sets;
        const QList<DayNote> notes{
            noteOf(u"todo: Renew passports"_s, patrick),
            noteOf(u"14:30 Choir"_s, patrick),
            noteOf(u"birthday: Anne Lind turns 48"_s, patrick),
            noteOf(u"9:00 Dentist"_s, patrick),
            {.date = patrick,
             .text = u"Lunch"_s,
             .source = {},
             .kind = NoteKind::Appointment,
             .time = {12, 15}},
            {.date = patrick,
             .text = u"Walk"_s,
             .source = {},
             .kind = NoteKind::Appointment,
             .time = {8, 0},
             .timeText = u"8"_s},
            {.date = patrick, .text = u"Late"_s, .source = {}, .kind = NoteKind::Overdue},
            {.date = patrick, .text = u"Done"_s, .source = {}, .kind = NoteKind::Done},
            noteOf(u"9:00 Before it"_s, QDate(2026, 12, 31)),
            noteOf(u"9:00 Behind it"_s, QDate(2028, 1, 1))};
        QList<FillSource> sources = CalendarFill::sourcesOf(notes);
        sources << CalendarFill::holidaysOf(calendar, sets) << CalendarFill::rulesOf(calendar, sets);
        const FillPlan plan = CalendarFill::plan(calendar, sources, today);
        QCOMPARE(linesOf(plan.calendar, patrick),
                 (QStringList{u"St Patrick's Day"_s, u"Anne Lind turns 48"_s, u"8:00 Walk"_s,
                              u"9:00 Dentist"_s, u"10:00 Parade"_s, u"12:15 PM Lunch"_s, u"14:30 Choir"_s,
                              u"Wear green"_s, u"Renew passports"_s, u"\u267b Paper bin"_s}));
        QVERIFY(plan.calendar.days.firstKey() >= calendar.from &&
                plan.calendar.days.lastKey() <= calendar.lastDay());
        QCOMPARE(plan.calendar.filled.keys(),
                 (QList<LineSource>{LineSource::Planner, LineSource::ToDo, LineSource::Birthday,
                                    LineSource::Holiday, LineSource::Rule}));
        QCOMPARE(plan.calendar.filled.first(), today);
        QCOMPARE(plan.summary.own, 2);
        const FillPlan again = CalendarFill::plan(plan.calendar, sources, today);
        QCOMPARE(again.calendar, plan.calendar);
        QVERIFY(again.summary.isNothing());
    }

    void fillsAgain_data()
    {
        namespace E = CalendarEdits;
        const Act nothing = [](const WallCalendar &calendar) { return calendar; };
        const QStringList before{u"9:00 Dentist"_s, u"14:30 Choir"_s, u"todo: Milk"_s};
        rows<QStringList, Act, QStringList, QStringList, QString>({
            {"as it was",
             before,
             nothing,
             before,
             {u"9:00 Dentist"_s, u"14:30 Choir"_s, u"Milk"_s},
             u"Nothing has changed"_s},
            {"new",
             before,
             nothing,
             {u"9:00 Dentist"_s, u"11:00 Market"_s, u"14:30 Choir"_s, u"todo: Milk"_s},
             {u"9:00 Dentist"_s, u"11:00 Market"_s, u"14:30 Choir"_s, u"Milk"_s},
             u"1 new"_s},
            {"gone", before, nothing, {u"9:00 Dentist"_s}, {u"9:00 Dentist"_s}, u"2 gone"_s},
            {"another time",
             before,
             nothing,
             {u"16:00 Dentist"_s, u"14:30 Choir"_s, u"todo: Milk"_s},
             {u"14:30 Choir"_s, u"16:00 Dentist"_s, u"Milk"_s},
             u"1 changed"_s},
            {"another text",
             before,
             nothing,
             {u"9:00 Dentist, Mill Lane"_s, u"14:30 Choir"_s, u"todo: Milk"_s},
             {u"9:00 Dentist, Mill Lane"_s, u"14:30 Choir"_s, u"Milk"_s},
             u"1 changed"_s},
            {"something else",
             before,
             nothing,
             {u"9:00 Dentist"_s, u"14:30 Choir"_s, u"todo: Tax papers"_s},
             {u"9:00 Dentist"_s, u"14:30 Choir"_s, u"Tax papers"_s},
             u"1 new, 1 gone"_s},
            {"typed",
             before,
             [](const WallCalendar &c) {
                 return E::setCell(c, day,
                                   {u"Anne's concert"_s, u"9:00 Dentist"_s, u"14:30 Choir"_s, u"Milk"_s});
             },
             {u"14:30 Choir"_s},
             {u"Anne's concert"_s, u"14:30 Choir"_s},
             u"2 gone; your 1 line stays"_s},
            {"edited",
             before,
             [](const WallCalendar &c) {
                 return E::setCell(c, day, {u"Dentist"_s, u"14:30 Choir"_s, u"Milk"_s});
             },
             before,
             {u"Dentist"_s, u"14:30 Choir"_s, u"Milk"_s},
             u"Nothing has changed; your 1 line stays"_s},
            {"edited, and another time",
             before,
             [](const WallCalendar &c) {
                 return E::setCell(c, day, {u"Dentist"_s, u"14:30 Choir"_s, u"Milk"_s});
             },
             {u"10:00 Dentist"_s, u"14:30 Choir"_s, u"todo: Milk"_s},
             {u"Dentist"_s, u"10:00 Dentist"_s, u"14:30 Choir"_s, u"Milk"_s},
             u"1 new; your 1 line stays"_s},
            {"edited, and gone",
             before,
             [](const WallCalendar &c) {
                 return E::setCell(c, day, {u"Dentist"_s, u"14:30 Choir"_s, u"Milk"_s});
             },
             {},
             {u"Dentist"_s},
             u"2 gone; your 1 line stays"_s},
            {"removed",
             before,
             [](const WallCalendar &c) { return E::removeLine(c, day, 1); },
             before,
             {u"9:00 Dentist"_s, u"-14:30 Choir"_s, u"Milk"_s},
             u"Nothing has changed; your 1 line stays"_s},
            {"removed, and something new",
             before,
             [](const WallCalendar &c) { return E::removeLine(c, day, 2); },
             {u"9:00 Dentist"_s, u"14:30 Choir"_s, u"todo: Bread"_s},
             {u"9:00 Dentist"_s, u"14:30 Choir"_s, u"-Milk"_s, u"Bread"_s},
             u"1 new; your 1 line stays"_s},
            {"moved",
             before,
             [](const WallCalendar &c) { return E::moveLine(c, day, 0, other); },
             before,
             {u"14:30 Choir"_s, u"Milk"_s, u">9:00 Dentist"_s},
             u"Nothing has changed"_s},
            {"moved, and another time",
             before,
             [](const WallCalendar &c) { return E::moveLine(c, day, 0, other); },
             {u"10:00 Dentist"_s, u"14:30 Choir"_s, u"todo: Milk"_s},
             {u"14:30 Choir"_s, u"Milk"_s, u">10:00 Dentist"_s},
             u"1 changed"_s},
            {"moved, and something else at its time",
             before,
             [](const WallCalendar &c) { return E::moveLine(c, day, 0, other); },
             {u"9:00 Dinner"_s, u"14:30 Choir"_s, u"todo: Milk"_s},
             {u"9:00 Dinner"_s, u"14:30 Choir"_s, u"Milk"_s},
             u"1 new, 1 gone"_s},
            {"in an order of one's own",
             before,
             [](const WallCalendar &c) { return E::orderLine(c, day, 2, -1); },
             {u"9:00 Dentist"_s, u"11:00 Market"_s, u"14:30 Choir"_s, u"todo: Milk"_s},
             {u"9:00 Dentist"_s, u"11:00 Market"_s, u"Milk"_s, u"14:30 Choir"_s},
             u"1 new"_s},
            {"the same text twice",
             {u"todo: Milk"_s, u"todo: Milk"_s},
             [](const WallCalendar &c) { return E::removeLine(c, day, 0); },
             {u"todo: Milk"_s, u"todo: Milk"_s, u"todo: Milk"_s},
             {u"-Milk"_s, u"Milk"_s, u"Milk"_s},
             u"1 new; your 1 line stays"_s},
            {"and once less",
             {u"todo: Milk"_s, u"todo: Milk"_s},
             nothing,
             {u"todo: Milk"_s},
             {u"Milk"_s},
             u"1 gone"_s},
        });
    }
    void fillsAgain()
    {
        const auto [first, act, then, lines, words] =
            row<QStringList, Act, QStringList, QStringList, QString>();
        const WallCalendar filled = CalendarFill::plan(emptyCalendar(), sourcesOf(first), today).calendar;
        const FillPlan plan = CalendarFill::plan(act(filled), sourcesOf(then), today);
        QStringList there = linesOf(plan.calendar);
        for (const QString &line : linesOf(plan.calendar, other))
            there.append(u'>' + line);
        QCOMPARE(there, lines);
        QCOMPARE(plan.summary.words(), words);
        QVERIFY(CalendarFill::plan(plan.calendar, sourcesOf(then), today).summary.isNothing());
    }

    void leavesAloneWhatItWasNotToAsk_data()
    {
        // The budget has the rent and the car log the tyres; both are dues.
        rows<int, QStringList>({
            {"both wanted", FillSource::Taken, {u"Rent, changed"_s, u"Tyres of the car"_s}},
            {"the other not wanted", FillSource::LeftOut, {u"Rent, changed"_s, u"Tyres"_s}},
            {"the other locked", FillSource::Unread, {u"Rent"_s, u"Tyres"_s, u"Rent, changed"_s}},
        });
    }
    void leavesAloneWhatItWasNotToAsk()
    {
        const auto [use, lines] = row<int, QStringList>();
        const auto due = [](const QString &text, int use = FillSource::Taken) {
            return FillSource{LineSource::Due, FillSource::Use(use), {noteOf(u"due: "_s + text)}};
        };
        WallCalendar calendar =
            CalendarFill::plan(emptyCalendar(), {due(u"Rent"_s), due(u"Tyres"_s)}, today).calendar;
        calendar.days[day].append({LineSource::ToDo, day, false, u"Milk"_s, u"Milk"_s});
        const QString other = use == FillSource::LeftOut ? u"Tyres"_s : u"Tyres of the car"_s;
        const FillPlan plan = CalendarFill::plan(calendar, {due(u"Rent, changed"_s), due(other, use)}, today);
        QStringList there = linesOf(plan.calendar);
        QVERIFY(there.removeOne(u"Milk"_s)); // nothing at all was said of to-dos
        QCOMPARE(there, lines);
    }

    void knowsWhetherSomethingOfASourceIsThere()
    {
        const QList<FillSource> sources = sourcesOf({u"9:00 Dentist"_s, u"todo: Milk"_s});
        const auto [planner, lists] = std::pair(sources[0], sources[1]);
        WallCalendar calendar = CalendarFill::plan(emptyCalendar(), {planner}, today).calendar;
        calendar = CalendarEdits::moveLine(CalendarEdits::removeLine(calendar, day, 0), day, 0, other);
        QVERIFY(CalendarFill::hasAnyOf(calendar, planner));
        QVERIFY(!CalendarFill::hasAnyOf(calendar, lists));
    }

    void remembersWhatItWasFilledFrom()
    {
        const FillSource holidays{LineSource::Holiday, FillSource::Taken, {noteOf(u"9:00 Feast"_s)}};
        const FillSource noHolidays{LineSource::Holiday};
        const FillSource noPlanner{LineSource::Planner};
        WallCalendar calendar = CalendarFill::plan(emptyCalendar(), {noHolidays, noPlanner}, today).calendar;
        QCOMPARE(calendar, emptyCalendar());
        const QList<FillSource> sources{holidays, sourcesOf({u"9:00 Dentist"_s})[0]};
        calendar = CalendarFill::plan(calendar, sources, today).calendar;
        QCOMPARE(calendar.filled.keys(), (QList<LineSource>{LineSource::Planner, LineSource::Holiday}));
        // An empty planner may have something again; a calendar without holidays has none.
        calendar = CalendarFill::plan(calendar, {noHolidays, noPlanner}, today.addDays(1)).calendar;
        QCOMPARE(calendar.filled, (QMap<LineSource, QDate>{{LineSource::Planner, today.addDays(1)}}));
        QVERIFY(calendar.days.isEmpty());
    }

    void leavesDaysOutsideTheMonthsAlone()
    {
        WallCalendar calendar =
            CalendarFill::plan(emptyCalendar(), sourcesOf({u"9:00 Dentist"_s}), today).calendar;
        calendar.months = 2;
        const FillPlan plan = CalendarFill::plan(calendar, sourcesOf({}), today);
        QCOMPARE(linesOf(plan.calendar), QStringList{u"9:00 Dentist"_s});
    }
};

QTEST_GUILESS_MAIN(TestCalendarFill)
#include "tst_calendarfill.moc"
