// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/model/journal.h"
#include "journal/model/journalnews.h"
#include "journal/model/sealingwalk.h"
#include "storage/saving.h"
#include "storage/sealing/recoverycode.h"
#include "tests/support/failingdisk.h"
#include "tests/support/filesizelimit.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"

#include <QDirIterator>

#include <functional>

using namespace Qt::Literals::StringLiterals;
using State = JournalSeal::State;

namespace {

const QString keyFile = u"DJourKey.Fil"_s;
const QString password = u"Lavender h\u00f6ney"_s;
const QString code = u"7HJ4-KM9Q-RST2-VWXY-Z01A-BC3D-EFJN"_s;
const QByteArray sealedLine = "Quillery journal sealed 1\r\n";
const QByteArray year2019 = "Quillery journal 1\r\n=== 2019-06-01\r\n\r\nA marked sentence.\r\n";
const QByteArray year2025 =
    "Quillery journal 1\n=== 2025-01-02\n\nShort\n=== 2025-01-02 earlier\n\nA marked sentence.\n";
const QByteArray year2026 = "Quillery journal 1\r\n=== 2026-03-14\r\ntags sea\r\n\r\n" +
                            QByteArray("A marked sentence. ").repeated(90) +
                            "\r\n=== 2026-11-22\r\n\r\nYesterday.\r\n";

class StoppedClock final : public Clock
{
public:
    QDateTime now() const override { return {QDate(2026, 11, 23), QTime(14, 30)}; }
};

KeyDerivation run(KeyDerivation derivation)
{
    derivation.run();
    return derivation;
}

/// A journal of three years on a folder of its own.
class Desk
{
public:
    Desk()
    {
        files.put(u"DJour2019.Fil"_s, year2019);
        files.put(u"DJour2025.Fil"_s, year2025);
        files.put(u"DJour2026.Fil"_s, year2026);
    }

    /// As a program that begins here.
    std::unique_ptr<Journal> start() const
    {
        return std::make_unique<Journal>(files.folder(), clock, nullptr, PasswordCost::minimum());
    }
    static bool create(Journal &journal)
    {
        JournalSeal &seal = journal.seal();
        return seal.create(run(seal.newKey(password)), run(seal.newCodeKey(code)));
    }
    static bool unlock(Journal &journal, const QString &typed = password,
                       KeySlots::Slot slot = KeySlots::Password)
    {
        std::optional<JournalOpening> opening = journal.seal().opening(typed, slot);
        if (!opening)
            return false;
        opening->run();
        return journal.seal().unlock(std::move(*opening));
    }
    static bool walk(Journal &journal)
    {
        SealingWalk walk(journal.seal());
        while (walk.step()) {}
        journal.reread();
        return walk.isComplete();
    }
    void sealAll() const
    {
        const std::unique_ptr<Journal> journal = start();
        QVERIFY(create(*journal) && walk(*journal));
    }
    /// The files that hold the marked sentence, in one encoding or another.
    QStringList marked() const
    {
        const QString sentence = u"A marked sentence"_s;
        const QByteArray wide(reinterpret_cast<const char *>(sentence.utf16()), sentence.size() * 2);
        QStringList names;
        QDirIterator entries(files.folder().path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (entries.hasNext()) {
            const QByteArray bytes = contentOf(entries.next());
            if (bytes.contains(sentence.toUtf8()) || bytes.contains(wide))
                names += entries.fileName();
        }
        names.sort();
        return names;
    }
    QByteArray name(int year) const { return files.bytes(u"DJour%1.Fil"_s.arg(year)); }
    bool isPlain() const
    {
        return name(2019) == year2019 && name(2025) == year2025 && name(2026) == year2026;
    }
    /// Whether all that was written is there, be it sealed or not.
    static bool isAllThere(Journal &journal)
    {
        const auto text = [&journal](QDate date, bool isEarlier = false) {
            const auto entry = isEarlier ? journal.earlier(date) : journal.entry(date);
            return entry ? entry->text : QString();
        };
        return text({2019, 6, 1}) == u"A marked sentence."_s && text({2025, 1, 2}) == u"Short"_s &&
               text({2025, 1, 2}, true) == u"A marked sentence."_s && text({2026, 3, 14}).size() > 1000 &&
               text({2026, 11, 22}) == u"Yesterday."_s;
    }
    void recover() const
    {
        Saving::recover(files.folder());
        QVERIFY(ChangeSet::recover(files.folder()));
    }

    TestFolder files;
    StoppedClock clock;
};

JournalEntry entryOf(QDate date, const QString &text)
{
    JournalEntry entry;
    entry.date = date;
    entry.text = text;
    return entry;
}

} // namespace

class TestJournalSeal : public QObject
{
    Q_OBJECT
private slots:
    void sealsAndOpensEveryYear()
    {
        const Desk desk;
        desk.files.put(u"DJour2001.Fil"_s, "Dear diary");
        desk.sealAll();
        QCOMPARE(desk.marked(), QStringList());
        QCOMPARE(desk.files.bytes(u"DJour2001.Fil"_s), QByteArray("Dear diary"));
        QVERIFY(desk.name(2019).startsWith(QByteArray(sealedLine + "QJOURNL\x01")));
        QVERIFY(desk.files.bytes(keyFile).contains(desk.name(2026).mid(27, 512)));

        const std::unique_ptr<Journal> journal = desk.start();
        QCOMPARE(journal->seal().state(), State::Locked);
        QCOMPARE(journal->state(2026), JournalYear::State::Locked);
        QVERIFY(!journal->entry({2026, 11, 22}) && !journal->put(entryOf({2027, 1, 1}, u"New"_s)));
        QVERIFY(Desk::unlock(*journal));
        QVERIFY(Desk::isAllThere(*journal));

        QVERIFY(journal->seal().setBeingOpened(true));
        QVERIFY(Desk::walk(*journal));
        QVERIFY(desk.isPlain());
        QVERIFY(!desk.files.folder().exists(keyFile));
        QCOMPARE(journal->seal().state(), State::None);
        QVERIFY(Desk::isAllThere(*journal));
    }

    void savesSealed()
    {
        const Desk desk;
        desk.sealAll();
        const QByteArray before = desk.name(2026);
        const std::unique_ptr<Journal> journal = desk.start();
        QVERIFY(Desk::unlock(*journal));
        QVERIFY(journal->put(entryOf({2026, 11, 23}, u"A marked sentence, today."_s)));
        QVERIFY(journal->put(entryOf({2027, 1, 1}, u"A marked sentence ahead."_s)));
        QVERIFY(journal->save());
        QCOMPARE(desk.marked(), QStringList());
        QVERIFY(desk.name(2027).startsWith(sealedLine));
        // Behind the list, the records are as they were, and a new one follows.
        const qsizetype list = 27 + 512 + 4 + 24 + 256 + 16;
        QVERIFY(desk.name(2026).contains(before.sliced(list)));
        QVERIFY(desk.name(2026).sliced(27 + 512 + 4, 24) != before.sliced(27 + 512 + 4, 24));
        journal->seal().lock();
        QVERIFY(!journal->entry({2026, 11, 23}));
        QVERIFY(Desk::unlock(*journal, code.toLower(), KeySlots::Recovery));
        QCOMPARE(journal->entry({2027, 1, 1})->text, u"A marked sentence ahead."_s);
        QVERIFY(Desk::isAllThere(*journal));
    }

    void countsWrongAnswers()
    {
        const Desk desk;
        desk.sealAll();
        const std::unique_ptr<Journal> journal = desk.start();
        QVERIFY(!Desk::unlock(*journal, u"lavender"_s));
        QVERIFY(!Desk::unlock(*journal, u"7HJ4-KM9Q"_s, KeySlots::Recovery)); // a slip
        QCOMPARE(desk.start()->seal().wrongAnswers().count, 1U);
        QVERIFY(Desk::unlock(*journal));
        QCOMPARE(journal->seal().wrongAnswers().count, 0U);
    }

    void servesTheKeyOfAYear_data()
    {
        rows<std::function<QByteArray(QByteArray)>, bool>({
            {"missing", [](const QByteArray &) { return QByteArray(); }, false},
            {"noise", [](const QByteArray &) { return noiseOf(1024); }, true},
            {"both copies damaged",
             [](QByteArray bytes) {
                 bytes[40] = char(bytes[40] ^ 1);
                 bytes[552] = char(bytes[552] ^ 1);
                 return bytes;
             },
             true},
            {"of another journal",
             [](const QByteArray &) {
                 const Desk other;
                 other.sealAll();
                 return other.files.bytes(keyFile);
             },
             true},
        });
    }

    void servesTheKeyOfAYear()
    {
        const auto [made, isKept] = row<std::function<QByteArray(QByteArray)>, bool>();
        const Desk desk;
        desk.sealAll();
        const QByteArray keys = desk.files.bytes(keyFile);
        const QByteArray other = made(keys);
        desk.files.put(keyFile, other);
        const std::unique_ptr<Journal> journal = desk.start();
        QCOMPARE(journal->seal().state(), State::Locked);
        QVERIFY(journal->seal().isKeyFileLost());
        QVERIFY(!Desk::unlock(*journal, u"lavender"_s));
        QCOMPARE(desk.files.bytes(keyFile), other);
        QVERIFY(Desk::unlock(*journal));
        QVERIFY(Desk::isAllThere(*journal) && !journal->seal().isKeyFileLost());
        QCOMPARE(desk.files.bytes(keyFile).mid(12, 292), keys.mid(12, 292));
        QCOMPARE(desk.files.bytes(u"DJourKey set aside.Fil"_s), isKept ? other : QByteArray());
    }

    /// One copy of the key is always left, if need be that of a year.
    void opensWhateverBecomesOfTheKeyFile()
    {
        const Desk desk;
        desk.sealAll();
        const QByteArray keys = desk.files.bytes(keyFile);
        for (qsizetype at = 0; at < keys.size(); at += 7) {
            QByteArray flipped = keys;
            flipped[at] = char(keys[at] ^ (1 << at % 8));
            for (const QByteArray &bytes : {flipped, keys.first(at)}) {
                desk.files.put(keyFile, bytes);
                const std::unique_ptr<Journal> journal = desk.start();
                QVERIFY2(Desk::unlock(*journal) && Desk::isAllThere(*journal), QByteArray::number(at));
                QVERIFY(!journal->seal().isKeyFileLost());
                QFile::remove(desk.files.path(u"DJourKey set aside.Fil"_s));
            }
        }
    }

    void opensWhereNothingCanBeWritten()
    {
        const Desk desk;
        desk.sealAll();
        const QByteArray keys = desk.files.bytes(keyFile);
        const QByteArray year = desk.name(2026);
        const DataFolder folder(desk.files.folder().path(), u"It is on a disc."_s);
        Journal journal(folder, desk.clock, nullptr, PasswordCost::minimum());
        QVERIFY(!Desk::unlock(journal, u"lavender"_s) && Desk::unlock(journal) && Desk::isAllThere(journal));
        QCOMPARE(journal.whyReadOnly(2026), u"It is on a disc."_s);
        QVERIFY(!journal.put(entryOf({2026, 11, 23}, u"New"_s)));
        QVERIFY(!journal.seal().setBeingOpened(true) && SealingWalk(journal.seal()).count() == 0);
        QVERIFY(desk.files.bytes(keyFile) == keys && desk.name(2026) == year);
    }

    void saysWhenNobodyCanOpenIt()
    {
        const Desk desk;
        desk.sealAll();
        desk.files.put(keyFile, {});
        for (const int year : {2019, 2025, 2026})
            desk.files.put(u"DJour%1.Fil"_s.arg(year), desk.name(year).replace(100, 1, "?"));
        const std::unique_ptr<Journal> journal = desk.start();
        QCOMPARE(journal->seal().state(), State::NoKey);
        QVERIFY(!journal->seal().opening(password, KeySlots::Password));
        QCOMPARE(journal->whyReadOnly(2026),
                 u"2026 is sealed with another key, which is not here: nobody can open it."_s);
        QCOMPARE(journal->setAside(2026), u"DJour2026 set aside.Fil"_s);
        QVERIFY(journal->put(entryOf({2026, 11, 23}, u"A new beginning"_s)) && journal->save());
    }

    void isWholeWhereverTheWalkIsCutShort_data()
    {
        using Begin = std::function<bool(Journal &)>;
        rows<bool, Begin, QString, bool>({
            {"sealing", false, [](Journal &journal) { return Desk::create(journal); }, password, false},
            {"opening", true, [](Journal &journal) { return journal.seal().setBeingOpened(true); }, password,
             true},
            {"a new password", true,
             [](Journal &journal) {
                 return journal.seal().changePassword(run(journal.seal().newKey(u"New"_s)));
             },
             u"New"_s, false},
        });
    }

    void isWholeWhereverTheWalkIsCutShort()
    {
        const auto [wasSealed, begin, newPassword, isPlainThen] =
            row<bool, std::function<bool(Journal &)>, QString, bool>();
        for (const DiskFailure failure : {DiskFailure::OneStep, DiskFailure::TheEnd}) {
            bool isThrough = false;
            for (int refused = 1; !isThrough; ++refused) {
                const Desk desk;
                if (wasSealed)
                    desk.sealAll();
                {
                    const std::unique_ptr<Journal> journal = desk.start();
                    QVERIFY(!wasSealed || Desk::unlock(*journal));
                    const FailingDisk disk(failure, refused);
                    if (begin(*journal))
                        std::ignore = Desk::walk(*journal);
                    isThrough = disk.steps() < refused;
                }
                desk.recover();
                const std::unique_ptr<Journal> journal = desk.start();
                if (journal->seal().state() == State::None) {
                    QVERIFY(desk.isPlain()); // not begun, or at the end
                    continue;
                }
                // In force is the one password or the other; nobody is locked out.
                const bool isNew = Desk::unlock(*journal, newPassword);
                QVERIFY(isNew || Desk::unlock(*journal));
                QVERIFY2(Desk::isAllThere(*journal), QByteArray::number(refused));
                QVERIFY(Desk::walk(*journal));
                QVERIFY(Desk::isAllThere(*journal));
                QCOMPARE(desk.isPlain(), isPlainThen && journal->seal().state() == State::None);
                if (journal->seal().isOpen())
                    QCOMPARE(desk.marked(), QStringList());
                desk.files.put(keyFile, {});
                const std::unique_ptr<Journal> byHeads = desk.start();
                QVERIFY(byHeads->seal().state() == State::None ||
                        Desk::unlock(*byHeads, isNew ? newPassword : password));
                QVERIFY(!isNew || newPassword == password || !Desk::unlock(*desk.start(), password));
            }
        }
    }

    void leavesNothingPlainWhereverASaveEnds()
    {
        for (const DiskFailure failure : {DiskFailure::OneStep, DiskFailure::TheEnd}) {
            bool isThrough = false;
            for (int refused = 1; !isThrough; ++refused) {
                const Desk desk;
                desk.sealAll();
                const std::unique_ptr<Journal> journal = desk.start();
                QVERIFY(Desk::unlock(*journal));
                QVERIFY(journal->put(entryOf({2026, 11, 23}, u"A marked sentence, today."_s)));
                {
                    const FailingDisk disk(failure, refused);
                    const bool isSaved = journal->save();
                    isThrough = disk.steps() < refused;
                    QVERIFY(isSaved == isThrough || failure == DiskFailure::TheEnd);
                    QCOMPARE(desk.marked(), QStringList());
                }
                desk.recover();
                const std::unique_ptr<Journal> again = desk.start();
                QVERIFY(Desk::unlock(*again) && Desk::isAllThere(*again));
            }
        }
    }

    void goesOnWithTheSittingBehindTheLocking()
    {
        const Desk desk;
        desk.sealAll();
        const std::unique_ptr<Journal> journal = desk.start();
        const QDate day(2026, 11, 22);
        const QDate newDay(2026, 11, 23);
        for (const auto &[text, newText] :
             {std::pair(u"Yester"_s, u"Today"_s), std::pair(u"Yest"_s, u"Tod"_s)}) {
            QVERIFY(Desk::unlock(*journal));
            QVERIFY(journal->put(entryOf(day, text)) && journal->put(entryOf(newDay, newText)));
            QVERIFY(journal->save());
            QCOMPARE(journal->earlier(day)->text, u"Yesterday."_s);
            journal->seal().lock();
        }
        QVERIFY(Desk::unlock(*journal));
        QVERIFY(!journal->earlier(newDay));
        QVERIFY(journal->put(entryOf(day, {})) && journal->put(entryOf(newDay, {})) && journal->save());
        QCOMPARE(journal->earlier(day)->text, u"Yesterday."_s);
        QCOMPARE(journal->earlier(newDay)->text, u"Tod"_s);
    }

    void keepsWhatTheDiskRefusedOverTheLocking()
    {
        const Desk desk;
        desk.sealAll();
        const std::unique_ptr<Journal> journal = desk.start();
        QVERIFY(Desk::unlock(*journal));
        QVERIFY(journal->put(entryOf({2026, 11, 23}, u"Not yet on the disk"_s)));
        QVERIFY(journal->put(entryOf({2019, 6, 1}, {})));
        {
            const FailingDisk disk(DiskFailure::TheEnd, 1);
            QVERIFY(!journal->save());
        }
        journal->seal().lock();
        QVERIFY(journal->isModified() && !journal->entry({2026, 11, 23}));
        QVERIFY(Desk::unlock(*journal));
        QCOMPARE(journal->entry({2026, 11, 23})->text, u"Not yet on the disk"_s);
        QVERIFY(!journal->entry({2019, 6, 1}) && journal->earlier({2019, 6, 1}));
        QVERIFY(journal->save() && !journal->isModified());
    }

#ifdef Q_OS_UNIX
    void sealsNothingByHalvesOnAFullDisk()
    {
        const Desk desk;
        const std::unique_ptr<Journal> journal = desk.start();
        QVERIFY(Desk::create(*journal));
        {
            const FileSizeLimit disk(1200);
            SealingWalk walk(journal->seal());
            while (walk.step()) {}
            QCOMPARE(walk.refused(), (QList<int>{2025, 2026}));
            QVERIFY(!walk.isComplete());
        }
        QVERIFY(desk.name(2019).startsWith(sealedLine));
        QCOMPARE(desk.name(2026), year2026);
        QCOMPARE(JournalNews::liveLine(desk.files.folder(), desk.clock.now())->text, u"Sealed"_s);
        journal->reread();
        QVERIFY(Desk::isAllThere(*journal));
        QVERIFY(Desk::walk(*journal));
        QCOMPARE(desk.marked(), QStringList());
    }
#endif

    void opensOnlyForWhoHasTheKey()
    {
        const Desk desk;
        desk.sealAll();
        // "Being opened" as somebody without the key would write it.
        desk.files.put(keyFile, desk.files.bytes(keyFile) + noiseOf(512));
        const std::unique_ptr<Journal> journal = desk.start();
        QVERIFY(Desk::unlock(*journal) && !journal->seal().isBeingOpened());
        QVERIFY(Desk::walk(*journal));
        QCOMPARE(desk.marked(), QStringList());
    }

    void keepsADamagedYearSealed()
    {
        const Desk desk;
        desk.sealAll();
        QByteArray torn = desk.name(2026);
        torn[torn.size() - 10] = char(torn[torn.size() - 10] ^ 2);
        desk.files.put(u"DJour2026.Fil"_s, torn);
        const std::unique_ptr<Journal> journal = desk.start();
        QVERIFY(Desk::unlock(*journal));
        QCOMPARE(journal->year(2026).damage,
                 (std::vector<SealedDamage>{
                     {SealedDamage::Kind::Unreadable, {QDate(2026, 11, 22), SealedLabel::Kind::Entry}}}));
        QCOMPARE(journal->dates(2026), QList<QDate>{QDate(2026, 3, 14)});
        QVERIFY(journal->put(entryOf({2026, 11, 23}, u"Later"_s)) && journal->save());
        QVERIFY(desk.name(2026).contains(torn.last(296)));

        QVERIFY(journal->seal().setBeingOpened(true));
        SealingWalk walk(journal->seal());
        while (walk.step()) {}
        QCOMPARE(walk.heldBack(), QList<int>{2026});
        QVERIFY(!walk.isComplete() && journal->seal().isOpen());
        QCOMPARE(desk.name(2019), year2019);
        QVERIFY(desk.name(2026).startsWith(sealedLine));
    }

    void leavesAnotherJournalsYearAlone()
    {
        const Desk desk;
        desk.sealAll();
        const Desk other;
        other.sealAll();
        desk.files.put(u"DJour2018.Fil"_s, other.name(2019));
        const std::unique_ptr<Journal> journal = desk.start();
        QVERIFY(Desk::unlock(*journal));
        QCOMPARE(journal->state(2018), JournalYear::State::ForReading);
        QVERIFY(journal->seal().setBeingOpened(true) && Desk::walk(*journal));
        QCOMPARE(desk.name(2018), other.name(2019));
    }
};

QTEST_GUILESS_MAIN(TestJournalSeal)
#include "tst_journalseal.moc"
