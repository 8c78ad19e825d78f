// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/model/keeperfilter.h"
#include "keeper/model/spokensecret.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// A bank's log-in, a favourite of Anne's that expires in February, a document of Nils', and one in the
/// trash.
QList<KeeperSummary> household()
{
    KeeperSummary bank{.id = "1", .title = u"zebra bank"_s, .tags = {u"money"_s, u"Ämter"_s}};
    KeeperSummary mail{.id = "2",
                       .title = u"Mail"_s,
                       .member = u"Anne"_s,
                       .isFavourite = true,
                       .expires = QDate(2027, 2, 19)};
    KeeperSummary passport{.id = "3",
                           .kind = EntryKind::Document,
                           .title = u"Ausweis"_s,
                           .member = u"Nils"_s,
                           .expires = QDate(2027, 2, 20)};
    KeeperSummary old{.id = "4",
                      .kind = EntryKind::Card,
                      .title = u"Old card"_s,
                      .member = u"Eve"_s,
                      .tags = {u"gone"_s},
                      .isFavourite = true,
                      .isTrashed = true};
    return {bank, mail, passport, old};
}

} // namespace

/// The household's entries on 21 November 2026.
class TestKeeperFilter : public QObject
{
    Q_OBJECT
private slots:
    void letsThroughWhatItSays_data()
    {
        using Filter = KeeperFilter;
        rows<Filter, QByteArray>({
            {"all but the trash", {Filter::All, {}, {}}, "123"},
            {"favourites", {Filter::Favourites, {}, {}}, "2"},
            {"the ninetieth day counts", {Filter::Expiring, {}, {}}, "2"},
            {"a kind", {Filter::Kind, EntryKind::Document, {}}, "3"},
            {"a member", {Filter::Member, {}, u"Nils"_s}, "3"},
            {"a tag", {Filter::Tag, {}, u"money"_s}, "1"},
            {"a tag of the trash alone", {Filter::Tag, {}, u"gone"_s}, ""},
            {"the trash", {Filter::Trash, {}, {}}, "4"},
        });
    }
    void letsThroughWhatItSays()
    {
        const auto [filter, expected] = row<KeeperFilter, QByteArray>();
        QByteArray ids;
        for (const KeeperSummary &entry : household()) {
            if (filter.passes(entry, QDate(2026, 11, 21)))
                ids += entry.id;
        }
        QCOMPARE(ids, expected);
    }

    void offersWhatTheEntriesHave()
    {
        QStringList captions;
        for (const KeeperFilter &filter : KeeperFilters::of(household()))
            captions.append(KeeperFilters::caption(filter));
        QCOMPARE(captions.join(u'|'), u"All entries|Favourites|Expiring within 90 days|Log-ins|Documents|"
                                      "Of Anne|Of Nils|Tag: Ämter|Tag: money|Trash"_s);
    }

    void namesEachCharacter_data()
    {
        rows<char32_t, QString>({
            {"a small letter", U'l', u"small l"_s},
            {"a capital", U'I', u"capital I"_s},
            {"with an accent", U'\u00c9', u"capital \u00c9"_s},
            {"a digit", U'1', u"digit 1"_s},
            {"a sign", U'|', u"vertical bar"_s},
            {"a blank", U' ', u"blank"_s},
            {"a sign without a name", U'\U0001F511', u"sign \U0001F511"_s},
        });
    }
    void namesEachCharacter()
    {
        const auto [character, name] = row<char32_t, QString>();
        QCOMPARE(SpokenSecret::nameOf(character), name);
    }
};

QTEST_APPLESS_MAIN(TestKeeperFilter)
#include "tst_keeperfilter.moc"
