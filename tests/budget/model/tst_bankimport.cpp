// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/model/bankimport.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"

#include <QElapsedTimer>
#include <QStringEncoder>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QChar point = u'.';
constexpr QChar comma = u',';

BankImport importOf(const QByteArray &bytes, const Spending &spending = {}, DateStyle style = DateStyle::Usa)
{
    BankImport import(bytes, 2026, style, spending);
    while (import.step()) {}
    return import;
}

/// What the first line that has no problem, and is no income, came to: "2026-03-14 12.50 Bakery".
QString firstSpent(const BankImport &import)
{
    for (const BankLine &line : import.lines()) {
        if (line.state == BankLine::NoItem)
            return line.date.toString(Qt::ISODate) + u' ' + centsText(line.cents) + u' ' + line.text;
    }
    return u"none"_s;
}

} // namespace

/// A bank's file on its way into the budget.
class TestBankImport : public QObject
{
    Q_OBJECT
private slots:
    void readsAmounts_data()
    {
        rows<QString, QChar, qint64>({{"plain", u"12.50"_s, point, 1250},
                                      {"whole", u"-12"_s, point, -1200},
                                      {"decimal comma", u"-1.234,56"_s, comma, -123456},
                                      {"blanks in it", u"1 234,5"_s, comma, 123450},
                                      {"apostrophes", u"CHF 1'234.56"_s, point, 123456},
                                      {"brackets", u"($12.50)"_s, point, -1250},
                                      {"minus behind", u"12,50- EUR"_s, comma, -1250},
                                      {"a true minus", u"\u221212.50 \u20ac"_s, point, -1250},
                                      {"less than a cent", u"1.2399"_s, point, 123},
                                      {"a thousands comma", u"1,234"_s, point, 123400}});
    }

    void readsAmounts()
    {
        const auto [text, decimal, cents] = row<QString, QChar, qint64>();
        QCOMPARE(CsvCells::amount(text, decimal), cents);
    }

    void readsNoAmount_data()
    {
        rows<QString>({{"nothing", {}},
                       {"a word", u"Bakery"_s},
                       {"a sign", u"-"_s},
                       {"a date", u"14/03/2026"_s},
                       {"an IBAN", u"DE12 3456"_s + u"7890 1234 5678"_s},
                       {"two minus", u"1-2"_s}});
    }

    void readsNoAmount()
    {
        const auto [text] = row<QString>();
        QCOMPARE(CsvCells::amount(text, point), std::nullopt);
    }

    void readsDates_data()
    {
        using enum CsvCells::DateOrder;
        const QDate day(2026, 3, 4);
        rows<QString, CsvCells::DateOrder, QDate>(
            {{"of the standard", u"2026-03-04"_s, DayFirst, day},
             {"in one", u"20260304"_s, MonthFirst, day},
             {"day first", u"04.03.26"_s, DayFirst, day},
             {"month first", u"3/4/2026"_s, MonthFirst, day},
             {"with a time", u"2026-03-04T12:30:00"_s, DayFirst, day},
             {"with a month's name", u"4 Mar 2026"_s, MonthFirst, day},
             {"no such day", u"30.02.2026"_s, DayFirst, {}},
             {"three numbers of an address", u"192.168.0.1"_s, DayFirst, {}},
             {"a word", u"Bakery"_s, DayFirst, {}}});
    }

    void readsDates()
    {
        const auto [text, order, date] = row<QString, CsvCells::DateOrder, QDate>();
        QCOMPARE(CsvCells::date(text, order), date);
    }

    void findsOutHowAFileIsWritten_data()
    {
        const QString bakery = u"2026-03-14 -12.50 Bakery"_s;
        const QString utf16 = u"Date\tAmount\tPayee\n2026-03-14\t-12.50\tCafé\n"_s;
        rows<QByteArray, QString>(
            {{"with a heading", "Date,Description,Amount,Balance\n03/14/2026,Bakery,-12.50,100.00\n", bakery},
             {"semicolons and a decimal comma",
              "Buchungstag;Valutadatum;Verwendungszweck;Betrag;Saldo\n14.03.2026;15.03.2026;Bakery;-12,50;1."
              "000,00\n",
              bakery},
             {"lines before the heading", "Account;12345\n\nDate;Name;Amount\n2026-03-14;Bakery;-12.50\n",
              bakery},
             {"without a heading", "2026-03-14,Bakery,-12.50,100.00\n2026-03-15,Butcher shop,-9.00,91.00\n",
              bakery},
             {"quotes", "Date,Text,Amount\n2026-03-14,\"Shop, \"\"the\nbig\"\" one\",\"-1,012.50\"\n",
              u"2026-03-14 -1012.50 Shop, \"the big\" one"_s},
             {"columns of their own",
              "Date,Memo,Paid out,Paid in\n14/03/2026,Bakery,12.50,\n13/03/2026,Pay,,9\n", bakery},
             {"a column for the sign",
              "Date;Description;Debit/"
              "Credit;Amount\n2026-03-14;Bakery;Debit;12.50\n2026-03-13;Pay;Credit;9.00\n",
              bakery},
             {"a day that only one order has",
              "Date,Name,Amount\n04/03/2026,Bakery,-1.00\n14/03/2026,Butcher,-1.00\n",
              u"2026-03-04 -1.00 Bakery"_s},
             {"old Windows", "Date;Name;Amount\n2026-03-14;Caf\xE9;-12.50\n", u"2026-03-14 -12.50 Café"_s},
             {"UTF-8 with a mark",
              "\xEF\xBB\xBF"
              "Date;Name;Amount\n2026-03-14;Caf\xC3\xA9;-12.50\n",
              u"2026-03-14 -12.50 Café"_s},
             {"UTF-16",
              QStringEncoder(QStringConverter::Utf16LE, QStringConverter::Flag::WriteBom).encode(utf16),
              u"2026-03-14 -12.50 Café"_s},
             {"old Macintosh", "Date,Name,Amount\r2026-03-14,Bakery,-12.50\r", bakery},
             {"no minus anywhere", "Date,Name,Amount\n2026-03-14,Bakery,12.50\n",
              u"2026-03-14 12.50 Bakery"_s}});
    }

    void findsOutHowAFileIsWritten()
    {
        const auto [bytes, spent] = row<QByteArray, QString>();
        QCOMPARE(firstSpent(importOf(bytes)), spent);
    }

    void sortsTheLines()
    {
        Spending there;
        there.amounts = {{QDate(2026, 3, 1), 500, u"Fuel"_s, u"Pump 7"_s},
                         {QDate(2026, 3, 2), 800, u"Food"_s, u"Market stall"_s}};
        there.tick(u"Rent"_s, QDate(2026, 3, 3), 85000);
        there.rules = {{u"bakery"_s, u"Food"_s}, {u"LANDLORD"_s, u"Rent"_s}};
        const BankImport import = importOf("Date;Name;Amount\n"
                                           "2026-03-14;BAKERY 12;-3.00\n"    // 2: by a rule
                                           "2026-03-14;Bakery 12;-3.00\n"    // 3: again
                                           "2026-03-15;Market Stall;-4.00\n" // 4: as last time
                                           "2026-03-01;PUMP 7;-5.00\n"       // 5: is there
                                           "2026-03-30;Landlord;-850.00\n"   // 6: was ticked
                                           "2026-03-16;Unknown;-6.00\n"
                                           "2026-03-17;Employer;2000.00\n"
                                           "2025-12-31;Bakery;-1.00\n"
                                           "yesterday;Bakery;-1.00\n"
                                           "2026-03-18;Bakery;many\n"
                                           "2026-03-19;\"Bakery;-1.00\n",
                                           there);
        QList<int> states;
        for (const BankLine &line : import.lines())
            states.append(line.state);
        using enum BankLine::State;
        QCOMPARE(states, (QList<int>{Ready, Duplicate, Ready, Duplicate, Duplicate, NoItem, Incoming,
                                     OtherYear, NotRead, NotRead, NotRead}));
        QCOMPARE(import.lines()[8].number, 10);
        QCOMPARE(import.lines()[8].problem, u"no date"_s);
        QCOMPARE(import.lines()[9].problem, u"no amount"_s);
        QCOMPARE(import.lines()[10].problem, u"a quote has no end"_s);
        QCOMPARE(import.chosenCents(), 700);
        QCOMPARE(import.amounts(),
                 (QList<SpentAmount>{{QDate(2026, 3, 14), 300, u"Food"_s, u"BAKERY 12"_s},
                                     {QDate(2026, 3, 15), 400, u"Food"_s, u"Market Stall"_s}}));
    }

    void takesWhatIsChosen()
    {
        BankImport import = importOf("Date;Name;Amount\n2026-03-14;Bakery;-3.00\n2026-03-14;Bakery;-3.00\n");
        QCOMPARE(import.chosenCount(), 0);
        import.setChosen(0, true); // nobody knows on what
        QCOMPARE(import.chosenCount(), 0);
        import.setItem(0, u"Food"_s);
        import.setItem(1, u"Food"_s);
        QCOMPARE(import.chosenCount(), 1);
        import.setChosen(1, true);
        QCOMPARE(import.chosenCents(), 600);
        import.setRules({{ u"BAKE"_s, u"Treats"_s }});
        while (import.step()) {}
        QCOMPARE(import.amounts().size(), 1);
        QCOMPARE(import.amounts().first().item, u"Food"_s); // chosen by hand
    }

    void survivesAnything_data()
    {
        rows<QByteArray>({{"nothing", ""},
                          {"a blank line", "\n\n"},
                          {"noise", noiseOf(20000)},
                          {"quotes", QByteArray("\"").repeated(9999)},
                          {"separators", QByteArray(";").repeated(9999)},
                          {"UTF-16 that ends early", QByteArray("\xFF\xFE"
                                                                "D",
                                                                3)}});
    }

    void survivesAnything()
    {
        const auto [bytes] = row<QByteArray>();
        const BankImport import = importOf(bytes);
        QCOMPARE(import.chosenCount(), 0);
    }

    void takesAHundredThousandLinesInSmallSteps()
    {
        QByteArray bytes = "Date;Name;Amount\n";
        for (int line = 0; line < 100000; ++line)
            bytes += "2026-03-14;Shop number " + QByteArray::number(line) + ";-12,50\n";
        Spending there;
        for (int rule = 0; rule < 20; ++rule)
            there.rules.append({u"Nothing like it "_s + QString::number(rule), u"Food"_s});
        BankImport import(bytes, 2026, DateStyle::Usa, there);
        QElapsedTimer step;
        qint64 longest = 0;
        do {
            longest = std::max(longest, step.isValid() ? step.elapsed() : 0);
            step.start();
        } while (import.step());
        QCOMPARE(import.count(BankLine::NoItem), 100000);
        QVERIFY2(longest < 200, qPrintable(QString::number(longest)));
    }
};

QTEST_APPLESS_MAIN(TestBankImport)
#include "tst_bankimport.moc"
