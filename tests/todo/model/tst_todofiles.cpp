// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/failingdisk.h"
#include "tests/support/household.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"
#include "todo/model/tododifference.h"
#include "todo/model/todofiles.h"

#include <QDir>
#include <QLoggingCategory>

using namespace Qt::Literals::StringLiterals;

namespace {

using Files = QMap<QString, QByteArray>;

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

    void givesNoIdTwice()
    {
        // The last item and the last list go: the file tells what comes next.
        const QByteArray head = "Quillery To Do 1\r\nactive\ta\tb\r\n";
        const QByteArray home = "list\t1\tplain\tHome\r\nitem\t4\t1\t0\t\t\t\t\t\tOil\t\r\n";
        ToDoSheet sheet = ToDoSheet::fromFile(head + home + "list\t2\tplain\tAway\r\n" +
                                              "item\t5\t2\t0\t\t\t\t\t\tPack\t\r\n");
        const ToDoSheet before = sheet;
        sheet.removeList(2);
        QCOMPARE(sheet.toFile("a", "b"), head + "next\t6\t3\r\n" + home);
        const ToDoDifference difference = ToDoDifference::between(before, sheet);
        ToDoSheet undone = sheet;
        QVERIFY(difference.revert(undone));
        QCOMPARE(undone.toFile("a", "b"), before.toFile("a", "b"));

        sheet = ToDoSheet::fromFile(head + "next\t6\t3\tmore\r\n" + home);
        QCOMPARE(sheet.toFile("a", "b"), head + "next\t6\t3\tmore\r\n" + home);
        ToDoItem item = sheet.item(0);
        item.list = sheet.addList({0, ListKind::Plain, u"Shed"_s});
        QCOMPARE(sheet.addAll({item}), std::vector<int>{6});
        QCOMPARE(sheet.toFile("a", "b"), head + "list\t1\tplain\tHome\r\nlist\t3\tplain\tShed\r\n" +
                                             "item\t4\t1\t0\t\t\t\t\t\tOil\t\r\n" +
                                             "item\t6\t3\t0\t\t\t\t\t\tOil\t\r\n");
        // One that cannot be meant is a line like any other.
        const QByteArray noise = head + "next\t0\t-1\r\nnext\r\n" + home;
        QCOMPARE(ToDoSheet::fromFile(noise).toFile("a", "b"), noise);
    }

    void takesInWhatAnotherProgramPutThere()
    {
        m_test.put(u"ToDo1.Fil"_s, ownLines);
        QVERIFY(m_files.save(m_files.read(DateStyle::Usa, today)));
        const Files saved = filesOf();
        QCOMPARE(m_files.open(DateStyle::Usa, today).takenIn, 0);

        // Two are known, one by its date in another form; nothing goes because it is not there.
        m_test.put(u"TODOActv.FIL"_s, "\"Renew passports\",\"Mon - 03/15/2027\",\"\"\r\n\"Milk\"\r\n\"\"\r\n"
                                      "\"\"\r\n\"Milk\"\r\n\"12/24/2026\"\r\n\"JOS\xc9'S SHOP\"\r\n"
                                      "\"Call\"\r\n\"some day\"\r\n\"Before a trip\"\r\n");
        const Files foreign = filesOf();
        const ToDoFiles::Opened opened = m_files.open(DateStyle::Usa, today);
        QCOMPARE(opened.takenIn, 2);
        QCOMPARE(
            rowsOf(opened.sheet).mid(rowsOf(opened.former).size()),
            (QStringList{u"Milk|2026-12-24|Jos\u00e9's shop|"_s, u"Call||Home|some day\nBefore a trip"_s}));
        QCOMPARE(filesOf(), foreign);
        QVERIFY(m_files.save(opened.sheet));
        QCOMPARE(m_files.open(DateStyle::Usa, today).takenIn, 0);
        QCOMPARE(m_files.open(DateStyle::Other, today).sheet, opened.sheet);

        // What was cut off the end of our own file is found in the other one.
        const QByteArray whole = m_test.bytes(u"ToDo1.Fil"_s);
        QVERIFY(whole.endsWith("\tCall\tsome day\\nBefore a trip\r\n"));
        m_test.put(u"ToDo1.Fil"_s, whole.chopped(32));
        const ToDoFiles::Opened cut = m_files.open(DateStyle::Usa, today);
        QCOMPARE(cut.takenIn, 1);
        QCOMPARE(rowsOf(cut.sheet).last(), u"Call||Home|"_s);
        m_test.put(u"ToDo1.Fil"_s, whole);

        // A save of ours that was cut short: nothing that is done comes back.
        ToDoSheet done = opened.sheet;
        const Files former = filesOf();
        ToDoItem call = done.item(done.rowCount() - 1);
        call.actual = today;
        done.set(done.rowCount() - 1, call);
        QVERIFY(m_files.save(done));
        m_test.put(u"TODOActv.FIL"_s, former[u"TODOActv.FIL"_s]);
        QCOMPARE(m_files.open(DateStyle::Usa, today).takenIn, 0);
        QCOMPARE(m_files.open(DateStyle::Usa, today).sheet, done);
    }

    void savesAllOrNothing()
    {
        QLoggingCategory::setFilterRules(u"*.warning=false"_s);
        failAtEachStep(
            m_test.folder(),
            [this] {
                init();
                m_test.put(u"ToDo1.Fil"_s, ownLines);
                m_test.put(u"TODONAME.Fil"_s, "\"Home\"\r\n");
                m_test.put(u"TODOActv.FIL"_s, "");
            },
            [this] { return m_files.save(ToDoSheet::fromFile(ownLines)); },
            [this] {
                Files files = filesOf();
                files.remove(ChangeSet::journalName);
                return files;
            });
        // The spelling that was there stays.
        QVERIFY(filesOf().contains(u"TODONAME.Fil"_s) && !filesOf().contains(u"TODONAME.FIL"_s));
    }

    void opensForReadingOnlyWhatItMustNotWrite_data()
    {
        rows<QByteArray, bool, int>({
            {"nothing", "", false, 1},
            {"the beginning of the first line", "Quillery To", false, 1},
            {"the first line", "Quillery To Do 1", false, 1},
            {"with a mark", "\xef\xbb\xbfQuillery To Do 1\r\nlist\t1\tplain\tHome\r\n", false, 1},
            {"a later version", "Quillery To Do 2\nlist\t1\tplain\tHome\nlist\t2\tplain\tTwo\n", true, 2},
            {"noise", noiseOf(4000), true, 1},
            {"another encoding", QByteArray("Q\0u\0i\0l\0l\0", 10), true, 1},
            {"zeros", QByteArray(100, '\0'), true, 1},
        });
    }
    void opensForReadingOnlyWhatItMustNotWrite()
    {
        const auto [bytes, isLocked, lists] = row<QByteArray, bool, int>();
        m_test.put(u"ToDo1.Fil"_s, bytes);
        m_test.put(u"TODOActv.FIL"_s, "\"Milk\"\r\n\"\"\r\n\"\"\r\n");
        const ToDoFiles::Opened opened = m_files.open(DateStyle::Usa, today);
        QCOMPARE(!opened.whyLocked.isEmpty(), isLocked);
        QVERIFY(!isLocked || opened.takenIn == 0);
        QCOMPARE(opened.sheet.lists().size(), std::size_t(lists));
        QCOMPARE(m_test.bytes(u"ToDo1.Fil"_s), bytes);
    }

    void holdsOutAgainstDamage()
    {
        QLoggingCategory::setFilterRules(u"*.warning=false"_s);
        // Cut anywhere it opens, and what it holds is written again as it was.
        for (qsizetype size = 0; size < ownLines.size(); ++size) {
            const ToDoSheet sheet = ToDoSheet::fromFile(ownLines.first(size));
            QCOMPARE(ToDoSheet::fromFile(sheet.toFile("a", "b")).rowCount(), sheet.rowCount());
        }
        QVERIFY(QDir(m_test.folder().path()).mkdir(u"ToDo1.Fil"_s));
        QVERIFY(!m_files.open(DateStyle::Usa, today).whyLocked.isEmpty());
        QVERIFY(!m_files.save(ToDoSheet::fromFile(ownLines)));

        const QByteArray long100 = "item\t1\t1\t0\t\t\t\t\t\t" + QByteArray(100'000'000, 'x') + "\t\n";
        const ToDoSheet sheet = ToDoSheet::fromFile(ownLines + long100);
        QCOMPARE(sheet.rowCount(), 6);
        QVERIFY(sheet.toFile({}, {}).contains(long100.first(1000)));
    }

    void sortsOutTwinsAndLostItems()
    {
        const ToDoSheet sheet =
            ToDoSheet::fromFile("Quillery To Do 1\nlist\t1\tplain\tOne\nlist\t1\tplain\tTwo\n"
                                "item\t7\t1\t0\t0000-01-01\t\t\t\t\tYear nought\t\n"
                                "item\t7\t9\t0\t9999-12-31\t\t\t\t\tLost\t\n"
                                "item\t999999999\t1\t0\t+3\t\t\t\t\tLast\n"
                                "item\t8\t1\t2\t\t\t\t\t\tUnknown level\t\n");
        QCOMPARE(rowsOf(sheet),
                 (QStringList{u"Year nought||One|"_s, u"Lost|9999-12-31|Found|"_s, u"Last||One|"_s}));
        QCOMPARE(sheet.lists().size(), std::size_t(3));
        QVERIFY(sheet.idOf(0) == 7 && sheet.idOf(1) == 1 && sheet.lists()[1].id == 2);
        const QByteArray file = sheet.toFile("a", "b");
        QVERIFY(file.contains("item\t8\t1\t2\t\t") && file.contains("item\t7\t1\t0\t0000-01-01\t"));
        QCOMPARE(ToDoSheet::fromFile(file).toFile("a", "b"), file);
    }

private:
    Files filesOf() const
    {
        Files files;
        for (const QString &name : QDir(m_test.folder().path()).entryList(QDir::Files | QDir::Hidden))
            files[name] = m_test.bytes(name);
        return files;
    }

    TestFolder m_test;
    ToDoFiles m_files{m_test.folder()};
};

QTEST_GUILESS_MAIN(TestToDoFiles)
#include "tst_todofiles.moc"
