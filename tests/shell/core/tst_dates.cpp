// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/dates.h"

#include <QLocale>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestDates : public QObject
{
    Q_OBJECT

private slots:
    void decidesTheStyle_data();
    void decidesTheStyle();
    void readsStoredDates_data();
    void readsStoredDates();
    void takesAnyTextForADate();
    void placesTwoDigitYears_data();
    void placesTwoDigitYears();
    void writesDatesInEnglish();
    void namesTheDaysAtHand();
    void findsTheNextAnniversary_data();
    void findsTheNextAnniversary();
};

void TestDates::decidesTheStyle_data()
{
    QTest::addColumn<QString>("shortDate");
    QTest::addColumn<DateStyle>("style");
    QTest::newRow("month first") << u"9/30/2006"_s << DateStyle::Usa;
    QTest::newRow("month first, two digits") << u"09/30/06"_s << DateStyle::Usa;
    QTest::newRow("day first") << u"30/09/2006"_s << DateStyle::Other;
    QTest::newRow("day first with points") << u"30.09.06"_s << DateStyle::Other;
    QTest::newRow("year first") << u"2006-09-30"_s << DateStyle::Other;
    QTest::newRow("a month's name") << u"Sep 30, 2006"_s << DateStyle::Other;
    QTest::newRow("nothing") << QString() << DateStyle::Other;
    QTest::newRow("a long number") << u"9999999999999999999"_s << DateStyle::Other;
    QTest::newRow("the United States")
        << QLocale(u"en_US"_s).toString(QDate(2006, 9, 30), QLocale::ShortFormat) << DateStyle::Usa;
    QTest::newRow("Germany") << QLocale(u"de_DE"_s).toString(QDate(2006, 9, 30), QLocale::ShortFormat)
                             << DateStyle::Other;
}

void TestDates::decidesTheStyle()
{
    QFETCH(QString, shortDate);
    QTEST(Dates::styleOfShortDate(shortDate), "style");
}

void TestDates::readsStoredDates_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QDate>("monthFirst");
    QTest::addColumn<QDate>("dayFirst");
    const QDate november(1978, 11, 24), march(1980, 3, 4), april(1980, 4, 3), none;
    const auto both = [](const char *text, QDate date) {
        QTest::newRow(text) << QString::fromLatin1(text) << date << date;
    };
    both("Nov-24-1978", november);
    both("24-Nov-1978", november);
    both("nov/24/1978", november);
    both("November 24, 1978", november);
    both("24 November 1978", november);
    both("24Nov1978", november);
    both("1978-Nov-24", november);
    both("Sept-3-1980", QDate(1980, 9, 3));
    both("1978-11-24", november);
    both("1978.11.24", november);
    both("11/24/1978", november);
    both("24.11.1978", november);
    both("  11 - 24 - 1978 ", november);
    both("13/05/1990", QDate(1990, 5, 13));
    both("Feb-29-2024", QDate(2024, 2, 29));
    both("2/29/2024", QDate(2024, 2, 29));
    QTest::newRow("either way round") << u"3/4/1980"_s << march << april;
    QTest::newRow("two-digit year") << u"3/4/80"_s << march << april;

    for (const char *text : {"",
                             " ",
                             "-",
                             "1978",
                             "Nov-1978",
                             "Nov 24",
                             "Feb-29-2023",
                             "2/29/2023",
                             "04/31/1990",
                             "31/04/1990",
                             "13/13/1990",
                             "0/5/1990",
                             "5/0/1990",
                             "1/1/0000",
                             "1/1/12345",
                             "1/1/198",
                             "Nov-Nov-1978",
                             "24-1978-Nov",
                             "1978-24-11",
                             "Nix-24-1978",
                             "No-24-1978",
                             "24th Nov 1978",
                             "11/24/1978x",
                             "11/24/1978 5",
                             "11+24+1978",
                             "11-24-1978-1",
                             "99999999999999999999/1/1",
                             "Nov-24-1978-and-a-very-long-rest-of-the-line"})
        both(text, none);
}

void TestDates::readsStoredDates()
{
    QFETCH(QString, text);
    QTEST(Dates::parse(text, DateStyle::Usa).value_or(QDate()), "monthFirst");
    QTEST(Dates::parse(text, DateStyle::Other).value_or(QDate()), "dayFirst");
}

void TestDates::takesAnyTextForADate()
{
    QVERIFY(!Dates::parse(QString(1'000'000, u'1'), DateStyle::Usa));
    QVERIFY(!Dates::parse(u"\u0661/\u0662/\u0663\u0664\u0665\u0666"_s,
                          DateStyle::Usa)); // digits of another script
    const QString noise(u"1/.-,J\u00e4n\0\u2028"_s);
    for (int i = 0; i < 20'000; ++i) {
        QString text;
        for (int k = 0, rest = i * 7919; k < 9; ++k, rest /= 5)
            text += noise[rest % noise.size()];
        Dates::parse(text, DateStyle::Other);
    }
}

void TestDates::placesTwoDigitYears_data()
{
    QTest::addColumn<QDate>("today");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("year");
    const QDate today(2026, 11, 21);
    QTest::newRow("twenty years ahead") << today << u"1/1/46"_s << 2046;
    QTest::newRow("no further") << today << u"1/1/47"_s << 1947;
    QTest::newRow("this century") << today << u"1/1/05"_s << 2005;
    QTest::newRow("one digit") << today << u"1/1/5"_s << 2005;
    QTest::newRow("without today, the end") << QDate() << u"1/1/29"_s << 2029;
    QTest::newRow("without today, the start") << QDate() << u"1/1/30"_s << 1930;
}

void TestDates::placesTwoDigitYears()
{
    QFETCH(QDate, today);
    QFETCH(QString, text);
    const auto date = Dates::parse(text, DateStyle::Usa, today);
    QVERIFY(date);
    QTEST(date->year(), "year");
}

void TestDates::writesDatesInEnglish()
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

void TestDates::namesTheDaysAtHand()
{
    const QDate today(2026, 11, 21);
    const QStringList words{QString(),        u"today"_s,      u"tomorrow"_s,
                            u"on Monday"_s,   u"on Tuesday"_s, u"on Wednesday"_s,
                            u"on Thursday"_s, u"on Friday"_s,  QString()};
    for (qsizetype i = 0; i < words.size(); ++i)
        QCOMPARE(Dates::nearDay(today.addDays(i - 1), today), words[i]);
}

void TestDates::findsTheNextAnniversary_data()
{
    QTest::addColumn<QDate>("date");
    QTest::addColumn<QDate>("today");
    QTest::addColumn<QDate>("next");
    const QDate leapDay(1980, 2, 29);
    QTest::newRow("today") << QDate(1978, 11, 21) << QDate(2026, 11, 21) << QDate(2026, 11, 21);
    QTest::newRow("yesterday") << QDate(1978, 11, 20) << QDate(2026, 11, 21) << QDate(2027, 11, 20);
    QTest::newRow("leap day in an ordinary year") << leapDay << QDate(2026, 2, 1) << QDate(2026, 2, 28);
    QTest::newRow("leap day in a leap year") << leapDay << QDate(2028, 2, 1) << QDate(2028, 2, 29);
    QTest::newRow("leap day, the year before") << leapDay << QDate(2027, 3, 1) << QDate(2028, 2, 29);
    QTest::newRow("no date") << QDate() << QDate(2026, 2, 1) << QDate();
}

void TestDates::findsTheNextAnniversary()
{
    QFETCH(QDate, date);
    QFETCH(QDate, today);
    QTEST(Dates::nextAnniversary(date, today), "next");
}

QTEST_APPLESS_MAIN(TestDates)
#include "tst_dates.moc"
