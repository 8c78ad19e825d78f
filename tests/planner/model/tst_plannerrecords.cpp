// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/model/plannerrecords.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"

#include <QDir>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString fileName = u" 2026.Cal"_s;

/// A saved day with a single entry; the last 50 bytes are nobody's.
QByteArray dayBytes(const QByteArray &time, const QByteArray &text, char end = '\0')
{
    return padded(time, 140) + padded(text, 700) + padded("Full", 10) + QByteArray(50, end);
}

/// A year's file: the days of these records.
QByteArray yearOf(const QMap<int, QByteArray> &days)
{
    QByteArray bytes;
    for (auto day = days.begin(); day != days.end(); ++day) {
        bytes.resize((day.key() - 1) * 900, '\0');
        bytes += *day;
    }
    return bytes;
}

constexpr int january2 = 21;
constexpr int november3 = 363;

} // namespace

class TestPlannerRecords : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_here = std::make_unique<TestFolder>();
        m_there = std::make_unique<TestFolder>();
    }

    void tellsOfDays_data()
    {
        const QByteArray year = yearOf({{january2, dayBytes("9:30 AM", "Dentist")},
                                        {january2 + 1, dayBytes("", "")},
                                        {november3, dayBytes("", "Cinema")}});
        rows<QByteArray, QStringList>({
            {"a year", year, {u"Friday, 2 January 2026"_s, u"Tuesday, 3 November 2026"_s}},
            {"a year cut in its last day", year.chopped(100), {u"Friday, 2 January 2026"_s}},
            {"no year", {}, {}},
            {"noise", noiseOf(9000), {}},
        });
    }
    void tellsOfDays()
    {
        const auto [bytes, titles] = row<QByteArray, QStringList>();
        if (!bytes.isEmpty())
            m_there->put(fileName, bytes);
        const PlannerRecords there(m_there->folder(), DateStyle::Other);
        QStringList found;
        for (const FunctionRecord &record : there.all())
            found.append(record.title);
        QCOMPARE(found, titles);
        QCOMPARE(there.lines(u"2026-01-02"_s),
                 titles.isEmpty() ? QStringList() : QStringList(u"9:30 AM Dentist"_s));
        QCOMPARE(there.lines(u"2026-13-02"_s), QStringList());
        QCOMPARE(QDir(m_there->folder().path()).isEmpty(), bytes.isEmpty());
    }

    void bringsBack_data()
    {
        const QByteArray dentist = dayBytes("9:30 AM", "Dentist", 'x');
        const QByteArray cinema = dayBytes("", "Cinema");
        rows<QByteArray, QStringList, QByteArray>({
            {"what was cleared",
             yearOf({{january2, dayBytes("", "", 'y')}}),
             {u"2026-01-02"_s},
             yearOf({{january2, dayBytes("9:30 AM", "Dentist", 'y')}})},
            {"what is another now",
             yearOf({{january2, cinema}, {november3, dentist}}),
             {u"2026-11-03"_s},
             yearOf({{january2, cinema}, {november3, dayBytes("", "Cinema", 'x')}})},
            {"several of a year that is gone",
             {},
             {u"2026-11-03"_s, u"2026-01-02"_s},
             yearOf({{january2, dayBytes("9:30 AM", "Dentist")}, {november3, cinema}}).chopped(50)},
        });
    }
    void bringsBack()
    {
        const auto [here, keys, expected] = row<QByteArray, QStringList, QByteArray>();
        m_there->put(fileName, yearOf({{january2, dayBytes("9:30 AM", "Dentist", 'x')},
                                       {november3, dayBytes("", "Cinema")}}));
        if (!here.isEmpty())
            m_here->put(fileName, here);
        PlannerRecords records(m_here->folder(), DateStyle::Other);
        const PlannerRecords there(m_there->folder(), DateStyle::Other);
        const RecordsBack back = records.bringBack(there, keys);
        QCOMPARE(back.keys, keys);
        QVERIFY(back.refusal.isEmpty() && back.step);
        QCOMPARE(m_here->bytes(fileName), expected);
        QCOMPARE(back.step->undo(), ChangeResult::Done);
        if (!here.isEmpty())
            QCOMPARE(m_here->bytes(fileName), here);
        QCOMPARE(back.step->redo(), ChangeResult::Done);
        QCOMPARE(m_here->bytes(fileName), expected);
        QVERIFY(!records.bringBack(there, keys).step); // there is nothing more to bring
    }

    void writesOverNothingUnread()
    {
        m_there->put(fileName, yearOf({{january2, dayBytes("", "Dentist")}}));
        QVERIFY(QDir(m_here->folder().path()).mkdir(fileName));
        PlannerRecords records(m_here->folder(), DateStyle::Other);
        const RecordsBack back =
            records.bringBack(PlannerRecords(m_there->folder(), DateStyle::Other), {u"2026-01-02"_s});
        QCOMPARE(back.refusal, u"The file  2026.Cal cannot be read; nothing was written"_s);
        QVERIFY(back.keys.isEmpty() && !back.step);
    }

private:
    std::unique_ptr<TestFolder> m_here;
    std::unique_ptr<TestFolder> m_there;
};

QTEST_GUILESS_MAIN(TestPlannerRecords)
#include "tst_plannerrecords.moc"
