// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/model/holidaysets.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// "12-25 12-27*": the days that begin with `text`, those off for another day with a star.
QString daysOf(const HolidaySets &sets, const QString &set, int year, const QString &text = {})
{
    QStringList days;
    for (const HolidayDay &day : sets.days({set}, QDate(year, 1, 1), QDate(year, 12, 31))) {
        if (day.text.startsWith(text))
            days.append(u"%1-%2"_s.arg(day.date.month()).arg(day.date.day()) +
                        (day.text.endsWith(u" (observed)"_s) ? u"*"_s : QString()));
    }
    return days.join(u' ');
}

} // namespace

class TestHolidaySets : public QObject
{
    Q_OBJECT
private slots:
    void haveTheOfficialDays_data()
    {
        rows<QMap<int, QString>>({
            {"United States",
             {
                 {2024, u"1-1 1-15 2-19 5-27 6-19 7-4 9-2 10-14 11-11 11-28 12-25"_s},
                 {2025, u"1-1 1-20 2-17 5-26 6-19 7-4 9-1 10-13 11-11 11-27 12-25"_s},
                 {2026, u"1-1 1-19 2-16 5-25 6-19 7-3* 7-4 9-7 10-12 11-11 11-26 12-25"_s},
                 {2027,
                  u"1-1 1-18 2-15 5-31 6-18* 6-19 7-4 7-5* 9-6 10-11 11-11 11-25 12-24* 12-25 12-31*"_s},
                 {2028, u"1-1 1-17 2-21 5-29 6-19 7-4 9-4 10-9 11-10* 11-11 11-23 12-25"_s},
             }},
            {"Canada",
             {
                 {2024, u"1-1 3-29 5-20 7-1 9-2 9-30 10-14 11-11 12-25 12-26"_s},
                 {2025, u"1-1 4-18 5-19 7-1 9-1 9-30 10-13 11-11 12-25 12-26"_s},
                 {2026, u"1-1 4-3 5-18 7-1 9-7 9-30 10-12 11-11 12-25 12-26 12-28*"_s},
                 {2027, u"1-1 3-26 5-24 7-1 9-6 9-30 10-11 11-11 12-25 12-26 12-27* 12-28*"_s},
                 {2028, u"1-1 1-3* 4-14 5-22 7-1 7-3* 9-4 9-30 10-2* 10-9 11-11 11-13* 12-25 12-26"_s},
             }},
            {"England and Wales",
             {
                 {2024, u"1-1 3-29 4-1 5-6 5-27 8-26 12-25 12-26"_s},
                 {2025, u"1-1 4-18 4-21 5-5 5-26 8-25 12-25 12-26"_s},
                 {2026, u"1-1 4-3 4-6 5-4 5-25 8-31 12-25 12-26 12-28*"_s},
                 {2027, u"1-1 3-26 3-29 5-3 5-31 8-30 12-25 12-26 12-27* 12-28*"_s},
                 {2028, u"1-1 1-3* 4-14 4-17 5-1 5-29 8-28 12-25 12-26"_s},
             }},
            {"Scotland",
             {
                 {2024, u"1-1 1-2 3-29 5-6 5-27 8-5 11-30 12-2* 12-25 12-26"_s},
                 {2025, u"1-1 1-2 4-18 5-5 5-26 8-4 11-30 12-1* 12-25 12-26"_s},
                 {2026, u"1-1 1-2 4-3 5-4 5-25 6-15 8-3 11-30 12-25 12-26 12-28*"_s},
                 {2027, u"1-1 1-2 1-4* 3-26 5-3 5-31 8-2 11-30 12-25 12-26 12-27* 12-28*"_s},
                 {2028, u"1-1 1-2 1-3* 1-4* 4-14 5-1 5-29 8-7 11-30 12-25 12-26"_s},
             }},
            {"Northern Ireland",
             {
                 {2024, u"1-1 3-17 3-18* 3-29 4-1 5-6 5-27 7-12 8-26 12-25 12-26"_s},
                 {2025, u"1-1 3-17 4-18 4-21 5-5 5-26 7-12 7-14* 8-25 12-25 12-26"_s},
                 {2026, u"1-1 3-17 4-3 4-6 5-4 5-25 7-12 7-13* 8-31 12-25 12-26 12-28*"_s},
                 {2027, u"1-1 3-17 3-26 3-29 5-3 5-31 7-12 8-30 12-25 12-26 12-27* 12-28*"_s},
                 {2028, u"1-1 1-3* 3-17 4-14 4-17 5-1 5-29 7-12 8-28 12-25 12-26"_s},
             }},
            {"Ireland",
             {
                 {2024, u"1-1 2-5 3-17 4-1 5-6 6-3 8-5 10-28 12-25 12-26"_s},
                 {2025, u"1-1 2-3 3-17 4-21 5-5 6-2 8-4 10-27 12-25 12-26"_s},
                 {2026, u"1-1 2-2 3-17 4-6 5-4 6-1 8-3 10-26 12-25 12-26"_s},
                 {2027, u"1-1 2-1 3-17 3-29 5-3 6-7 8-2 10-25 12-25 12-26"_s},
                 {2028, u"1-1 2-7 3-17 4-17 5-1 6-5 8-7 10-30 12-25 12-26"_s},
             }},
            {"Germany",
             {
                 {2024, u"1-1 3-29 4-1 5-1 5-9 5-20 10-3 12-25 12-26"_s},
                 {2025, u"1-1 4-18 4-21 5-1 5-29 6-9 10-3 12-25 12-26"_s},
                 {2026, u"1-1 4-3 4-6 5-1 5-14 5-25 10-3 12-25 12-26"_s},
                 {2027, u"1-1 3-26 3-29 5-1 5-6 5-17 10-3 12-25 12-26"_s},
                 {2028, u"1-1 4-14 4-17 5-1 5-25 6-5 10-3 12-25 12-26"_s},
             }},
            {"Austria",
             {
                 {2024, u"1-1 1-6 4-1 5-1 5-9 5-20 5-30 8-15 10-26 11-1 12-8 12-25 12-26"_s},
                 {2025, u"1-1 1-6 4-21 5-1 5-29 6-9 6-19 8-15 10-26 11-1 12-8 12-25 12-26"_s},
                 {2026, u"1-1 1-6 4-6 5-1 5-14 5-25 6-4 8-15 10-26 11-1 12-8 12-25 12-26"_s},
                 {2027, u"1-1 1-6 3-29 5-1 5-6 5-17 5-27 8-15 10-26 11-1 12-8 12-25 12-26"_s},
                 {2028, u"1-1 1-6 4-17 5-1 5-25 6-5 6-15 8-15 10-26 11-1 12-8 12-25 12-26"_s},
             }},
            {"France",
             {
                 {2024, u"1-1 4-1 5-1 5-8 5-9 5-20 7-14 8-15 11-1 11-11 12-25"_s},
                 {2025, u"1-1 4-21 5-1 5-8 5-29 6-9 7-14 8-15 11-1 11-11 12-25"_s},
                 {2026, u"1-1 4-6 5-1 5-8 5-14 5-25 7-14 8-15 11-1 11-11 12-25"_s},
                 {2027, u"1-1 3-29 5-1 5-6 5-8 5-17 7-14 8-15 11-1 11-11 12-25"_s},
                 {2028, u"1-1 4-17 5-1 5-8 5-25 6-5 7-14 8-15 11-1 11-11 12-25"_s},
             }},
            {"Netherlands",
             {
                 {2024, u"1-1 3-29 3-31 4-1 4-27 5-5 5-9 5-19 5-20 12-25 12-26"_s},
                 {2025, u"1-1 4-18 4-20 4-21 4-26 5-5 5-29 6-8 6-9 12-25 12-26"_s},
                 {2026, u"1-1 4-3 4-5 4-6 4-27 5-5 5-14 5-24 5-25 12-25 12-26"_s},
                 {2027, u"1-1 3-26 3-28 3-29 4-27 5-5 5-6 5-16 5-17 12-25 12-26"_s},
                 {2028, u"1-1 4-14 4-16 4-17 4-27 5-5 5-25 6-4 6-5 12-25 12-26"_s},
             }},
            {"Sweden",
             {
                 {2024, u"1-1 1-6 3-29 3-31 4-1 5-1 5-9 5-19 6-6 6-21 6-22 11-2 12-24 12-25 12-26 12-31"_s},
                 {2025, u"1-1 1-6 4-18 4-20 4-21 5-1 5-29 6-6 6-8 6-20 6-21 11-1 12-24 12-25 12-26 12-31"_s},
                 {2026, u"1-1 1-6 4-3 4-5 4-6 5-1 5-14 5-24 6-6 6-19 6-20 10-31 12-24 12-25 12-26 12-31"_s},
                 {2027, u"1-1 1-6 3-26 3-28 3-29 5-1 5-6 5-16 6-6 6-25 6-26 11-6 12-24 12-25 12-26 12-31"_s},
                 {2028, u"1-1 1-6 4-14 4-16 4-17 5-1 5-25 6-4 6-6 6-23 6-24 11-4 12-24 12-25 12-26 12-31"_s},
             }},
            {"Western church year",
             {
                 {2024,
                  u"1-6 2-2 2-13 2-14 3-24 3-28 3-29 3-30 3-31 4-1 5-9 5-19 5-20 5-26 5-30 6-24 8-15 9-29 10-31 11-1 11-2 12-1 12-6 12-8 12-15 12-22 12-24 12-25 12-26"_s},
                 {2025,
                  u"1-6 2-2 3-4 3-5 4-13 4-17 4-18 4-19 4-20 4-21 5-29 6-8 6-9 6-15 6-19 6-24 8-15 9-29 10-31 11-1 11-2 11-30 12-6 12-7 12-14 12-21 12-24 12-25 12-26"_s},
                 {2026,
                  u"1-6 2-2 2-17 2-18 3-29 4-2 4-3 4-4 4-5 4-6 5-14 5-24 5-25 5-31 6-4 6-24 8-15 9-29 10-31 11-1 11-2 11-29 12-6 12-6 12-13 12-20 12-24 12-25 12-26"_s},
                 {2027,
                  u"1-6 2-2 2-9 2-10 3-21 3-25 3-26 3-27 3-28 3-29 5-6 5-16 5-17 5-23 5-27 6-24 8-15 9-29 10-31 11-1 11-2 11-28 12-5 12-6 12-12 12-19 12-24 12-25 12-26"_s},
                 {2028,
                  u"1-6 2-2 2-29 3-1 4-9 4-13 4-14 4-15 4-16 4-17 5-25 6-4 6-5 6-11 6-15 6-24 8-15 9-29 10-31 11-1 11-2 12-3 12-6 12-10 12-17 12-24 12-24 12-25 12-26"_s},
             }},
            {"Orthodox church year",
             {
                 {2024,
                  u"1-6 1-7 2-2 3-18 3-25 4-28 5-3 5-4 5-5 5-6 6-13 6-23 6-24 6-29 6-30 8-6 8-15 9-8 9-14 11-21 12-25"_s},
                 {2025,
                  u"1-6 1-7 2-2 3-3 3-25 4-13 4-18 4-19 4-20 4-21 5-29 6-8 6-9 6-15 6-29 8-6 8-15 9-8 9-14 11-21 12-25"_s},
                 {2026,
                  u"1-6 1-7 2-2 2-23 3-25 4-5 4-10 4-11 4-12 4-13 5-21 5-31 6-1 6-7 6-29 8-6 8-15 9-8 9-14 11-21 12-25"_s},
                 {2027,
                  u"1-6 1-7 2-2 3-15 3-25 4-25 4-30 5-1 5-2 5-3 6-10 6-20 6-21 6-27 6-29 8-6 8-15 9-8 9-14 11-21 12-25"_s},
                 {2028,
                  u"1-6 1-7 2-2 2-28 3-25 4-9 4-14 4-15 4-16 4-17 5-25 6-4 6-5 6-11 6-29 8-6 8-15 9-8 9-14 11-21 12-25"_s},
             }},
        });
    }

    void haveTheOfficialDays()
    {
        const auto [years] = row<QMap<int, QString>>();
        const HolidaySets sets;
        for (auto year = years.begin(); year != years.end(); ++year)
            QCOMPARE(daysOf(sets, QString::fromLatin1(QTest::currentDataTag()), year.key()), year.value());
    }

    void followTheLawsOfTheirYears_data()
    {
        const QString us = u"United States"_s, england = u"England and Wales"_s, scotland = u"Scotland"_s;
        rows<QString, QString, int, QString>({
            {"before Juneteenth", us, u"Juneteenth"_s, 2020, {}},
            {"a November with two Thanksgivings", us, u"Thanksgiving"_s, 1939, u"11-23"_s},
            {"veterans on a Monday", us, u"Veterans Day"_s, 1975, u"10-27"_s},
            {"veterans on their day again", us, u"Veterans Day"_s, 1978, u"11-10* 11-11"_s},
            {"no Saturday for a Friday yet", us, u"Independence Day"_s, 1959, u"7-4"_s},
            {"Victoria Day on her birthday", u"Canada"_s, u"Victoria Day"_s, 1952, u"5-24"_s},
            {"Whit Monday", england, u"Whit Monday"_s, 1966, u"5-30"_s},
            {"August in September", england, u"August Bank Holiday"_s, 1968, u"9-2"_s},
            {"New Year's Day, a holiday late", england, u"New Year"_s, 1973, {}},
            {"May Day on VE Day", england, u"Early May"_s, 2020, u"5-8"_s},
            {"a jubilee's summer",
             england,
             {},
             2022,
             u"1-1 1-3* 4-15 4-18 5-2 6-2 6-3 8-29 9-19 12-25 12-26 12-27*"_s},
            {"a coronation's", england, {}, 2023, u"1-1 1-2* 4-7 4-10 5-1 5-8 5-29 8-28 12-25 12-26"_s},
            {"a New Year's weekend in Scotland",
             scotland,
             {},
             2022,
             u"1-1 1-2 1-3* 1-4* 4-15 5-2 6-2 6-3 8-1 9-19 11-30 12-25 12-26 12-27*"_s},
            {"a Sunday before the 2nd of January", scotland, u"New Year's Day"_s, 2023, u"1-1 1-3*"_s},
            {"before St Brigid", u"Ireland"_s, u"St Brigid"_s, 2022, {}},
            {"her first", u"Ireland"_s, u"St Brigid"_s, 2023, u"2-6"_s},
            {"hers on a Friday", u"Ireland"_s, u"St Brigid"_s, 2030, u"2-1"_s},
            {"in memory, once", u"Ireland"_s, u"Day of Remembrance"_s, 2022, u"3-18"_s},
            {"June", u"Germany"_s, u"Day of German Unity"_s, 1990, u"6-17"_s},
            {"and October", u"Germany"_s, u"German Unity Day"_s, 1990, u"10-3"_s},
            {"repentance for the last time", u"Germany"_s, u"Day of Repentance"_s, 1994, u"11-16"_s},
            {"the Reformation, once", u"Germany"_s, u"Reformation"_s, 2017, u"10-31"_s},
            {"the eighth of May, abolished", u"France"_s, u"Victory"_s, 1981, {}},
            {"and brought back", u"France"_s, u"Victory"_s, 1982, u"5-8"_s},
            {"the Queen's Monday", u"Netherlands"_s, u"Queen's Day"_s, 1972, u"5-1"_s},
            {"her Saturday", u"Netherlands"_s, u"Queen's Day"_s, 2006, u"4-29"_s},
            {"the King's Saturday", u"Netherlands"_s, u"King's Day"_s, 2014, u"4-26"_s},
            {"Midsummer on its day", u"Sweden"_s, u"Midsummer Day"_s, 1952, u"6-24"_s},
            {"Whit Monday in Sweden", u"Sweden"_s, u"Whit Monday"_s, 2004, u"5-31"_s},
            {"the National Day in its place", u"Sweden"_s, u"Whit Monday"_s, 2005, {}},
            {"Christmas a day later", u"Orthodox church year"_s, u"Christmas (old"_s, 2101, u"1-8"_s},
        });
    }

    void followTheLawsOfTheirYears()
    {
        const auto [set, text, year, days] = row<QString, QString, int, QString>();
        QCOMPARE(daysOf(HolidaySets(), set, year, text), days);
    }

    void tellEachDayOnceWhereverTheyBegin()
    {
        const HolidaySets sets;
        const QDate christmas(2027, 12, 25);
        const QStringList both{u"England and Wales"_s, u"Western church year"_s, u"Nowhere"_s};
        QCOMPARE(sets.days(both, christmas, christmas), QList({HolidayDay{christmas, u"Christmas Day"_s}}));
        const QDate off(2027, 12, 28); // both Christmas and Boxing Day fall on a weekend
        QCOMPARE(sets.days(both, off, off), QList({HolidayDay{off, u"Boxing Day (observed)"_s}}));
        const QDate eve(2027, 12, 31); // for a day of the next year
        QCOMPARE(sets.days({u"United States"_s}, eve, eve),
                 QList({HolidayDay{eve, u"New Year's Day (observed)"_s}}));
    }

    void belongToTheRegion_data()
    {
        rows<QLocale::Territory, QString>({
            {"us", QLocale::UnitedStates, u"United States"_s},
            {"gb", QLocale::UnitedKingdom, u"England and Wales"_s},
            {"ie", QLocale::Ireland, u"Ireland"_s},
            {"se", QLocale::Sweden, u"Sweden"_s},
            {"no", QLocale::Norway, {}},
            {"none", QLocale::AnyTerritory, {}},
        });
    }

    void belongToTheRegion()
    {
        const auto [territory, name] = row<QLocale::Territory, QString>();
        QCOMPARE(HolidaySets::nameFor(territory), name);
        QVERIFY(name.isEmpty() || HolidaySets().set(name));
    }

    void takeTheHouseholdsInTheirPlace()
    {
        const TestFolder folder;
        const QByteArray bytes = "Quillery holidays 1\r\n"
                                 "note\tkept\r\n"
                                 "set\tGermany\r\n"
                                 "holiday\t12-25\tWeihnachten\\tund mehr\r\n"
                                 "holiday\tnth 9 mon 01\tNever\r\n"
                                 "\r\n"
                                 "colour\tgreen\r\n"
                                 "holiday\t12-24\tHeiligabend\thalf\tday\r\n"
                                 "set\tSchool\r\n"
                                 "holiday\t09-01 years 2027\tFirst day\r\n";
        folder.put(HolidaySets::fileName, bytes);
        const HolidaySets sets = HolidaySets::of(folder.folder());
        QCOMPARE(daysOf(sets, u"Germany"_s, 2027), u"12-24 12-25"_s);
        QCOMPARE(daysOf(sets, u"school"_s, 2027, u"First day"_s), u"9-1"_s);
        QCOMPARE(sets.names().size(), 14);
        QCOMPARE(sets.names().last(), u"School"_s);
        QCOMPARE(sets.builtIn(u"Germany"_s).holidays.size(), 12);
        QCOMPARE(sets.own().faults, QList({HolidayFile::Fault{5, u"holiday nth 9 mon 01 Never"_s}}));
        QVERIFY(HolidaySets::save(folder.folder(), sets.own()));
        QCOMPARE(folder.bytes(HolidaySets::fileName), bytes);
        QByteArray lines = bytes; // as an editor of another system leaves them
        folder.put(HolidaySets::fileName, lines.replace("\r\n", "\n"));
        QCOMPARE(HolidaySets::of(folder.folder()).own().bytes(), bytes);
    }

    void leaveAForeignFileAlone_data()
    {
        rows<QByteArray, bool>({
            {"nothing", {}, false},
            {"cut in its first line", "Quillery hol", false},
            {"of a later version", "Quillery holidays 2\r\nset\tGermany\r\n", true},
            {"of another function", "Quillery calendar 1\r\nset\tGermany\r\n", true},
            {"noise", noiseOf(5000), true},
        });
    }

    void leaveAForeignFileAlone()
    {
        const auto [bytes, isLocked] = row<QByteArray, bool>();
        const TestFolder folder;
        folder.put(HolidaySets::fileName, bytes);
        const HolidaySets sets = HolidaySets::of(folder.folder());
        QCOMPARE(!sets.whyLocked().isEmpty(), isLocked);
        QCOMPARE(daysOf(sets, u"Germany"_s, 2027, u"Christmas"_s), u"12-25"_s);
        QCOMPARE(folder.bytes(HolidaySets::fileName), bytes);
    }

    void areThereWhereAFolderIsInTheWay()
    {
        const TestFolder folder;
        QVERIFY(QDir().mkdir(folder.path(HolidaySets::fileName)));
        const HolidaySets sets = HolidaySets::of(folder.folder());
        QCOMPARE(sets.names().size(), 13);
        QVERIFY(!sets.whyLocked().isEmpty());
    }
};

QTEST_APPLESS_MAIN(TestHolidaySets)
#include "tst_holidaysets.moc"
