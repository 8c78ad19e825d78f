// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/recurrence.h"
#include "tests/support/recurrences.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;
using Recurrences::times;
using Recurrences::until;

class TestRecurrence : public QObject
{
    Q_OBJECT
private slots:
    void givesTheDatesOfAKind_data()
    {
        const QDate friday(2026, 1, 30), saturday(2026, 1, 31);
        Recurrence weekly = times(Recurrence::Weekly, friday, 3, 2);
        weekly.weekday = Qt::Tuesday;
        Recurrence lastOfMonth = times(Recurrence::Monthly, friday, 3);
        lastOfMonth.dayOfMonth = 31;
        Recurrence fifthOfMonth = times(Recurrence::Monthly, friday, 3, 2);
        fifthOfMonth.dayOfMonth = 5;
        Recurrence yearly = times(Recurrence::YearlyOnDate, friday, 2);
        yearly.yearDay = QDate(2020, 1, 6);
        rows<Recurrence, QString>({
            {"every third day", times(Recurrence::Daily, friday, 3, 3),
             u"2026-01-30 2026-02-02 2026-02-05"_s},
            {"to the end date, which counts", until(Recurrence::Daily, friday, QDate(2026, 2, 1)),
             u"2026-01-30 2026-01-31 2026-02-01"_s},
            {"weekdays look at twice as many days only", times(Recurrence::Weekdays, saturday, 2),
             u"2026-02-02 2026-02-03"_s},
            {"one weekday from a Saturday finds none", times(Recurrence::Weekdays, saturday, 1), {}},
            {"every second Tuesday", weekly, u"2026-02-03 2026-02-17 2026-03-03"_s},
            {"the last day of shorter months", lastOfMonth, u"2026-01-31 2026-02-28 2026-03-31"_s},
            {"a day of the month that is over", fifthOfMonth, u"2026-02-05 2026-04-05 2026-06-05"_s},
            {"leap day", times(Recurrence::Yearly, {2024, 2, 29}, 3, 2),
             u"2024-02-29 2026-02-28 2028-02-29"_s},
            {"on a date of each year", yearly, u"2027-01-06 2028-01-06"_s},
            {"to the last day of all", times(Recurrence::Daily, {9999, 12, 30}, 5),
             u"9999-12-30 9999-12-31"_s},
            {"no interval", times(Recurrence::Daily, friday, 5, 0), {}},
            {"end before the beginning", until(Recurrence::Daily, friday, QDate(2026, 1, 1)), {}},
            {"no beginning", times(Recurrence::Daily, {}, 5), {}},
        });
    }

    void givesTheDatesOfAKind()
    {
        const auto [recurrence, expected] = row<Recurrence, QString>();
        QStringList dates;
        RecurrenceDates walk(recurrence);
        while (const auto date = walk.next())
            dates << date->toString(Qt::ISODate);
        QCOMPARE(dates.join(u' '), expected);
    }

    void staysWithinTenYears_data()
    {
        const QDate day(2026, 1, 1);
        rows<Recurrence, int>({
            {"exactly ten years of days", times(Recurrence::Daily, day, 3652), 3652},
            {"a day more", times(Recurrence::Daily, day, 3653), 3652},
            {"every second day", times(Recurrence::Daily, day, 1827, 2), 1826},
            {"weeks", times(Recurrence::Weekly, day, 600), 521},
            {"months", times(Recurrence::Monthly, day, 41, 3), 40},
            {"years", times(Recurrence::Yearly, day, 11), 10},
            {"one is always possible", times(Recurrence::Yearly, day, 1, 20), 1},
        });
    }

    void staysWithinTenYears()
    {
        const auto [recurrence, occurrences] = row<Recurrence, int>();
        QCOMPARE(withinTenYears(recurrence).occurrences, occurrences);
    }
};

QTEST_GUILESS_MAIN(TestRecurrence)
#include "tst_recurrence.moc"
