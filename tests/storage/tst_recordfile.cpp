// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/recordfile.h"
#include "tests/support/filesizelimit.h"
#include "tests/support/testfiles.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestRecordFile : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_dir = std::make_unique<QTemporaryDir>(); }
    void readsRecords_data();
    void readsRecords();
    void readsRunsOfRecords();
    void touchesOnlyTheBytesOfAValue();
    void refusesWhatIsNoRecord();
    void countsRecords_data();
    void countsRecords();
    void visitsRecordsAcrossBlocks();
    void stopsAVisit();
    void survivesAFolderInTheFilesPlace();
    void survivesAMissingFolder();
    void reportsAFullDisk();
    void reachesRecordsBeyondTwoGigabytes();

private:
    QString path() const { return m_dir->filePath(u"Test.Fil"_s); }

    std::unique_ptr<QTemporaryDir> m_dir;
};

void TestRecordFile::readsRecords_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("first") << 1 << "abcd"_ba;
    QTest::newRow("second") << 2 << "efgh"_ba;
    QTest::newRow("short last") << 3 << "ij"_ba;
    QTest::newRow("past the end") << 4 << QByteArray();
    QTest::newRow("far past the end") << std::numeric_limits<int>::max() << QByteArray();
    QTest::newRow("zero") << 0 << QByteArray();
    QTest::newRow("negative") << std::numeric_limits<int>::min() << QByteArray();
}

void TestRecordFile::readsRecords()
{
    QFETCH(int, number);
    QVERIFY(makeFile(path(), "abcdefghij"));
    QTEST(RecordFile(path(), 4).read(number), "bytes");
}

void TestRecordFile::readsRunsOfRecords()
{
    RecordFile file(path(), 4);
    QCOMPARE(file.read(1, 2), QByteArray());
    QVERIFY(makeFile(path(), "abcdefghij"));
    QCOMPARE(file.read(1, 2), "abcdefgh"_ba);
    QCOMPARE(file.read(2, 50'000), "efghij"_ba);
    QCOMPARE(file.read(3, 2), QByteArray());
    QCOMPARE(file.read(0, 2), QByteArray());
}

void TestRecordFile::touchesOnlyTheBytesOfAValue()
{
    QVERIFY(makeFile(path(), "abcdefghij"));
    QVERIFY(RecordFile(path(), 4).write(2, "XY"));
    QCOMPARE(contentOf(path()), "abcdXYghij"_ba);
    QVERIFY(RecordFile(path(), 4).write(3, "Z"));
    QCOMPARE(contentOf(path()), "abcdXYghZj"_ba);
    QVERIFY(RecordFile(path(), 4).write(4, "end"));
    QCOMPARE(contentOf(path()), QByteArray("abcdXYghZj\0\0end", 15));
}

void TestRecordFile::refusesWhatIsNoRecord()
{
    const std::pair<int, QByteArray> values[]{{1, "longer"}, {0, "a"}, {-1, "a"}};
    for (const auto &[number, value] : values) {
        expectWarning("^Refused to write \\d bytes to record -?\\d of ");
        QVERIFY(!RecordFile(path(), 4).write(number, value));
    }
    QVERIFY(!QFile::exists(path()));
}

void TestRecordFile::countsRecords_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<int>("count");
    QTest::newRow("empty") << 0 << 0;
    QTest::newRow("one short") << 1 << 1;
    QTest::newRow("one whole") << 4 << 1;
    QTest::newRow("two and a short one") << 9 << 3;
}

void TestRecordFile::countsRecords()
{
    QFETCH(int, length);
    RecordFile file(path(), 4);
    QCOMPARE(file.recordCount(), 0);
    file.create();
    QVERIFY(QFile::exists(path()));
    QVERIFY(makeFile(path(), QByteArray(length, 'x')));
    QTEST(file.recordCount(), "count");
    file.create();
    QCOMPARE(contentOf(path()).size(), length);
}

void TestRecordFile::visitsRecordsAcrossBlocks()
{
    // Record lengths that divide no block size evenly; many blocks, the last record short.
    QByteArray content;
    for (int number = 1; number <= 20000; ++number)
        content += QByteArray::number(number).leftJustified(60, '.');
    content += "end";
    QVERIFY(makeFile(path(), content));
    int expected = 3;
    RecordFile(path(), 60).forEach(3, [&](int number, QByteArrayView bytes) {
        const QByteArray record = content.mid(qsizetype(number - 1) * 60, 60);
        return number == expected && bytes == record && ++expected > 0;
    });
    QCOMPARE(expected, 20002);
}

void TestRecordFile::stopsAVisit()
{
    QVERIFY(makeFile(path(), "abcdefghij"));
    QList<int> visited;
    RecordFile file(path(), 4);
    const auto visit = [&](int number, QByteArrayView) {
        visited += number;
        return number < 2;
    };
    file.forEach(-5, visit);
    QCOMPARE(visited, (QList<int>{1, 2}));
    file.forEach(4, visit);
    QCOMPARE(visited.size(), 2);
}

void TestRecordFile::survivesAFolderInTheFilesPlace()
{
    QVERIFY(QDir().mkpath(path()));
    RecordFile file(path(), 4);
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

void TestRecordFile::survivesAMissingFolder()
{
    RecordFile file(m_dir->filePath(u"none/Test.Fil"_s), 4);
    QCOMPARE(file.read(1), QByteArray());
    expectWarning("^Cannot write record 1 of ");
    QVERIFY(!file.write(1, "a"));
    QVERIFY(!QFile::exists(m_dir->filePath(u"none"_s)));
}

void TestRecordFile::reportsAFullDisk()
{
#ifdef Q_OS_UNIX
    RecordFile file(path(), 724);
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
    QVERIFY(QFile::link(u"/dev/full"_s, m_dir->filePath(u"Full.Fil"_s)));
    expectWarning("^Cannot write record 1 of ");
    QVERIFY(!RecordFile(m_dir->filePath(u"Full.Fil"_s), 4).write(1, "a"));
#else
    QSKIP("needs a limit on file sizes");
#endif
}

void TestRecordFile::reachesRecordsBeyondTwoGigabytes()
{
    // A sparse file: only its last block takes room.
    RecordFile file(path(), 900);
    QVERIFY(file.write(3'000'000, "far"));
    QCOMPARE(QFileInfo(path()).size(), 2'999'999LL * 900 + 3);
    QCOMPARE(file.read(3'000'000), "far"_ba);
    QCOMPARE(file.recordCount(), 3'000'000);
}

QTEST_APPLESS_MAIN(TestRecordFile)
#include "tst_recordfile.moc"
