// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/model/daylines.h"
#include "planner/model/plannerpages.h"
#include "shell/core/dates.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;

namespace {

PageContext contextOf(PageSetup::Orientation orientation, DateStyle style = DateStyle::Usa)
{
    PageContext context;
    context.setup.orientation = orientation;
    context.style = style;
    context.today = QDate(2026, 11, 21);
    return context;
}

PlannerDay numberedEntries(int count)
{
    PlannerDay day;
    for (int row = 0; row < count; ++row) {
        day.times[std::size_t(row)] = u"%1:30 PM"_s.arg(row % 12 + 1);
        day.texts[std::size_t(row)] = u"entry %1"_s.arg(row + 1);
    }
    return day;
}

/// The lines of a page that hold anything, without those of its end.
QStringList linesOf(const Page &page)
{
    QStringList lines = page.toText().split(u'\n');
    lines.removeIf([](const QString &line) { return line.trimmed().isEmpty(); });
    return lines.mid(0, lines.size() - 2);
}

} // namespace

class TestPlannerPages : public QObject
{
    Q_OBJECT
private slots:
    /// Birthdays and the like: lines of their own, which count as no entries.
    void printsNotesBeforeTheEntries_data()
    {
        rows<int>({{"day", 0}, {"week", 1}, {"week on its side", 2}, {"month", 3}, {"dates", 4}});
    }
    void printsNotesBeforeTheEntries()
    {
        const auto [kind] = row<int>();
        const QDate date(2026, 11, 20);
        const PlannerPages::Days days{{date, numberedEntries(2)}};
        const PlannerPages::Notes notes{{date, {u"Anne Lind turns 48"_s}},
                                        {date.addDays(1), {u"Tom Lind turns 12"_s}}};
        const PageContext upright = contextOf(PageSetup::Portrait);
        const PageContext wide = contextOf(PageSetup::Landscape);
        const auto page = [&]() -> Page {
            switch (kind) {
            case 0:
                return PlannerPages::day(date, numberedEntries(2), upright, notes);
            case 1:
                return PlannerPages::week(QDate(2026, 11, 16), days, upright, notes);
            case 2:
                return PlannerPages::week(QDate(2026, 11, 16), days, wide, notes);
            case 3:
                return PlannerPages::month(date, days, Qt::Sunday, wide, notes);
            default:
                return PlannerPages::range(date, date.addDays(9), days, upright, notes);
            }
        };
        const QString text = page().toText();
        const qsizetype note = text.indexOf(u"Anne Lind turns 48"_s);
        QVERIFY2(note >= 0 && note < text.indexOf(u"entry 1"_s), qPrintable(text));
        QCOMPARE(text.contains(u"Tom Lind turns 12"_s), kind != 0);
        QVERIFY(!text.contains(u"more"_s));
    }

    void tellsRangesOfDates_data()
    {
        rows<QDate, QDate, QString, QString>({
            {"a day", {2026, 11, 1}, {2026, 11, 1}, u"November 1, 2026"_s, u"1 November 2026"_s},
            {"within a month", QDate(2026, 11, 16), QDate(2026, 11, 22), u"November 16 to 22, 2026"_s,
             u"16 to 22 November 2026"_s},
            {"over two months", QDate(2026, 11, 30), QDate(2026, 12, 6), u"November 30 to December 6, 2026"_s,
             u"30 November to 6 December 2026"_s},
            {"over two years", QDate(2026, 12, 28), QDate(2027, 1, 3),
             u"December 28, 2026 to January 3, 2027"_s, u"28 December 2026 to 3 January 2027"_s},
        });
    }

    void tellsRangesOfDates()
    {
        const auto [from, to, usa, other] = row<QDate, QDate, QString, QString>();
        QCOMPARE(Dates::range(from, to, DateStyle::Usa), usa);
        QCOMPARE(Dates::range(from, to, DateStyle::Other), other);
    }

    void sharesTheLinesOfAPlace_data()
    {
        rows<QString, int, int, int, QList<int>>({
            {"a line each", {}, 3, 20, 5, {1, 1, 1}},
            {"long texts get more, as far as it goes", {}, 3, 4, 5, {2, 2, 1}},
            {"the last line tells what is missing", {}, 6, 20, 5, {1, 1, 1, 1}},
            {"no room at all", {}, 2, 20, 0, {}},
            {"no entry", {}, 0, 20, 5, {}},
            {"a name may be broken at its hyphen",
             u"Walter Nils Yvonne Isidor Bert Lindqvist-Rosenbaum turns 71"_s, 0, 16, 9, QList<int>{5}},
        });
    }

    void sharesTheLinesOfAPlace()
    {
        const auto [note, entries, characters, capacity, expected] =
            row<QString, int, int, int, QList<int>>();
        const QStringList notes = note.isEmpty() ? QStringList() : QStringList{note};
        const auto shares = DayLines(numberedEntries(entries), notes).share(characters, capacity);
        QCOMPARE(QList<int>(shares.begin(), shares.end()), expected);
    }

    void listsADay()
    {
        const QDate date(2026, 11, 21);
        const Page page = PlannerPages::day(date, numberedEntries(2), contextOf(PageSetup::Portrait));
        QCOMPARE(linesOf(page), (QStringList{u"Saturday, November 21, 2026\tPersonal Planner"_s,
                                             u"Time\tAppointment or activity"_s, u"1:30 PM\tentry 1"_s,
                                             u"2:30 PM\tentry 2"_s}));
        PageContext context = contextOf(PageSetup::Portrait, DateStyle::Other);
        context.family = u"Holm"_s;
        QCOMPARE(linesOf(PlannerPages::day(date, {}, context)).first(),
                 u"Saturday, 21 November 2026\tHolm Personal Planner"_s);
    }

    void listsAnUprightWeek()
    {
        const PlannerPages::Days days{{QDate(2026, 11, 17), numberedEntries(2)},
                                      {QDate(2026, 11, 22), numberedEntries(1)}};
        const QDate start = Dates::startOfWeek(QDate(2026, 11, 21), Qt::Monday);
        QCOMPARE(start, QDate(2026, 11, 16));
        QCOMPARE(linesOf(PlannerPages::week(start, days, contextOf(PageSetup::Portrait))),
                 (QStringList{u"Week of November 16 to 22, 2026\tPersonal Planner"_s, u"Monday, Nov 16\t\t"_s,
                              u"Tuesday, Nov 17\t1:30 PM\tentry 1"_s, u"\t2:30 PM\tentry 2"_s,
                              u"Wednesday, Nov 18\t\t"_s, u"Thursday, Nov 19\t\t"_s, u"Friday, Nov 20\t\t"_s,
                              u"Saturday, Nov 21\t\t"_s, u"Sunday, Nov 22\t1:30 PM\tentry 1"_s}));
    }

    void cutsNothingOfACrowdedWeek()
    {
        PlannerDay day = numberedEntries(14);
        const QDate start(2026, 11, 16);
        const auto asBlocks = [&] {
            return linesOf(PlannerPages::week(start, {{start, day}}, contextOf(PageSetup::Landscape)))
                .contains(u"Notes"_s);
        };
        QVERIFY(asBlocks());
        for (QString &text : day.texts)
            text = QString(50, u'w');
        QVERIFY(!asBlocks());
    }

    void drawsAMonthAsACalendar()
    {
        PlannerDay crowded = numberedEntries(14);
        PlannerPages::Days days{{QDate(2026, 2, 28), crowded}, {QDate(2026, 3, 1), numberedEntries(1)}};
        for (const int full : {7, 14, 21}) // leave the last week not much more than its share
            days.emplace(QDate(2026, 2, full), numberedEntries(6));
        const Page page =
            PlannerPages::month(QDate(2026, 2, 10), days, Qt::Sunday, contextOf(PageSetup::Landscape));
        const QStringList lines = linesOf(page);
        QCOMPARE(lines.first(), u"February 2026\tPersonal Planner"_s);
        QCOMPARE(lines.mid(1, 8), (QStringList{u"Sunday"_s, u"Monday"_s, u"Tuesday"_s, u"Wednesday"_s,
                                               u"Thursday"_s, u"Friday"_s, u"Saturday"_s, u"1"_s}));
        QCOMPARE(lines.count(u"28"_s), 1);
        QVERIFY(lines.contains(u"1:30 PM entry 1"_s));
        // What the crowded day has no room for stands in a list behind the calendar.
        const qsizetype head = lines.indexOf(u"Date\tTime\tAppointment or activity"_s);
        const int missing = int(lines.size() - head) - 1;
        QVERIFY(head > 0 && missing > 0 && missing < 14);
        QCOMPARE(lines[head - 1], u"+ %1 in the list"_s.arg(missing));
        QCOMPARE(lines[head + 1],
                 u"Sat, Feb 28, 2026\t%1:30 PM\tentry %2"_s.arg((14 - missing) % 12 + 1).arg(15 - missing));
        QCOMPARE(lines.last(), u"\t2:30 PM\tentry 14"_s);
        QCOMPARE(lines.filter(u"entry "_s).size(), 14 + 3 * 6);
        // Four weeks fill the sheet; no item stands beyond its edges.
        for (const Page::Item &item : page.items()) {
            if (const auto *text = std::get_if<PageItem::PlacedText>(&item))
                QVERIFY(QRectF(0.5, 0.5, 10, 7.5).contains(text->place));
        }
        // A text that is longer than the whole place stands there as well.
        PlannerDay endless = numberedEntries(13);
        endless.texts[0] = QString(500, u'w');
        const Page other = PlannerPages::month(QDate(2026, 5, 1), {{QDate(2026, 5, 31), endless}}, Qt::Sunday,
                                               contextOf(PageSetup::Portrait));
        QVERIFY(linesOf(other).contains(u"Sun, May 31, 2026\t1:30 PM\t"_s + endless.texts[0]));
        QCOMPARE(linesOf(other).filter(u" listed"_s).size(), 1);
    }

    void givesFullWeeksMoreRoom()
    {
        const PlannerPages::Days days{{QDate(2026, 11, 19), numberedEntries(7)}};
        const Page page =
            PlannerPages::month(QDate(2026, 11, 1), days, Qt::Sunday, contextOf(PageSetup::Landscape));
        QCOMPARE(linesOf(page).filter(u"in the list"_s).size(), 0);
        QList<double> heights;
        for (const Page::Item &item : page.items()) {
            if (const auto *cell = std::get_if<PageItem::PlacedRule>(&item))
                heights << cell->place.height();
        }
        QCOMPARE(heights.size(), 35);
        QVERIFY(heights[14] > heights[0]);
        QCOMPARE(heights[34], heights[0]);
        QVERIFY(std::abs(heights[14] + 4 * heights[0] - 6.07) < 0.01);
    }

    void listsARangeOfDates()
    {
        const PlannerPages::Days days{{QDate(2026, 10, 31), numberedEntries(1)},
                                      {QDate(2026, 11, 2), numberedEntries(2)},
                                      {QDate(2026, 11, 3), {}},
                                      {QDate(2026, 11, 30), numberedEntries(1)}};
        const auto lines = [&](QDate from, QDate to) {
            return linesOf(PlannerPages::range(from, to, days, contextOf(PageSetup::Portrait))).mid(2);
        };
        QCOMPARE(lines(QDate(2026, 11, 1), QDate(2026, 11, 30)),
                 (QStringList{u"Mon, Nov 2, 2026\t1:30 PM\tentry 1"_s, u"\t2:30 PM\tentry 2"_s,
                              u"Mon, Nov 30, 2026\t1:30 PM\tentry 1"_s}));
        QCOMPARE(lines(QDate(2026, 11, 3), QDate(2026, 11, 29)),
                 QStringList{u"Nothing is planned for these days."_s});
    }

    void endsEveryPageWithTheDayOfPrinting()
    {
        const QDate date(2026, 11, 21);
        for (const auto orientation : {PageSetup::Portrait, PageSetup::Landscape}) {
            const PageContext context = contextOf(orientation);
            for (const Page &page :
                 {PlannerPages::day(date, {}, context), PlannerPages::week(date, {}, context),
                  PlannerPages::month(date, {}, Qt::Sunday, context),
                  PlannerPages::range(date, date, {}, context)})
                QVERIFY(page.toText().endsWith("Quillery\nPrinted on 11/21/2026"_L1));
        }
    }
};

QTEST_GUILESS_MAIN(TestPlannerPages)
#include "tst_plannerpages.moc"
