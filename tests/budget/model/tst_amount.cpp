// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/model/amount.h"
#include "budget/model/budgetentry.h"
#include "budget/model/messages.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;

/// Amounts as they are read, typed and shown.
class TestAmount : public QObject
{
    Q_OBJECT
private slots:
    void reads_data()
    {
        rows<QString, double, double>(
            {{"nothing", {}, 0, 0},
             {"no number", u"abc"_s, 0, 0},
             {"cents", u".50"_s, 0.5, 0.5},
             {"thousands", u"1,250.00"_s, 1250, 1},
             {"only the first comma counts", u"1,250,000"_s, 1250, 1},
             {"a number and words", u" 12.5 kg"_s, 12.5, 12.5},
             {"two points", u"1.2.3"_s, 1.2, 1.2},
             {"negative", u"-5"_s, -5, -5},
             {"a sign alone", u"-"_s, 0, 0},
             {"an exponent", u"1e3"_s, 1000, 1000},
             {"an exponent without end", u"1e999"_s, 0, 0},
             {"many digits", u"0.1234567890123456789"_s, 0.1234567890123456789, 0.1234567890123456789},
             {"a word that is a number elsewhere", u"inf"_s, 0, 0},
             {"a comma first", u",5"_s, 5, 0}});
    }

    void reads()
    {
        const auto [text, stored, leading] = row<QString, double, double>();
        QCOMPARE(Amount::stored(text), stored);
        QCOMPARE(Amount::leading(text), leading);
    }

    void tellsWhatIsWhollyANumber()
    {
        for (const QString &text : {u"85"_s, u" 85.50 "_s, u"1,250"_s, u"-1,250.5"_s, u".5"_s, u"1e3"_s})
            QVERIFY2(Amount::isWholly(text), qPrintable(text));
        for (const QString &text : {u"85,50"_s, u"12abc"_s, u"1.2.3"_s, u"1,25"_s, u"5 -"_s})
            QVERIFY2(!Amount::isWholly(text), qPrintable(text));
    }

    void shows_data()
    {
        rows<double, QString>({{"nothing", 0, u".00"_s},
                               {"cents", 0.5, u".50"_s},
                               {"one cent", 0.01, u".01"_s},
                               {"thousands", 1250, u"1250.00"_s},
                               {"half a cent", 1.005, u"1.01"_s},
                               {"negative", -0.5, u"-.50"_s},
                               {"less than can be seen", -0.001, u".00"_s},
                               {"of single precision", double(99999.99F), u"99999.99"_s}});
    }

    void shows()
    {
        const auto [amount, text] = row<double, QString>();
        QCOMPARE(Amount::text(amount), text);
    }

    void takesWhatIsTyped_data()
    {
        const Message numbers = BudgetMessages::onlyNumbers();
        rows<QString, BudgetEntry, BudgetEntry>(
            {{"plain", u"42.5"_s, {u"42.50"_s, {}}, {u"42.50"_s, {}}},
             {"thousands", u"1,250"_s, {u"1250.00"_s, {}}, {u"1250.00"_s, {}}},
             {"groups that are none", u"1,25"_s, {u"1.00"_s, {}}, {u"1.00"_s, {}}},
             {"no number", u"abc"_s, {{}, numbers}, {}},
             {"nothing", u"0"_s, {{}, numbers}, {}},
             {"negative", u"-5"_s, {{}, numbers}, {}},
             {"less than a cent", u"0.004"_s, {{}, numbers}, {}},
             {"the most of a cell", u"9999.99"_s, {u"9999.99"_s, {}}, {u"9999.99"_s, {}}},
             {"rounded up to the limit",
              u"9999.995"_s,
              {u"9999.99"_s, BudgetMessages::cellLimit()},
              {u"10000.00"_s, {}}},
             {"the most of an income",
              u"99999.99"_s,
              {u"9999.99"_s, BudgetMessages::cellLimit()},
              {u"99999.99"_s, {}}},
             {"too much",
              u"100,000"_s,
              {u"9999.99"_s, BudgetMessages::cellLimit()},
              {u"99999.99"_s, BudgetMessages::incomeLimit()}}});
    }

    void takesWhatIsTyped()
    {
        const auto [typed, cell, income] = row<QString, BudgetEntry, BudgetEntry>();
        QCOMPARE(BudgetEntry::ofCell(typed), cell);
        QCOMPARE(BudgetEntry::ofIncome(typed), income);
    }
};

QTEST_APPLESS_MAIN(TestAmount)
#include "tst_amount.moc"
