// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/model/keepercheckup.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QDate today(2026, 11, 23);

KeeperSummary logIn(const QString &title, const QByteArray &hash, int length)
{
    return {.id = title.toUtf8(),
            .kind = EntryKind::LogIn,
            .title = title,
            .hasPassword = true,
            .hasOneTimeSecret = true,
            .passwordChanged = QDate(2026, 1, 1).startOfDay(),
            .passwordHash = hash,
            .passwordLength = length};
}

KeeperSummary changedOn(const QString &title, QDate day)
{
    KeeperSummary entry = logIn(title, title.toUtf8(), 20);
    entry.passwordChanged = day.startOfDay();
    return entry;
}

KeeperSummary expiringOn(const QString &title, QDate day)
{
    return {.id = title.toUtf8(), .kind = EntryKind::Document, .title = title, .expires = day};
}

KeeperSummary without(KeeperSummary entry)
{
    entry.hasOneTimeSecret = false;
    entry.address = u"example.org"_s;
    return entry;
}

KeeperSummary trashed(KeeperSummary entry)
{
    entry.isTrashed = true;
    return entry;
}

KeeperSummary damaged(KeeperSummary entry)
{
    entry.damagedPlace = 17;
    return entry;
}

} // namespace

/// What the check-up finds on 23 November 2026.
class TestKeeperCheckup : public QObject
{
    Q_OBJECT
private slots:
    void finds_data()
    {
        using List = QList<KeeperSummary>;
        // What is found: reused, short, old, expiring, without a one-time code.
        rows<List, QStringList>({
            {"nothing at all", {}, {}},
            {"nothing wrong", {logIn(u"A"_s, "1", 12), logIn(u"B"_s, "2", 40)}, {}},
            {"one password twice, and again",
             {logIn(u"A"_s, "1", 12), logIn(u"B"_s, "2", 12), logIn(u"C"_s, "1", 12), logIn(u"D"_s, "2", 12)},
             {u"0 A: the same as C"_s, u"0 C: the same as A"_s, u"0 B: the same as D"_s,
              u"0 D: the same as B"_s}},
            {"one password for many",
             {logIn(u"A"_s, "1", 12), logIn(u"B"_s, "1", 12), logIn(u"C"_s, "1", 12), logIn(u"D"_s, "1", 12),
              logIn(u"E"_s, "1", 12)},
             {u"0 A: the same as B, C, D and 1 more"_s, u"0 B: the same as A, C, D and 1 more"_s,
              u"0 C: the same as A, B, D and 1 more"_s, u"0 D: the same as A, B, C and 1 more"_s,
              u"0 E: the same as A, B, C and 1 more"_s}},
            {"no password is not one password", {logIn(u"A"_s, {}, 0), logIn(u"B"_s, {}, 0)}, {}},
            {"trash and damage",
             {logIn(u"A"_s, "1", 12), trashed(logIn(u"B"_s, "1", 3)), damaged(logIn(u"C"_s, "1", 3)),
              trashed(expiringOn(u"D"_s, today))},
             {}},
            {"short ones",
             {logIn(u"A"_s, "1", 11), logIn(u"B"_s, "2", 1)},
             {u"1 A: 11 characters"_s, u"1 B: 1 character"_s}},
            {"old ones, the oldest first",
             {changedOn(u"A"_s, {2023, 11, 23}), changedOn(u"B"_s, {2023, 11, 24}),
              changedOn(u"C"_s, {2019, 2, 1})},
             {u"2 C: since February 1, 2019"_s, u"2 A: since November 23, 2023"_s}},
            {"what expires, the first to do so first",
             {expiringOn(u"A"_s, {2027, 2, 21}), expiringOn(u"B"_s, {2027, 2, 22}),
              expiringOn(u"C"_s, {2026, 11, 24}), expiringOn(u"D"_s, {2026, 11, 20}),
              expiringOn(u"E"_s, today)},
             {u"3 D: expired 3 days ago, November 20, 2026"_s, u"3 E: expires today, November 23, 2026"_s,
              u"3 C: expires tomorrow, November 24, 2026"_s,
              u"3 A: expires in 90 days, February 21, 2027"_s}},
            {"no one-time code",
             {without(logIn(u"A"_s, "1", 12)), logIn(u"B"_s, "2", 12)},
             {u"4 A: example.org"_s}},
        });
    }

    void finds()
    {
        const auto [entries, expected] = row<QList<KeeperSummary>, QStringList>();
        QStringList found;
        const auto sections = KeeperCheckup::of(entries, today, DateStyle::Usa);
        QCOMPARE(sections.size(), 5);
        for (const KeeperCheckup::Section &section : sections) {
            for (const KeeperCheckup::Line &line : section.lines) {
                found << QString::number(int(section.finding)) + u' ' + line.title + u": "_s + line.words;
                QCOMPARE(line.id, line.title.toUtf8());
            }
        }
        QCOMPARE(found, expected);
    }

    void countsWhatExpires()
    {
        const QList<KeeperSummary> entries{expiringOn(u"A"_s, {2026, 12, 23}),
                                           expiringOn(u"B"_s, {2026, 12, 24}),
                                           expiringOn(u"C"_s, {2020, 1, 1}), expiringOn(u"D"_s, {})};
        QCOMPARE(KeeperCheckup::expiring(entries, today, 30), 2);
    }
};

QTEST_APPLESS_MAIN(TestKeeperCheckup)
#include "tst_keepercheckup.moc"
