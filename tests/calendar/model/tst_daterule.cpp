// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/model/daterule.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;

class TestDateRule : public QObject
{
    Q_OBJECT
private slots:
    /// Days off for another day bear a star.
    void findsItsDays_data()
    {
        rows<QString, QString>({
            {"a date", u"12-25"_s, u"2026-12-25 2027-12-25 2028-12-25"_s},
            {"the leap day", u"02-29"_s, u"2026-02-28 2027-02-28 2028-02-29"_s},
            {"a weekday of a month", u"nth 4 thu 11"_s, u"2026-11-26 2027-11-25 2028-11-23"_s},
            {"a fifth one, where there is one", u"nth 5 mon 02"_s, {}},
            {"the same in leap years", u"nth 5 tue 02"_s, u"2028-02-29"_s},
            {"of every month", u"nth 5 mon years 2027"_s, u"2027-03-29 2027-05-31 2027-08-30 2027-11-29"_s},
            {"the last of a month", u"last mon 05"_s, u"2026-05-25 2027-05-31 2028-05-29"_s},
            {"the last of December", u"last thu 12"_s, u"2026-12-31 2027-12-30 2028-12-28"_s},
            {"before a date, never on it", u"before mon 05-25"_s, u"2026-05-18 2027-05-24 2028-05-22"_s},
            {"from a date on", u"from sat 06-20"_s, u"2026-06-20 2027-06-26 2028-06-24"_s},
            {"after Easter", u"easter 39"_s, u"2026-05-14 2027-05-06 2028-05-25"_s},
            {"before Easter", u"easter -47"_s, u"2026-02-17 2027-02-09 2028-02-29"_s},
            {"after Orthodox Easter", u"orthodox 1"_s, u"2026-04-13 2027-05-03 2028-04-17"_s},
            {"every so many weeks", u"every 26 weeks 2027-01-05"_s,
             u"2027-01-05 2027-07-06 2028-01-04 2028-07-04"_s},
            {"every so many days, begun long before", u"every 400 days 2020-01-01"_s,
             u"2026-07-28 2027-09-01 2028-10-05"_s},
            {"from a year on", u"12-25 years 2028-"_s, u"2028-12-25"_s},
            {"up to a year", u"12-25 years -2026"_s, u"2026-12-25"_s},
            {"in some years", u"12-25 years 2027-2028"_s, u"2027-12-25 2028-12-25"_s},
            {"in one year", u"12-25 years 2027"_s, u"2027-12-25"_s},
            {"a day off beside it", u"07-04 observed sat-1 sun+1"_s,
             u"2026-07-03* 2026-07-04 2027-07-04 2027-07-05* 2028-07-04"_s},
            {"a day off in the year before", u"01-01 years 2028 observed sat-1"_s,
             u"2027-12-31* 2028-01-01"_s},
            {"a day off on the next weekday", u"12-26 observed next"_s,
             u"2026-12-26 2026-12-28* 2027-12-26 2027-12-28* 2028-12-26"_s},
            {"moved", u"04-27 years 2025- moved mon-2 tue+1"_s, u"2026-04-25 2027-04-28 2028-04-27"_s},
            {"in any order, in capitals", u"  12-25  OBSERVED Sat+2 YEARS 2027- "_s,
             u"2027-12-25 2027-12-27* 2028-12-25"_s},
        });
    }

    void findsItsDays()
    {
        const auto [text, expected] = row<QString, QString>();
        const auto rule = DateRule::parse(text);
        QVERIFY(rule);
        const auto isHoliday = [](QDate date) { return date == QDate(2027, 12, 27); };
        QStringList days;
        for (const DateRule::Day &day : rule->days(QDate(2026, 1, 1), QDate(2028, 12, 31), isHoliday))
            days.append(day.date.toString(Qt::ISODate) + (day.isDayOff ? u"*"_s : QString()));
        QCOMPARE(days.join(u' '), expected);
        QCOMPARE(DateRule::parse(rule->text()), rule);
    }

    void givesTheDaysOfAnyRange()
    {
        const auto rule = DateRule::parse(u"01-01 observed sat-1 sun+1");
        const QDate eve(2027, 12, 31);
        QCOMPARE(rule->dates(eve, eve), QList{eve});
        QCOMPARE(rule->dates({}, eve), QList<QDate>{});
        const auto daily = DateRule::parse(u"every 1 days 2027-01-05 observed fri+1");
        QCOMPARE(daily->dates(QDate(2027, 1, 1), QDate(2027, 1, 9)).size(), 5);
    }

    void leavesOutWhatIsNoRule_data()
    {
        QTest::addColumn<QString>("text");
        for (const char *text : {"",
                                 " ",
                                 "x",
                                 "12",
                                 "12-",
                                 "12-32",
                                 "02-30",
                                 "13-01",
                                 "00-01",
                                 "1-1",
                                 "12-25-",
                                 "12-25 x",
                                 "nth",
                                 "nth 0 mon 01",
                                 "nth 6 mon 01",
                                 "nth 1 mo 01",
                                 "nth 1 mon 13",
                                 "nth 1 mon 1",
                                 "nth 1",
                                 "last",
                                 "before mon",
                                 "before mon 02-30",
                                 "from 06-20",
                                 "easter",
                                 "easter x",
                                 "easter 301",
                                 "easter 1x",
                                 "easter --1",
                                 "orthodox 99999999999",
                                 "every 2 weeks",
                                 "every 0 weeks 2027-01-05",
                                 "every 10000 days 2027-01-05",
                                 "every 2 months 2027-01-05",
                                 "every 2 weeks 2027-02-29",
                                 "every 2 weeks 2027-1-5",
                                 "12-25 years",
                                 "12-25 years -",
                                 "12-25 years 2028-2027",
                                 "12-25 years 28",
                                 "12-25 years 0000-2000",
                                 "12-25 years 2027 years 2028",
                                 "12-25 observed",
                                 "12-25 observed sat",
                                 "12-25 observed sat+0",
                                 "12-25 observed sat+32",
                                 "12-25 observed day+1",
                                 "12-25 observed sat-1 sat+1",
                                 "12-25 observed next sun+1",
                                 "12-25 moved",
                                 "12-25 moved next",
                                 "12-25 moved sun-1 observed next"})
            QTest::addRow("\"%s\"", text) << QString::fromLatin1(text);
    }

    void leavesOutWhatIsNoRule()
    {
        QFETCH(QString, text);
        QVERIFY(!DateRule::parse(text));
    }
};

QTEST_APPLESS_MAIN(TestDateRule)
#include "tst_daterule.moc"
