// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/rows.h"
#include "weight/model/messages.h"
#include "weight/model/weightentry.h"
#include "weight/model/weightnumbers.h"

using namespace Qt::Literals::StringLiterals;

/// What is typed into the weight tracker, and how numbers are written there.
class TestWeightEntry : public QObject
{
    Q_OBJECT
    using Number = std::optional<float>;

private slots:
    void readsNumbers_data()
    {
        rows<QString, Number>({{"a point without decimals", u"180."_s, 180.0F},
                               {"blanks", u"  178.5 "_s, 178.5F},
                               {"a comma", u"177,65"_s, 177.65F},
                               {"a unit", u"180 lb"_s, 180.0F},
                               {"no digit before the point", u".5"_s, 0.5F},
                               {"a second point", u"1.2.3"_s, 1.2F},
                               {"nothing", {}, {}},
                               {"a point", u"."_s, {}},
                               {"a word", u"heavy"_s, {}},
                               {"zero", u"0.0"_s, {}},
                               {"below zero", u"-180"_s, {}},
                               {"too heavy", u"100000"_s, {}},
                               {"endless", QString(500, u'9'), {}},
                               {"endless behind the point", u'.' + QString(500, u'9'), {}}});
    }

    void readsNumbers()
    {
        const auto [text, number] = row<QString, Number>();
        QCOMPARE(WeightNumbers::number(text), number);
        QCOMPARE(WeightNumbers::number(text.toLatin1()), number);
    }

    void writesNumbers_data()
    {
        rows<double, QString, QString>(
            {{"whole", 180, u"180."_s, u"+180"_s},
             {"a decimal", 178.5, u"178.5"_s, u"+178.5"_s},
             {"a half of a decimal", 177.65, u"177.7"_s, u"+177.7"_s},
             {"the same in single precision", double(177.65F), u"177.7"_s, u"+177.7"_s},
             {"up to a whole one", 179.96, u"180."_s, u"+180"_s},
             {"less than one", 0.4F, u".4"_s, u"+0.4"_s},
             {"next to nothing", 0.04, u"."_s, u"0"_s},
             {"a loss", -1.3F, u"1.3"_s, u"-1.3"_s},
             {"next to no loss", -0.04, u"."_s, u"0"_s}});
    }

    void writesNumbers()
    {
        const auto [number, text, difference] = row<double, QString, QString>();
        if (number > 0)
            QCOMPARE(WeightNumbers::text(number), text);
        QCOMPARE(WeightNumbers::difference(number), difference);
    }

    void takesDates_data()
    {
        using Refusal = std::optional<Message>;
        rows<QString, QString, QString, Refusal>({
            {"the table's form", u"01/05/2026"_s, u"01/05/2026"_s, u"January 05, 2026"_s, {}},
            {"the sheet's form", u"January 5, 2026"_s, u"01/05/2026"_s, u"January 05, 2026"_s, {}},
            {"a day that can be no month", u"13.2.2026"_s, u"02/13/2026"_s, u"February 13, 2026"_s, {}},
            {"today", u"11/22/2026"_s, u"11/22/2026"_s, u"November 22, 2026"_s, {}},
            {"nothing", u" "_s, {}, {}, {}},
            {"tomorrow", u"11/23/2026"_s, {}, {}, WeightMessages::dateToCome()},
            {"no date", u"02/30/2026"_s, {}, {}, WeightMessages::invalidDate()},
        });
    }

    void takesDates()
    {
        const auto [typed, inTable, inSheet, refusal] =
            row<QString, QString, QString, std::optional<Message>>();
        const QDate today(2026, 11, 22);
        const QString before = u"before"_s;
        const auto checked = WeightEntry::DateChecker::On;
        const auto textOr = [refusal = refusal, before](const QString &text) {
            return refusal ? before : text;
        };
        QCOMPARE(WeightEntry::tableDate(typed, before, checked, today),
                 (WeightEntry{textOr(inTable), refusal}));
        QCOMPARE(WeightEntry::sheetDate(typed, before, checked, today),
                 (WeightEntry{textOr(inSheet), refusal}));
        if (refusal == WeightMessages::dateToCome())
            QCOMPARE(WeightEntry::tableDate(typed, before, WeightEntry::DateChecker::Off, today).text, typed);
    }

    void takesWeights_data()
    {
        rows<QString, QString>({{"whole", u"180"_s, u"180."_s},
                                {"as it is stored", u"180."_s, u"180."_s},
                                {"a comma", u" 177,65 "_s, u"177.7"_s},
                                {"nothing", u" "_s, {}},
                                {"a unit", u"180 lb"_s, u"before"_s},
                                {"zero", u"0"_s, u"before"_s},
                                {"a word", u"heavy"_s, u"before"_s}});
    }

    void takesWeights()
    {
        const auto [typed, text] = row<QString, QString>();
        const WeightEntry entry = WeightEntry::weight(typed, u"before"_s);
        QCOMPARE(entry.text, text);
        QCOMPARE(entry.refusal.has_value(), text == u"before");
    }
};

QTEST_GUILESS_MAIN(TestWeightEntry)
#include "tst_weightentry.moc"
