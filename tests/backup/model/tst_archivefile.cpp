// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/archivefile.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"

#include <QBuffer>
#include <QProcess>
#include <QStandardPaths>

using namespace Qt::Literals::StringLiterals;

namespace {

using State = ArchiveReader::State;

QByteArray output(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished(-1) || process.exitCode() != 0)
        return "failed: " + process.readAllStandardError();
    return process.readAllStandardOutput();
}

struct File {
    QString name;
    QByteArray bytes;
    bool operator==(const File &) const = default;
};

const QDateTime changed = QDateTime::fromString(u"2026-11-23T19:30:08Z"_s, Qt::ISODate);

QByteArray archiveOf(ArchiveForm form, const QList<File> &files)
{
    QByteArray bytes;
    ArchiveWriter writer(form, [&bytes](QByteArrayView piece) {
        bytes += piece;
        return true;
    });
    for (const File &file : files) {
        if (!writer.add({file.name, file.bytes.size(), changed}, file.bytes))
            return {};
    }
    return writer.finish() ? bytes : QByteArray();
}

/// What is read of these bytes before the reader stops; damaged files are left out.
QList<File> filesOf(ArchiveForm form, QByteArray bytes, State &state, const ArchiveLimits &limits = {})
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    ArchiveReader reader(form, ArchiveReader::sourceOf(buffer), limits);
    QList<File> files;
    while (reader.next()) {
        File file{reader.entry().name, {}};
        const bool isWhole = reader.readAll([&file](QByteArrayView piece) {
            file.bytes += piece;
            return true;
        });
        if (isWhole)
            files.append(file);
    }
    state = reader.state();
    return files;
}

} // namespace

/// ZIP and tar: others read what is written, and nothing is taken from what is none of ours.
class TestArchiveFile : public QObject
{
    Q_OBJECT
private slots:
    void othersReadWhatIsWritten_data()
    {
        rows<ArchiveForm, QString, QStringList>(
            {{"ZIP", ArchiveForm::Zip, u"unzip"_s, {u"-p"_s}},
             {"ZIP, another reader", ArchiveForm::Zip, u"bsdtar"_s, {u"-xOf"_s}},
             {"tar", ArchiveForm::Tar, u"tar"_s, {u"-xOf"_s}},
             {"tar, another reader", ArchiveForm::Tar, u"bsdtar"_s, {u"-xOf"_s}}});
    }
    void othersReadWhatIsWritten()
    {
        const auto [form, program, arguments] = row<ArchiveForm, QString, QStringList>();
        const QList<File> files{{u"Household/ 2026.Cal"_s, noiseOf(200'000)},
                                {u"Household/Zoë Märsh.Fil"_s, QByteArray(1'000'000, '\0')},
                                {u"empty"_s, {}},
                                {QString(300, u'n').replace(150, 1, u"/"_s), "long name"}};
        const QByteArray bytes = archiveOf(form, files);
        State state{};
        QVERIFY(filesOf(form, bytes, state) == files);
        QCOMPARE(state, State::Complete);

        const TestFolder folder;
        folder.put(u"archive"_s, bytes);
        if (QStandardPaths::findExecutable(program).isEmpty())
            QSKIP("the other reader is not installed");
        for (const File &file : files) {
            if (program == u"unzip"_s && file.bytes.isEmpty())
                continue; // says so by its exit code
            QCOMPARE(output(program, arguments + QStringList{folder.path(u"archive"_s), file.name}),
                     file.bytes);
        }
    }

    void aFileMayGrowIntoAZip()
    {
        QByteArray bytes;
        const ArchiveSink sink = [&bytes](QByteArrayView piece) {
            bytes += piece;
            return true;
        };
        ArchiveWriter writer(ArchiveForm::Zip, sink);
        const ArchiveEntry entry{u"copy.csv"_s, ArchiveWriter::unknownSize, changed};
        QVERIFY(writer.begin(entry) && writer.write("Name,") && writer.write("Anne"));
        QVERIFY(writer.add({u"next"_s, 1, changed}, "x") && writer.finish());
        State state{};
        QVERIFY(filesOf(ArchiveForm::Zip, bytes, state) ==
                (QList<File>{{u"copy.csv"_s, "Name,Anne"}, {u"next"_s, "x"}}));
        QVERIFY(!ArchiveWriter(ArchiveForm::Tar, sink).begin(entry));
    }

    void whatIsBegunIsWrittenWhole()
    {
        ArchiveWriter few(ArchiveForm::Zip, [](QByteArrayView) { return true; });
        QVERIFY(few.begin({u"a"_s, 3, changed}) && few.write("ab"));
        QVERIFY(!few.finish());
        ArchiveWriter many(ArchiveForm::Tar, [](QByteArrayView) { return true; });
        QVERIFY(many.begin({u"a"_s, 3, changed}) && !many.write("abcd"));
        ArchiveWriter full(ArchiveForm::Tar, [](QByteArrayView) { return false; });
        QVERIFY(!full.add({u"a"_s, 1'000'000, changed}, noiseOf(1'000'000)));
        QVERIFY(!full.finish());
    }

    void aTarTakesNoMoreThanIsSaid()
    {
        for (const QString &name : {u"a"_s, QString(120, u'ä'), QString(120, u'b')}) {
            for (const qsizetype size : {0, 1, 511, 512, 513, 100'000}) {
                const QByteArray bytes = archiveOf(ArchiveForm::Tar, {{name, noiseOf(size)}});
                QVERIFY(!bytes.isEmpty());
                QVERIFY(bytes.size() <= ArchiveWriter::mostTarBytes(name, size) + ArchiveWriter::mostTarEnd);
            }
        }
    }

    void nothingIsTakenFromOthers_data()
    {
        // Each is made by Python: z(name, ...) adds to a ZIP, t(name, ...) to a tar.
        rows<ArchiveForm, QString>(
            {{"absolute", ArchiveForm::Zip, u"z('/etc/x')"_s},
             {"upwards", ArchiveForm::Zip, u"z('a/../../x')"_s},
             {"upwards, other stroke", ArchiveForm::Zip, u"z('..\\\\x')"_s},
             {"device", ArchiveForm::Zip, u"z('NUL.Fil')"_s},
             {"empty folder", ArchiveForm::Zip, u"z('folder/')"_s},
             {"link", ArchiveForm::Zip,
              u"i = zipfile.ZipInfo('l'); i.create_system = 3; i.external_attr = 0o120777 << 16; "
              u"a.writestr(i, '/etc/passwd')"_s},
             {"bzip2", ArchiveForm::Zip, u"z('x', zipfile.ZIP_BZIP2)"_s},
             {"lzma", ArchiveForm::Zip, u"z('x', zipfile.ZIP_LZMA)"_s},
             {"more than is believed", ArchiveForm::Zip,
              u"a.writestr('x', b'0' * 2000000, zipfile.ZIP_DEFLATED)"_s},
             {"more files than are believed", ArchiveForm::Zip, u"for n in range(6): z('x%d' % n)"_s},
             {"tar: absolute", ArchiveForm::Tar, u"t('/etc/x')"_s},
             {"tar: upwards", ArchiveForm::Tar, u"t('../x')"_s},
             {"tar: link", ArchiveForm::Tar, u"t('l', tarfile.SYMTYPE)"_s},
             {"tar: second name", ArchiveForm::Tar, u"t('x'); t('l', tarfile.LNKTYPE)"_s},
             {"tar: folder", ArchiveForm::Tar, u"t('f', tarfile.DIRTYPE)"_s},
             {"tar: device", ArchiveForm::Tar, u"t('f', tarfile.BLKTYPE)"_s},
             {"tar: packed", ArchiveForm::Tar, u"t('x'); a.close(); d = gzip.compress(b.getvalue())"_s},
             {"a ZIP for a tar", ArchiveForm::Tar, u"a = zipfile.ZipFile(b, 'w'); a.writestr('x', 'x')"_s},
             {"a tar for a ZIP", ArchiveForm::Zip, u"a = tarfile.open(fileobj=b, mode='w'); t('x')"_s},
             {"nothing", ArchiveForm::Zip, u"d = b''"_s},
             {"tar: nothing", ArchiveForm::Tar, u"d = b''"_s}});
    }
    void nothingIsTakenFromOthers()
    {
        if (QStandardPaths::findExecutable(u"python3"_s).isEmpty())
            QSKIP("Python is not installed");
        const auto [form, step] = row<ArchiveForm, QString>();
        const QString begin = uR"(import io, sys, gzip, tarfile, zipfile
b = io.BytesIO(); d = None
def z(name, how=zipfile.ZIP_STORED): a.writestr(name, b'bytes', how)
def t(name, kind=tarfile.REGTYPE):
    i = tarfile.TarInfo(name); i.type = kind; i.linkname = 'x'; i.size = 5 if kind == tarfile.REGTYPE else 0
    a.addfile(i, io.BytesIO(b'bytes'))
a = %1
%2
a.close(); sys.stdout.buffer.write(b.getvalue() if d is None else d)
)"_s;
        const bool isZip = form == ArchiveForm::Zip;
        const QString archive = isZip ? u"zipfile.ZipFile(b, 'w')"_s : u"tarfile.open(fileobj=b, mode='w')"_s;
        const QByteArray bytes = output(u"python3"_s, {u"-c"_s, begin.arg(archive, step)});
        QVERIFY2(!bytes.startsWith("failed"), bytes.constData());
        State state{};
        const QList<File> files = filesOf(form, bytes, state, {.files = 5, .bytes = 1'000'000});
        QVERIFY2(state == State::Refused || (state == State::Damaged && files.isEmpty()),
                 QByteArray::number(int(state)).constData());
        QVERIFY(files.size() <= 5);
    }

    void noByteIsBelievedThatWasChanged()
    {
        const QList<File> files{{u"one"_s, "some bytes, some bytes, some bytes"}, {u"two"_s, "x"}};
        const QByteArray whole = archiveOf(ArchiveForm::Zip, files);
        for (qsizetype i = 0; i < whole.size(); ++i) {
            QByteArray bytes = whole;
            bytes[i] = char(bytes[i] ^ 0x55);
            State state{};
            for (const File &file : filesOf(ArchiveForm::Zip, bytes, state))
                QVERIFY(file.bytes == files[0].bytes || file.bytes == files[1].bytes);
            filesOf(ArchiveForm::Zip, whole.first(i), state);
            QVERIFY2(state != State::Complete, QByteArray::number(i).constData());
        }
    }
};

QTEST_GUILESS_MAIN(TestArchiveFile)
#include "tst_archivefile.moc"
