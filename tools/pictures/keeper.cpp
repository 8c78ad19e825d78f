// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/model/keeper.h"
#include "keeper/model/keeperkinds.h"
#include "keeper/window/entryform.h"
#include "keeper/window/secretbox.h"
#include "storage/sealing/recoverycode.h"
#include "tools/pictures/albums.h"
#include "tools/pictures/picturesession.h"

#include <QComboBox>
#include <QFile>
#include <QListView>
#include <QPlainTextEdit>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto master = "correct horse battery staple"_L1;

KeeperEntry entryOf(EntryKind kind, std::initializer_list<std::pair<quint8, QString>> texts)
{
    KeeperEntry entry;
    entry.setKind(kind);
    for (const auto &[id, text] : texts)
        entry.setText(id, text);
    return entry;
}

/// One entry of each kind and some more, as a household has them.
QList<KeeperEntry> household()
{
    using namespace KeeperField;
    KeeperEntry mail = entryOf(EntryKind::LogIn, {{Title, u"Mail"_s},
                                                  {UserName, u"anne.lind@example.org"_s},
                                                  {Password, u"lI1-O0o 5S$|rain"_s},
                                                  {Address, u"https://mail.example.org"_s},
                                                  {OneTimeSecret, u"JBSWY3DPEHPK3PXP"_s},
                                                  {Tags, u"daily, internet"_s},
                                                  {Member, u"Anne"_s},
                                                  {Favourite, u"1"_s},
                                                  {Notes, u"The old address still forwards to this one."_s}});
    mail.fields.append({Own, true, u"Security question"_s, u"Rex"_s});
    mail.fields.append({Own, false, u"Customer number"_s, u"44-1987"_s});
    return {mail,
            entryOf(EntryKind::LogIn, {{Title, u"Power company"_s},
                                       {UserName, u"lind-7781"_s},
                                       {Password, u"meadow-lantern-copper-otter"_s},
                                       {Address, u"power.example.com"_s},
                                       {Tags, u"house"_s}}),
            entryOf(EntryKind::LogIn, {{Title, u"Library"_s},
                                       {UserName, u"annel"_s},
                                       {Password, u"meadow-lantern-copper-otter"_s},
                                       {Member, u"Anne"_s}}),
            entryOf(EntryKind::BankAccount, {{Title, u"Savings bank"_s},
                                             {BankName, u"Savings Bank of the Lakes"_s},
                                             {BankHolder, u"Anne and Nils Lind"_s},
                                             {BankAccountNumber, u"0042 1177 9830"_s},
                                             {BankCode, u"SBLKUS33"_s},
                                             {BankPin, u"4711"_s},
                                             {Address, u"https://bank.example.org"_s},
                                             {UserName, u"alind"_s},
                                             {Password, u"kT7#vw-92Qm!"_s},
                                             {Tags, u"money"_s},
                                             {Favourite, u"1"_s}}),
            entryOf(EntryKind::Card, {{Title, u"Credit card"_s},
                                      {CardHolder, u"Nils Lind"_s},
                                      {CardNumber, u"5412 7512 3412 3456"_s},
                                      {CardValidFrom, u"2024-02-01"_s},
                                      {CardCode, u"912"_s},
                                      {CardPin, u"0815"_s},
                                      {CardLostCall, u"+1 555 0142"_s},
                                      {Expires, u"2027-01-31"_s},
                                      {Member, u"Nils"_s},
                                      {Tags, u"money"_s}}),
            entryOf(EntryKind::WiFi, {{Title, u"Home Wi-Fi"_s},
                                      {NetworkName, u"Lindenhof"_s},
                                      {Password, u"seven blue herons fly"_s},
                                      {NetworkProtection, u"WPA2"_s},
                                      {RouterAddress, u"192.168.1.1"_s},
                                      {Tags, u"house"_s}}),
            entryOf(EntryKind::Licence, {{Title, u"Drawing program"_s},
                                         {Product, u"Sketchwell 4"_s},
                                         {LicenceKey, u"AB12-CD34-EF56-GH78"_s},
                                         {LicensedTo, u"Karin Lind"_s},
                                         {BoughtOn, u"2025-11-02"_s},
                                         {OrderNumber, u"30019-B"_s},
                                         {Member, u"Karin"_s}}),
            entryOf(EntryKind::Document, {{Title, u"Passport of Anne"_s},
                                          {DocumentNumber, u"C01X00T47"_s},
                                          {DocumentHolder, u"Anne Lind"_s},
                                          {DocumentIssued, u"2016-11-30"_s},
                                          {DocumentIssuedBy, u"City of Lakeside"_s},
                                          {DocumentPlace, u"Grey folder, upper shelf of the study"_s},
                                          {Expires, u"2026-11-10"_s},
                                          {Member, u"Anne"_s}}),
            entryOf(EntryKind::Note, {{Title, u"Where the spare keys are"_s},
                                      {Notes, u"House: with Vera, no. 14.\nCar: in the blue tin."_s}})};
}

/// A keeper in the household's folder that opens in no time.
void furnish(Program &program)
{
    Keeper keeper(program.folder, program.clock, PasswordCost::minimum());
    KeyDerivation key = keeper.newKey(master);
    KeyDerivation code = keeper.newCodeKey(RecoveryCode::generate());
    key.run();
    code.run();
    QList<KeeperEntry> entries = household();
    if (!keeper.create(key, code) || !keeper.saveAll(entries))
        qFatal("the keeper cannot be written");
}

void unlock(PictureSession &session)
{
    session.fill("masterPassword", master);
    session.click("openKeeper");
    const auto isOpen = [&] { return session.find<QWidget>("keeperPane").isVisible(); };
    if (!QTest::qWaitFor(isOpen, 60'000))
        qFatal("the keeper does not open");
}

void takeSetUp(const Camera &camera)
{
    PictureSession session(camera);
    session.open(Function::PasswordKeeper);
    session.take("keeper-empty");
    session.fill("newMaster", u"summer"_s);
    session.take("keeper-weak-master");
    session.fill("newMaster", master);
    session.fill("newMasterAgain", master);
    session.click("makeKeeper");
    const auto isMade = [&] { return session.find<QWidget>("keeperPane").isVisible(); };
    if (!QTest::qWaitFor(isMade, 60'000))
        qFatal("the keeper is not made");
    session.take("keeper-code");
    session.click("codeWritten");
    session.take("keeper-no-entries");
}

void takeKinds(PictureSession &session)
{
    const QListView &list = session.find<QListView>("keeperList");
    for (int row = 0; row < list.model()->rowCount(); ++row) {
        session.clickRow("keeperList", row);
        const auto kind = EntryKind(session.find<QComboBox>("entryKind").currentData().toInt());
        session.take(qPrintable(u"keeper-"_s + KeeperKinds::word(kind)));
    }
}

/// A file of another program, with what is there already, what differs and what cannot be read.
void takeImport(PictureSession &session)
{
    const QString path = session.program().folder.filePath(u"log-ins.csv"_s);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) ||
        file.write("Title,User name,Password,Web address\n"
                   "Power company,lind-7781,copper-otter,power.example.com\n"
                   "Library,annel,meadow-lantern-copper-otter,\n"
                   "Book shop,anne,pa,ss,https://books.example.com\n"
                   "Tax office,karin,blue-heron-9,https://tax.example.org\n"
                   ",,,\n"
                   "Garage,nils,silver-birch-4,garage.example.net\n") < 1)
        qFatal("the file of log-ins cannot be written");
    file.close();
    session.box([&] { session.trigger("mUImport"); },
                [&] {
                    session.fill("fileNameEdit", path);
                    session.key(Qt::Key_Return);
                });
    session.take("keeper-import");
    session.click("keeperImportClose");
}

/// On paper: the options, the sheet for the safe and its page with the secrets.
void takePaper(PictureSession &session)
{
    session.trigger("mOPrt");
    session.take("keeper-print");
    session.click("keeperPrintShow");
    session.take("keeper-preview");
    session.key(Qt::Key_Escape);
    session.trigger("mUSheet");
    session.find<QPlainTextEdit>("sheetWhere").setPlainText(u"The will: notary Holm, Lakeside"_s);
    session.find<QPlainTextEdit>("sheetCall").setPlainText(u"Vera Sund, +1 555 0199"_s);
    session.take("keeper-sheet");
    session.click("sheetShow");
    session.click("showSecrets");
    session.take("keeper-sheet-preview");
    session.takePage("keeper-sheet-page");
    session.key(Qt::Key_Escape);
}

} // namespace

void Albums::keeper(const Camera &camera)
{
    takeSetUp(camera);
    PictureSession session(camera);
    furnish(session.program());
    session.open(Function::PasswordKeeper);
    session.take("keeper-locked");
    session.fill("masterPassword", u"wrong"_s);
    session.click("openKeeper");
    QTest::qWait(500);
    session.takeAtOnce("keeper-wrong");
    QTest::qWait(1500);
    unlock(session);
    session.take("keeper-list");
    takeKinds(session);
    session.clickRow("keeperList", 0);
    session.trigger("mVShow");
    session.take("keeper-shown");
    session.trigger("mVShow");
    session.trigger("mUMake");
    session.take("keeper-generator");
    session.click("makeWords");
    session.take("keeper-generator-words");
    session.click("generatorClose");
    session.trigger("mOSet");
    session.take("keeper-settings");
    session.click("settingsClose");
    session.trigger("mVCheck");
    session.take("keeper-check-up");
    session.click("checkupClose");
    takeImport(session);
    session.trigger("mUMaster");
    session.take("keeper-change-master");
    session.click("masterClose");
    session.find<QListView>("keeperList").selectAll();
    session.take("keeper-several");
    takePaper(session);
    session.fill("keeperSearch", u"zebra"_s);
    session.take("keeper-nothing-found");
    session.trigger("mOLock");
    session.click("useRecoveryCode");
    session.take("keeper-by-code");
}
