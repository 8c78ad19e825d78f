// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/model/calendarfile.h"
#include "calendar/model/calendarfiles.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"

#include <QDir>

using namespace Qt::Literals::StringLiterals;

namespace {

/// All that a calendar can hold.
WallCalendar familyCalendar()
{
    WallCalendar calendar;
    calendar.title = u"Family Calendar 2027"_s;
    calendar.from = QDate(2027, 1, 1);
    calendar.look = {.layout = CalendarLayout::Photo,
                     .style = CalendarStyle::Bars,
                     .isLandscape = false,
                     .hasWeekNumbers = true,
                     .hasSmallMonths = true,
                     .hasNeighbourLines = true,
                     .fontFamily = u"DejaVu Sans"_s,
                     .fontPoints = 10.5};
    calendar.holidaySets = {u"Germany"_s, u"Western church year"_s};
    calendar.persons = {u"Anne"_s, u"Jos\u00e9"_s};
    calendar.filled = {{LineSource::Planner, QDate(2026, 11, 23)},
                       {LineSource::Holiday, QDate(2026, 11, 22)}};
    calendar.photos = {{QDate(2027, 3, 1), {u"Pictures/ferry.jpg"_s, u"The ferry"_s}}};
    calendar.spans = {{QDate(2027, 3, 25), QDate(2027, 4, 6), 2, u"Easter holidays"_s}};
    calendar.rules = {{u"every 2 weeks 2027-01-05"_s, u"\u267b"_s, u"Paper bin"_s}};
    const QDate day(2027, 3, 14);
    calendar.days[day] = {
        {LineSource::Birthday, day, false, u"Anne Lind turns 48"_s, u"Anne Lind turns 48"_s},
        {LineSource::Planner, QDate(2027, 3, 13), false, u"9:00 AM Dentist"_s, u"Dentist, 9 o'clock"_s},
        {LineSource::ToDo, day, false, u"Renew passports"_s, {}},
        {LineSource::Typed, {}, false, {}, u"Anne's concert"_s}};
    calendar.days[QDate(2027, 12, 24)] = {{LineSource::Typed, {}, true, {}, u"a\ttab \\ and\na line"_s}};
    return calendar;
}

const QByteArray familyLines =
    "Quillery calendar 1\r\n"
    "title\tFamily Calendar 2027\r\n"
    "from\t2027-01\r\n"
    "months\t12\r\n"
    "layout\tphoto\r\n"
    "style\tbars\r\n"
    "paper\tA4\tupright\r\n"
    "week\tmonday\tnumbers\r\n"
    "shows\tsmall months\tneighbouring days\r\n"
    "font\tDejaVu Sans\t10.5\r\n"
    "holidays\tGermany\tWestern church year\r\n"
    "persons\tAnne\tJos\xc3\xa9\r\n"
    "filled\tplanner\t2026-11-23\r\n"
    "filled\tholiday\t2026-11-22\r\n"
    "photo\t2027-03\tPictures/ferry.jpg\tThe ferry\r\n"
    "span\t2027-03-25\t2027-04-06\t2\tEaster holidays\r\n"
    "rule\tevery 2 weeks 2027-01-05\t\xe2\x99\xbb\tPaper bin\r\n"
    "day\t2027-03-14\tbirthday\t2027-03-14\tAnne Lind turns 48\tAnne Lind turns 48\r\n"
    "day\t2027-03-14\tplanner\t2027-03-13\t9:00 AM Dentist\tDentist, 9 o'clock\r\n"
    "day\t2027-03-14\ttodo\t2027-03-14\tRenew passports\t\r\n"
    "day\t2027-03-14\ttyped\t\t\tAnne's concert\r\n"
    "day\t2027-12-24\ttyped\tyearly\t\ta\\ttab \\\\ and\\na line\r\n";

const QByteArray smallLines = "Quillery calendar 1\r\ntitle\tSmall\r\nfrom\t2027-01\r\nmonths\t1\r\n"
                              "layout\tmonth\r\nstyle\tclassic\r\npaper\tA4\tlandscape\r\nweek\tmonday\r\n";

} // namespace

/// The file of a calendar, and the files of them all.
class TestCalendarFile : public QObject
{
    Q_OBJECT
private slots:
    void holdsEverythingOfACalendar()
    {
        QCOMPARE(CalendarFile::write(familyCalendar()), familyLines);
        QCOMPARE(CalendarFile::read(familyLines), familyCalendar());
        QByteArray edited = familyLines;
        edited.replace("\r\n", "\n").prepend("\xef\xbb\xbf");
        QCOMPARE(CalendarFile::read(edited), familyCalendar());
    }

    void keepsWhatItCannotRead_data()
    {
        rows<QByteArray>({
            {"an unknown word", "colour\tred"},
            {"a word alone", "title"},
            {"an empty line", ""},
            {"what there is once, again", "title\tAnother"},
            {"no month", "from\t2027-13"},
            {"no number of months", "months\t25"},
            {"no layout", "layout\tspiral"},
            {"no weekday", "week\tmontag"},
            {"no size of a font", "font\tArial\tnan"},
            {"nobody", "persons\t"},
            {"no holidays", "holidays\t"},
            {"nothing to show", "shows\tthe moon"},
            {"no source", "day\t2027-01-02\tdog\t2027-01-02\ta\tb"},
            {"no date", "day\t2027-02-29\ttyped\t\t\ta"},
            {"no origin", "day\t2027-01-02\tplanner\t\ta\tb"},
            {"a typed line of nothing", "day\t2027-01-02\ttyped\t\t\t"},
            {"typing that was filled", "filled\ttyped\t2026-11-23"},
            {"no tone", "span\t2027-01-02\t2027-01-03\t7\ta"},
            {"a photo of nothing", "photo\t2027-01\t\tNothing"},
            {"bytes of any kind", "\x01\xff\xfe\t\xc3"},
        });
    }
    void keepsWhatItCannotRead()
    {
        const auto [line] = row<QByteArray>();
        const QByteArray former = smallLines + line + "\r\nday\t2027-01-05\ttyped\t\t\tLast\r\n";
        WallCalendar calendar = CalendarFile::read(former);
        QCOMPARE(CalendarFile::write(calendar, former), former);
        // It stays behind the line that it stood behind, or behind the one before that.
        calendar.days.clear();
        calendar.look.firstDay = Qt::Sunday;
        QCOMPARE(CalendarFile::write(calendar, former),
                 QByteArray(smallLines.chopped(13) + line + "\r\nweek\tsunday\r\n"));
    }

    void leavesTheBytesOfLinesThatSayTheSame()
    {
        // Columns beyond those that are known, another order of words, Windows-1252.
        const QByteArray odd =
            "day\t2027-01-05\ttyped\t\t\tJos\xe9\tmore\r\nday\t2027-01-05\ttyped\t\t\tJos\xc3\xa9\r\n";
        const QByteArray former = smallLines + odd;
        WallCalendar calendar = CalendarFile::read(former);
        QCOMPARE(calendar.days[QDate(2027, 1, 5)].size(), 2);
        QCOMPARE(CalendarFile::write(calendar, former), former);
        calendar.days[QDate(2027, 1, 5)].removeFirst();
        QCOMPARE(CalendarFile::write(calendar, former).count("Jos"), 1);
        calendar.days.clear();
        QCOMPARE(CalendarFile::write(calendar, former), smallLines);
    }

    void takesTheFirstOfTwoLinesInAnyOrder()
    {
        // The font comes first, and what stood behind it comes along; the second persons stay the second.
        const QByteArray former =
            smallLines + "persons\tAnne\r\nrule\t12-25\t\tFeast\r\nfont\tArial\t9\r\npersons\tBen\r\n";
        const WallCalendar calendar = CalendarFile::read(former);
        const QByteArray file =
            smallLines + "font\tArial\t9\r\npersons\tAnne\r\nrule\t12-25\t\tFeast\r\npersons\tBen\r\n";
        QCOMPARE(CalendarFile::write(calendar, former), file);
        QCOMPARE(CalendarFile::read(file), calendar);
    }

    void readsWhatThereIsOfACutFile()
    {
        for (qsizetype length = 0; length < familyLines.size(); ++length) {
            const QByteArray cut = familyLines.first(length);
            const TabLine::Form form = CalendarFile::formOf(cut);
            QVERIFY(form == TabLine::Empty || form == TabLine::Known);
            const WallCalendar calendar = CalendarFile::read(cut);
            QCOMPARE(CalendarFile::read(CalendarFile::write(calendar, cut)), calendar);
        }
    }

    void listsTheCalendars()
    {
        const TestFolder test;
        QVERIFY(CalendarFiles::heads(test.folder()).isEmpty());
        test.put(u"CalMk1.Fil"_s, familyLines);
        test.put(u"calmk2.fil"_s, smallLines + QByteArray(10'000, 'x'));
        test.put(u"CalMk4.Fil"_s, "");
        test.put(u"CalMk5.Fil"_s, noiseOf(5'000));
        test.put(u"CalMk7.Fil"_s, "Quillery calendar 2\r\ntitle\tLater\r\nfrom\t2028-01\r\n");
        for (const QString &other : {u"CalMk03.Fil"_s, u"CalMk0.Fil"_s, u"CalMk100.Fil"_s, u"CalMk.Fil"_s})
            test.put(other, familyLines);
        QVERIFY(QDir().mkpath(test.path(u"CalMk6.Fil"_s)));

        using Head = CalendarHead;
        const QDate january(2027, 1, 1);
        QCOMPARE(CalendarFiles::heads(test.folder()),
                 (QList<Head>{{1, u"Family Calendar 2027"_s, january, 12, CalendarLayout::Photo, Head::Whole},
                              {2, u"Small"_s, january, 1, CalendarLayout::Month, Head::Whole},
                              {4, u"CalMk4.Fil"_s, {}, 12, CalendarLayout::Month, Head::Whole, true},
                              {5, u"CalMk5.Fil"_s, {}, 0, CalendarLayout::Month, Head::Foreign},
                              {6, u"CalMk6.Fil"_s, {}, 0, CalendarLayout::Month, Head::OutOfReach},
                              {7, u"Later"_s, QDate(2028, 1, 1), 12, CalendarLayout::Month, Head::Later}}));
        QCOMPARE(CalendarFiles::create(test.folder(), familyCalendar()), 3);
        QCOMPARE(test.bytes(u"CalMk3.Fil"_s), familyLines);
        QCOMPARE(CalendarFiles::create(test.folder(), familyCalendar()), 8);
        for (int number = 9; number <= CalendarFiles::most; ++number)
            test.put(CalendarFiles::name(number), smallLines);
        QCOMPARE(CalendarFiles::create(test.folder(), familyCalendar()), 0);
        QCOMPARE(CalendarFiles::names(test.folder()).size(), 98);
    }
};

QTEST_GUILESS_MAIN(TestCalendarFile)
#include "tst_calendarfile.moc"
