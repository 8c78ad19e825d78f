// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/restorerun.h"
#include "backup/model/sealedkey.h"
#include "backup/model/sealedsource.h"
#include "backup/model/setfolder.h"
#include "storage/changeset.h"
#include "tests/backup/model/backuphousehold.h"
#include "tests/support/household.h"
#include "tests/support/rows.h"

#include <QRandomGenerator>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int households = 20; // and the sample

/// Puts the disks in that are asked for.
class Desk final : public RestoreAsker
{
public:
    explicit Desk(const BackupHousehold &house)
        : m_house(house)
    {}
    DiskAnswer ask(const DiskQuestion &question) override
    {
        return {DiskAnswer::Action::UseFolder, m_house.disk(question.disk)};
    }
    bool takeTheRest(const QStringList &) override { return false; }
    bool takeDamaged(const QString &) override { return false; }

private:
    const BackupHousehold &m_house;
};

QByteArray bytesOf(QRandomGenerator &random, int size)
{
    QByteArray bytes(size, '\0');
    std::ranges::generate(bytes, [&random] { return char(random.bounded(256)); });
    // A hole, and a last record that is short.
    if (size > 5000)
        bytes.replace(size / 2, 1000, QByteArray(1000, '\0'));
    return bytes;
}

void fillSample(const BackupHousehold &house)
{
    QDirIterator files(householdPath(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        house.put(path.sliced(householdPath().size()), contentOf(path));
    }
}

/// The household of a seed: always the same one.
void fill(const BackupHousehold &house, int seed)
{
    QRandomGenerator random{quint32(seed)};
    const QStringList names{u"Addbk1.Fil"_s,      u" 2026.Cal"_s,     u"2026.Fil"_s,
                            u"José Ortega.Fil"_s, u"PCtrl1.Fil"_s,    u"Quillery.trash"_s,
                            u"DJour2026.Fil"_s,   u"with 100%.Fil"_s, u"Łódź.Fil"_s};
    for (const QString &name : names) {
        if (random.bounded(5) > 0)
            house.put(name, bytesOf(random, random.bounded(20'000)));
    }
    for (int i = random.bounded(30); i > 0; --i)
        house.put(u"Person %1.Fil"_s.arg(i), bytesOf(random, random.bounded(2) * random.bounded(3'000)));
    for (int i = random.bounded(6); i > 0; --i) {
        house.put(u"Pictures/Garden %1.jpg"_s.arg(i), bytesOf(random, random.bounded(30'000)));
        house.putElsewhere(u"Sea %1.JPG"_s.arg(i), bytesOf(random, random.bounded(30'000)));
    }
    // Larger than any of five disks, and the same picture under two names.
    house.put(u"Photobk3.Fil"_s, bytesOf(random, 120'000));
    const QByteArray twice = bytesOf(random, 4'000);
    house.put(u"Pictures/One.jpg"_s, twice);
    house.putElsewhere(u"Two.jpg"_s, twice);
}

} // namespace

/// Households that go there and back.
class TestRestoredHouseholds : public QObject
{
    Q_OBJECT
private slots:
    void comeBackAsTheyWere_data()
    {
        rows<int, bool>({{"over one disk", 1, false},
                         {"over small disks, with files larger than a disk", 5, false},
                         {"sealed, over small disks", 3, true}});
    }

    void comeBackAsTheyWere()
    {
        const auto [disks, isSealed] = row<int, bool>();
        int files = 0;
        int differences = 0;
        for (int seed = 0; seed <= households; ++seed) {
            const BackupHousehold house;
            seed == 0 ? fillSample(house) : fill(house, seed);
            const Contents before = house.wanted();
            BackupJob job = house.job(disks == 1 ? 0 : house.holdings().bytes() / disks + 12'000);
            if (isSealed)
                job.seal = key();
            Desk desk(house);
            const BackupReport report = BackupRun(job, desk, {}).run();
            QCOMPARE(report.end, BackupReport::End::Complete);
            QVERIFY(disks == 1 || report.set.disks >= disks - 1);
            clear(house);
            QVERIFY(restore(house, report.set, isSealed));
            QVERIFY(ChangeSet::recover(house.folder()));
            files += int(before.size());
            for (auto file = before.cbegin(); file != before.cend(); ++file) {
                const QString elsewhere = SetFolder::elsewherePath(file.key());
                const QString path = elsewhere.isEmpty() ? house.path(file.key()) : elsewhere;
                if (!QFileInfo::exists(path) || contentOf(path) != file.value()) {
                    ++differences;
                    qWarning().noquote() << "Household" << seed << "differs:" << file.key();
                }
            }
        }
        qInfo().noquote() << households + 1 << "households," << files << "files," << differences
                          << "differences";
        QCOMPARE(differences, 0);
    }

    void aRenamedPictureIsKeptOnceAndComesBackUnderItsNewName_data()
    {
        rows<QString, QString>({{"renamed", u"Pictures/Elm.jpg"_s, u"Pictures/Old elm.jpg"_s},
                                {"moved into a folder", u"Elm.jpg"_s, u"Pictures/2026/Elm.JPG"_s},
                                {"its kind called otherwise", u"Elm.jpeg"_s, u"Elm.jpg"_s}});
    }

    void aRenamedPictureIsKeptOnceAndComesBackUnderItsNewName()
    {
        const auto [before, after] = row<QString, QString>();
        const BackupHousehold house;
        house.put(before, "elm");
        Desk desk(house);
        QCOMPARE(BackupRun(house.job(), desk, {}).run().end, BackupReport::End::Complete);
        QVERIFY(QDir().mkpath(QFileInfo(house.path(after)).path()));
        QVERIFY(QFile::rename(house.path(before), house.path(after)));
        BackupJob job = house.job();
        job.begun = job.begun.addDays(1);
        const BackupReport second = BackupRun(job, desk, {}).run();
        const QDir pool(house.disk(1) + u"/Quillery Backup/Pictures"_s);
        QCOMPARE(pool.entryList(QDir::Files).size(), 1);
        clear(house);
        QVERIFY(restore(house, second.set, false));
        QVERIFY(ChangeSet::recover(house.folder()));
        QCOMPARE(contentOf(house.path(after)), "elm");
        QVERIFY(!QFileInfo::exists(house.path(before)));
    }

private:
    static std::shared_ptr<const SealedKey> key()
    {
        KeyDerivation derived = KeyDerivation::fresh(SecretBytes::ofText(u"elm"_s), PasswordCost::minimum());
        return derived.run() ? std::make_shared<SealedKey>(SealedKey::fresh(derived)) : nullptr;
    }

    /// A new computer: the folders are there, and nothing in them.
    static void clear(const BackupHousehold &house)
    {
        for (const QString &folder : {house.folder().path(), house.elsewhere({})})
            QVERIFY(QDir(folder).removeRecursively() && QDir().mkpath(folder));
    }

    static bool restore(const BackupHousehold &house, SetRecord set, bool isSealed)
    {
        std::unique_ptr<RestoreSource> source = std::make_unique<SetSource>(set.set, set.begun);
        if (isSealed) {
            const QByteArray record = SealedSource::keyRecord(house.setFolder(1));
            auto typed = SealedKey::opening(record, SecretBytes::ofText(u"elm"_s));
            if (!typed || !typed->run())
                return false;
            auto opened = std::make_shared<SealedKey>(*SealedKey::open(record, *typed));
            auto sealed = std::make_unique<SealedSource>(opened, set.set, set.begun);
            set = sealed->setRecord(house.disk(set.disks), set.disks).value_or(SetRecord());
            source = std::move(sealed);
        }
        const std::atomic<bool> isStopped = false;
        RestoreRun::Order order{.aim = {house.folder()}, .set = set, .drive = house.disk(1), .items = {}};
        order.items = RestorePlan::made(order.aim, set.files, {}, {}, isStopped);
        Desk desk(house);
        return RestoreRun(order, *source, desk, {}).run().end == RestoreResult::End::AtNextStart;
    }
};

QTEST_GUILESS_MAIN(TestRestoredHouseholds)
#include "tst_restoredhouseholds.moc"
