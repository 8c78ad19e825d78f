// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/model/calendarpages.h"
#include "calendar/model/calendarpapers.h"
#include "shell/pages/gridlayout.h"
#include "tests/support/rows.h"
#include "tests/support/sheettools.h"
#include "tests/support/testfiles.h"
#include "tests/support/testpictures.h"

using namespace Qt::Literals::StringLiterals;
using namespace SheetTools;

namespace {

WallCalendar year(QDate from = QDate(2027, 1, 1), int months = 12)
{
    WallCalendar calendar;
    calendar.title = u"Family Calendar"_s;
    calendar.from = from;
    calendar.months = months;
    return calendar;
}

void type(WallCalendar &calendar, QDate date, const QString &text)
{
    calendar.days[date].append({.shown = text});
}

CalendarPages::Source sourceFor(const WallCalendar &calendar)
{
    return {.context = {.setup = CalendarPages::setup(calendar.look), .today = QDate(2026, 11, 23)}};
}

const GridCell *cellOf(const GridBlock &block, QDate date)
{
    const auto found = std::ranges::find(block.cells, date, &GridCell::date);
    return found == block.cells.end() ? nullptr : &*found;
}

QStringList textsOf(const GridCell &cell)
{
    QStringList texts;
    for (const GridLine &line : cell.lines)
        texts << line.text;
    return texts;
}

QString save(const QString &path, const WallCalendar &calendar, const QList<int> &chosen = {})
{
    const CalendarPages::Source source = sourceFor(calendar);
    return savePdf(path, CalendarPages::page(calendar, source, chosen), source.context.setup);
}

} // namespace

class TestCalendarPages final : public QObject
{
    Q_OBJECT
private slots:
    void init() { m_files = std::make_unique<TestFolder>(); }

    void monthsStandOnSheets_data()
    {
        using L = CalendarLayout;
        rows<L, int, int, QList<int>, QString>({
            {"a month each", L::Month, 12, 12, {7}, u"August 2027"_s},
            {"with a photo", L::Photo, 24, 24, {7}, u"August 2027"_s},
            {"persons", L::Columns, 1, 1, {0}, u"January 2027"_s},
            {"quarters", L::Quarter, 12, 4, {6, 7, 8}, u"July to September 2027"_s},
            {"a quarter begun", L::Quarter, 8, 3, {6, 7}, u"July to August 2027"_s},
            {"a year", L::Year, 12, 1, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}, u"2027"_s},
            {"cards", L::Pocket, 10, 3, {4, 5, 6, 7}, u""_s},
        });
    }

    void monthsStandOnSheets()
    {
        const auto [layout, months, sheets, together, title] =
            row<CalendarLayout, int, int, QList<int>, QString>();
        WallCalendar calendar = year(QDate(2027, 1, 1), months);
        calendar.look.layout = layout;
        QCOMPARE(CalendarPages::sheetCount(calendar), sheets);
        const int sheet = CalendarPages::sheetOf(calendar, 7);
        QCOMPARE(CalendarPages::monthsOf(calendar, sheet), together);
        const auto grid = CalendarPages::grid(calendar, sheet, sourceFor(calendar));
        QCOMPARE(QString(grid->title + u' ' + grid->titleLight).trimmed(), title);
        QCOMPARE(CalendarPages::monthGrid(calendar, 0, sourceFor(calendar))->title, u"January"_s);
    }

    void weeksBeginOnTheChosenDay_data()
    {
        rows<QDate, Qt::DayOfWeek, int, QDate, QString>({
            {"four weeks", {2027, 2, 1}, Qt::Monday, 4, {2027, 2, 1}, u"5 6 7 8"_s},
            {"the same from Sunday", {2027, 2, 1}, Qt::Sunday, 5, {2027, 1, 31}, u"5 6 7 8 9"_s},
            {"six weeks", {2027, 8, 1}, Qt::Monday, 6, {2027, 7, 26}, u"30 31 32 33 34 35"_s},
            {"six from Sunday", {2027, 1, 1}, Qt::Sunday, 6, {2026, 12, 27}, u"53 1 2 3 4 5"_s},
            {"the first week of January", {2027, 1, 1}, Qt::Monday, 5, {2026, 12, 28}, u"53 1 2 3 4"_s},
            {"a week of next year", {2024, 12, 1}, Qt::Monday, 6, {2024, 11, 25}, u"48 49 50 51 52 1"_s},
        });
    }

    void weeksBeginOnTheChosenDay()
    {
        const auto [month, firstDay, weeks, first, numbers] =
            row<QDate, Qt::DayOfWeek, int, QDate, QString>();
        WallCalendar calendar = year(month, 1);
        calendar.look.firstDay = firstDay;
        calendar.look.hasWeekNumbers = true;
        const auto grid = CalendarPages::grid(calendar, 0, sourceFor(calendar));
        const GridBlock &block = grid->blocks.constFirst();
        QCOMPARE(int(block.rowCount()), weeks);
        QCOMPARE(block.cells.constFirst().date, first);
        QStringList shown;
        for (const GridHead &head : block.rows)
            shown << head.week;
        QCOMPARE(shown.join(u' '), numbers);
    }

    void aCellHoldsWhatItsDayShows()
    {
        WallCalendar calendar = year();
        const QDate date(2027, 3, 26);
        calendar.days[date] = {{LineSource::Holiday, date, false, u"Good Friday"_s, u"Good Friday"_s},
                               {LineSource::ToDo, date, false, u"Hem"_s, QString()},
                               {LineSource::Planner, date, false, u"8:00 Vet"_s, u"Vet with the cat"_s}};
        type(calendar, QDate(2027, 4, 1), u"a neighbour's line"_s);
        const auto march = [&calendar] {
            return CalendarPages::grid(calendar, 2, sourceFor(calendar))->blocks.constFirst();
        };
        const GridBlock block = march();
        const GridCell friday = *cellOf(block, date);
        QCOMPARE(textsOf(friday), QStringList({u"Good Friday"_s, u"Vet with the cat"_s}));
        QCOMPARE(friday.lines.constLast().index, 2); // of the day's lines, with the removed one
        QVERIFY(friday.isStrong && friday.isTinted && friday.beside == 1);
        const GridCell april = *cellOf(block, QDate(2027, 4, 1));
        QVERIFY(april.isQuiet && april.lines.isEmpty() && !april.isTinted);
        calendar.look.hasNeighbourLines = true;
        QCOMPARE(textsOf(*cellOf(march(), QDate(2027, 4, 1))), {u"a neighbour's line"_s});
    }

    void aLineGoesToThePersonItNames_data()
    {
        rows<QString, int, QString>({
            {"nobody", u"Paper bin"_s, 0, u"Paper bin"_s},
            {"named", u"anne's concert"_s, 1, u"anne's concert"_s},
            {"in front", u"Ben: vet with Anne"_s, 2, u"vet with Anne"_s},
            {"two of them", u"Anne and Ben: dentist"_s, 0, u"Anne and Ben: dentist"_s},
            {"part of a word", u"Bend the pipe, annexe"_s, 0, u"Bend the pipe, annexe"_s},
            {"nothing behind the colon", u"Ben:"_s, 2, u"Ben:"_s},
        });
    }

    void aLineGoesToThePersonItNames()
    {
        const auto [text, column, shown] = row<QString, int, QString>();
        WallCalendar calendar = year();
        calendar.look.layout = CalendarLayout::Columns;
        calendar.persons = {u"Anne"_s, u"Ben"_s};
        const QDate date(2027, 1, 5);
        type(calendar, date, text);
        const auto grid = CalendarPages::grid(calendar, 0, sourceFor(calendar));
        const GridBlock &block = grid->blocks.constFirst();
        QCOMPARE(block.columns.constFirst().text, u"Everyone"_s);
        for (int i = 0; i < 3; ++i)
            QCOMPARE(textsOf(block.cells[4 * 3 + i]), i == column ? QStringList(shown) : QStringList());
    }

    void aSpanIsABarInEachOfItsWeeks_data()
    {
        rows<QDate, QDate, QString, QString>({
            {"within a week", {2027, 3, 9}, {2027, 3, 11}, u"1/1x3"_s, u"Tue 9 to Thu 11\taway"_s},
            {"over three weeks",
             {2027, 3, 13},
             {2027, 3, 22},
             u"1/5x2 2/0x7 3/0x1"_s,
             u"Sat 13 to Mon 22\taway"_s},
            {"from before to behind",
             {2027, 2, 1},
             {2027, 5, 1},
             u"0/0x7 1/0x7 2/0x7 3/0x7 4/0x3"_s,
             u"Mon 1 to Wed 31\taway"_s},
            {"one that ends before it begins", {2027, 3, 9}, {2027, 3, 1}, u"1/1x1"_s, u"Tue 9\taway"_s},
            {"of another month", {2027, 4, 1}, {2027, 4, 2}, u""_s, u""_s},
        });
    }

    void aSpanIsABarInEachOfItsWeeks()
    {
        const auto [from, to, expected, text] = row<QDate, QDate, QString, QString>();
        WallCalendar calendar = year();
        calendar.spans = {{from, to, 1, u"away"_s}};
        QStringList bars;
        const auto grid = CalendarPages::grid(calendar, 2, sourceFor(calendar));
        for (const GridSpan &span : grid->blocks.constFirst().spans)
            bars << u"%1/%2x%3"_s.arg(span.row).arg(span.column).arg(span.length);
        QCOMPARE(bars.join(u' '), expected);
        // Copied it is told once, with its days; in a row of days too.
        QCOMPARE(grid->text().split(u'\n').filter(u"away"_s).join(u'\n'), text);
        calendar.look.layout = CalendarLayout::Columns;
        const auto columns = CalendarPages::grid(calendar, 2, sourceFor(calendar));
        QCOMPARE(columns->text().split(u'\n').filter(u"away"_s).join(u'\n'), text);
    }

    void eachLineOfACrowdedMonthIsPrintedOnce_data()
    {
        QTest::addColumn<int>("layout");
        QTest::addColumn<bool>("isLandscape");
        const QStringList names{u"month"_s, u"photo"_s, u"quarter"_s, u"columns"_s, u"pocket"_s};
        const QList<CalendarLayout> layouts{CalendarLayout::Month, CalendarLayout::Photo,
                                            CalendarLayout::Quarter, CalendarLayout::Columns,
                                            CalendarLayout::Pocket};
        for (int i = 0; i < int(names.size()); ++i) {
            QTest::addRow("%s upright", qPrintable(names[i])) << int(layouts[i]) << false;
            QTest::addRow("%s landscape", qPrintable(names[i])) << int(layouts[i]) << true;
        }
    }

    void eachLineOfACrowdedMonthIsPrintedOnce()
    {
        if (!hasPdfTools())
            QSKIP("no poppler");
        QFETCH(int, layout);
        QFETCH(bool, isLandscape);
        WallCalendar calendar = year(QDate(2027, 8, 1), 1);
        calendar.look.layout = CalendarLayout(layout);
        calendar.look.isLandscape = isLandscape;
        calendar.persons = {u"Anne"_s, u"Ben"_s};
        for (QDate date = calendar.from; date <= calendar.lastDay(); date = date.addDays(1)) {
            for (int i = 0; i < 8; ++i)
                type(calendar, date, u"q%1x%2q bring the blue shirt to the station"_s.arg(date.day()).arg(i));
        }
        const QString text = pdfSheets(save(m_files->path(u"crowded.pdf"_s), calendar)).join(u'\n');
        for (QDate date = calendar.from; date <= calendar.lastDay(); date = date.addDays(1)) {
            for (int i = 0; i < 8; ++i)
                QCOMPARE(text.count(u"q%1x%2q"_s.arg(date.day()).arg(i)), 1);
        }
        QCOMPARE(text.count(u"station"_s), 31 * 8);
        QCOMPARE(text.count(u"Printed on 11/23/2026"_s), 1);
        QVERIFY(text.contains(u"Also"_s));
    }

    void aFullMonthTakesNoSheetMore_data()
    {
        rows<CalendarLayout, bool, int>({
            {"a month", CalendarLayout::Month, true, 59},
            {"with a photo", CalendarLayout::Photo, false, 59},
            {"a quarter", CalendarLayout::Quarter, false, 59},
            {"cards", CalendarLayout::Pocket, false, 44},
        });
    }

    /// Fourteen lines on New Year's Day, and as many as a household has on the days behind it.
    void aFullMonthTakesNoSheetMore()
    {
        const auto [layout, isLandscape, count] = row<CalendarLayout, bool, int>();
        WallCalendar calendar = year();
        calendar.look.layout = layout;
        calendar.look.isLandscape = isLandscape;
        for (int i = 0; i < count; ++i)
            type(calendar, QDate(2027, 1, i < 14 ? 1 : 2 + (i - 14) * 29 / count),
                 u"10:30 AM Council meeting"_s);
        for (int i = 0; i < 30; ++i) {
            for (int month = 2; month <= 3; ++month)
                type(calendar, QDate(2027, month, 1 + i * 27 / 30), u"6:00 PM Piano lesson"_s);
        }
        QCOMPARE(GridLayout(CalendarPages::grid(calendar, 0, sourceFor(calendar)), bodyFont()).partCount(),
                 1);
    }

    void aYearIsTwelveSheetsOfItsPaper()
    {
        if (!hasPdfTools())
            QSKIP("no poppler");
        WallCalendar calendar = year();
        const QString pdf = save(m_files->path(u"year.pdf"_s), calendar);
        const QString facts = output(u"pdfinfo"_s, {pdf});
        QVERIFY2(facts.contains(u"Pages:           12\n"_s), qPrintable(facts));
        QVERIFY2(facts.contains(u"841.89 x 595.276 pts (A4)"_s) || facts.contains(u"842 x 595 pts (A4)"_s),
                 qPrintable(facts));
        const QStringList sheets = pdfSheets(pdf);
        QVERIFY(!sheets.constFirst().contains(u"Printed on"_s));
        QVERIFY(sheets.constLast().contains(u"Quillery"_s) && sheets.constLast().contains(u"Printed on"_s));
        // Of chosen months the last one has the closing line.
        const QStringList chosen = pdfSheets(save(m_files->path(u"chosen.pdf"_s), calendar, {2, 0}));
        QCOMPARE(int(chosen.size()), 2);
        QVERIFY(chosen.at(0).contains(u"March"_s) && !chosen.at(0).contains(u"Printed on"_s));
        QVERIFY(chosen.at(1).contains(u"January"_s) && chosen.at(1).contains(u"Printed on"_s));
    }

    void aPictureThatIsNoneLeavesAFrameWithItsName_data()
    {
        rows<QByteArray, bool>({
            {"gone", {}, false},
            {"noise", "\x89PNG noise", true},
            {"of no bytes", "", true},
        });
    }

    void aPictureThatIsNoneLeavesAFrameWithItsName()
    {
        if (!hasPdfTools())
            QSKIP("no poppler");
        const auto [bytes, isThere] = row<QByteArray, bool>();
        if (isThere)
            QVERIFY(makeFile(m_files->path(u"lake.png"_s), bytes));
        WallCalendar calendar = year(QDate(2027, 7, 1), 2);
        calendar.look.layout = CalendarLayout::Photo;
        calendar.photos[calendar.from] = {m_files->path(u"lake.png"_s), u"At the lake"_s};
        calendar.photos[calendar.month(1)] = {makePicture(m_files->path(u"hill.png"_s), {600, 400}), {}};
        const QStringList sheets = pdfSheets(save(m_files->path(u"photos.pdf"_s), calendar));
        QCOMPARE(int(sheets.size()), 2);
        QVERIFY(sheets.at(0).contains(u"lake.png"_s) && sheets.at(0).contains(u"At the lake"_s));
        QVERIFY(!sheets.at(1).contains(u"hill.png"_s));
    }

private:
    std::unique_ptr<TestFolder> m_files;
};

QTEST_MAIN(TestCalendarPages)
#include "tst_calendarpages.moc"
