// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/model/plannersearch.h"
#include "tests/support/plannerdays.h"
#include "tests/support/rows.h"
#include "tests/support/testprogram.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

std::vector<PlannerHit> hitsOf(const PlannerFiles &files, const QString &text)
{
    PlannerSearch search(files, text);
    runThrough(search);
    return search.hits();
}

} // namespace

class TestPlannerSearch : public QObject
{
    Q_OBJECT
private slots:
    void findsATextInTheRowsOfADay_data()
    {
        rows<QString, QList<int>>({
            {"anywhere, in either case", u"eNTi"_s, {0}},
            {"one letter", u"X"_s, {1}},
            {"letters beyond ASCII in either case", u"ZOË"_s, {2}},
            {"a composed and a written-out accent are one", u"zoe\u0308"_s, {2}},
            {"in the time", u"30 a"_s, {0, 3}},
            {"in time and text, once", u"11"_s, {3}},
            {"blanks around it do not count", u"  x-ray "_s, {1}},
            {"the whole width of a text", QString(50, u'w'), {4}},
            {"the width and one more", QString(51, u'w'), {}},
            {"never on from one row into the next", u"wafter"_s, {}},
            {"the last row", u"last"_s, {13}},
            {"neither padding nor mark", u"full"_s, {}},
            {"a character that no file holds", u"\u4e00"_s, {}},
            {"nothing", {}, {}},
            {"blanks alone", u"   "_s, {}},
        });
    }

    void findsATextInTheRowsOfADay()
    {
        const auto [text, expected] = row<QString, QList<int>>();
        const TestProgram test;
        PlannerFiles files(test.folder);
        PlannerDay day;
        day.times = {u"8:30 AM"_s, u"9:00 AM"_s, {}, u"11:30 AM"_s};
        day.texts = {u"Dentist"_s, u"Bring the X-ray"_s, u"Zoë"_s,
                     u"Bus 11"_s,  QString(50, u'w'),    u"after"_s};
        day.texts[13] = u"at last"_s;
        QVERIFY(files.write(QDate(2026, 12, 31), day));

        QList<int> found;
        for (const PlannerHit &hit : hitsOf(files, text)) {
            QCOMPARE(hit.date, QDate(2026, 12, 31));
            QCOMPARE(hit.text, day.texts[std::size_t(hit.row)]);
            QCOMPARE(hit.time, day.times[std::size_t(hit.row)]);
            found << hit.row;
        }
        QCOMPARE(found, expected);
    }

    void findsTextsOfAllYearsByDate()
    {
        const TestProgram test(TestProgram::Household);
        const auto hits = hitsOf(PlannerFiles(test.folder), u"piano"_s);
        QVERIFY(hits.front().date.year() < hits.back().date.year());
        QVERIFY(std::ranges::is_sorted(hits, {}, &PlannerHit::date));
    }

    void looksAtSavedDaysAlone()
    {
        const TestProgram test;
        // Every record holds the text, none its mark; the last one is cut inside it.
        test.setBytes(u" 2026.Cal"_s, QByteArray(900 * 20 + 844, 'q').replace(900 * 20 + 840, 4, "Full"));
        test.setBytes(u"2027.Cal"_s, QByteArray(900 * 431, 'q'));
        QVERIFY(QDir(test.folder.path()).mkdir(u" 2028.Cal"_s));
        const auto hits = hitsOf(PlannerFiles(test.folder), u"qq"_s);
        QCOMPARE(hits.size(), 14U);
        QCOMPARE(hits.front().date, QDate(2026, 1, 2));
    }

    void endsWithTheYearThatFillsTheList()
    {
        const TestProgram test;
        const PlannerFiles files(test.folder);
        const QByteArray record = QByteArray(840, 'q') + "Full" + QByteArray(56, ' ');
        for (int year = 2001; year <= 2003; ++year)
            test.setBytes(u" %1.Cal"_s.arg(year), record.repeated(431));
        PlannerSearch search(files, u"q"_s);
        QVERIFY(search.step());
        QVERIFY(!search.step());
        QCOMPARE(search.yearCount(), 3);
        QCOMPARE(search.hits().size(), 365U * 14U);
    }
};

QTEST_GUILESS_MAIN(TestPlannerSearch)
#include "tst_plannersearch.moc"
