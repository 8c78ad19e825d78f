// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/recordsback.h"
#include "tests/support/rows.h"
#include "todo/model/todorecords.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QDate today(2026, 11, 23);
const QString own = u"ToDo1.Fil"_s;

const QByteArray first = "Quillery To Do 1\r\n";
const QByteArray home =
    "list\t1\tplain\tHome\r\nitem\t4\t1\t0\t2027-03-15\t\tAnne\t\t\tRenew passports\tTwo photos\r\n"
    "item\t5\t1\t1\t\t2026-11-20\t\t\t\tAsk Nils\t\r\n";
const QByteArray shop = "list\t2\tshopping\tShop\r\nitem\t6\t2\t0\t\t\t\t\t\tMilk\t\r\n";

const QStringList homeTold{u"Home"_s, u"Renew passports, due 15 Mar 2027, Anne, Two photos"_s,
                           u"- Ask Nils, done 20 Nov 2026"_s};
const QStringList shopTold{u"Shop"_s, u"Milk"_s};

ToDoRecords recordsOf(const TestFolder &folder)
{
    return {folder.folder(), DateStyle::Other, today};
}

} // namespace

class TestToDoRecords : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_here = std::make_unique<TestFolder>();
        m_there = std::make_unique<TestFolder>();
    }

    void tellsOfLists_data()
    {
        rows<FolderFiles, QStringList>({
            {"two lists", {{own, first + home + shop}}, homeTold + shopTold},
            {"two of a name",
             {{own, first + home + "list\t3\tplain\tHOME\r\n"}},
             homeTold + QStringList(u"HOME"_s)},
            {"cut in its last line",
             {{own, QByteArray(first + home + shop).chopped(5)}},
             homeTold + QStringList{u"Shop"_s, u"Mi"_s}},
            {"without a file of our own",
             {{u"TODONAME.FIL"_s, "\"Shop\"\r\n"}, {u"TODOActv.FIL"_s, "\"Milk\"\r\n\"\"\r\n\"Shop\"\r\n"}},
             shopTold},
        });
    }
    void tellsOfLists()
    {
        const auto [files, texts] = row<FolderFiles, QStringList>();
        putAll(*m_there, files);
        QCOMPARE(told(recordsOf(*m_there)), texts);
        QCOMPARE(filesOf(*m_there), files);
    }

    void bringsBack_data()
    {
        const QByteArray other = "list\t1\tplain\tGarden\r\nitem\t4\t1\t0\t\t\t\t\t\tDig\t\r\n";
        const QByteArray emptied = "list\t7\ttemplate\thome\r\nitem\t9\t7\t0\t\t\t\t\t\tSweep\t\r\n";
        const QStringList garden{u"Garden"_s, u"Dig"_s};
        rows<QByteArray, QStringList>({
            {"a list that is gone", first + shop, homeTold + shopTold},
            {"beside another with its number", first + other, homeTold + garden},
            {"in place of what it is now", first + other + emptied, garden + homeTold},
            {"into a folder without lists", {}, homeTold},
        });
    }
    void bringsBack()
    {
        const auto [here, texts] = row<QByteArray, QStringList>();
        m_there->put(own, first + home + shop);
        if (!here.isEmpty())
            m_here->put(own, here);
        const FolderFiles before = filesOf(*m_here);
        ToDoRecords records = recordsOf(*m_here);
        const RecordsBack back = records.bringBack(recordsOf(*m_there), {u"home"_s});
        QCOMPARE(back.keys, QStringList(u"home"_s));
        QVERIFY(back.refusal.isEmpty() && back.step);
        QStringList now = told(records);
        now.removeAll(u"To Do"_s); // the list of a household that had none
        QCOMPARE(now, texts);
        QVERIFY(m_here->bytes(u"TODOActv.FIL"_s).startsWith("\"") &&
                m_here->bytes(u"TODONAME.FIL"_s).contains("\"Home\""));
        QCOMPARE(back.step->undo(), ChangeResult::Done);
        QCOMPARE(filesOf(*m_here), before);
        QCOMPARE(back.step->redo(), ChangeResult::Done);
        // What came back is no other than what was there.
        for (const FunctionRecord &record : records.all()) {
            if (record.key == u"home"_s)
                QCOMPARE(record, recordsOf(*m_there).all().front());
        }
    }

    void leavesForeignFilesAlone()
    {
        m_here->put(own, "Quillery To Do 2\r\n" + home);
        m_there->put(own, first + shop);
        ToDoRecords records = recordsOf(*m_here);
        const RecordsBack back = records.bringBack(recordsOf(*m_there), {u"shop"_s});
        QVERIFY(!back.refusal.isEmpty() && back.keys.isEmpty());
        QCOMPARE(filesOf(*m_here).size(), 1);
    }

private:
    std::unique_ptr<TestFolder> m_here;
    std::unique_ptr<TestFolder> m_there;
};

QTEST_GUILESS_MAIN(TestToDoRecords)
#include "tst_todorecords.moc"
