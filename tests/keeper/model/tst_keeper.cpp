// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/model/keeper.h"
#include "keeper/model/keeperpayload.h"
#include "storage/changeset.h"
#include "storage/sealing/recoverycode.h"
#include "tests/support/failingdisk.h"
#include "tests/support/filesizelimit.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"

#include <QRandomGenerator>
#include <QThread>

#include <map>

using namespace Qt::Literals::StringLiterals;
using State = Keeper::State;

namespace {

const QString keyFile = u"Secfile2.fil"_s;
const QString entryFile = u"Secfile1.Fil"_s;
const QString master = u"Correct h\u00f6rse"_s;
const QString code = u"7HJ4-KM9Q-RST2-VWXY-Z01A-BC3D-EFJN"_s;
constexpr qsizetype recordLength = 2048;

class StoppedClock final : public Clock
{
public:
    QDateTime now() const override { return time; }
    QDateTime time{QDate(2026, 11, 23), QTime(14, 30)};
};

KeyDerivation run(KeyDerivation derivation)
{
    derivation.run();
    return derivation;
}

KeeperEntry logIn(const QString &title, const QString &password)
{
    KeeperEntry entry;
    entry.setKind(EntryKind::LogIn);
    entry.setText(KeeperField::Title, title);
    entry.setText(KeeperField::UserName, u"anne"_s);
    entry.setText(KeeperField::Password, password);
    return entry;
}

/// A keeper on a folder of its own.
class Desk
{
public:
    explicit Desk(bool isSetUp = true)
    {
        if (isSetUp)
            setUp();
    }

    void setUp() { QVERIFY(keeper.create(run(keeper.newKey(master)), run(keeper.newCodeKey(code)))); }
    bool unlock(Keeper &which, const QString &typed, KeySlots::Slot slot = KeySlots::Password) const
    {
        std::optional<KeeperOpening> opening = which.opening(typed, slot);
        if (!opening)
            return false;
        opening->run();
        return which.unlock(std::move(*opening));
    }
    /// As after the next start of the program.
    void reopen()
    {
        keeper.lock();
        QVERIFY(ChangeSet::recover(files.folder()));
        QVERIFY(unlock(keeper, master));
    }
    QByteArray add(const QString &title, const QString &password)
    {
        KeeperEntry entry = logIn(title, password);
        return keeper.save(entry) ? entry.id : QByteArray();
    }
    bool change(const QByteArray &id, const QString &password)
    {
        KeeperEntry entry = keeper.entry(id).value_or(KeeperEntry());
        entry.setText(KeeperField::Password, password);
        clock.time = clock.time.addSecs(60);
        return keeper.save(entry);
    }
    QString password(const QByteArray &id, quint32 version = 0) const
    {
        const std::optional<KeeperEntry> entry = keeper.entry(id, version);
        return entry ? entry->text(KeeperField::Password) : u"none"_s;
    }
    /// "Bank", "Mail (trash)", "damaged 3" ...
    QStringList list() const
    {
        QStringList list;
        for (const KeeperSummary &entry : keeper.entries())
            list += entry.damagedPlace != 0 ? u"damaged %1"_s.arg(entry.damagedPlace)
                    : entry.isTrashed       ? entry.title + u" (trash)"_s
                                            : entry.title;
        return list;
    }
    void damage(int record, qsizetype at = 1000)
    {
        QByteArray bytes = files.bytes(entryFile);
        at += (record - 1) * recordLength;
        bytes[at] = char(bytes[at] ^ 4);
        files.put(entryFile, bytes);
    }

    TestFolder files;
    StoppedClock clock;
    Keeper keeper{files.folder(), clock, PasswordCost::minimum()};
};

} // namespace

class TestKeeper : public QObject
{
    Q_OBJECT
private slots:
    void isSetUpOnce()
    {
        Desk desk(false);
        QCOMPARE(desk.keeper.state(), State::None);
        QVERIFY(!desk.keeper.opening(master, KeySlots::Password));
        desk.setUp();
        QCOMPARE(desk.keeper.state(), State::Open);
        QCOMPARE(desk.files.bytes(keyFile).size(), 1024);
        QCOMPARE(desk.files.bytes(entryFile).size(), 16 * recordLength);
        QVERIFY(!Keeper(desk.files.folder(), desk.clock, PasswordCost::minimum())
                     .create(run(desk.keeper.newKey(u"other"_s)), run(desk.keeper.newCodeKey(code))));
    }

    void opensWithPasswordAndCode()
    {
        Desk desk;
        const QByteArray id = desk.add(u"Bank"_s, u"secret"_s);
        desk.keeper.lock();
        QCOMPARE(desk.keeper.state(), State::Locked);
        QVERIFY(desk.keeper.entries().isEmpty() && !desk.keeper.entry(id));

        QVERIFY(!desk.unlock(desk.keeper, u"wrong"_s));
        QVERIFY(!desk.unlock(desk.keeper, u"wrong again"_s));
        QCOMPARE(desk.keeper.wrongAnswers().count, 2U);
        QVERIFY(!desk.keeper.opening(u"7HJ4-KM9Q"_s, KeySlots::Recovery)); // a slip
        QCOMPARE(desk.keeper.wrongAnswers().count, 2U);
        QVERIFY(desk.unlock(desk.keeper, code.toLower(), KeySlots::Recovery));
        QCOMPARE(desk.keeper.wrongAnswers().count, 0U);
        QCOMPARE(desk.list(), QStringList{u"Bank"_s});

        const std::optional<KeeperOpening> none = desk.keeper.opening({}, KeySlots::Password);
        QVERIFY(!none);
        std::optional<KeeperOpening> again = desk.keeper.checking(u"wrong"_s, KeySlots::Password);
        again->run();
        QVERIFY(!desk.keeper.isRight(*again));
        QCOMPARE(desk.keeper.wrongAnswers().count, 1U);
        QCOMPARE(desk.keeper.state(), State::Open);
    }

    void opensOnAThreadOfItsOwn()
    {
        Desk desk;
        desk.add(u"Bank"_s, u"secret"_s);
        desk.keeper.lock();
        std::optional<KeeperOpening> opening = desk.keeper.opening(master, KeySlots::Password);
        const std::unique_ptr<QThread> thread(QThread::create([&opening] { opening->run(); }));
        thread->start();
        thread->wait();
        QVERIFY(desk.keeper.unlock(std::move(*opening)));
        QCOMPARE(desk.list(), QStringList{u"Bank"_s});
    }

    void changesWhatOpensIt()
    {
        Desk desk;
        const QByteArray entries = desk.files.bytes(entryFile);
        QVERIFY(desk.keeper.changeMaster(run(desk.keeper.newKey(u"New"_s))));
        const QString newCode = RecoveryCode::generate();
        QVERIFY(desk.keeper.changeCode(run(desk.keeper.newCodeKey(newCode))));
        QCOMPARE(desk.files.bytes(entryFile), entries);
        desk.keeper.lock();
        QVERIFY(!desk.unlock(desk.keeper, master));
        QVERIFY(!desk.unlock(desk.keeper, code, KeySlots::Recovery));
        QVERIFY(desk.unlock(desk.keeper, newCode, KeySlots::Recovery));
        desk.keeper.lock();
        QVERIFY(desk.unlock(desk.keeper, u"New"_s));
    }

    void keepsEveryFieldOfAnEntry()
    {
        Desk desk;
        KeeperEntry entry = logIn(u"Power company"_s, u"p\u00e4ss\U0001f511"_s);
        entry.setTags({u"house"_s, u"bills"_s});
        entry.setText(KeeperField::Expires, u"2027-01-31"_s);
        entry.setText(KeeperField::OneTimeSecret, u"JBSWY3DPEHPK3PXP"_s);
        entry.setText(KeeperField::Notes, u"Ask J\u00f6rg\nfor the meter"_s.repeated(200)); // three parts
        entry.fields.append({KeeperField::Own, true, u"Customer PIN"_s, u"4711"_s});
        entry.fields.append({KeeperField::Own, false, u"Meter"_s, u"12 345"_s});
        entry.fields.append({200, true, {}, u"of a later version"_s});
        QVERIFY(desk.keeper.save(entry));
        desk.reopen();
        QCOMPARE(desk.keeper.entry(entry.id), entry);
        const KeeperSummary summary = desk.keeper.summary(0);
        QCOMPARE(summary.title, u"Power company"_s);
        QCOMPARE(summary.tags, (QStringList{u"house"_s, u"bills"_s}));
        QCOMPARE(summary.expires, QDate(2027, 1, 31));
        QCOMPARE(summary.passwordLength, 5);
        QVERIFY(summary.hasPassword && summary.hasOneTimeSecret && !summary.isFavourite);
        QCOMPARE(summary.passwordChanged, desk.clock.time);
    }

    void refusesWhatIsTooLong()
    {
        Desk desk;
        KeeperEntry entry = logIn(u"Book"_s, u"x"_s);
        entry.setText(KeeperField::Notes, QString(62'000, u'n'));
        QVERIFY(desk.keeper.save(entry));
        entry.setText(KeeperField::Notes, QString(64'000, u'n'));
        QVERIFY(!desk.keeper.save(entry));
        entry.setText(KeeperField::Notes, QString(70'000, u'n'));
        QVERIFY(!desk.keeper.save(entry));
        QCOMPARE(desk.keeper.entry(entry.id)->text(KeeperField::Notes).size(), 62'000);
    }

    void keepsFiveEarlierVersions()
    {
        Desk desk;
        const QByteArray id = desk.add(u"Bank"_s, u"1"_s);
        for (int version = 2; version <= 9; ++version)
            QVERIFY(desk.change(id, QString::number(version)));
        desk.reopen();
        QStringList earlier;
        for (const KeeperVersion &version : desk.keeper.versions(id))
            earlier += desk.password(id, version.number);
        QCOMPARE(earlier, (QStringList{u"8"_s, u"7"_s, u"6"_s, u"5"_s, u"4"_s}));
        QCOMPARE(desk.password(id), u"9"_s);
        QCOMPARE(desk.files.bytes(entryFile).size(), 16 * recordLength);
    }

    void remembersSinceWhenAPasswordIsTheSame()
    {
        Desk desk;
        const QByteArray id = desk.add(u"Bank"_s, u"secret"_s);
        const QDateTime first = desk.clock.time;
        QVERIFY(desk.change(id, u"secret"_s));
        QCOMPARE(desk.keeper.summary(0).passwordChanged, first);
        QCOMPARE(desk.keeper.summary(0).changed, desk.clock.time);
        QVERIFY(desk.change(id, u"other"_s));
        QCOMPARE(desk.keeper.summary(0).passwordChanged, desk.clock.time);
        const QByteArray mail = desk.add(u"Mail"_s, u"other"_s);
        QCOMPARE(desk.keeper.summary(0).passwordHash, desk.keeper.summary(1).passwordHash);
        QVERIFY(desk.change(mail, u"else"_s));
        QVERIFY(desk.keeper.summary(0).passwordHash != desk.keeper.summary(1).passwordHash);
    }

    void growsBySixteenSealedRecords()
    {
        Desk desk;
        QList<KeeperEntry> entries;
        for (int i = 0; i < 20; ++i)
            entries.append(logIn(u"Entry %1"_s.arg(i, 2, 10, QChar(u'0')), u"x"_s));
        QVERIFY(desk.keeper.saveAll(entries));
        QCOMPARE(desk.files.bytes(entryFile).size(), 32 * recordLength);
        desk.reopen();
        QCOMPARE(desk.keeper.count(), 20);
        QCOMPARE(desk.list().last(), u"Entry 19"_s);
        QVERIFY(desk.keeper.damagedPlaces().isEmpty());
        const QByteArray bytes = desk.files.bytes(entryFile);
        QVERIFY(!bytes.contains("Entry") && !bytes.contains(QByteArray(16, '\0')));
    }

    void keepsBothOfTwoVersionsSavedAtOnce()
    {
        Desk desk;
        const QByteArray id = desk.add(u"Bank"_s, u"1"_s);
        QList<KeeperEntry> entries{*desk.keeper.entry(id), *desk.keeper.entry(id)};
        entries[0].setText(KeeperField::Password, u"2"_s);
        entries[1].setText(KeeperField::Password, u"3"_s);
        QVERIFY(desk.keeper.saveAll(entries));
        desk.reopen();
        QCOMPARE(desk.password(id), u"3"_s);
        QCOMPARE(desk.keeper.versions(id).size(), 2);
    }

    void putsIntoTheTrashAndBack()
    {
        Desk desk;
        const QByteArray bank = desk.add(u"Bank"_s, u"1"_s);
        const QByteArray mail = desk.add(u"Mail"_s, u"2"_s);
        QVERIFY(desk.change(bank, u"3"_s));
        const QDateTime changed = desk.clock.time;
        desk.clock.time = desk.clock.time.addDays(1);
        QVERIFY(desk.keeper.setTrashed({bank}, true));
        desk.reopen();
        QCOMPARE(desk.list(), (QStringList{u"Bank (trash)"_s, u"Mail"_s}));
        QCOMPARE(desk.keeper.summary(0).trashedAt, desk.clock.time);
        QCOMPARE(desk.keeper.summary(0).changed, changed);
        QVERIFY(desk.keeper.setTrashed({bank}, false));
        desk.reopen();
        QCOMPARE(desk.list(), (QStringList{u"Bank"_s, u"Mail"_s}));
        QCOMPARE(desk.password(bank), u"3"_s);
        QCOMPARE(desk.keeper.summary(0).changed, changed);
        QCOMPARE(desk.keeper.versions(bank).size(), 1);
        QVERIFY(!desk.keeper.removeForGood({bank}) || desk.list().contains(u"Bank"_s));
        QVERIFY(desk.keeper.setTrashed({bank, mail}, true));
        QVERIFY(desk.keeper.removeForGood(desk.keeper.trash()));
        desk.reopen();
        QCOMPARE(desk.list(), QStringList());
    }

    void emptiesTheTrashAfterThirtyDays()
    {
        Desk desk;
        const QByteArray bank = desk.add(u"Bank"_s, u"1"_s);
        QVERIFY(desk.keeper.setTrashed({bank}, true));
        desk.clock.time = desk.clock.time.addDays(29);
        desk.reopen();
        QCOMPARE(desk.list(), QStringList{u"Bank (trash)"_s});
        desk.clock.time = desk.clock.time.addDays(1);
        desk.reopen();
        QCOMPARE(desk.list(), QStringList());
    }

    void keepsOneDraft()
    {
        Desk desk;
        KeeperEntry typed = logIn(u"New"_s, u"half"_s);
        QVERIFY(desk.keeper.saveDraft(typed));
        typed.setText(KeeperField::Notes, u"more"_s);
        typed.id = desk.add(u"Bank"_s, u"1"_s);
        QVERIFY(desk.keeper.saveDraft(typed));
        desk.reopen();
        QCOMPARE(desk.keeper.draft(), typed);
        QCOMPARE(desk.list(), QStringList{u"Bank"_s});
        QVERIFY(desk.keeper.dropDraft());
        desk.reopen();
        QVERIFY(!desk.keeper.draft());
    }

    void remembersItsSettings()
    {
        Desk desk;
        KeeperSettings settings;
        settings.lockMinutes = 10;
        settings.clipboardSeconds = 60;
        settings.printed = {{desk.clock.time, u"Emergency sheet"_s, true, {u"Bank"_s, u"Mail"_s}}};
        QVERIFY(desk.keeper.saveSettings(settings));
        desk.reopen();
        QCOMPARE(desk.keeper.settings(), settings);
        settings.printed.fill({desk.clock.time, u"List"_s, false, {QString(300, u't')}}, 400);
        QVERIFY(desk.keeper.saveSettings(settings));
        desk.reopen();
        QVERIFY(desk.keeper.settings().printed.size() > 80);
    }

    void tellsExpiriesByChoiceAlone()
    {
        Desk desk;
        KeeperEntry passport;
        passport.setKind(EntryKind::Document);
        passport.setText(KeeperField::Title, u"Passport"_s);
        passport.setText(KeeperField::Expires, u"2026-12-01"_s); // day 20788
        QVERIFY(desk.keeper.save(passport));
        QCOMPARE(desk.files.bytes(keyFile).size(), 1024);
        KeeperSettings settings;
        settings.tellsExpiry = true;
        QVERIFY(desk.keeper.saveSettings(settings));
        QCOMPARE(desk.files.bytes(keyFile).sliced(1024),
                 QByteArray::fromHex("0100000034510000") + QByteArray(504, '\0'));
        QVERIFY(desk.keeper.setTrashed({passport.id}, true));
        QCOMPARE(desk.files.bytes(keyFile).sliced(1024), QByteArray(512, '\0'));
    }

    void findsWordsWhateverTheirCase_data()
    {
        rows<QString, QStringList>({
            {"part of a word", u"OWER"_s, {u"Power"_s}},
            {"without accents", u"jorg strasse"_s, {u"J\u00f6rg"_s}},
            {"two words of two fields", u"bills power"_s, {u"Power"_s}},
            {"user name of all", u"anne"_s, {u"J\u00f6rg"_s, u"Power"_s}},
            {"not across fields", u"power anne x"_s, {}},
            {"a password", u"secret"_s, {}},
            {"a note that is marked secret", u"hidden"_s, {}},
            {"nothing typed", {}, {u"J\u00f6rg"_s, u"Power"_s}},
            {"other letters", u"\u03b1\u03b8\u03b7\u03bd\u03b1"_s, {u"J\u00f6rg"_s}},
        });
    }

    void findsWordsWhateverTheirCase()
    {
        const auto [text, titles] = row<QString, QStringList>();
        Desk desk;
        KeeperEntry power = logIn(u"Power"_s, u"secret"_s);
        power.setTags({u"Bills"_s});
        power.fields.append({KeeperField::Notes, true, {}, u"hidden"_s});
        KeeperEntry letter = logIn(u"J\u00f6rg"_s, u"secret"_s);
        letter.setText(KeeperField::Notes, u"Stra\u00dfe 5, \u0391\u03b8\u03ae\u03bd\u03b1"_s);
        QList<KeeperEntry> entries{power, letter};
        QVERIFY(desk.keeper.saveAll(entries));
        QStringList found;
        for (const int place : desk.keeper.search(text))
            found += desk.keeper.summary(place).title;
        QCOMPARE(found, titles);
    }

    void tellsWhatTheFilesAre_data()
    {
        const QByteArray noise = noiseOf(4096);
        using Bytes = std::optional<QByteArray>; // nothing: as they are
        rows<Bytes, Bytes, State, QStringList>({
            {"as they are", {}, {}, State::Locked, {}},
            {"no entries", {}, ""_ba, State::FileMissing, {}},
            {"no key", ""_ba, {}, State::FileMissing, {}},
            {"neither", ""_ba, ""_ba, State::None, {}},
            {"a key of noise", noise, {}, State::KeyFileDamaged, {}},
            {"a letter alone", "Dear Anne"_ba, ""_ba, State::Foreign, {u"Secfile2.fil"_s}},
            {"two letters", "Dear"_ba, "Anne"_ba, State::Foreign, {u"Secfile1.Fil"_s, u"Secfile2.fil"_s}},
            {"entries that are a letter", {}, QByteArray(9000, 'x'), State::Foreign, {u"Secfile1.Fil"_s}},
            {"entries of another keeper", {}, noise, State::Locked, {}},
        });
    }

    void tellsWhatTheFilesAre()
    {
        using Bytes = std::optional<QByteArray>;
        const auto [keys, entries, state, foreign] = row<Bytes, Bytes, State, QStringList>();
        Desk desk;
        desk.keeper.lock();
        if (keys)
            desk.files.put(keyFile, *keys);
        if (entries)
            desk.files.put(entryFile, *entries);
        const auto bytes = [&desk]() -> QByteArray {
            return desk.files.bytes(keyFile) + desk.files.bytes(entryFile);
        };
        const QByteArray before = bytes();
        QCOMPARE(desk.keeper.state(), state);
        QCOMPARE(desk.keeper.foreignFiles(), foreign);
        QCOMPARE(bool(desk.keeper.opening(master, KeySlots::Password)), state == State::Locked);
        if (state != State::None)
            QVERIFY(!desk.keeper.create(run(desk.keeper.newKey(master)), run(desk.keeper.newCodeKey(code))));
        QCOMPARE(bytes(), before);
        QVERIFY(desk.keeper.setAside());
        QVERIFY(desk.keeper.foreignFiles().isEmpty());
        for (const QString &name : foreign)
            QVERIFY(desk.files.folder().exists(QString(name).replace(u'.', u" (set aside)."_s)));
    }

    void leavesDamagedRecordsAlone()
    {
        Desk desk;
        const QByteArray bank = desk.add(u"Bank"_s, u"1"_s); // record 1
        const QByteArray mail = desk.add(u"Mail"_s, u"2"_s); // record 2
        desk.keeper.lock();
        desk.damage(1);
        const QByteArray damaged = desk.files.bytes(entryFile).first(recordLength);
        desk.reopen();
        QCOMPARE(desk.list(), (QStringList{u"damaged 1"_s, u"Mail"_s}));
        QVERIFY(!desk.keeper.entry(bank));
        for (int i = 0; i < 20; ++i)
            QVERIFY(desk.change(mail, QString::number(i)));
        QCOMPARE(desk.files.bytes(entryFile).first(recordLength), damaged);
        QCOMPARE(desk.keeper.damagedPlaces(), QList<int>{1});
        QVERIFY(desk.keeper.giveUpDamaged());
        desk.reopen();
        QCOMPARE(desk.list(), QStringList{u"Mail"_s});
    }

    void showsAnEarlierVersionWhereTheLastIsDamaged_data()
    {
        rows<int, int, qsizetype, bool>({
            {"one of its two parts", 3000, 3, 1000, true},
            {"its only part", 10, 2, 1000, true},
            {"the part that says whose it is", 10, 2, 40, false},
        });
    }

    void showsAnEarlierVersionWhereTheLastIsDamaged()
    {
        const auto [length, record, at, isKnown] = row<int, int, qsizetype, bool>();
        Desk desk;
        const QByteArray id = desk.add(u"Bank"_s, u"1"_s); // record 1
        const QDateTime first = desk.clock.time;
        KeeperEntry longer = *desk.keeper.entry(id);
        longer.setText(KeeperField::Notes, QString(length, u'n'));
        desk.clock.time = first.addDays(1);
        QVERIFY(desk.keeper.save(longer)); // record 2, and 3
        desk.keeper.lock();
        desk.damage(record, at);
        desk.reopen();
        QCOMPARE(desk.list(), (QStringList{u"damaged %1"_s.arg(record), u"Bank"_s}));
        QCOMPARE(desk.password(id), u"1"_s);
        QCOMPARE(desk.keeper.summary(1).shownVersion, isKnown ? first : QDateTime());
        QCOMPARE(desk.keeper.summary(1).lostPlace, isKnown ? record : 0);
        QVERIFY(desk.change(id, u"2"_s));
        QCOMPARE(desk.password(id), u"2"_s);
        QVERIFY(!desk.keeper.summary(1).shownVersion.isValid());
        QVERIFY(desk.keeper.giveUpDamaged());
        QCOMPARE(desk.list(), QStringList{u"Bank"_s});
        QVERIFY(!desk.keeper.summary(0).shownVersion.isValid());
    }

    /// What makes room reaches the disk after what is new, and may be lost where the power fails.
    void bearsAVersionThatDidNotGo()
    {
        Desk desk;
        const QByteArray id = desk.add(u"Bank"_s, u"0"_s); // record 1
        for (int version = 1; version <= 5; ++version)
            QVERIFY(desk.change(id, QString::number(version)));
        const QByteArray oldest = desk.files.bytes(entryFile).first(recordLength);
        QVERIFY(desk.change(id, u"6"_s));
        desk.keeper.lock();
        QByteArray bytes = desk.files.bytes(entryFile);
        QVERIFY(!bytes.startsWith(oldest));
        desk.files.put(entryFile, bytes.replace(0, recordLength, oldest));
        desk.reopen();
        QCOMPARE(desk.password(id), u"6"_s);
        QCOMPARE(desk.keeper.versions(id).size(), 5);
        QVERIFY(desk.keeper.setTrashed({id}, true) && desk.keeper.setTrashed({id}, false));
        QVERIFY(desk.change(id, u"7"_s));
        QCOMPARE(desk.keeper.versions(id).size(), 5);
        QVERIFY(!desk.files.bytes(entryFile).startsWith(oldest));
        QVERIFY(desk.keeper.setTrashed({id}, true) && desk.keeper.removeForGood({id}));
        desk.reopen();
        QCOMPARE(desk.list(), QStringList());
    }

    void opensNothingWrongWhateverByteChanges()
    {
        Desk desk;
        desk.add(u"Bank"_s, u"1"_s);
        desk.add(u"Mail"_s, u"2"_s);
        desk.keeper.lock();
        const QByteArray whole = desk.files.bytes(entryFile);
        for (qsizetype at = 0; at < whole.size(); at += 61) {
            QByteArray changed = whole;
            changed[at] = char(changed[at] ^ (1 << (at % 8)));
            desk.files.put(entryFile, changed);
            Keeper keeper(desk.files.folder(), desk.clock, PasswordCost::minimum());
            QVERIFY(desk.unlock(keeper, master));
            QCOMPARE(keeper.damagedPlaces(), QList<int>{int(at / recordLength) + 1});
            for (const KeeperSummary &entry : keeper.entries()) {
                if (entry.damagedPlace == 0)
                    QCOMPARE(keeper.entry(entry.id)->text(KeeperField::Password),
                             entry.title == u"Bank"_s ? u"1"_s : u"2"_s);
            }
        }
    }

    void keepsOldOrNewWhereTheDiskFails_data()
    {
        using Act = std::function<bool(Desk &, const QByteArray &)>;
        rows<Act>({
            {"save", [](Desk &desk, const QByteArray &id) { return desk.change(id, u"new"_s); }},
            {"save of more than one part",
             [](Desk &desk, const QByteArray &id) {
                 KeeperEntry entry = *desk.keeper.entry(id);
                 entry.setText(KeeperField::Notes, QString(5000, u'n'));
                 return desk.keeper.save(entry);
             }},
            {"save that makes the file grow",
             [](Desk &desk, const QByteArray &id) {
                 KeeperEntry entry = *desk.keeper.entry(id);
                 entry.setText(KeeperField::Notes, QString(40'000, u'n'));
                 return desk.keeper.save(entry);
             }},
            {"into the trash",
             [](Desk &desk, const QByteArray &id) { return desk.keeper.setTrashed({id}, true); }},
            {"change of the master password",
             [](Desk &desk, const QByteArray &) {
                 return desk.keeper.changeMaster(run(desk.keeper.newKey(u"New"_s)));
             }},
            {"draft",
             [](Desk &desk, const QByteArray &) { return desk.keeper.saveDraft(logIn(u"Draft"_s, u"d"_s)); }},
        });
    }

    void keepsOldOrNewWhereTheDiskFails()
    {
        const auto act = std::get<0>(row<std::function<bool(Desk &, const QByteArray &)>>());
        Desk first;
        const QByteArray id = first.add(u"Bank"_s, u"0"_s);
        for (int version = 1; version <= 6; ++version)
            QVERIFY(first.change(id, QString::number(version)));
        const QByteArray keys = first.files.bytes(keyFile);
        const QByteArray entries = first.files.bytes(entryFile);
        Desk desk(false);
        failAtEachStep(
            desk.files.folder(),
            [&] {
                desk.keeper.lock();
                desk.files.put(keyFile, keys);
                desk.files.put(entryFile, entries);
                QVERIFY(desk.unlock(desk.keeper, master));
            },
            [&] { return act(desk, id); },
            [&] {
                // What the next start finds.
                Keeper next(desk.files.folder(), desk.clock, PasswordCost::minimum());
                const bool isOld = desk.unlock(next, master);
                if (!isOld && !desk.unlock(next, u"New"_s))
                    return QStringList{u"closed"_s};
                QStringList found{isOld ? u"old"_s : u"new"_s};
                for (const KeeperSummary &entry : next.entries()) {
                    const KeeperEntry whole = next.entry(entry.id).value_or(KeeperEntry());
                    found += entry.title + (entry.isTrashed ? u" trash "_s : u" "_s) +
                             whole.text(KeeperField::Password) + u" "_s +
                             QString::number(whole.text(KeeperField::Notes).size());
                    found += QString::number(entry.damagedPlace);
                }
                found += next.draft() ? u"draft"_s : u"no draft"_s;
                return found;
            });
    }

    /// Killed between any two writes, a removal never brings back what was in the trash.
    void removesForGoodOrLeavesInTheTrash()
    {
        Desk first;
        const QByteArray id = first.add(u"Bank"_s, u"0"_s);
        QVERIFY(first.change(id, u"1"_s) && first.keeper.setTrashed({id}, true));
        const QByteArray keys = first.files.bytes(keyFile);
        const QByteArray entries = first.files.bytes(entryFile);
        for (int step = 1; step < 12; ++step) {
            Desk desk(false);
            desk.files.put(keyFile, keys);
            desk.files.put(entryFile, entries);
            QVERIFY(desk.unlock(desk.keeper, master));
            {
                const FailingDisk disk(DiskFailure::TheEnd, step);
                std::ignore = desk.keeper.removeForGood({id});
            }
            desk.reopen();
            QVERIFY(!desk.list().contains(u"Bank"_s));
        }
    }

#ifdef Q_OS_UNIX
    void keepsTheOldVersionOnAFullDisk()
    {
        Desk desk;
        QList<KeeperEntry> entries(16, logIn(u"Bank"_s, u"1"_s));
        QVERIFY(desk.keeper.saveAll(entries)); // every record is taken
        const QByteArray before = desk.files.bytes(entryFile);
        {
            const FileSizeLimit full(rlim_t(before.size()));
            QVERIFY(!desk.change(entries.first().id, u"2"_s));
        }
        QCOMPARE(desk.files.bytes(entryFile), before);
        QCOMPARE(desk.password(entries.first().id), u"1"_s);
        QVERIFY(desk.change(entries.first().id, u"2"_s));
    }
#endif

    void writesNothingWhereTheFolderIsForReading()
    {
        Desk desk;
        desk.add(u"Bank"_s, u"1"_s);
        desk.keeper.lock();
        const QByteArray before = desk.files.bytes(keyFile) + desk.files.bytes(entryFile);
        Keeper reader(DataFolder(desk.files.folder().path(), u"It is a backup."_s), desk.clock);
        QVERIFY(!desk.unlock(reader, u"wrong"_s));
        QVERIFY(desk.unlock(reader, master));
        KeeperEntry entry = reader.entry(reader.summary(0).id).value_or(KeeperEntry());
        QVERIFY(!reader.save(entry) && !reader.setTrashed({entry.id}, true) && !reader.saveDraft(entry));
        QVERIFY(!reader.changeMaster(run(reader.newKey(u"New"_s))));
        QCOMPARE(reader.count(), 1);
        QCOMPARE(desk.files.bytes(keyFile) + desk.files.bytes(entryFile), before);
    }
};

QTEST_GUILESS_MAIN(TestKeeper)
#include "tst_keeper.moc"
