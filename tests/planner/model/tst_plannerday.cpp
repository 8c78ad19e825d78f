// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/model/calendaroptions.h"
#include "planner/model/dayrecord.h"
#include "planner/model/plannerfiles.h"
#include "tests/support/household.h"
#include "tests/support/plannerdays.h"
#include "tests/support/rows.h"
#include "tests/support/testprogram.h"

#include <QJsonArray>

using namespace Qt::Literals::StringLiterals;

namespace {

QStringList rowsOf(const PlannerDay &day)
{
    QStringList rows;
    for (std::size_t i = 0; i < PlannerDay::rowCount; ++i) {
        if (!day.isRowEmpty(i))
            rows << day.times[i] + u'|' + day.texts[i];
    }
    return rows;
}

} // namespace

class TestPlannerDay : public QObject
{
    Q_OBJECT
private slots:
    void findsTheRecordOfADate_data()
    {
        rows<QDate, int>({
            {"first day of the year", {2026, 1, 1}, 11},
            {"day and month as digits", {2026, 9, 9}, 99},
            {"last day of January", {2026, 1, 31}, 311},
            {"leap day", {2024, 2, 29}, 292},
            {"end of the digit block", {2026, 8, 31}, 318},
            {"October starts a block of its own", {2026, 10, 1}, 321},
            {"November does", {2026, 11, 30}, 390},
            {"December does", {2026, 12, 31}, 431},
        });
    }

    void findsTheRecordOfADate()
    {
        const auto [date, record] = row<QDate, int>();
        QCOMPARE(DayRecord::number(date), record);
        QCOMPARE(DayRecord::date(record, date.year()), date);
    }

    void everyDateHasARecordOfItsOwn()
    {
        int dates = 0;
        for (int record = -5; record <= 1000; ++record) {
            if (const QDate date = DayRecord::date(record, 2024); date.isValid()) {
                QCOMPARE(DayRecord::number(date), record);
                ++dates;
            }
        }
        QCOMPARE(dates, 366);
        QVERIFY(!DayRecord::date(292, 2026).isValid());
    }

    void ordersByGroupTimeAndText_data()
    {
        rows<QString, QString, QString>({
            {"untimed, morning, noon, evening", u"10:00 AM,9:00 AM,12:00 PM,1:00 PM,8:00"_s,
             u"8:00,9:00 AM,10:00 AM,12:00 PM,1:00 PM"_s, u"9:00 AM,10:00 AM,12:00 PM,1:00 PM,8:00"_s},
            {"midnight is before the morning", u"6:00 AM,12:30 AM,11:00 PM,12:15 PM"_s,
             u"12:30 AM,6:00 AM,12:15 PM,11:00 PM"_s, u"12:30 AM,6:00 AM,12:15 PM,11:00 PM"_s},
            {"small letters count as AM and PM", u"8:00pm,7:00am,7:00 PM"_s, u"7:00am,7:00 PM,8:00pm"_s,
             u"7:00am,7:00 PM,8:00pm"_s},
            {"untimed ones keep their own order, late ones behind the evening",
             u"12:10,9:15,10:30,11:45 PM"_s, u"9:15,10:30,12:10,11:45 PM"_s, u"11:45 PM,9:15,10:30,12:10"_s},
        });
    }

    void ordersByGroupTimeAndText()
    {
        const auto [times, first, last] = row<QString, QString, QString>();
        PlannerDay day;
        const QStringList list = times.split(u',');
        for (qsizetype i = 0; i < list.size(); ++i)
            day.times[std::size_t(2 * i + 1)] = list[i];
        const auto ordered = [&day](UntimedPlacement placement) {
            const PlannerDay result = inTimeOrder(day, placement);
            return QStringList(result.times.begin(), result.times.begin() + day.entryCount()).join(u',');
        };
        QCOMPARE(ordered(UntimedPlacement::First), first);
        QCOMPARE(ordered(UntimedPlacement::Last), last);
    }

    void writesOnlyItsOwnBytes()
    {
        const TestProgram test;
        PlannerFiles files(test.folder);
        test.setBytes(u" 2026.Cal"_s, QByteArray(900 * 21, 'x')); // 2 January is the 21st record
        QVERIFY(files.write(QDate(2026, 1, 2), dayOf({{u"9:30 AM"_s, u"Café"_s}})));

        const QByteArray bytes = test.bytes(u" 2026.Cal"_s);
        QCOMPARE(bytes.size(), 900 * 21);
        const QByteArray record = bytes.mid(900 * 20);
        QCOMPARE(record, QByteArray("9:30 AM").leftJustified(140) + QByteArray("Caf\xe9").leftJustified(700) +
                             "Full      " + QByteArray(50, 'x'));
        QCOMPARE(bytes.left(900 * 20), QByteArray(900 * 20, 'x'));
        QCOMPARE(rowsOf(files.read(QDate(2026, 1, 2))), QStringList{u"9:30 AM|Café"_s});
    }

    void readsDaysThatWereNeverSavedAsEmpty()
    {
        const TestProgram test;
        PlannerFiles files(test.folder);
        QVERIFY(files.peek(QDate(2031, 3, 1)).isEmpty());
        QVERIFY(!test.folder.exists(u" 2031.Cal"_s));
        QVERIFY(files.read(QDate(2031, 3, 1)).isEmpty());
        QCOMPARE(test.bytes(u" 2031.Cal"_s), QByteArray());
        QVERIFY(test.folder.exists(u" 2031.Cal"_s));

        // A record without its mark holds no entries, whatever its fields say.
        const QByteArray fields(9000 + 840, 'x');
        for (const QByteArray &mark :
             {QByteArray("xxxxxxxxxx"), QByteArray("Full     x"), QByteArray("Fully     "),
              QByteArray("full      "), QByteArray("Full\0zzzzz", 10)}) {
            test.setBytes(u" 2031.Cal"_s, QByteArray(fields + mark + QByteArray(50, 'x')));
            QVERIFY2(files.read(QDate(2031, 1, 1)).isEmpty(), mark.constData());
        }
    }

    void survivesFilesThatAreNoYearFiles()
    {
        const TestProgram test;
        PlannerFiles files(test.folder);
        QVERIFY(QDir(test.folder.path()).mkdir(u" 2026.Cal"_s));
        QVERIFY(files.read(QDate(2026, 5, 1)).isEmpty());
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"Cannot write"_s));
        QVERIFY(!files.write(QDate(2026, 5, 1), dayOf({{u"9:00"_s, u"x"_s}})));
        QVERIFY(!files.write(QDate(), {}));

        // The file without the blank is another program's.
        test.setBytes(u" 2027.Cal"_s, {});
        test.setBytes(u"2028.Cal"_s, QByteArray(900 * 11, 'x'));
        QCOMPARE(files.years(), QList<int>{2027});
    }

    void readsTheHousehold()
    {
        const TestProgram test(TestProgram::Household);
        PlannerFiles files(test.folder);
        const QJsonObject years = expectedOf(u"planner"_s)["years"_L1].toObject();
        QCOMPARE(files.years().size(), years.size());

        for (auto year = years.begin(); year != years.end(); ++year) {
            const QJsonObject days = year.value()["days"_L1].toObject();
            int saved = 0;
            files.forEachDay(year.key().toInt(), [&](QDate date, const PlannerDay &day) {
                ++saved;
                QStringList expected;
                for (const auto &row : days[date.toString(Qt::ISODate)].toArray())
                    expected << row[0].toString() + u'|' + row[1].toString();
                QCOMPARE(rowsOf(day), expected);
                QCOMPARE(rowsOf(inTimeOrder(day, UntimedPlacement::First)), expected);
                QCOMPARE(files.read(date), day);
            });
            QCOMPARE(saved, year.value()["saved_days"_L1].toInt());
        }
    }

    void keepsTheCalendarOptions()
    {
        const TestProgram household(TestProgram::Household);
        const CalendarOptions options = CalendarOptions::read(household.settings);
        QCOMPARE(options.shownMonths(), 2);
        QVERIFY(!options.showsWeekNumbers());
        QCOMPARE(options.firstDay(), Qt::Monday);
        QVERIFY(options.marksToday());

        TestProgram test;
        QCOMPARE(CalendarOptions::read(test.settings), CalendarOptions());
        QVERIFY((CalendarOptions{1, 1, 7, 1}.write(test.settings)));
        QByteArray expected(20 * 16 + 2, '\0');
        for (const auto &[record, number] :
             {std::pair(14, 1), std::pair(15, 1), std::pair(16, 7), std::pair(17, 1)})
            expected[20 * (record - 1)] = char(number);
        QCOMPARE(test.bytes(u"SWR2.fil"_s), expected);

        test.setBytes(u"SWR2.fil"_s, QByteArray(400, '\x7f'));
        QCOMPARE(CalendarOptions::read(test.settings), CalendarOptions());
    }
};

QTEST_GUILESS_MAIN(TestPlannerDay)
#include "tst_plannerday.moc"
