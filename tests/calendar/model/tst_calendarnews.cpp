// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/model/calendarholdings.h"
#include "calendar/model/calendarnews.h"
#include "calendar/model/calendarsource.h"
#include "calendar/model/nextyear.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"

#include <QDir>

using namespace Qt::Literals::StringLiterals;

namespace {

QByteArray fileOf(const QByteArray &title, const QByteArray &from, int months, const QByteArray &more = {})
{
    return "Quillery calendar 1\r\ntitle\t" + title + "\r\nfrom\t" + from + "\r\nmonths\t" +
           QByteArray::number(months) + "\r\n" + more;
}

QStringList hitsOf(CalendarSource &source, const QString &text)
{
    while (source.prepare()) {}
    QStringList hits;
    for (const SearchHit &hit : source.matches(text, 5))
        hits.append(u"%1 | %2 | %3 %4 %5"_s.arg(hit.title, hit.context)
                        .arg(hit.place.record)
                        .arg(hit.place.date.toString(Qt::ISODate))
                        .arg(hit.place.row));
    return hits;
}

} // namespace

/// What the calendars tell the rest of the program, and the calendar that follows one.
class TestCalendarNews : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        QDir folder(m_test.folder().path());
        QVERIFY(folder.removeRecursively() && folder.mkpath(u"."_s));
    }

    void tellsOfTheCalendarOfToday_data()
    {
        const QByteArray family = fileOf("Family 2026", "2026-01", 12);
        const QByteArray school = fileOf("School 2026/27", "2026-09", 12, "layout\tquarter\r\n");
        const QByteArray next = fileOf("Family 2027", "2027-01", 12, "layout\tyear\r\n");
        using Files = QByteArrayList;
        rows<Files, QDate, QString>({
            {"none in spring", {}, {2026, 5, 1}, {}},
            {"none in November", {}, {2026, 11, 1}, u"No calendar for 2027 yet"_s},
            {"of today", {next, family}, {2026, 10, 31}, u"Family 2026, 12 pages"_s},
            {"on its last day", {family, next}, {2026, 12, 31}, u"Family 2026, 12 pages"_s},
            {"the next one", {next}, {2026, 10, 31}, u"Family 2027, 1 page"_s},
            {"by quarters", {school}, {2026, 11, 1}, u"School 2026/27, 4 pages"_s},
            {"none of the next year", {family}, {2026, 11, 1}, u"No calendar for 2027 yet"_s},
            {"over", {family}, {2027, 1, 1}, {}},
            {"noise", {noiseOf(3000), QByteArray(), "Quillery calendar 1"}, {2026, 5, 1}, {}},
        });
    }
    void tellsOfTheCalendarOfToday()
    {
        const auto [files, today, text] = row<QByteArrayList, QDate, QString>();
        for (qsizetype i = 0; i < files.size(); ++i)
            m_test.put(u"CalMk%1.Fil"_s.arg(i + 1), files[i]);
        const std::optional<LiveLine> line = CalendarNews::liveLine(m_test.folder(), today);
        QCOMPARE(line ? line->text : QString(), text);
        QVERIFY(!line || line->sentence.isEmpty());
    }

    void findsWhatPeopleWroteInCalendars()
    {
        m_test.put(u"CalMk1.Fil"_s,
                   fileOf("Family 2026", "2026-01", 12, "day\t2026-03-14\ttyped\t\t\tAnne's concert\r\n"));
        m_test.put(u"CalMk2.Fil"_s, fileOf("Family 2027", "2027-01", 12,
                                           "span\t2027-03-25\t2027-04-06\t2\tConcert tour\r\n"
                                           "day\t2027-03-14\tplanner\t2027-03-14\tConcert\tConcert\r\n"
                                           "day\t2027-03-14\ttodo\t2027-03-14\tConcert clothes\t\r\n"
                                           "day\t2027-03-14\tplanner\t2027-03-14\tConcert\tConcert!\r\n"));
        m_test.put(u"CalMk3.Fil"_s, noiseOf(3000));
        CalendarSource source(m_test.folder(), DateStyle::Usa);
        QCOMPARE(hitsOf(source, u"concert"_s),
                 (QStringList{u"Concert! | Family 2027, March 14, 2027 | 2 2027-03-14 2"_s,
                              u"Concert tour | Family 2027, March 25, 2027 | 2 2027-03-25 -1"_s,
                              u"Anne's concert | Family 2026, March 14, 2026 | 1 2026-03-14 0"_s}));
        QCOMPARE(hitsOf(source, u"family 2026"_s), QStringList{u"Family 2026 |  | 1  -1"_s});
        QVERIFY(QFile::remove(m_test.path(u"CalMk2.Fil"_s)));
        QCOMPARE(hitsOf(source, u"concert"_s).size(), 1);
    }

    void namesItsFilesAndPhotos()
    {
        QVERIFY(QDir().mkpath(m_test.path(u"Pictures"_s)) && QDir().mkpath(m_test.path(u"CalMk9.Fil"_s)));
        m_test.put(u"Pictures/ferry.jpg"_s, "picture");
        const QByteArray photos = "photo\t2026-03\tPictures/ferry.jpg\t\r\nphoto\t2026-04\tPictures/"
                                  "gone.jpg\t\r\nphoto\t2026-05\tPictures/ferry.jpg\t\r\n";
        m_test.put(u"calmk1.fil"_s, fileOf("Family 2026", "2026-01", 12, photos));
        m_test.put(u"Holiday1.Fil"_s, "Quillery holidays 1\r\n");
        // A disk that does not tell spellings apart has them as they are asked for.
        QCOMPARE(CalendarHoldings::files(m_test.folder()).join(u' ').toLower(), u"calmk1.fil holiday1.fil"_s);
        expectWarning("Cannot read .*CalMk9.Fil");
        QCOMPARE(CalendarHoldings::pictures(m_test.folder()),
                 QStringList{m_test.path(u"Pictures/ferry.jpg"_s)});
    }

    void raisesTheYearsOfATitle_data()
    {
        rows<QString, QDate, int, QString>({
            {"a year", u"Family Calendar 2027"_s, {2027, 1, 1}, 12, u"Family Calendar 2028"_s},
            {"a school year", u"School 2026/27"_s, {2026, 9, 1}, 12, u"School 2027/28"_s},
            {"two years", u"2027-2028 and 1066, 20275"_s, {2027, 1, 1}, 24, u"2029-2030 and 1066, 20275"_s},
            {"half a year", u"Spring 2027"_s, {2027, 1, 1}, 6, u"Spring 2028"_s},
            {"over a century", u"1999/00"_s, {1999, 9, 1}, 12, u"2000/01"_s},
            {"none", u"Kitchen"_s, {2027, 1, 1}, 12, u"Kitchen"_s},
        });
    }
    void raisesTheYearsOfATitle()
    {
        const auto [title, from, months, raised] = row<QString, QDate, int, QString>();
        WallCalendar calendar;
        calendar.title = title;
        calendar.from = from;
        calendar.months = months;
        QCOMPARE(NextYear::of(calendar)->title, raised);
    }

    void makesTheCalendarOfTheNextYear()
    {
        WallCalendar calendar;
        calendar.from = QDate(2028, 1, 1);
        calendar.look.style = CalendarStyle::Open;
        calendar.persons = {u"Anne"_s};
        calendar.holidaySets = {u"Ireland"_s};
        calendar.rules = {{u"12-25"_s, {}, u"Feast"_s}};
        WallCalendar next = calendar;
        next.from = QDate(2029, 1, 1);
        calendar.filled = {{LineSource::Rule, QDate(2027, 11, 23)}};
        calendar.spans = {{QDate(2028, 3, 1), QDate(2028, 3, 9), 1, u"Away"_s}};
        calendar.photos = {{QDate(2028, 2, 1), {u"a.jpg"_s, u"A"_s}}};
        next.photos = {{QDate(2029, 2, 1), {u"a.jpg"_s, u"A"_s}}};
        const DayLine yearly{.isYearly = true, .shown = u"Feast"_s};
        calendar.days[QDate(2028, 2, 29)] = {yearly, DayLine{.shown = u"Once"_s}};
        next.days[QDate(2029, 2, 28)] = {yearly};
        QCOMPARE(NextYear::of(calendar), next);
        calendar.from = QDate(2199, 1, 1);
        QVERIFY(!NextYear::of(calendar));
    }

private:
    TestFolder m_test;
};

QTEST_GUILESS_MAIN(TestCalendarNews)
#include "tst_calendarnews.moc"
