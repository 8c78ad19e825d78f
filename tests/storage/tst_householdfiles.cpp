// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/datafolder.h"
#include "storage/recordfile.h"
#include "storage/recordvalue.h"
#include "storage/valuefile.h"
#include "tests/support/household.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"

using namespace Qt::Literals::StringLiterals;

/// The files of a household that has kept them for years come back byte for byte.
class TestHouseholdFiles : public QObject
{
    Q_OBJECT

private slots:
    void recordsOfTextsComeBack_data()
    {
        rows<QString, int, int, QList<int>>({
            {"family name", u"HINVNAME.FIL"_s, 40, 1, {}},
            {"GColor1", u"GColor1.Fil"_s, 20, 19, {25}},
            {"GColor2", u"GColor2.Fil"_s, 20, 9, {}},
            {"GColor3", u"GColor3.Fil"_s, 20, 14, {36, 37, 58}},
            {"name list", u"Addbk2.Fil"_s, 60, 43, {}},
        });
    }

    void recordsOfTextsComeBack()
    {
        const auto [name, recordLength, texts, numbers] = row<QString, int, int, QList<int>>();
        int textsFound = 0;
        QList<int> numbersFound;
        const RecordFile file(m_folder.filePath(name), recordLength);
        file.forEach(1, [&](int number, QByteArrayView bytes) {
            const QString text = RecordValue::decodeText(bytes);
            const std::optional<QByteArray> again = RecordValue::encodeText(text, file.recordLength());
            if (!text.isEmpty() && again && bytes.startsWith(*again))
                ++textsFound;
            else if (RecordValue::encodeNumber(RecordValue::decodeNumber(bytes)) == bytes.first(2) &&
                     RecordValue::decodeNumber(bytes) != 0)
                numbersFound += number;
            return true;
        });
        QCOMPARE(textsFound, texts);
        QCOMPARE(numbersFound, numbers);
    }

    void valueFilesComeBack_data()
    {
        rows<QString, int>({
            {"budget of 2025", u"2025.Fil"_s, 662},
            {"budget of 2026", u"2026.Fil"_s, 662},
            {"persons", u"WeightTrker.Fil"_s, 4},
            {"vehicle with quotes in its notes", u"ACar1.Fil"_s, 325},
            {"deleted vehicle", u"ACar2.Fil"_s, 1},
            {"fuel", u"GCar1.Fil"_s, 126},
            {"comments of several lines", u"Nils Holm 2026.Fil"_s, 110},
            {"items to do", u"TODOActv.FIL"_s, 33},
        });
    }

    void valueFilesComeBack()
    {
        const auto [name, count] = row<QString, int>();
        const QString path = m_folder.filePath(name);
        const QStringList values = ValueFile::read(path);
        QCOMPARE(int(values.size()), count);
        QCOMPARE(ValueFile::encode(values), contentOf(path));
    }

private:
    const DataFolder m_folder{householdPath()};
};

QTEST_GUILESS_MAIN(TestHouseholdFiles)
#include "tst_householdfiles.moc"
