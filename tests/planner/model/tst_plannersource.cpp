// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/model/plannersource.h"

#include "tests/support/plannerdays.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"
#include "tests/support/testprogram.h"

using namespace Qt::Literals::StringLiterals;

class TestPlannerSource : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_temporary = std::make_unique<QTemporaryDir>();
        m_folder = std::make_unique<DataFolder>(m_temporary->path());
        // Today is 21 November 2026.
        write({2026, 11, 19}, {{u"9:30 AM"_s, u"Dentist"_s}});
        write({2026, 11, 23}, {{{}, u"Bus"_s}, {u"2:00 PM"_s, u"Dentist again"_s}});
        write({2024, 2, 29}, {{{}, u"Orthodentist"_s}, {u"8:00 AM"_s, {}}});
        write({2027, 1, 2}, {{{}, u"Café with the dentist"_s}});
    }

    void findsWhatIsNearestFirst_data()
    {
        const auto hit = [](const QString &title, const QString &context, QDate date, int row) {
            return SearchHit{title, context, {.date = date, .row = row}};
        };
        const SearchHit next = hit(u"Dentist again"_s, u"Mon, Nov 23, 2026, 2:00 PM"_s, {2026, 11, 23}, 1);
        const SearchHit last = hit(u"Dentist"_s, u"Thu, Nov 19, 2026, 9:30 AM"_s, {2026, 11, 19}, 0);
        const SearchHit cafe = hit(u"Café with the dentist"_s, u"Sat, Jan 2, 2027"_s, {2027, 1, 2}, 0);
        const SearchHit inside = hit(u"Orthodentist"_s, u"Thu, Feb 29, 2024"_s, {2024, 2, 29}, 0);
        rows<QString, QList<SearchHit>>({
            {"to come before as long ago, words before parts", u"dentist"_s, {next, last, cafe, inside}},
            {"without the accent", u"cafe den"_s, {cafe}},
            {"a time", u"8:00"_s, {hit(u"8:00 AM"_s, u"Thu, Feb 29, 2024"_s, {2024, 2, 29}, 1)}},
            {"nothing", u"gardener"_s, {}},
            {"nothing typed", u" "_s, {}},
        });
    }
    void findsWhatIsNearestFirst()
    {
        const auto [text, expected] = row<QString, QList<SearchHit>>();
        PlannerSource source(*m_folder, m_clock, DateStyle::Usa);
        readAll(source);
        QCOMPARE(source.matches(text, 10), expected);
        QCOMPARE(source.matches(text, 2), expected.first(std::min<qsizetype>(2, expected.size())));
    }

    void readsTheYearsThatHaveChanged()
    {
        PlannerSource source(*m_folder, m_clock, DateStyle::Usa);
        readAll(source);
        QTest::qWait(20); // the times of files go on in steps of some milliseconds
        write({2028, 5, 1}, {{{}, u"Gardener"_s}});
        write({2026, 11, 19}, {{{}, u"Gardener"_s}});
        readAll(source);
        QCOMPARE(source.matches(u"gardener", 10).size(), 2);
        QCOMPARE(source.matches(u"dentist", 10).size(), 3);
        QVERIFY(QFile::remove(m_temporary->filePath(u" 2028.Cal"_s)));
        readAll(source);
        QCOMPARE(source.matches(u"gardener", 10).size(), 1);
    }

    void makesNoFiles()
    {
        const QTemporaryDir empty;
        const DataFolder folder(empty.path());
        PlannerSource source(folder, m_clock, DateStyle::Usa);
        readAll(source);
        QCOMPARE(source.matches(u"dentist", 10), QList<SearchHit>());
        QVERIFY(QDir(empty.path()).isEmpty());
    }

private:
    static void readAll(PlannerSource &source)
    {
        while (source.prepare()) {}
    }
    void write(QDate date, const QList<std::pair<QString, QString>> &rows) const
    {
        PlannerFiles files(*m_folder);
        QVERIFY(files.write(date, dayOf(rows)));
    }

    std::unique_ptr<QTemporaryDir> m_temporary;
    std::unique_ptr<DataFolder> m_folder;
    FixedClock m_clock;
};

QTEST_GUILESS_MAIN(TestPlannerSource)
#include "tst_plannersource.moc"
