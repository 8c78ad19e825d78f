// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/holdings.h"
#include "tests/support/testfiles.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// "function: name", a line each.
QStringList told(const Holdings &holdings)
{
    QStringList lines;
    for (const BackupItem &item : holdings.items)
        lines += item.function + u": "_s + item.name;
    return lines;
}

} // namespace

/// What belongs to whom, and what stays behind.
class TestHoldings : public QObject
{
    Q_OBJECT

private slots:
    void belongToTheirFunctions()
    {
        const TestFolder folder;
        const TestFolder outside;
        QVERIFY(QDir(folder.path(u"."_s)).mkpath(u"Pictures"_s) &&
                QDir(folder.path(u"."_s)).mkpath(u"Snapshots"_s));
        for (const char *name :
             {"ADDBK1.FIL", "Zo\u00eb.Fil", "GColor1.Fil", "PCtrl1.Fil", "Quillery.trash", "Notes.txt",
              "Pictures/Elm.jpg", "Pictures/Unknown.jpg", "Pictures/WP3.jpg", "WP3.jpg", "Quillery.lock",
              "Quillery.changes", "Addbk1.Fil.quillery-part", "x.quillery-staged", "y.quillery-waiting",
              "Snapshots/2026-11-22.zip", "DiskInfo.Abk", "LPT1.old"})
            folder.put(QString::fromUtf8(name), "x");
        outside.put(u"Oak.jpg"_s, "oak");
        const Holdings all = Holdings::of(
            folder.folder(),
            {{u"AddressBook"_s, {u"Addbk1.Fil"_s, u"Addbk2.Fil"_s}, {outside.path(u"Oak.jpg"_s)}},
             {u"WeightTracker"_s,
              {u"Zo\u00eb.Fil"_s},
              {folder.path(u"Pictures/Elm.jpg"_s), outside.path(u"Oak.jpg"_s)}}},
            "[desk]\n");
        const QString oak = u"Elsewhere"_s + outside.path(u"Oak.jpg"_s);
        QCOMPARE(told(all),
                 (QStringList{u"Password: PCtrl1.Fil"_s, u"AddressBook: ADDBK1.FIL"_s,
                              u"WeightTracker: Zo\u00eb.Fil"_s, u"Program settings: Desk.conf"_s,
                              u"Program settings: GColor1.Fil"_s, u"Other files: Notes.txt"_s,
                              u"Other files: Quillery.trash"_s, u"AddressBook: "_s + oak,
                              u"WeightTracker: Pictures/Elm.jpg"_s, u"Program settings: WP3.jpg"_s,
                              u"Other files: Pictures/Unknown.jpg"_s, u"Other files: Pictures/WP3.jpg"_s}));
        QCOMPARE(all.leftOut, QStringList{u"LPT1.old"_s});
        QCOMPARE(told(all.only({u"AddressBook"_s})),
                 (QStringList{u"AddressBook: ADDBK1.FIL"_s, u"AddressBook: "_s + oak}));
        QCOMPARE(all.bytes(), 10 + 7 + 3);
    }

    void leaveOutTheProgramThatLiesAmongThem()
    {
        const TestFolder folder;
        QVERIFY(QDir(folder.path(u"."_s)).mkpath(u"modules"_s));
        for (const QString &name : {u"modules/heif.so"_s, u"qt.conf"_s, u"2026.Fil"_s})
            folder.put(name, "x");
        const auto names = [&folder] { return told(Holdings::of(folder.folder(), {}, {})).size(); };
        QCOMPARE(names(), 3);
        folder.put(u"quillery"_s, "program");
        QCOMPARE(names(), 1);
    }
};

QTEST_GUILESS_MAIN(TestHoldings)
#include "tst_holdings.moc"
