// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/dates.h"
#include "tests/support/rows.h"

#include <QLocale>

using namespace Qt::Literals::StringLiterals;

class TestDates : public QObject
{
    Q_OBJECT
private slots:
    void decidesTheStyle_data()
    {
        const auto shortDate = [](const char *locale) {
            return QLocale(QString::fromLatin1(locale)).toString(QDate(2006, 9, 30), QLocale::ShortFormat);
        };
        rows<QString, DateStyle>({
            {"month first, two digits", u"09/30/06"_s, DateStyle::Usa},
            {"day first", u"30/09/2006"_s, DateStyle::Other},
            {"year first", u"2006-09-30"_s, DateStyle::Other},
            {"a month's name", u"Sep 30, 2006"_s, DateStyle::Other},
            {"nothing", {}, DateStyle::Other},
            {"a long number", u"9999999999999999999"_s, DateStyle::Other},
            {"the United States", shortDate("en_US"), DateStyle::Usa},
            {"Germany", shortDate("de_DE"), DateStyle::Other},
        });
    }

    void decidesTheStyle()
    {
        const auto [shortDate, style] = row<QString, DateStyle>();
        QCOMPARE(Dates::styleOfShortDate(shortDate), style);
    }

    void readsStoredDates_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<std::optional<QDate>>("monthFirst");
        QTest::addColumn<std::optional<QDate>>("dayFirst");
        using Date = std::optional<QDate>;
        const auto add = [](const QString &texts, const Date &monthFirst, const Date &dayFirst) {
            for (const QString &text : texts.split(u';'))
                QTest::addRow("\"%s\"", qPrintable(text)) << text << monthFirst << dayFirst;
        };
        const QDate november(1978, 11, 24), september(1980, 9, 3), may(1990, 5, 13), leapDay(2024, 2, 29);
        add(u"Nov-24-1978;24-Nov-1978;nov/24/1978;November 24, 1978;24 November 1978;24Nov1978;1978-Nov-24;"
            "1978-11-24;1978.11.24;11/24/1978;24.11.1978;  11 - 24 - 1978 "_s,
            november, november);
        add(u"Sept-3-1980"_s, september, september);
        add(u"13/05/1990"_s, may, may);
        add(u"Feb-29-2024;2/29/2024"_s, leapDay, leapDay);
        add(u"3/4/1980;3/4/80"_s, QDate(1980, 3, 4), QDate(1980, 4, 3));
        add(u"; ;-;1978;Nov-1978;Nov "
            u"24;Feb-29-2023;2/29/2023;04/31/1990;31/04/1990;13/13/1990;0/5/1990;5/0/1990;"
            "1/1/0000;1/1/12345;1/1/198;Nov-Nov-1978;24-1978-Nov;1978-24-11;Nix-24-1978;No-24-1978;24th Nov "
            "1978;"
            "11/24/1978x;11/24/1978 5;11+24+1978;11-24-1978-1;99999999999999999999/1/1;"
            "Nov-24-1978-and-a-very-long-rest-of-the-line"_s,
            {}, {});
    }

    void readsStoredDates()
    {
        QFETCH(QString, text);
        QTEST(Dates::parse(text, DateStyle::Usa), "monthFirst");
        QTEST(Dates::parse(text, DateStyle::Other), "dayFirst");
    }

    void takesAnyTextForADate()
    {
        QVERIFY(!Dates::parse(QString(1'000'000, u'1'), DateStyle::Usa));
        const QString otherDigits = u"\u0661/\u0662/\u0663\u0664\u0665\u0666"_s; // of another script
        QVERIFY(!Dates::parse(otherDigits, DateStyle::Usa));
        const QString noise(u"1/.-,J\u00e4n\0\u2028"_s);
        for (int i = 0; i < 20'000; ++i) {
            QString text;
            for (int k = 0, rest = i * 7919; k < 9; ++k, rest /= 5)
                text += noise[rest % noise.size()];
            Dates::parse(text, DateStyle::Other);
        }
    }

    void placesTwoDigitYears_data()
    {
        const QDate newYear(2026, 1, 1);
        rows<QDate, QString, int>({
            {"the start", {}, u"1/1/30"_s, 1930},
            {"the end", {}, u"1/1/29"_s, 2029},
            {"one digit", {}, u"1/1/5"_s, 2005},
            {"none", {}, u"1/1/00"_s, 2000},
            {"the latest day", newYear, u"1/1/26"_s, 2026},
            {"after the latest day", newYear.addDays(-1), u"1/1/26"_s, 1926},
            {"four digits after the latest day", newYear, u"1/1/2027"_s, 2027},
        });
    }

    void placesTwoDigitYears()
    {
        const auto [latest, text, year] = row<QDate, QString, int>();
        QCOMPARE(Dates::parse(text, DateStyle::Usa, latest), QDate(year, 1, 1));
    }

    void writesDatesInEnglish()
    {
        const QLocale before;
        QLocale::setDefault(QLocale(u"de_DE"_s));
        const QDate date(2026, 3, 7);
        QCOMPARE(Dates::boxText(date, DateStyle::Usa), u"Mar-07-2026"_s);
        QCOMPARE(Dates::boxText(date, DateStyle::Other), u"07-Mar-2026"_s);
        QCOMPARE(Dates::numbers(date, DateStyle::Usa), u"03/07/2026"_s);
        QCOMPARE(Dates::numbers(date, DateStyle::Other), u"07/03/2026"_s);
        QCOMPARE(Dates::longText(date, DateStyle::Usa), u"Saturday, March 7, 2026"_s);
        QCOMPARE(Dates::longText(date, DateStyle::Other), u"Saturday, 7 March 2026"_s);
        QCOMPARE(Dates::monthDayYear(date, DateStyle::Usa), u"March 7, 2026"_s);
        QCOMPARE(Dates::monthDayYear(date, DateStyle::Other), u"7 March 2026"_s);
        QCOMPARE(Dates::statusText(date, DateStyle::Usa), u"Sat, Mar 7, 2026"_s);
        QCOMPARE(Dates::statusText(date, DateStyle::Other), u"Sat, 7 Mar 2026"_s);
        QCOMPARE(Dates::shortText(date, DateStyle::Usa), u"Mar 7"_s);
        QCOMPARE(Dates::shortText(date, DateStyle::Other), u"7 Mar"_s);
        QLocale::setDefault(before);
    }

    void findsTheWeeksOfAMonth_data()
    {
        rows<QDate, Qt::DayOfWeek, QDate, int, int>({
            {"four weeks", QDate(2027, 2, 28), Qt::Monday, QDate(2027, 2, 1), 4, 5},
            {"six weeks", QDate(2026, 8, 1), Qt::Monday, QDate(2026, 7, 27), 6, 31},
            {"a new year from Monday", QDate(2027, 1, 9), Qt::Monday, QDate(2026, 12, 28), 5, 53},
            {"a new year from Sunday", QDate(2027, 1, 1), Qt::Sunday, QDate(2026, 12, 27), 6, 53},
            {"a first week that begins in December", QDate(2026, 1, 31), Qt::Monday, QDate(2025, 12, 29), 5,
             1},
            {"weeks from Saturday", QDate(2028, 1, 1), Qt::Saturday, QDate(2028, 1, 1), 5, 1},
        });
    }

    void findsTheWeeksOfAMonth()
    {
        const auto [date, firstDay, start, count, number] = row<QDate, Qt::DayOfWeek, QDate, int, int>();
        const Dates::Weeks weeks = Dates::weeksOfMonth(date, firstDay);
        QCOMPARE(weeks.start, start);
        QCOMPARE(weeks.count, count);
        QCOMPARE(Dates::weekNumber(weeks.start), number);
    }

    void namesTheDaysAtHand()
    {
        const QDate today(2026, 11, 21);
        const QString words = u";today;tomorrow;on Monday;on Tuesday;on Wednesday;on Thursday;on Friday;"_s;
        for (int days = -1; days <= 7; ++days)
            QCOMPARE(Dates::nearDay(today.addDays(days), today), words.section(u';', days + 1, days + 1));
    }

    void findsTheNextAnniversary_data()
    {
        const QDate today(2026, 11, 21), leapDay(1980, 2, 29);
        rows<QDate, QDate, QDate>({
            {"today", QDate(1978, 11, 21), today, today},
            {"yesterday", QDate(1978, 11, 20), today, QDate(2027, 11, 20)},
            {"leap day in an ordinary year", leapDay, QDate(2026, 2, 1), QDate(2026, 2, 28)},
            {"leap day in a leap year", leapDay, QDate(2028, 2, 1), QDate(2028, 2, 29)},
            {"leap day, the year before", leapDay, QDate(2027, 3, 1), QDate(2028, 2, 29)},
            {"no date", {}, today, {}},
        });
    }

    void findsTheNextAnniversary()
    {
        const auto [date, today, next] = row<QDate, QDate, QDate>();
        QCOMPARE(Dates::nextAnniversary(date, today), next);
    }
};

QTEST_APPLESS_MAIN(TestDates)
#include "tst_dates.moc"
