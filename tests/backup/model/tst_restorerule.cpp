// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/restorerule.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;

using Known = RestoreRule::Case; // rows have cases of their own
using RestoreRule::Demand;
using RestoreRule::Password;

class TestRestoreRule : public QObject
{
    Q_OBJECT
private slots:
    /// What is asked for and taken; "refused" where nothing is restored.
    void demands_data()
    {
        using enum Password;
        rows<Known, QString>({
            {"no password anywhere", {}, {}},
            {"no password anywhere, its file chosen",
             {.isFileChosen = true, .isGuardable = true},
             u"takes"_s},
            {"one here", {.here = Set, .isGuardable = true}, u"here"_s},
            {"one here, for what nobody guards", {.here = Set}, u"here"_s},
            {"one here, none in the copy, whose file is chosen",
             {.here = Set, .isFileChosen = true},
             u"here takes"_s},
            {"one in both, guarded by the copy",
             {.here = Set, .copy = Set, .isGuardedByCopy = true, .isGuardable = true},
             u"here"_s},
            {"another in the copy, chosen",
             {.here = Set, .copy = Set, .isFileChosen = true},
             u"here copy takes"_s},
            {"the same in the copy, chosen",
             {.here = Set, .copy = Set, .isSame = true, .isFileChosen = true},
             u"here takes"_s},
            {"one here, the copy's damaged", {.here = Set, .copy = Damaged, .isGuardable = true}, u"here"_s},
            {"one here, the copy's damaged and chosen",
             {.here = Set, .copy = Damaged, .isFileChosen = true},
             u"refused"_s},
            {"only the copy has one, which guards nothing chosen", {.copy = Set, .isGuardable = true}, {}},
            {"only the copy has one, which guards what is chosen",
             {.copy = Set, .isGuardedByCopy = true, .isGuardable = true},
             u"copy takes"_s},
            {"only the copy has one, chosen", {.copy = Set, .isFileChosen = true}, u"copy takes"_s},
            {"the copy's is damaged", {.copy = Damaged, .isGuardable = true}, u"refused"_s},
            {"the copy's is damaged, for what nobody guards", {.copy = Damaged}, {}},
            {"damaged here, for what nobody guards", {.here = Damaged, .copy = Set}, {}},
            {"damaged here, the copy has one",
             {.here = Damaged, .copy = Set, .isGuardable = true},
             u"copy takes"_s},
            {"damaged here, the copy has none", {.here = Damaged, .isGuardable = true}, u"refused"_s},
            {"damaged here, the copy has none, chosen",
             {.here = Damaged, .isFileChosen = true},
             u"refused"_s},
            {"damaged in both", {.here = Damaged, .copy = Damaged, .isGuardable = true}, u"refused"_s},
        });
    }

    void demands()
    {
        const auto [known, expected] = row<Known, QString>();
        const Demand demand = RestoreRule::of(known);
        QStringList words;
        if (demand.asksHere)
            words.append(u"here"_s);
        if (demand.asksCopy)
            words.append(u"copy"_s);
        if (demand.takesFile)
            words.append(u"takes"_s);
        if (!demand.refusal.isEmpty())
            words.append(u"refused"_s);
        QCOMPARE(words.join(u' '), expected);
    }
};

QTEST_APPLESS_MAIN(TestRestoreRule)
#include "tst_restorerule.moc"
