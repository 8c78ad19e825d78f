// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/recordsback.h"
#include "tests/support/rows.h"
#include "weight/model/weightrecords.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString list = u"WeightTrker.Fil"_s;
const QString anne = u"Anne.Fil"_s;

QByteArray fileOf(const QByteArray &weight)
{
    return "\"2\"\r\n\"January 05, 2026\"\r\n\"" + weight + "\"\r\n\"140.\"\r\n" +
           QByteArray("\"\"\r\n").repeated(8) + "\"01/05/2026\"\r\n\"" + weight + "\"\r\n";
}

QByteArray listOf(const QByteArrayList &names)
{
    QByteArray bytes;
    for (const QByteArray &name : names)
        bytes += '"' + name + "\"\r\n";
    return bytes;
}

const QByteArray light = fileOf("150.");
const QByteArray heavy = fileOf("152.");

} // namespace

class TestWeightRecords : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_here = std::make_unique<TestFolder>();
        m_there = std::make_unique<TestFolder>();
    }

    void tellsOfPersons_data()
    {
        const QStringList lines{u"Anne"_s, u"Beginning Date: January 05, 2026"_s, u"Beginning Weight: 150."_s,
                                u"Goal Weight: 140."_s, u"01/05/2026: 150."_s};
        rows<FolderFiles, QStringList>({
            {"a person", {{list, listOf({"Anne"})}, {anne, light}}, lines},
            {"without a list", {{anne, light}}, lines},
            {"without a file", {{list, listOf({"Anne", "WeightTrker"})}}, lines.first(1)},
            {"cut short", {{list, listOf({"Anne"})}, {anne, light.left(24)}}, lines.first(2)},
            {"noise", {{list, listOf({"Anne"})}, {anne, noiseOf(500)}}, lines.first(1)},
        });
    }
    void tellsOfPersons()
    {
        const auto [files, texts] = row<FolderFiles, QStringList>();
        putAll(*m_there, files);
        QCOMPARE(told(WeightRecords(m_there->folder())), texts);
        QCOMPARE(filesOf(*m_there), files);
    }

    void bringsBack_data()
    {
        const QByteArray three = listOf({"Tom", "Anne", "Nils"});
        rows<FolderFiles, FolderFiles>({
            {"who was deleted",
             {{list, listOf({"Tom", "Nils"})}, {u"Nils.Fil"_s, heavy}},
             {{list, three}, {u"Nils.Fil"_s, heavy}, {anne, light}}},
            {"who weighs more now",
             {{list, listOf({"Nils", "ANNE"})}, {u"ANNE.Fil"_s, heavy}},
             {{list, listOf({"Nils", "ANNE"})}, {u"ANNE.Fil"_s, light}}},
            {"into a folder without anybody", {}, {{list, listOf({"Anne"})}, {anne, light}}},
            {"beside a file that is somebody else's",
             {{list, listOf({"Nils"})}, {anne, heavy}},
             {{list, listOf({"Nils", "Anne 2"})}, {anne, heavy}, {u"Anne 2.Fil"_s, light}}},
        });
    }
    void bringsBack()
    {
        const auto [here, expected] = row<FolderFiles, FolderFiles>();
        putAll(*m_here, here);
        putAll(*m_there, {{list, listOf({"Tom", "Anne"})}, {anne, light}, {u"Tom.Fil"_s, heavy}});
        WeightRecords records(m_here->folder());
        bringBackAndForth(records, WeightRecords(m_there->folder()), {u"anne"_s}, *m_here, expected);
    }

private:
    std::unique_ptr<TestFolder> m_here;
    std::unique_ptr<TestFolder> m_there;
};

QTEST_GUILESS_MAIN(TestWeightRecords)
#include "tst_weightrecords.moc"
