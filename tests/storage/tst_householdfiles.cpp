// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/datafolder.h"
#include "storage/recordfile.h"
#include "storage/recordvalue.h"
#include "storage/valuefile.h"
#include "tests/support/household.h"
#include "tests/support/testfiles.h"

using namespace Qt::Literals::StringLiterals;

/// The files of a household that has kept them for years come back byte for byte.
class TestHouseholdFiles : public QObject
{
    Q_OBJECT

private slots:
    void recordsOfTextsComeBack_data();
    void recordsOfTextsComeBack();
    void valueFilesComeBack_data();
    void valueFilesComeBack();
    void readsCommentsOfSeveralLines();

private:
    const DataFolder m_folder{householdPath()};
};

void TestHouseholdFiles::recordsOfTextsComeBack_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("recordLength");
    QTest::addColumn<int>("texts");
    QTest::addColumn<QList<int>>("numbers");
    QTest::newRow("family name") << u"HINVNAME.FIL"_s << 40 << 1 << QList<int>{};
    QTest::newRow("GColor1") << u"GColor1.Fil"_s << 20 << 19 << QList<int>{25};
    QTest::newRow("GColor2") << u"GColor2.Fil"_s << 20 << 9 << QList<int>{};
    QTest::newRow("GColor3") << u"GColor3.Fil"_s << 20 << 14 << QList<int>{36, 37, 58};
    QTest::newRow("name list") << u"Addbk2.Fil"_s << 60 << 43 << QList<int>{};
}

void TestHouseholdFiles::recordsOfTextsComeBack()
{
    QFETCH(QString, name);
    QFETCH(int, recordLength);
    QFETCH(QList<int>, numbers);
    int texts = 0;
    QList<int> numbersFound;
    RecordFile file(m_folder.filePath(name), recordLength);
    file.forEach(1, [&](int number, QByteArrayView bytes) {
        const QString text = RecordValue::decodeText(bytes);
        const std::optional<QByteArray> again = RecordValue::encodeText(text, recordLength);
        if (!text.isEmpty() && again && bytes.startsWith(*again))
            ++texts;
        else if (RecordValue::encodeNumber(RecordValue::decodeNumber(bytes)) == bytes.first(2) &&
                 RecordValue::decodeNumber(bytes) != 0)
            numbersFound += number;
        return true;
    });
    QTEST(texts, "texts");
    QCOMPARE(numbersFound, numbers);
}

void TestHouseholdFiles::valueFilesComeBack_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("count");
    QTest::newRow("budget of 2025") << u"2025.Fil"_s << 662;
    QTest::newRow("budget of 2026") << u"2026.Fil"_s << 662;
    QTest::newRow("persons") << u"WeightTrker.Fil"_s << 4;
    QTest::newRow("vehicle with quotes in its notes") << u"ACar1.Fil"_s << 325;
    QTest::newRow("deleted vehicle") << u"ACar2.Fil"_s << 1;
    QTest::newRow("fuel") << u"GCar1.Fil"_s << 126;
    QTest::newRow("items to do") << u"TODOActv.FIL"_s << 33;
}

void TestHouseholdFiles::valueFilesComeBack()
{
    QFETCH(QString, name);
    const QString path = m_folder.filePath(name);
    const QStringList values = ValueFile::read(path);
    QTEST(int(values.size()), "count");
    QCOMPARE(ValueFile::encode(values), contentOf(path));
}

void TestHouseholdFiles::readsCommentsOfSeveralLines()
{
    const QStringList values = ValueFile::read(householdPath(u"Nils Holm 2026.Fil"_s));
    QVERIFY(values.contains(u"Knee is still weak, no running.\r\nSays the doctor: \"Swim\" instead.\r\n"
                            "Next check in May."_s));
}

QTEST_GUILESS_MAIN(TestHouseholdFiles)
#include "tst_householdfiles.moc"
