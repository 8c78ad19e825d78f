// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/diskrecords.h"
#include "backup/model/sumsfile.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QByteArray id("000102030405060708090a0b0c0d0e0f");
const QByteArray hash("00112233445566778899aabbccddeeff00112233445566778899aabbccddeeff");

QByteArray lines(const QList<QByteArray> &values)
{
    QByteArray file;
    for (const QByteArray &value : values)
        file += '"' + value + "\"\r\n";
    return file;
}

const QList<QByteArray> disk{"QUILLERY DISK",
                             "1",
                             id,
                             "2026-11-23T19:30:00Z",
                             "2",
                             "2",
                             " 2026%25%C3%A4.Cal",
                             "850",
                             "0",
                             "850",
                             "2026-11-22T08:00:00.250Z",
                             hash,
                             "Large.dat.003",
                             "5000",
                             "2000",
                             "1000",
                             "2026-11-22T08:00:00.250Z",
                             hash,
                             "END"};
const QList<QByteArray> set{"QUILLERY SET",
                            "1",
                            id,
                            "2026-11-23T19:30:00Z",
                            "2026-11-23T19:45:10Z",
                            "2",
                            "SILVER",
                            "open",
                            "",
                            "1",
                            "AddressBook",
                            "40",
                            "1",
                            "Elsewhere/C:/Users/x.jpg",
                            "5000",
                            "2026-11-22T08:00:00.250Z",
                            hash,
                            "1",
                            "2",
                            "END"};

const QDateTime begun({2026, 11, 23}, {19, 30}, Qt::UTC);
const QDateTime changed({2026, 11, 22}, {8, 0, 0, 250}, Qt::UTC);

DiskRecord diskRecord()
{
    return {QByteArray::fromHex(id),
            begun,
            2,
            {{u" 2026%\u00e4.Cal"_s, 850, 0, 850, changed, QByteArray::fromHex(hash), 0},
             {u"Large.dat"_s, 5000, 2000, 1000, changed, QByteArray::fromHex(hash), 3}}};
}

SetRecord setRecord()
{
    return {QByteArray::fromHex(id),
            begun,
            begun.addSecs(910),
            2,
            u"SILVER"_s,
            false,
            {},
            {{u"AddressBook"_s, 40}},
            {{u"Elsewhere/C:/Users/x.jpg"_s, 5000, changed, QByteArray::fromHex(hash), 1, 2}}};
}

} // namespace

/// The records of disks and sets, byte for byte; and what is none.
class TestDiskRecords : public QObject
{
    Q_OBJECT

private slots:
    void standAsTheyAreWritten()
    {
        QCOMPARE(DiskRecords::encoded(diskRecord()), lines(disk));
        QCOMPARE(DiskRecords::diskRecord(lines(disk)), diskRecord());
        QCOMPARE(DiskRecords::encoded(setRecord()), lines(set));
        QCOMPARE(DiskRecords::setRecord(lines(set)), setRecord());
        SetRecord unfinished = setRecord();
        unfinished.ended = {};
        unfinished.isSealed = true;
        QCOMPARE(DiskRecords::setRecord(DiskRecords::encoded(unfinished)), unfinished);
    }

    void refuseADisk_data()
    {
        // Which line, and what stands there instead.
        rows<int, QByteArray>({{"another beginning", 0, "QUILLERY SET"},
                               {"a later version", 1, "2"},
                               {"a short id", 2, "0001"},
                               {"a local time", 3, "2026-11-23T19:30:00"},
                               {"disk 0", 4, "0"},
                               {"10 million parts", 5, "10000000"},
                               {"a part too many", 5, "1"},
                               {"a part too few", 5, "3"},
                               {"an absolute path", 6, "/etc/passwd"},
                               {"a path on a drive", 6, "C:/Windows/x"},
                               {"out of the folder", 6, "Pictures/../../x"},
                               {"a path with backslashes", 6, "..\\x"},
                               {"a device", 6, "Pictures/Con.jpg"},
                               {"an empty step", 6, "Pictures//x"},
                               {"a folder", 6, "Pictures/"},
                               {"no name", 6, ""},
                               {"a zero in a name", 6, "a%00"},
                               {"a size that is none", 7, "-850"},
                               {"a size that is too large", 7, "99999999999999999999"},
                               {"behind the end", 8, "851"},
                               {"more than there is", 9, "851"},
                               {"less, without a number of the piece", 9, "849"},
                               {"a time that is none", 10, "yesterday"},
                               {"a hash in capitals", 11, hash.toUpper()},
                               {"half a hash", 11, hash.first(32)},
                               {"piece 0", 12, "Large.dat.000"},
                               {"piece 3 in one digit", 12, "Large.dat.3"},
                               {"a piece of a device", 12, "NUL.001"},
                               {"another end", 18, "END."}});
    }
    void refuseADisk()
    {
        const auto [line, value] = row<int, QByteArray>();
        QList<QByteArray> values = disk;
        values[line] = value;
        QVERIFY(!DiskRecords::diskRecord(lines(values)));
    }

    void refuseASet_data()
    {
        rows<int, QByteArray>({{"a disk's beginning", 0, "QUILLERY DISK"},
                               {"an id of other letters", 2, id.first(31) + "g"},
                               {"no disks", 5, "0"},
                               {"neither sealed nor open", 7, "shut"},
                               {"10 million files", 12, "10000000"},
                               {"an absolute path", 13, "/home/x.jpg"},
                               {"a first disk beyond all", 17, "3"},
                               {"a last disk before the first", 18, "0"}});
    }
    void refuseASet()
    {
        const auto [line, value] = row<int, QByteArray>();
        QList<QByteArray> values = set;
        values[line] = value;
        QVERIFY(!DiskRecords::setRecord(lines(values)));
    }

    void refuseWhatIsCut()
    {
        for (const QByteArray &whole : {lines(disk), lines(set)}) {
            // Without the line end behind the last value nothing is missing yet.
            for (qsizetype length = 0; length < whole.size() - 3; ++length) {
                QVERIFY(!DiskRecords::diskRecord(whole.first(length)));
                QVERIFY(!DiskRecords::setRecord(whole.first(length)));
            }
            const QByteArray longer = whole + "\"x\"\r\n";
            QVERIFY(!DiskRecords::diskRecord(longer) && !DiskRecords::setRecord(longer));
        }
    }

    void listHashes_data()
    {
        rows<QString, QByteArray>({{"plain", u" a/b c.Fil"_s, hash + "   a/b c.Fil\n"},
                                   {"backslash", u"a\\b"_s, '\\' + hash + "  a\\\\b\n"},
                                   {"line break", u"a\nb\r"_s, '\\' + hash + "  a\\nb\\r\n"}});
    }
    void listHashes()
    {
        const auto [path, line] = row<QString, QByteArray>();
        QCOMPARE(SumsFile::line(QByteArray::fromHex(hash), path), line);
    }
};

QTEST_GUILESS_MAIN(TestDiskRecords)
#include "tst_diskrecords.moc"
