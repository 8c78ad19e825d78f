// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/model/plannersearch.h"
#include "tests/support/testprogram.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

std::vector<PlannerHit> hitsOf(const PlannerFiles &files, const QString &text)
{
    PlannerSearch search(files, text);
    while (search.step()) {}
    return search.hits();
}

} // namespace

class TestPlannerSearch : public QObject
{
    Q_OBJECT
private slots:
    void findsATextInTheRowsOfADay_data();
    void findsATextInTheRowsOfADay();
    void findsTextsOfAllYearsByDate();
    void looksAtSavedDaysAlone();
    void endsWithTheYearThatFillsTheList();
};

void TestPlannerSearch::findsATextInTheRowsOfADay_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QList<int>>("rows");
    QTest::newRow("anywhere, in either case") << u"eNTi"_s << QList<int>{0};
    QTest::newRow("one letter") << u"X"_s << QList<int>{1};
    QTest::newRow("letters beyond ASCII in either case") << u"ZOË"_s << QList<int>{2};
    QTest::newRow("a composed and a written-out accent are one") << u"zoe\u0308"_s << QList<int>{2};
    QTest::newRow("in the time") << u"30 a"_s << QList<int>{0, 3};
    QTest::newRow("in time and text, once") << u"11"_s << QList<int>{3};
    QTest::newRow("blanks around it do not count") << u"  x-ray "_s << QList<int>{1};
    QTest::newRow("the whole width of a text") << QString(50, u'w') << QList<int>{4};
    QTest::newRow("the width and one more") << QString(51, u'w') << QList<int>{};
    QTest::newRow("never on from one row into the next") << u"wafter"_s << QList<int>{};
    QTest::newRow("the last row") << u"last"_s << QList<int>{13};
    QTest::newRow("neither padding nor mark") << u"full"_s << QList<int>{};
    QTest::newRow("a character that no file holds") << u"\u4e00"_s << QList<int>{};
    QTest::newRow("nothing") << QString() << QList<int>{};
    QTest::newRow("blanks alone") << u"   "_s << QList<int>{};
}

void TestPlannerSearch::findsATextInTheRowsOfADay()
{
    QFETCH(QString, text);
    QFETCH(QList<int>, rows);
    const TestProgram test;
    PlannerFiles files(test.folder);
    PlannerDay day;
    day.times = {u"8:30 AM"_s, u"9:00 AM"_s, {}, u"11:30 AM"_s};
    day.texts = {u"Dentist"_s, u"Bring the X-ray"_s, u"Zoë"_s, u"Bus 11"_s, QString(50, u'w'), u"after"_s};
    day.texts[13] = u"at last"_s;
    QVERIFY(files.write(QDate(2026, 12, 31), day));

    QList<int> found;
    for (const PlannerHit &hit : hitsOf(files, text)) {
        QCOMPARE(hit.date, QDate(2026, 12, 31));
        QCOMPARE(hit.text, day.texts[std::size_t(hit.row)]);
        QCOMPARE(hit.time, day.times[std::size_t(hit.row)]);
        found << hit.row;
    }
    QCOMPARE(found, rows);
}

void TestPlannerSearch::findsTextsOfAllYearsByDate()
{
    const TestProgram test(TestProgram::Household);
    const auto hits = hitsOf(PlannerFiles(test.folder), u"piano"_s);
    QVERIFY(hits.size() > 3);
    QVERIFY(std::is_sorted(hits.begin(), hits.end(),
                           [](const PlannerHit &a, const PlannerHit &b) { return a.date < b.date; }));
    QVERIFY(hits.front().text.contains("Piano"_L1));
}

void TestPlannerSearch::looksAtSavedDaysAlone()
{
    const TestProgram test;
    PlannerFiles files(test.folder);
    // Every record holds the text, none its mark; the last one is cut inside it.
    test.setBytes(u" 2026.Cal"_s, QByteArray(900 * 20 + 844, 'q').replace(900 * 20 + 840, 4, "Full"));
    test.setBytes(u"2027.Cal"_s, QByteArray(900 * 431, 'q'));
    QVERIFY(QDir(test.folder.path()).mkdir(u" 2028.Cal"_s));
    const auto hits = hitsOf(files, u"qq"_s);
    QCOMPARE(hits.size(), 14U);
    QCOMPARE(hits.front().date, QDate(2026, 1, 2));
}

void TestPlannerSearch::endsWithTheYearThatFillsTheList()
{
    const TestProgram test;
    PlannerFiles files(test.folder);
    QByteArray record = QByteArray(840, 'q') + "Full      ";
    for (int year = 2001; year <= 2003; ++year)
        test.setBytes(u" %1.Cal"_s.arg(year), record.leftJustified(900, ' ').repeated(431));
    PlannerSearch search(files, u"q"_s);
    QVERIFY(search.step());
    QVERIFY(!search.step());
    QCOMPARE(search.yearCount(), 3);
    QCOMPARE(search.hits().size(), 365U * 14U);
}

QTEST_GUILESS_MAIN(TestPlannerSearch)
#include "tst_plannersearch.moc"
