// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/changeset.h"
#include "tests/support/testfiles.h"
#include "todo/model/listactions.h"
#include "todo/model/listtrash.h"

#include <QDir>
#include <QLoggingCategory>

using namespace Qt::Literals::StringLiterals;

namespace {

const QDateTime now(QDate(2026, 11, 22), QTime(9, 0));

const QByteArray head = "Quillery To Do 1\n";
const QByteArray home = "list\t1\tplain\tHome\n";
const QByteArray homeItems = "item\t1\t1\t0\t\t\t\t\t\tPaint\t\n";
const QByteArray shop = "list\t2\tshopping\tJos\xc3\xa9's %1\n";
const QByteArray shopItems =
    "item\t3\t2\th\t\t\t\t\t\tDairy\t\n"
    "item\t4\t2\t0\t2026-12-24\t2026-11-20\tAnne\tweek 1 tue\t2026-11-01\tMilk\ta\\nb\n"
    "item\t5\t2\t1\t\t\t\t\t\tFresh\t\n";

QStringList namesOf(const ToDoSheet &sheet)
{
    QStringList names;
    for (const ToDoList &list : sheet.lists())
        names << list.name;
    return names;
}

} // namespace

/// Lists that were deleted, and come back.
class TestListTrash : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        QDir folder(m_test.folder().path());
        QVERIFY(folder.removeRecursively() && folder.mkpath(u"."_s));
    }

    void bringsAListBackWithAllItHeld()
    {
        const ToDoSheet sheet = remove(ToDoSheet::fromFile(head + home + shop + homeItems + shopItems));
        QCOMPARE(namesOf(sheet), QStringList{u"Home"_s});
        const ToDoActions::Result back = ListTrash::bringBack(sheet, items(sheet).front());
        QCOMPARE(back.title, u"Brought back: Jos\u00e9's %1"_s);
        // Ids of items that were given once are not given again.
        const QByteArray again = QByteArray(shop + homeItems + shopItems)
                                     .replace("item\t3", "item\t6")
                                     .replace("item\t4", "item\t7")
                                     .replace("item\t5", "item\t8")
                                     .replace("\n", "\r\n");
        const QByteArray file = back.sheet.toFile("a", "b");
        QVERIFY2(file.endsWith(again), file.constData());
        QCOMPARE(back.ids, std::vector{2});
    }

    void tellsOfWhatIsNotThereOnly()
    {
        const ToDoSheet before = ToDoSheet::fromFile(head + home + shop + shopItems);
        const ToDoSheet after = remove(before);
        QCOMPARE(items(after).size(), std::size_t(1));
        QVERIFY(items(before).empty()); // undo has brought it back
        QCOMPARE(items(ListActions::rename(before, 2, u"Shop"_s).sheet).size(), std::size_t(1));
        QVERIFY(ListTrash::items(m_test.folder(), after, now.addDays(31)).empty());
        QCOMPARE(ListTrash::put(m_test.folder(), after, 9, now), Trash::State::Whole); // no such list
        QCOMPARE(items(after).size(), std::size_t(1));
    }

    void findsAnotherName()
    {
        const ToDoSheet sheet = remove(ToDoSheet::fromFile(head + shop + shopItems));
        const Trash::Item item = items(sheet).front();
        ToDoSheet taken = ListActions::add(sheet, ListKind::Plain, u"jos\u00e9's %1"_s).sheet;
        taken = ListTrash::bringBack(taken, item).sheet;
        taken = ListTrash::bringBack(taken, item).sheet;
        QCOMPARE(namesOf(taken),
                 (QStringList{u"jos\u00e9's %1"_s, u"Jos\u00e9's %1 2"_s, u"Jos\u00e9's %1 3"_s}));
        const QString longest(60, u'x');
        taken = ListActions::add(taken, ListKind::Plain, longest).sheet;
        QCOMPARE(ListActions::freeName(taken, longest), longest.chopped(2) + u" 2"_s);
        QCOMPARE(ListActions::freeName(taken, longest, u" template"_s), longest.chopped(9) + u" template"_s);
    }

    void bringsNothingBackOfWhatItCannotRead()
    {
        const ToDoSheet sheet = ToDoSheet::fromFile(head + home);
        const std::vector<std::vector<Trash::Piece>> damaged{
            {}, {{u"ToDo1.Fil"_s, 2, {}}}, {{u"ToDo1.Fil"_s, 2, "item\t1\t2\t0\t\t\t\t\t\tLost\t\n"}}};
        for (const auto &pieces : damaged) {
            Trash trash(m_test.folder());
            trash.put({u"ToDoLists"_s, now, u"Damaged"_s, pieces});
            ChangeSet change(m_test.folder());
            trash.addTo(change);
            QVERIFY(change.commit());
        }
        for (const Trash::Item &item : Trash(m_test.folder()).items(u"ToDoLists"_s, now)) {
            const ToDoActions::Result back = ListTrash::bringBack(sheet, item);
            QVERIFY2(back.title.isEmpty() || !back.ids.empty(), qPrintable(back.title));
        }
        // A folder in the place of the file: no deletion waits for the trash.
        init();
        QLoggingCategory::setFilterRules(u"*.warning=false"_s);
        QVERIFY(QDir(m_test.folder().path()).mkpath(Trash::fileName));
        QCOMPARE(ListTrash::put(m_test.folder(), sheet, 1, now), Trash::State::OutOfReach);
        QLoggingCategory::setFilterRules({});
    }

private:
    /// Deletes the list 2.
    ToDoSheet remove(const ToDoSheet &sheet) const
    {
        ListTrash::put(m_test.folder(), sheet, 2, now);
        return ListActions::remove(sheet, 2).sheet;
    }
    std::vector<Trash::Item> items(const ToDoSheet &sheet) const
    {
        return ListTrash::items(m_test.folder(), sheet, now);
    }

    TestFolder m_test;
};

QTEST_GUILESS_MAIN(TestListTrash)
#include "tst_listtrash.moc"
