// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/household.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"
#include "weight/model/personfiles.h"
#include "weight/model/toldfigures.h"
#include "weight/model/weightnews.h"
#include "weight/model/weightsource.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString anne = u"Anne"_s;

WeightSheet sheetOf(const QString &name, const QList<WeighIn> &weighIns)
{
    WeightSheet sheet;
    sheet.field(WeightSheet::Name) = name;
    for (const WeighIn &weighIn : weighIns)
        sheet.weighIns.append(weighIn);
    return sheet;
}

} // namespace

/// What the main menu tells of the persons, and what the search finds of them.
class TestWeightNews : public QObject
{
    Q_OBJECT
private slots:
    void tellsWhoWasWeighedLast_data()
    {
        const WeighIn first{u"11/02/2026"_s, u"181."_s};
        const WeighIn second{u"11/19/2026"_s, u"180.5"_s};
        rows<QList<WeighIn>, bool, QString, QString>({
            {"three days ago", {first, second}, false, u"Anne: weighed 3 days ago"_s, u"Anne: 3 days ago"_s},
            {"a weight", {first, second}, true, u"Anne: 180.5 (-0.5), 3 days ago"_s, u"Anne: 180.5 (-0.5)"_s},
            {"the last by date", {second, first}, true, u"Anne: 180.5, 3 days ago"_s, u"Anne: 180.5"_s},
            {"a whole weight", {{u"11/22/2026"_s, u"180."_s}}, true, u"Anne: 180, today"_s, u"Anne: 180"_s},
            {"none without a weight",
             {first, {u"11/21/2026"_s, {}}},
             true,
             u"Anne: weighed yesterday"_s,
             u"Anne: yesterday"_s},
            {"what is ahead does not count",
             {first, {u"11/23/2026"_s, u"170."_s}},
             false,
             u"Anne: weighed 20 days ago"_s,
             u"Anne: 20 days ago"_s},
            {"no date", {{u"soon"_s, u"170."_s}}, true, u"2 persons"_s, {}},
            {"no weigh-in", {}, true, u"2 persons"_s, {}},
        });
    }

    void tellsWhoWasWeighedLast()
    {
        const auto [weighIns, isTold, text, shorter] = row<QList<WeighIn>, bool, QString, QString>();
        const TestFolder test;
        const QDate today(2026, 11, 22);
        PersonFiles persons(test.folder());
        QVERIFY(!WeightNews::liveLine(test.folder(), today));
        QVERIFY(persons.create(sheetOf(u"Zoë"_s, {})));
        QCOMPARE(WeightNews::liveLine(test.folder(), today)->text, u"1 person"_s);
        QVERIFY(persons.create(sheetOf(anne, weighIns)));
        QVERIFY(ToldFigures::setTold(test.folder(), anne, isTold));
        QCOMPARE(ToldFigures::isTold(test.folder(), anne), isTold);
        const LiveLine line = *WeightNews::liveLine(test.folder(), today);
        QCOMPARE(line.text, text);
        QCOMPARE(line.shorter.value(0), shorter);
        QVERIFY(line.sentence.isEmpty());
        QCOMPARE(WeightNews::liveFiles(test.folder()),
                 (QStringList{u"WeightTrker.Fil"_s, u"Quillery.weights"_s, u"Zoë.Fil"_s, u"Anne.Fil"_s}));
    }

    void findsPersons_data()
    {
        rows<QString, QList<SearchHit>>({
            {"a name", u"marsh zoe"_s, {{u"Zoë Marsh"_s, u"Walking, swimming"_s, {.record = 3}}}},
            {"a comment",
             u"doctor"_s,
             {{u"Nils Holm 2026"_s, u"Says the doctor: \"Swim\" instead."_s, {.record = 2}}}},
            {"the better hit first",
             u"n"_s,
             {{u"Nils Holm 2026"_s, u"Walking, swimming"_s, {.record = 2}},
              {u"Karin Holm"_s, u"Walking, swimming"_s, {.record = 1}}}},
            {"no weight", u"214.5"_s, {}},
            {"nothing", u" "_s, {}},
        });
    }

    void findsPersons()
    {
        const auto [text, hits] = row<QString, QList<SearchHit>>();
        const DataFolder folder(householdPath());
        WeightSource source(folder);
        while (source.prepare()) {}
        QCOMPARE(source.matches(text, 2), hits);
    }
};

QTEST_APPLESS_MAIN(TestWeightNews)
#include "tst_weightnews.moc"
