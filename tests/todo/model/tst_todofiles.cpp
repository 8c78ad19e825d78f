// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/household.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"
#include "todo/model/todofiles.h"

#include <QDir>

using namespace Qt::Literals::StringLiterals;

namespace {

const QDate today(2026, 11, 22);

/// Text, to-do date, list and note of each row.
QStringList rowsOf(const ToDoSheet &sheet)
{
    QStringList rows;
    for (int row = 0; row < sheet.rowCount(); ++row) {
        const ToDoItem item = sheet.item(row);
        rows += u"%1|%2|%3|%4"_s.arg(item.text, item.due.toString(Qt::ISODate), sheet.list(item.list)->name,
                                     item.note);
    }
    return rows;
}

/// Two lists and a template, a line of something else, and columns beyond those that are known.
const QByteArray ownLines = "Quillery To Do 1\n"
                            "list\t1\tplain\tHome\n"
                            "list\t2\tshopping\tJos\xc3\xa9's shop\n"
                            "list\t3\ttemplate\tBefore a trip\n"
                            "colour\t1\tred\n"
                            "item\t1\t1\t0\t2027-03-15\t\tAnne > Nils\tyear 10 03-15\t2026-11-22\t"
                            "Renew passports\tTwo photos\\n\\\\ and\\tthe old ones\tmore\n"
                            "item\t2\t1\t1\t\t\t\t\t2026-11-22\tFind the old ones\t\n"
                            "item\t3\t1\t0\t2026-11-20\t2026-11-21\t\t\t2026-11-01\tOil the gate\t\n"
                            "item\t4\t2\th\t\t\t\t\t\tDairy\t\n"
                            "item\t5\t2\t0\t\t\t\t\t2026-11-22\tMilk\t\n"
                            "item\t6\t3\t0\t-7\t\t\t\t\tFetch the cases\t\n";
const QByteArray activeLines = "\"Renew passports\"\r\n\"2027-03-15\"\r\n\"Home\"\r\n"
                               "\"Find the old ones\"\r\n\"\"\r\n\"Home\"\r\n"
                               "\"Milk\"\r\n\"\"\r\n\"Jos\xe9's shop\"\r\n";
const QByteArray activeDigest = "9f13f36a4e8c92d9f4e43d658b3985ce8d5aa9d815b92cadb768b4ba06ff4a53";
const QByteArray emptyDigest = "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855";

} // namespace

/// The three files: taken in, read, written and taken for another program's.
class TestToDoFiles : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        QDir folder(m_test.folder().path());
        QVERIFY(folder.removeRecursively() && folder.mkpath(u"."_s));
    }

    void takesInTheHouseholdAndWritesNothingByOpening()
    {
        QVERIFY(QFile::copy(householdPath(u"TODOActv.FIL"_s), m_test.path(u"TODOActv.FIL"_s)));
        const ToDoFiles::Opened opened = m_files.open(DateStyle::Usa, today);
        QCOMPARE(rowsOf(opened.sheet),
                 (QStringList{u"Renew passports|2027-03-15|To Do|"_s, u"Paint the fence||To Do|"_s,
                              u"Book the ferry|2027-06-01|To Do|Home"_s,
                              u"Tax papers to Vera|2026-12-31|To Do|done"_s,
                              u"Order firewood, two loads|2027-10-01|To Do|"_s,
                              u"Call José about the boat|2027-08-31|To Do|Home"_s,
                              u"Clear the attic||To Do|some day"_s, u"New Year cards|2028-01-01|To Do|"_s,
                              u"Say \"thanks\" to the neighbours|2027-06-01|To Do|"_s,
                              u"A very long item that goes on well beyond what one planner line can hold|"
                              "2027-07-07|To Do|"_s}));
        QVERIFY(opened.isNew);
        QCOMPARE(QDir(m_test.folder().path()).entryList(QDir::Files), QStringList{u"TODOActv.FIL"_s});
    }

    void writesTheThreeFiles()
    {
        m_test.put(u"ToDo1.Fil"_s, ownLines);
        ToDoSheet sheet = m_files.open(DateStyle::Usa, today).sheet;
        QVERIFY(m_files.save(sheet));
        QCOMPARE(m_test.bytes(u"TODOActv.FIL"_s), activeLines);
        QCOMPARE(m_test.bytes(u"TODONAME.FIL"_s), "\"Home\"\r\n\"Jos\xe9's shop\"\r\n"_ba);
        const QByteArray own = "Quillery To Do 1\r\nactive\t" + activeDigest + "\t" + emptyDigest + "\r\n" +
                               QByteArray(ownLines).replace("Quillery To Do 1\n", "").replace("\n", "\r\n");
        QCOMPARE(m_test.bytes(u"ToDo1.Fil"_s), own);
        QCOMPARE(ToDoSheet::fromFile(own), m_files.open(DateStyle::Other, today).sheet);
    }

private:
    TestFolder m_test;
    ToDoFiles m_files{m_test.folder()};
};

QTEST_GUILESS_MAIN(TestToDoFiles)
#include "tst_todofiles.moc"
