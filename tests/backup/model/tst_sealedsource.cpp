// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/diskrecords.h"
#include "backup/model/sealedsource.h"
#include "backup/model/sealedwriter.h"
#include "backup/model/setfolder.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"

#include <QDir>

using namespace Qt::Literals::StringLiterals;

namespace {

using Reading = RestoreSource::Reading;

const QByteArray setId(16, '\7');
const QDateTime begun(QDate(2026, 11, 23), QTime(19, 30), Qt::UTC);

BackupPart part(const QString &name, const QByteArray &bytes)
{
    BackupPart part;
    part.name = name;
    part.size = part.bytes = bytes.size();
    part.changed = begun;
    part.hash = QByteArray(32, '\1');
    return part;
}

/// Wants all but what begins with "no"; notes what it is shown.
class Shown final : public RestoreSource::Visitor
{
public:
    bool wants(const BackupPart &part) override
    {
        m_name = part.name;
        return !part.name.startsWith(u"no"_s);
    }
    bool take(QByteArrayView bytes) override
    {
        content[m_name] += bytes;
        return !stopsAtOnce;
    }
    bool end(bool isWhole) override
    {
        wholes += isWhole ? 1 : 0;
        return true;
    }
    QMap<QString, QByteArray> content;
    int wholes = 0;
    bool stopsAtOnce = false;

private:
    QString m_name;
};

} // namespace

/// A sealed set as it is read for a restore.
class TestSealedSource : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        KeyDerivation derivation = KeyDerivation::fresh(SecretBytes::ofText(u"p"_s), PasswordCost::minimum());
        QVERIFY(derivation.run());
        m_key = std::make_shared<const SealedKey>(SealedKey::fresh(derivation));
        m_folder = std::make_unique<TestFolder>();
        m_place = SetFolder::path(m_folder->path({}), begun);
        QVERIFY(QDir().mkpath(m_place));
        writeDisk(2, true);
    }

    void itsFilesAreShownInTheirOrder()
    {
        SealedSource source(m_key, setId, begun);
        const std::optional<SetRecord> record = source.setRecord(m_folder->path({}), 2);
        QVERIFY(record && record->drive == u"SILVER"_s && record->isSealed);
        QVERIFY(!source.setRecord(m_folder->path({}), 1));
        Shown shown;
        QCOMPARE(source.read(m_folder->path({}), 2, shown), Reading::Done);
        QCOMPARE(shown.content.keys(), QStringList({u" a:b.Fil"_s, u"e\u0301.Fil"_s}));
        QVERIFY(shown.content[u" a:b.Fil"_s] == noiseOf(200'000) && shown.wholes == 2);
        Shown stopped;
        stopped.stopsAtOnce = true;
        QCOMPARE(source.read(m_folder->path({}), 2, stopped), Reading::Stopped);
        SealedSource given(m_key, setId, begun, [](qint64) { return false; });
        QCOMPARE(given.read(m_folder->path({}), 2, shown), Reading::Stopped);
        QCOMPARE(SealedSource::keyRecord(m_place), m_key->record());
    }

    void nothingElseIsShown_data()
    {
        rows<QByteArray, int, int, Reading>({{"another number", setId, 1, 0, Reading::WrongDisk},
                                             {"another set", QByteArray(16, '\1'), 2, 0, Reading::Damaged},
                                             {"cut", setId, 2, 100, Reading::Damaged},
                                             {"a byte changed", setId, 2, -1000, Reading::Damaged},
                                             {"no sealed file", setId, 2, 1'000'000, Reading::Missing}});
    }
    void nothingElseIsShown()
    {
        const auto [set, number, cut, reading] = row<QByteArray, int, int, Reading>();
        QByteArray bytes = contentOf(sealedPath());
        if (cut < 0)
            bytes[-cut] = char(bytes[-cut] ^ 1);
        else
            bytes.chop(cut);
        QVERIFY(bytes.isEmpty() ? QFile::remove(sealedPath()) : makeFile(sealedPath(), bytes));
        Shown shown;
        QCOMPARE(SealedSource(m_key, set, begun).read(m_folder->path({}), number, shown), reading);
        QVERIFY(shown.content.isEmpty());
        QVERIFY(!SealedSource(m_key, set, begun).setRecord(m_folder->path({}), 2) || number == 1);
    }

    void whatIsInsideHasToBeOfThatDisk()
    {
        writeDisk(3, false); // sealed as disk 2, and says that it is another one
        Shown shown;
        QCOMPARE(SealedSource(m_key, setId, begun).read(m_folder->path({}), 2, shown), Reading::Damaged);
        QVERIFY(shown.content.isEmpty());
    }

private:
    QString sealedPath() const { return m_place + u'/' + SetFolder::sealed; }

    void writeDisk(int inside, bool hasSet)
    {
        const QList<std::pair<QString, QByteArray>> files{
            {u" a:b.Fil"_s, noiseOf(200'000)},
            {u"not wanted"_s, "x"},
            {u"e\u0301.Fil"_s, "composed by the archive alone"}};
        DiskRecord disk{setId, begun, inside, {}};
        QByteArray bytes;
        SealedWriter writer(*m_key, setId, 2, [&bytes](QByteArrayView piece) {
            bytes += piece;
            return true;
        });
        for (const auto &[name, content] : files) {
            QVERIFY(writer.add({name, content.size(), begun}, content));
            disk.parts.append(part(name, content));
        }
        SetRecord set;
        set.set = setId;
        set.begun = set.ended = begun;
        set.disks = 2;
        set.drive = u"SILVER"_s;
        set.isSealed = true;
        const QByteArray diskBytes = DiskRecords::encoded(disk);
        const QByteArray setBytes = DiskRecords::encoded(set);
        QVERIFY(writer.add({DiskRecord::fileName, diskBytes.size(), begun}, diskBytes));
        QVERIFY(!hasSet || writer.add({SetRecord::fileName, setBytes.size(), begun}, setBytes));
        QVERIFY(writer.finish() && makeFile(sealedPath(), bytes));
        const DiskRecord outside{setId, begun, 2, {}};
        QVERIFY(makeFile(m_place + u'/' + DiskRecord::fileName, DiskRecords::encoded(outside)));
    }

    std::shared_ptr<const SealedKey> m_key;
    std::unique_ptr<TestFolder> m_folder;
    QString m_place;
};

QTEST_GUILESS_MAIN(TestSealedSource)
#include "tst_sealedsource.moc"
