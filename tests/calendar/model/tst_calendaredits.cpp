// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/model/calendaredits.h"
#include "calendar/model/calendarfiles.h"
#include "calendar/model/calendartrash.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QDate day(2027, 3, 14);
const QDate other(2027, 3, 15);

/// "p 9:00 Dentist > Dentist" came from the planner and was edited, "p Market >" was removed, "h" is a
/// holiday, "y" a typed line of every year; any other is typed.
DayLine lineOf(const QString &words)
{
    DayLine line;
    const QString text = words.size() > 2 && words.at(1) == u' ' ? words.sliced(2) : words;
    const bool isFilled = text != words && words.front() != u'y';
    if (isFilled) {
        line.source = words.front() == u'h' ? LineSource::Holiday : LineSource::Planner;
        line.origin = day;
        line.original = text.section(u'>', 0, 0).trimmed();
    }
    line.isYearly = words.startsWith(u"y ");
    line.shown = isFilled && text.contains(u'>') ? text.section(u'>', 1).trimmed() : text.trimmed();
    return line;
}

QString wordsOf(const DayLine &line)
{
    if (line.isTyped())
        return (line.isYearly ? u"y "_s : QString()) + line.shown;
    const QString source = line.source == LineSource::Holiday ? u"h "_s : u"p "_s;
    const QString words = source + line.original;
    return line.isRemoved() ? words + u" >" : line.isEdited() ? words + u" > " + line.shown : words;
}

WallCalendar calendarOf(const QStringList &lines)
{
    WallCalendar calendar;
    calendar.from = QDate(2027, 1, 1);
    for (const QString &words : lines)
        calendar.days[day].append(lineOf(words));
    return calendar;
}

QStringList linesOf(const WallCalendar &calendar, QDate date = day)
{
    QStringList lines;
    for (const DayLine &line : calendar.days.value(date))
        lines.append(wordsOf(line));
    return lines;
}

} // namespace

/// What a person does to the lines of a calendar.
class TestCalendarEdits : public QObject
{
    Q_OBJECT
private slots:
    void makesACellSayWhatIsTyped_data()
    {
        const QStringList cell{u"h Ferns"_s, u"p 9:00 Dentist"_s, u"p Market >"_s, u"p Choir > Choir!"_s,
                               u"Concert"_s};
        rows<QStringList, QStringList, QStringList>({
            {"as it was", cell, {u"Ferns"_s, u"9:00 Dentist"_s, u"Choir!"_s, u"Concert"_s}, cell},
            {"into an empty one",
             {},
             {u" Anne's concert "_s, u"  "_s, u"A\tB"_s},
             {u"Anne's concert"_s, u"A B"_s}},
            {"nothing", cell, {}, {u"h Ferns >"_s, u"p 9:00 Dentist >"_s, u"p Market >"_s, u"p Choir >"_s}},
            {"edited",
             cell,
             {u"Ferns"_s, u"Dentist"_s, u"Choir"_s, u"Anne's concert"_s},
             {u"h Ferns"_s, u"p 9:00 Dentist > Dentist"_s, u"p Market >"_s, u"p Choir"_s,
              u"Anne's concert"_s}},
            {"another order",
             cell,
             {u"Concert"_s, u"9:00 Dentist"_s, u"Choir!"_s, u"Ferns"_s},
             {u"Concert"_s, u"p 9:00 Dentist"_s, u"p Market >"_s, u"p Choir > Choir!"_s, u"h Ferns"_s}},
            {"one between",
             cell,
             {u"Ferns"_s, u"9:00 Dentist"_s, u"Milk"_s, u"Choir!"_s, u"Concert"_s},
             {u"h Ferns"_s, u"p 9:00 Dentist"_s, u"p Market >"_s, u"Milk"_s, u"p Choir > Choir!"_s,
              u"Concert"_s}},
            {"one gone, one new behind",
             cell,
             {u"Ferns"_s, u"Choir!"_s, u"Concert"_s, u"Milk"_s},
             {u"h Ferns"_s, u"p 9:00 Dentist >"_s, u"p Market >"_s, u"p Choir > Choir!"_s, u"Concert"_s,
              u"Milk"_s}},
            {"the same twice", {u"p A"_s, u"A"_s}, {u"A"_s, u"A"_s}, {u"p A"_s, u"A"_s}},
            {"every year", {u"y Feast"_s}, {u"Feast!"_s}, {u"y Feast!"_s}},
        });
    }
    void makesACellSayWhatIsTyped()
    {
        const auto [former, texts, after] = row<QStringList, QStringList, QStringList>();
        const WallCalendar calendar = CalendarEdits::setCell(calendarOf(former), day, texts);
        QCOMPARE(linesOf(calendar), after);
        QCOMPARE(calendar.days.contains(day), !after.isEmpty());
    }

    void cutsALineThatIsTooLong()
    {
        const QString smile = u"\U0001F600"_s;
        QCOMPARE(CalendarEdits::lineText(QString(500, u'a')).size(), 200);
        QCOMPARE(CalendarEdits::lineText(QString(199, u'a') + smile), QString(199, u'a'));
        QCOMPARE(CalendarEdits::lineText(u"a\nb\u2028c"_s), u"a b c"_s);
    }

    void changesOneLine_data()
    {
        using Edit = std::function<WallCalendar(const WallCalendar &)>;
        namespace E = CalendarEdits;
        rows<Edit, QStringList, QStringList>({
            {"removes a typed one",
             [](const auto &c) { return E::removeLine(c, day, 3); },
             {u"h Ferns"_s, u"p 9:00 Dentist"_s, u"p Market >"_s},
             {}},
            {"removes one that came",
             [](const auto &c) { return E::removeLine(c, day, 1); },
             {u"h Ferns"_s, u"p 9:00 Dentist >"_s, u"p Market >"_s, u"Concert"_s},
             {}},
            {"restores it",
             [](const auto &c) { return E::restoreLine(c, day, 2); },
             {u"h Ferns"_s, u"p 9:00 Dentist"_s, u"p Market"_s, u"Concert"_s},
             {}},
            {"moves it to its place",
             [](const auto &c) { return E::moveLine(E::moveLine(c, day, 3, other), day, 1, other); },
             {u"h Ferns"_s, u"p Market >"_s},
             {u"p 9:00 Dentist"_s, u"Concert"_s}},
            {"moves it behind another",
             [](const auto &c) { return E::moveLine(E::moveLine(c, day, 3, other), day, 1, other, 1); },
             {u"h Ferns"_s, u"p Market >"_s},
             {u"Concert"_s, u"p 9:00 Dentist"_s}},
            {"moves it in its cell",
             [](const auto &c) { return E::moveLine(c, day, 0, day, 4); },
             {u"p 9:00 Dentist"_s, u"p Market >"_s, u"Concert"_s, u"h Ferns"_s},
             {}},
            {"copies it",
             [](const auto &c) { return E::copyLine(c, day, 1, other); },
             {u"h Ferns"_s, u"p 9:00 Dentist"_s, u"p Market >"_s, u"Concert"_s},
             {u"9:00 Dentist"_s}},
            {"puts it up",
             [](const auto &c) { return E::orderLine(c, day, 3, -1); },
             {u"h Ferns"_s, u"Concert"_s, u"p Market >"_s, u"p 9:00 Dentist"_s},
             {}},
            {"not beyond the first",
             [](const auto &c) { return E::orderLine(c, day, 0, -1); },
             {u"h Ferns"_s, u"p 9:00 Dentist"_s, u"p Market >"_s, u"Concert"_s},
             {}},
            {"lets it come every year",
             [](const auto &c) { return E::setYearly(E::setYearly(c, day, 3, true), day, 0, true); },
             {u"h Ferns"_s, u"p 9:00 Dentist"_s, u"p Market >"_s, u"y Concert"_s},
             {}},
            {"finds none",
             [](const auto &c) {
                 return E::removeLine(E::moveLine(E::restoreLine(c, other, 0), day, 4, other), day, -1);
             },
             {u"h Ferns"_s, u"p 9:00 Dentist"_s, u"p Market >"_s, u"Concert"_s},
             {}},
        });
    }
    void changesOneLine()
    {
        const auto [edit, here, there] =
            row<std::function<WallCalendar(const WallCalendar &)>, QStringList, QStringList>();
        const WallCalendar after =
            edit(calendarOf({u"h Ferns"_s, u"p 9:00 Dentist"_s, u"p Market >"_s, u"Concert"_s}));
        QCOMPARE(linesOf(after), here);
        QCOMPARE(linesOf(after, other), there);
    }

    void emptiesAMonth()
    {
        WallCalendar calendar = calendarOf({u"h Ferns"_s, u"p Market >"_s, u"Concert"_s});
        calendar.days[QDate(2027, 4, 1)] = {lineOf(u"Fools"_s)};
        calendar.spans = {{day, other, 1, u"In it"_s},
                          {day, QDate(2027, 4, 2), 1, u"Beyond it"_s},
                          {other, QDate(2027, 2, 1), 1, u"A day of it"_s}};
        calendar = CalendarEdits::emptyMonth(calendar, QDate(2027, 3, 1));
        QCOMPARE(calendar.days.keys(), QList<QDate>{QDate(2027, 4, 1)});
        QCOMPARE(calendar.spans.size(), 1);
        QCOMPARE(calendar.spans.front().text, u"Beyond it"_s);
    }

    void throwsCalendarsAwayAndBringsThemBack()
    {
        const TestFolder test;
        const QByteArray bytes = "Quillery calendar 1\r\ntitle\tFamily\r\nnoise\r\n";
        test.put(u"calmk2.fil"_s, bytes);
        const QDateTime now = QDate(2026, 11, 23).startOfDay();
        QVERIFY(CalendarTrash::throwAway(test.folder(), 2, now));
        QVERIFY(CalendarFiles::numbers(test.folder()).isEmpty());
        const std::vector<Trash::Item> items = CalendarTrash::items(test.folder(), now.addDays(29));
        QCOMPARE(items.size(), std::size_t(1));
        QCOMPARE(items.front().title, u"Family"_s);
        test.put(u"CalMk2.Fil"_s, "other");
        QCOMPARE(CalendarTrash::bringBack(test.folder(), items.front()), 1);
        QCOMPARE(test.bytes(u"CalMk1.Fil"_s), bytes);
        QVERIFY(CalendarTrash::items(test.folder(), now).empty());
        QVERIFY(QFile::remove(test.path(u"CalMk2.Fil"_s)));
        QCOMPARE(CalendarTrash::bringBack(test.folder(), items.front()), 2);
    }
};

QTEST_GUILESS_MAIN(TestCalendarEdits)
#include "tst_calendaredits.moc"
