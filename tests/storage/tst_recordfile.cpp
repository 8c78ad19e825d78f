// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/recordfile.h"
#include "tests/support/filesizelimit.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"

#include <QDir>

using namespace Qt::Literals::StringLiterals;

namespace {
const QString name = u"Test.Fil"_s;
} // namespace

class TestRecordFile : public QObject
{
    Q_OBJECT
private slots:
    void init() { m_files = std::make_unique<TestFolder>(); }

    void readsRecords_data()
    {
        rows<int, int, QByteArray>({
            {"first", 1, 1, "abcd"},
            {"short last", 3, 3, "ij"},
            {"past the end", 4, 4, {}},
            {"far past the end", INT_MAX, INT_MAX, {}},
            {"zero", 0, 0, {}},
            {"negative", INT_MIN, INT_MIN, {}},
            {"a run", 1, 2, "abcdefgh"},
            {"a run past the end", 2, 50'000, "efghij"},
            {"a run that ends before it begins", 3, 2, {}},
            {"a run from zero", 0, 2, {}},
        });
    }

    void readsRecords()
    {
        const auto [first, last, bytes] = row<int, int, QByteArray>();
        const RecordFile file(m_files->folder(), name, 4);
        QCOMPARE(file.read(first, last), QByteArray());
        QVERIFY(makeFile(path(), "abcdefghij"));
        QCOMPARE(file.read(first, last), bytes);
        if (first == last)
            QCOMPARE(file.read(first), bytes);
    }

    void touchesOnlyTheBytesOfAValue()
    {
        QVERIFY(makeFile(path(), "abcdefghij"));
        RecordFile file(m_files->folder(), name, 4);
        QVERIFY(file.write(2, "XY"));
        QCOMPARE(contentOf(path()), "abcdXYghij"_ba);
        QVERIFY(file.write(3, "Z"));
        QVERIFY(file.write(4, "end"));
        QCOMPARE(contentOf(path()), "abcdXYghZj\0\0end"_ba);
    }

    void refusesWhatIsNoRecord()
    {
        const std::pair<int, QByteArray> values[]{{1, "longer"}, {0, "a"}, {-1, "a"}};
        for (const auto &[number, value] : values) {
            expectWarning("^Refused to write \\d bytes to record -?\\d of ");
            QVERIFY(!RecordFile(m_files->folder(), name, 4).write(number, value));
        }
        QVERIFY(!QFile::exists(path()));
    }

    void countsRecords_data()
    {
        rows<int, int>({{"empty", 0, 0}, {"one short", 1, 1}, {"one whole", 4, 1}, {"a short third", 9, 3}});
    }

    void countsRecords()
    {
        const auto [length, count] = row<int, int>();
        RecordFile file(m_files->folder(), name, 4);
        QCOMPARE(file.recordCount(), 0);
        file.create();
        QVERIFY(QFile::exists(path()));
        QVERIFY(makeFile(path(), QByteArray(length, 'x')));
        QCOMPARE(file.recordCount(), count);
        file.create();
        QCOMPARE(contentOf(path()).size(), length);
    }

    void visitsRecordsAcrossBlocks()
    {
        // Record lengths that divide no block size evenly; many blocks, the last record short.
        QByteArray content;
        for (int number = 1; number <= 20000; ++number)
            content += QByteArray::number(number).leftJustified(60, '.');
        content += "end";
        QVERIFY(makeFile(path(), content));
        int expected = 3;
        RecordFile(m_files->folder(), name, 60).forEach(3, [&](int number, QByteArrayView bytes) {
            const QByteArray record = content.mid(qsizetype(number - 1) * 60, 60);
            return number == expected && bytes == record && ++expected > 0;
        });
        QCOMPARE(expected, 20002);
    }

    void stopsAVisit()
    {
        QVERIFY(makeFile(path(), "abcdefghij"));
        QList<int> visited;
        const auto visit = [&](int number, QByteArrayView) {
            visited += number;
            return number < 2;
        };
        for (const int first : {-5, 4})
            RecordFile(m_files->folder(), name, 4).forEach(first, visit);
        QCOMPARE(visited, (QList<int>{1, 2}));
    }

    void survivesAFolderInTheFilesPlace()
    {
        QVERIFY(QDir().mkpath(path()));
        RecordFile file(m_files->folder(), name, 4);
        expectWarning("^Cannot read .*Test.Fil");
        QCOMPARE(file.read(1), QByteArray());
        expectWarning("^Cannot write record 1 of .*Test.Fil");
        QVERIFY(!file.write(1, "a"));
        expectWarning("^Cannot create .*Test.Fil");
        file.create();
        QCOMPARE(file.recordCount(), 0);
        expectWarning("^Cannot read .*Test.Fil");
        file.forEach(1, [](int, QByteArrayView) -> bool { qFatal("a folder has no records"); });
    }

    void survivesAMissingFolder()
    {
        RecordFile file(m_files->folder(), u"none/Test.Fil"_s, 4);
        QCOMPARE(file.read(1), QByteArray());
        expectWarning("^Cannot write record 1 of ");
        QVERIFY(!file.write(1, "a"));
        QVERIFY(!QFile::exists(m_files->path(u"none"_s)));
    }

    void reportsAFullDisk()
    {
#ifdef Q_OS_UNIX
        RecordFile file(m_files->folder(), name, 724);
        QVERIFY(file.write(1, "kept"));
        {
            const FileSizeLimit limit(1024 * 1024);
            expectWarning("^Cannot write record 1449 of ");
            QVERIFY2(!file.write(1449, QByteArray(724, 'x')), "a record that only begins to fit");
            expectWarning("^Cannot write record 5000 of ");
            QVERIFY(!file.write(5000, "x"));
        }
        QCOMPARE(file.read(1).first(4), "kept"_ba);

        expectWarning("seek on a sequential device$"); // from Qt: a device is no place for records
        QVERIFY(QFile::link(u"/dev/full"_s, m_files->path(u"Full.Fil"_s)));
        expectWarning("^Cannot write record 1 of ");
        QVERIFY(!RecordFile(m_files->folder(), u"Full.Fil"_s, 4).write(1, "a"));
#else
        QSKIP("needs a limit on file sizes");
#endif
    }

    void reachesRecordsBeyondTwoGigabytes()
    {
        // A sparse file: only its last block takes room.
        RecordFile file(m_files->folder(), name, 900);
        QVERIFY(file.write(3'000'000, "far"));
        QCOMPARE(QFileInfo(path()).size(), 2'999'999LL * 900 + 3);
        QCOMPARE(file.read(3'000'000), "far"_ba);
        QCOMPARE(file.recordCount(), 3'000'000);
    }

private:
    QString path() const
    {
        return m_files->path(name);
    }

    std::unique_ptr<TestFolder> m_files;
};

QTEST_APPLESS_MAIN(TestRecordFile)
#include "tst_recordfile.moc"
