// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/sealedreader.h"
#include "backup/model/sealedwriter.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"

#include <QProcess>

using namespace Qt::Literals::StringLiterals;

namespace {

using State = SealedReader::State;

const QByteArray setId = QByteArray::fromHex("000102030405060708090a0b0c0d0e0f");
constexpr qsizetype headLength = SealedKey::recordLength + SealedStream::headLength;
constexpr qsizetype chunk = SealedStream::chunkLength + SealedStream::chunkWords;
/// Three full chunks of the tar, and some.
constexpr qsizetype fileLength = 200'000;

KeyDerivation derived(const QString &password)
{
    KeyDerivation derivation = KeyDerivation::fresh(SecretBytes::ofText(password), PasswordCost::minimum());
    return derivation.run() ? std::move(derivation) : KeyDerivation();
}

std::optional<SealedKey> opened(const QByteArray &record, const QString &password)
{
    auto derivation = SealedKey::opening(record, SecretBytes::ofText(password));
    return derivation && derivation->run() ? SealedKey::open(record, *derivation) : std::nullopt;
}

QByteArray sealedDisk(const SealedKey &key, int disk, bool isFinished = true)
{
    QByteArray bytes;
    SealedWriter writer(key, setId, disk, [&bytes](QByteArrayView piece) {
        bytes += piece;
        return true;
    });
    const bool isWritten = writer.add({u"Addbk1.Fil"_s, fileLength}, noiseOf(fileLength)) &&
                           writer.add({u"SHA256SUMS"_s, 4}, "sums") && (!isFinished || writer.finish());
    return isWritten ? bytes : QByteArray();
}

/// Reads all of it; `content` is that of its first file, as far as it is proven.
State stateOf(const SealedKey &key, const QByteArray &set, int disk, const QByteArray &bytes,
              QByteArray *content = nullptr)
{
    qsizetype at = SealedKey::recordLength;
    SealedReader reader(key, set, disk, [&](char *into, qint64 size) {
        const qsizetype count = std::clamp<qsizetype>(bytes.size() - at, 0, size);
        std::copy_n(bytes.cbegin() + at, count, into);
        at += count;
        return count;
    });
    while (reader.next()) {
        reader.readAll([&](QByteArrayView piece) {
            if (content && reader.entry().name == u"Addbk1.Fil"_s)
                *content += piece;
            return true;
        });
    }
    return reader.state();
}

} // namespace

/// What a sealed set puts on a disk.
class TestSealedSet : public QObject
{
    Q_OBJECT
private slots:
    void thePasswordOpensIt()
    {
        const SealedKey key = SealedKey::fresh(derived(u"grüner Apfel"_s));
        const QByteArray bytes = sealedDisk(key, 2);
        QVERIFY(bytes.size() > fileLength);
        QVERIFY(bytes.size() <=
                SealedWriter::mostBytes(ArchiveWriter::mostTarBytes(u"Addbk1.Fil"_s, fileLength) +
                                        ArchiveWriter::mostTarBytes(u"SHA256SUMS"_s, 4)));
        QVERIFY(bytes.startsWith("QBACKUP\x01"));
        QVERIFY(!bytes.contains("Addbk1"));

        const QByteArray record = bytes.first(SealedKey::recordLength);
        QVERIFY(!opened(record, u"gruener Apfel"_s));
        QVERIFY(!opened(record.first(511), u"grüner Apfel"_s));
        QVERIFY(!opened(QByteArray(record).replace(0, 7, "QKEEPER"), u"grüner Apfel"_s));
        const std::optional<SealedKey> other = opened(record, u"grüner Apfel"_s);
        QVERIFY(other);
        QByteArray content;
        QCOMPARE(stateOf(*other, setId, 2, bytes, &content), State::Complete);
        QVERIFY(content == noiseOf(fileLength));
        // Nobody who has the code of something else has a code for this.
        QCOMPARE(record.sliced(128, 176), QByteArray(176, '\0'));
    }

    void nothingElseOpens_data()
    {
        // From where on how many bytes become these.
        const qsizetype rest = 1 << 20;
        rows<qsizetype, qsizetype, QByteArray, State>(
            {{"its last chunk is missing", headLength + 3 * chunk, rest, {}, State::Incomplete},
             {"cut in a chunk", headLength + 2 * chunk + 100, rest, {}, State::Incomplete},
             {"only its beginning", headLength - 1, rest, {}, State::Incomplete},
             {"more behind it, which cannot be told from that", rest, 0, "x", State::Incomplete},
             {"changed", headLength + 70'000, 4, "----", State::Damaged},
             {"its head changed", SealedKey::recordLength, 4, "----", State::Damaged},
             {"a chunk left out", headLength, chunk, {}, State::Damaged},
             {"a chunk put in", headLength, 0, QByteArray(chunk, '-'), State::Damaged}});
    }
    void nothingElseOpens()
    {
        const auto [at, length, with, state] = row<qsizetype, qsizetype, QByteArray, State>();
        const SealedKey key = SealedKey::fresh(derived(u"p"_s));
        const QByteArray whole = sealedDisk(key, 1);
        const qsizetype from = std::min(at, whole.size());
        const qsizetype to = std::min(from + length, whole.size());
        QByteArray content;
        QCOMPARE(stateOf(key, setId, 1, whole.first(from) + with + whole.sliced(to), &content), state);
        QVERIFY(noiseOf(fileLength).startsWith(content));
    }

    void aDiskIsThatOfItsSetAndNumber()
    {
        const SealedKey key = SealedKey::fresh(derived(u"p"_s));
        const QByteArray bytes = sealedDisk(key, 1);
        QCOMPARE(stateOf(key, setId, 2, bytes), State::Damaged);
        QCOMPARE(stateOf(key, QByteArray(16, '\1'), 1, bytes), State::Damaged);
        QCOMPARE(stateOf(SealedKey::fresh(derived(u"p"_s)), setId, 1, bytes), State::Damaged);
        // Whatever it holds: one that was never finished is not complete.
        QCOMPARE(stateOf(key, setId, 1, sealedDisk(key, 1, false)), State::Incomplete);
    }

    void anotherProgramOpensIt()
    {
        if (QProcess::execute(u"/usr/bin/python3"_s, {u"-c"_s, u"import nacl"_s}) != 0)
            QSKIP("python3-nacl is not installed");
        const TestFolder folder;
        folder.put(u"Quillery.sealed"_s, sealedDisk(SealedKey::fresh(derived(u"Zoë's key"_s)), 3));
        folder.put(u"DiskInfo.bk1"_s, "\"QUILLERY DISK\"\r\n\"1\"\r\n\"000102030405060708090a0b0c0d0e0f\"\r\n"
                                      "\"2026-11-23T19:30:00Z\"\r\n\"3\"\r\n\"0\"\r\n\"END\"\r\n");
        QProcess process;
        process.start(u"/usr/bin/python3"_s, {QStringLiteral(QUILLERY_TEST_DATA "/../../tools/opensealed.py"),
                                              u"--stdin"_s, folder.path({})});
        process.write("Zoë's key\n");
        process.closeWriteChannel();
        QVERIFY(process.waitForFinished(-1));
        QCOMPARE(process.readAllStandardError(), QByteArray());
        const QByteArray tar = process.readAllStandardOutput();
        folder.put(u"out.tar"_s, tar);
        QProcess reader;
        reader.start(u"tar"_s, {u"-xOf"_s, folder.path(u"out.tar"_s), u"Addbk1.Fil"_s});
        QVERIFY(reader.waitForFinished(-1));
        QVERIFY(reader.readAllStandardOutput() == noiseOf(fileLength));
    }
};

QTEST_GUILESS_MAIN(TestSealedSet)
#include "tst_sealedset.moc"
