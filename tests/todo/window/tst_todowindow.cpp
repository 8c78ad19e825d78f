// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/panerows.h"
#include "shell/controls/pastefilter.h"
#include "shell/core/place.h"
#include "tests/support/openwindow.h"
#include "tests/support/rows.h"
#include "todo/model/messages.h"
#include "todo/window/itemgrid.h"
#include "todo/window/itemsmodel.h"
#include "todo/window/listspane.h"
#include "todo/window/todowindow.h"

#include <QClipboard>
#include <QComboBox>
#include <QCompleter>
#include <QDropEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QListView>
#include <QMenu>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QRadioButton>

using namespace Qt::Literals::StringLiterals;

/// The To Do list on 21 November 2026, a Saturday.
class TestToDoWindow : public OpenWindow<ToDo1>
{
    Q_OBJECT
private slots:
    void cleanup() { close(); }

    void takesInWhatTheHouseholdHas()
    {
        open(TestProgram::Household);
        QCOMPARE(labelText("toDoTitle"), u"Today"_s);
        QCOMPARE(names("toDoLists"), QStringList{u"To Do"_s});
        QVERIFY(find<QLineEdit>("newItem")->hasFocus());
        chooseList(0);
        QCOMPARE(texts().mid(0, 3),
                 (QStringList{u"Renew passports"_s, u"Paint the fence"_s, u"Book the ferry"_s}));
        QVERIFY(!m_test->folder.exists(u"ToDo1.Fil"_s)); // looking alone writes nothing
    }

    /// "Water the ferns", "fri", "every 3 days": by keys alone.
    void isWorkedByKeysOnly()
    {
        open();
        chooseList(0);
        enter(u"Water the ferns"_s);
        enter(u"Call the sweep"_s);
        QTest::keyClick(m_window->focusWidget(), Qt::Key_Down);
        QVERIFY(grid()->hasFocus());
        QCOMPARE(current(), u"Call the sweep"_s);
        key(Qt::Key_Up, Qt::AltModifier);
        QCOMPARE(texts(), (QStringList{u"Call the sweep"_s, u"Water the ferns"_s}));
        key(Qt::Key_Down);
        QCOMPARE(current(), u"Water the ferns"_s);
        key(Qt::Key_Right);
        typeCell(u"fri"_s);
        QCOMPARE(cell(1, ItemsModel::Due), u"Fri, Nov 27"_s);
        key(Qt::Key_Right);
        key(Qt::Key_Right);
        typeCell(u"Anne > Nils"_s);
        key(Qt::Key_Right);
        typeCell(u"every 3 days"_s);
        QCOMPARE(cell(1, ItemsModel::Repeat), u"every 3 days, then Nov 30"_s);
        key(Qt::Key_Space);
        QCOMPARE(cell(1, ItemsModel::Actual), u"Today"_s);
        QCOMPARE(said(), u"Done: Water the ferns, next on Mon, Nov 30 (Nils)"_s);
        QCOMPARE(texts(), (QStringList{u"Call the sweep"_s, u"Water the ferns"_s}));
        grid()->setCurrentIndex(index(2, ItemsModel::Tick));
        for (const auto &later : {u"1 later"_s, u"1 later, shown below"_s, u"1 later"_s}) {
            QCOMPARE(texts(ToDoRow::Later), QStringList{later});
            key(Qt::Key_Space); // which never ticks what stands above
        }
        trigger("mEUndo");
        QCOMPARE(cell(1, ItemsModel::Actual), QString());
        trigger("mVDone");
        QCOMPARE(texts(), QStringList());
    }

    void savesByItselfAndOnLeaving()
    {
        open();
        chooseList(0);
        enter(u"Sweep the yard"_s);
        QTRY_VERIFY(file().contains("\tSweep the yard\t"));
        typeInto(find<QLineEdit>("newItem"), u"Mow the lawn"_s); // and not entered
        QVERIFY(!file().contains("Mow"));
        m_window->close();
        QVERIFY(file().contains("\tMow the lawn\t"));
        QCOMPARE(m_test->bytes(u"TODOActv.FIL"_s), "\"Sweep the yard\"\r\n\"\"\r\n\"To Do\"\r\n"
                                                   "\"Mow the lawn\"\r\n\"\"\r\n\"To Do\"\r\n"_ba);
    }

    void saysWhyNothingMayBeChanged()
    {
        m_test = std::make_unique<TestProgram>(TestProgram::Empty);
        m_test->setBytes(u"ToDo1.Fil"_s, "Quillery To Do 2\r\nlist\t1\tplain\tHome\r\n");
        openAgain();
        const QString why = said();
        QVERIFY(!why.isEmpty());
        chooseList(0);
        QCOMPARE(said(), why);
        QVERIFY(find<QLineEdit>("newItem")->isReadOnly());
    }

    void takesInWhatAnotherProgramLeavesWithTheNextSave()
    {
        open();
        chooseList(0);
        enter(u"Sweep the yard"_s);
        m_window->close();
        const QByteArray before = file();
        const QByteArray foreign = "\"Fetch the parcel\"\r\n\"2026-11-23\"\r\n\"To Do\"\r\n";
        m_test->setBytes(u"TODOActv.FIL"_s, foreign);
        openAgain();
        QCOMPARE(said(), u"1 thing to do that another program had left was taken in"_s);
        chooseList(0);
        QCOMPARE(texts(), (QStringList{u"Sweep the yard"_s, u"Fetch the parcel"_s}));
        m_window->close();
        QCOMPARE(file(), before);
        QCOMPARE(m_test->bytes(u"TODOActv.FIL"_s), foreign);
        openAgain();
        trigger("mEUndo");
        trigger("mOSave");
        QCOMPARE(m_test->bytes(u"TODOActv.FIL"_s), "\"Sweep the yard\"\r\n\"\"\r\n\"To Do\"\r\n"_ba);
    }

    void asksOnlyWhenASaveFailed()
    {
        open();
        chooseList(0);
        QVERIFY(QDir(m_test->folder.path()).mkpath(u"ToDo1.Fil"_s));
        enter(u"Sweep the yard"_s);
        m_test->dialogs.willAnswer(Answer::No);
        QVERIFY(!m_window->close());
        QCOMPARE(asked(), {ToDoMessages::leaveUnsaved()});
        QCOMPARE(ToDoMessages::leaveUnsaved().preselected, Answer::No);
        m_test->dialogs.willAnswer(Answer::Yes);
        QVERIFY(m_window->close());
        QCOMPARE(asked(), {ToDoMessages::leaveUnsaved()});
    }

    void takesBackTheItemAndNotTheLineBehindIt()
    {
        open();
        chooseList(0);
        enter(u"Oil the gate"_s);
        QCOMPARE(texts(), QStringList{u"Oil the gate"_s});
        auto *box = find<QLineEdit>("newItem");
        box->setFocus();
        QTest::keySequence(box, QKeySequence::Undo);
        QCOMPARE(box->text(), QString());
        QCOMPARE(texts(), QStringList());
    }

    void makesAnItemOfEachPastedLine_data()
    {
        rows<QByteArray>({{"by keys", "keys"}, {"by the menu", "menu"}, {"dropped", "drop"}});
    }
    void makesAnItemOfEachPastedLine()
    {
        const auto [way] = row<QByteArray>();
        open();
        chooseList(0);
        const QString several = u"milk\r\n\n  eggs \nbread"_s;
        QGuiApplication::clipboard()->setText(several);
        auto *box = find<QLineEdit>("newItem");
        if (way == "keys") {
            QTest::keySequence(box, QKeySequence::Paste);
        } else if (way == "menu") {
            const std::unique_ptr<QMenu> menu(box->findChild<PasteFilter *>()->makeMenu());
            for (QAction *action : menu->actions()) {
                if (action->text().startsWith(u"&Paste"_s))
                    action->trigger();
            }
        } else {
            QMimeData data;
            data.setText(several);
            drop(data, box, {5, 5}, Qt::CopyAction);
        }
        QCOMPARE(texts(), (QStringList{u"milk"_s, u"eggs"_s, u"bread"_s}));
        trigger("mEUndo");
        QCOMPARE(texts(), QStringList());
    }

    void actsOnAllChosenRows_data()
    {
        rows<QByteArray, int, QStringList>({
            {"today", "mEToday", ItemsModel::Due, {{}, u"Today"_s, u"Today"_s}},
            {"tomorrow", "mETomorrow", ItemsModel::Due, {{}, u"Tomorrow"_s, u"Tomorrow"_s}},
            {"done", "mETick", ItemsModel::Actual, {{}, u"Today"_s, u"Today"_s}},
            {"moved up", "mEUp", ItemsModel::Text, {u"b"_s, u"c"_s, u"a"_s}},
            {"removed", "mEDel", ItemsModel::Text, {u"a"_s}},
        });
    }

    void actsOnAllChosenRows()
    {
        const auto [command, column, expected] = row<QByteArray, int, QStringList>();
        open();
        chooseList(0);
        for (const auto &text : {u"a"_s, u"b"_s, u"c"_s})
            enter(text);
        grid()->setFocus();
        chooseRows(1, 2);
        trigger(command.constData());
        QCOMPARE(texts(ToDoRow::Item, column), expected);
        trigger("mEUndo");
        QCOMPARE(texts(), (QStringList{u"a"_s, u"b"_s, u"c"_s}));
    }

    void makesStepsWithTabAndLeavesTheGridWithIt()
    {
        open();
        chooseList(0);
        enter(u"Paint the fence"_s);
        enter(u"Buy paint"_s);
        grid()->setFocus(Qt::MouseFocusReason);
        chooseRows(1, 1);
        key(Qt::Key_Tab);
        QVERIFY(index(1, ItemsModel::Text).data(ItemsModel::stepRole).toBool());
        QVERIFY(grid()->hasFocus());
        key(Qt::Key_Backtab, Qt::ShiftModifier);
        QVERIFY(!index(1, ItemsModel::Text).data(ItemsModel::stepRole).toBool());
        find<QListView>("toDoLists")->setFocus();
        for (const char *next : {"newListButton", "newItem", "addItemButton", "toDoGrid"}) {
            key(Qt::Key_Tab);
            QCOMPARE(m_window->focusWidget()->objectName(), QString::fromLatin1(next));
        }
        for (int i = 0; i < 8 && grid()->hasFocus(); ++i)
            key(Qt::Key_Tab);
        QVERIFY(!grid()->hasFocus());
        QVERIFY(!index(1, ItemsModel::Text).data(ItemsModel::stepRole).toBool());
    }

    void makesAStepOfWhatIsSeenAbove_data() { rows<bool>({{"with Tab", false}, {"by dragging", true}}); }
    void makesAStepOfWhatIsSeenAbove()
    {
        const auto [isDragged] = row<bool>();
        m_test = std::make_unique<TestProgram>(TestProgram::Empty);
        m_test->setBytes(u"ToDo1.Fil"_s, "Quillery To Do 1\r\nlist\t1\tplain\tHome\r\n"
                                         "item\t1\t1\t0\t\t\t\t\t\ta\t\r\n"
                                         "item\t2\t1\t0\t\t2026-11-20\t\t\t\tdone\t\r\n"
                                         "item\t3\t1\t0\t\t\t\t\t\tb\t\r\n"
                                         "item\t4\t1\t1\t\t\t\t\t\tc\t\r\n"_ba);
        openAgain();
        chooseList(0);
        QCOMPARE(texts(), (QStringList{u"a"_s, u"b"_s, u"c"_s}));
        grid()->setFocus(Qt::MouseFocusReason);
        if (isDragged) {
            const std::unique_ptr<QMimeData> data(grid()->model()->mimeData({index(2, 0)}));
            drop(*data, grid()->viewport(), grid()->visualRect(index(1, 0)).topLeft(), Qt::MoveAction);
            QCOMPARE(texts(), (QStringList{u"a"_s, u"c"_s, u"b"_s}));
        } else {
            chooseRows(1, 1);
            key(Qt::Key_Tab);
        }
        chooseRows(0, 0);
        key(Qt::Key_Space);
        QCOMPARE(texts(ToDoRow::Item, ItemsModel::Actual).first(2), (QStringList{u"Today"_s, u"Today"_s}));
    }

    void refusesQuietlyWhatIsNoDate()
    {
        open();
        chooseList(0);
        enter(u"Sweep the yard"_s);
        grid()->setFocus();
        grid()->setCurrentIndex(index(0, ItemsModel::Due));
        typeCell(u"5"_s);
        QCOMPARE(cell(0, ItemsModel::Due), QString());
        QVERIFY(!said().isEmpty());
        QTRY_COMPARE(m_window->focusWidget()->objectName(), u"cellBox"_s); // to be typed over
        QCOMPARE(qobject_cast<QLineEdit *>(m_window->focusWidget())->selectedText(), u"5"_s);
        key(Qt::Key_Escape);
        QVERIFY(grid()->hasFocus());
        typeCell(u"07/01/2062"_s);
        QCOMPARE(cell(0, ItemsModel::Due), u"Jul 1, 2062"_s);
        QVERIFY(find<QLabel>("quietQuestion")->isVisible());
    }

    void correctsSlipsInItsBoxes()
    {
        open();
        trigger("mSpCheck"); // reads what the boxes need, without waiting for the first to be painted
        chooseList(0);
        enter(u"Water teh ferns adn"_s); // the last word ends with Enter
        QCOMPARE(texts(), QStringList{u"Water the ferns and"_s});
        grid()->setFocus();
        grid()->setCurrentIndex(index(0, ItemsModel::Text));
        typeCell(u"Teh ferns, adn teh palms"_s);
        QCOMPARE(texts(), QStringList{u"The ferns, and the palms"_s});
        typeCell(u"palms adn"_s);
        QCOMPARE(texts(), QStringList{u"palms and"_s});
    }

    void sortsByADateUntilTheThirdClick()
    {
        open();
        m_test->clock.time = QDateTime(QDate(2026, 11, 21), QTime(9, 0));
        chooseList(0);
        const QList<std::pair<QString, QString>> items{
            {u"late"_s, u"+9"_s}, {u"never"_s, {}}, {u"soon"_s, u"+1"_s}};
        for (const auto &[text, date] : items) {
            enter(text);
            grid()->setCurrentIndex(index(grid()->model()->rowCount() - 1, ItemsModel::Due));
            grid()->setFocus();
            if (!date.isEmpty())
                typeCell(date);
        }
        const QList<QStringList> expected{{u"soon"_s, u"late"_s, u"never"_s},
                                          {u"late"_s, u"soon"_s, u"never"_s},
                                          {u"late"_s, u"never"_s, u"soon"_s}};
        chooseRows(2, 2);
        QHeaderView *heading = grid()->horizontalHeader();
        const QPoint due(heading->sectionViewportPosition(ItemsModel::Due) + 20, heading->height() / 2);
        for (const QStringList &order : expected) {
            QTest::mouseClick(heading->viewport(), Qt::LeftButton, {}, due);
            QCOMPARE(texts(), order);
            QCOMPARE(current(), u"soon"_s); // the choice goes along
        }
        QTest::mouseClick(heading->viewport(), Qt::LeftButton, {}, due);
        grid()->setFocus();
        grid()->setCurrentIndex(index(0, ItemsModel::Due));
        key(Qt::Key_F2);
        typeInto(m_window->focusWidget(), u"+30"_s);
        key(Qt::Key_Return);
        QCOMPARE(texts(), (QStringList{u"late"_s, u"soon"_s, u"never"_s}));
        QVERIFY(grid()->hasFocus()); // though the box went with its row
        QCOMPARE(grid()->currentIndex(), index(2, ItemsModel::Due));
        chooseRows(1, 1);
        key(Qt::Key_Delete);
        QCOMPARE(texts(), (QStringList{u"late"_s, u"never"_s}));
    }

    void findsDoneThingsAndNotesAsOneTypes()
    {
        open();
        chooseList(0);
        enter(u"Change the filters"_s);
        enter(u"Call Nils"_s);
        grid()->setFocus();
        chooseRows(1, 1);
        trigger("mENote");
        auto *note = find<QPlainTextEdit>("noteBox");
        QVERIFY(note->isVisible() && note->hasFocus());
        note->setPlainText(u"about the filters"_s);
        QTest::keyClick(note, Qt::Key_Escape);
        chooseRows(0, 0);
        trigger("mETick");
        trigger("mVSearch");
        typeInto(find<QLineEdit>("toDoSearch"), u"FILT"_s);
        QCOMPARE(texts(), (QStringList{u"Call Nils"_s, u"Change the filters"_s}));
        QTest::keyClick(find<QLineEdit>("toDoSearch"), Qt::Key_Escape);
        QCOMPARE(labelText("toDoTitle"), u"To Do"_s);
        typeInto(find<QLineEdit>("toDoSearch"), u"nils"_s);
        QTest::mouseClick(grid()->viewport(), Qt::LeftButton, {}, grid()->visualRect(index(0, 0)).center());
        QTRY_COMPARE(labelText("toDoTitle"), u"To Do"_s); // which stands over what was found
        typeInto(find<QLineEdit>("toDoSearch"), u"nils"_s);
        trigger("mVToday");
        QCOMPARE(find<QLineEdit>("toDoSearch")->text(), QString());
    }

    void makesAListFromATemplate()
    {
        open();
        trigger("mLFrom");
        QCOMPARE(find<QLineEdit>("newListName")->text(), u"Before a trip"_s);
        for (const char *next : {"newListName", "newListDate"}) {
            key(Qt::Key_Tab);
            QCOMPARE(m_window->focusWidget()->objectName(), QString::fromLatin1(next));
        }
        key(Qt::Key_Return);
        QCOMPARE(labelText("newListTitle"), u"New List"_s); // the day is missing
        typeInto(m_window->focusWidget(), u"12 July"_s);
        key(Qt::Key_Return);
        QCOMPARE(labelText("toDoTitle"), u"Before a trip"_s);
        QVERIFY(said().contains(u"Before a trip"_s));
        QCOMPARE(names("toDoLists").size(), 2);
        QVERIFY(texts(ToDoRow::Item, ItemsModel::Due).join(u' ').contains(u"2027"_s));
        trigger("mEUndo");
        QCOMPARE(names("toDoLists").size(), 1);
    }

    void offersWhatWasBoughtBefore()
    {
        open();
        trigger("mLNew");
        find<QComboBox>("newListBeginning")->setCurrentIndex(1);
        typeInto(find<QLineEdit>("newListName"), u"Shopping"_s);
        click("newListMake");
        enter(u"Rye bread"_s);
        enter(u"Milk"_s);
        grid()->setFocus();
        chooseRows(0, 1);
        trigger("mETick");
        trigger("mVToday");
        chooseList(1);
        QCOMPARE(texts(), QStringList());
        auto *box = find<QLineEdit>("newItem");
        typeInto(box, u"bre"_s);
        QCOMPARE(box->completer()->completionModel()->index(0, 0).data().toString(), u"Rye bread"_s);
        box->clear();
        enter(u"milk"_s);
        QCOMPARE(texts(), QStringList{u"Milk"_s});
        trigger("mVDone");
        QCOMPARE(texts(), QStringList{u"Rye bread"_s});
    }

    void keepsAListAsATemplateAndMakesAnotherOfIt()
    {
        open();
        chooseList(0);
        enter(u"Pack"_s);
        grid()->setFocus();
        grid()->setCurrentIndex(index(0, ItemsModel::Due));
        typeCell(u"11/18/2026"_s);
        trigger("mLKeep");
        QCOMPARE(labelText("newListTitle"), u"Save List as a Template"_s);
        auto *day = find<QLineEdit>("newListDate");
        day->setText(u"11/21/2026"_s);
        QTest::keyClick(day, Qt::Key_Return);
        QCOMPARE(labelText("toDoTitle"), u"To Do"_s);
        QCOMPARE(names("toDoLists"), (QStringList{u"To Do"_s, u"To Do template (template)"_s}));
        chooseList(1);
        QCOMPARE(cell(0, ItemsModel::Due), u"3 days before"_s);
        grid()->setFocus();
        grid()->setCurrentIndex(index(0, ItemsModel::Due));
        typeCell(u"-5"_s);
        trigger("mETick"); // never done
        QCOMPARE(cell(0, ItemsModel::Actual), QString());
        trigger("mLFrom");
        find<QLineEdit>("newListName")->setText(u"Trip"_s);
        find<QLineEdit>("newListDate")->setText(u"11/29/2026"_s);
        click("newListMake");
        QCOMPARE(labelText("toDoTitle"), u"Trip"_s);
        QCOMPARE(cell(0, ItemsModel::Due), u"Tue, Nov 24"_s);
    }

    void goesDownFromTheLineToTheFirstThing()
    {
        open();
        enter(u"Renew passports"_s);
        QCOMPARE(texts(ToDoRow::Group).size(), 1);
        trigger("mVToday");
        QTest::keyClick(m_window->focusWidget(), Qt::Key_Down);
        QCOMPARE(current(), u"Renew passports"_s);
        key(Qt::Key_Right);
        key(Qt::Key_F2);
        QCOMPARE(qobject_cast<QLineEdit *>(m_window->focusWidget())->selectedText(), u"Nov-21-2026"_s);
    }

    void ordersListsWithTheMouse_data()
    {
        rows<int, int, bool, QStringList>({
            {"to the front", 2, 0, false, {u"c"_s, u"a"_s, u"b"_s, u"t (template)"_s}},
            {"down by one", 0, 1, true, {u"b"_s, u"a"_s, u"c"_s, u"t (template)"_s}},
            {"to the end, before the template", 0, 3, true, {u"b"_s, u"c"_s, u"a"_s, u"t (template)"_s}},
            {"where it is", 1, 1, false, {u"a"_s, u"b"_s, u"c"_s, u"t (template)"_s}},
        });
    }
    void ordersListsWithTheMouse()
    {
        const auto [from, onto, isBelow, expected] = row<int, int, bool, QStringList>();
        m_test = std::make_unique<TestProgram>(TestProgram::Empty);
        m_test->setBytes(u"ToDo1.Fil"_s, "Quillery To Do 1\r\nlist\t1\tplain\ta\r\nlist\t2\ttemplate\tt\r\n"
                                         "list\t3\tplain\tb\r\nlist\t4\tplain\tc\r\n");
        openAgain();
        auto *lists = find<QListView>("toDoLists");
        const std::unique_ptr<QMimeData> data(lists->model()->mimeData({lists->model()->index(from, 0)}));
        const QRect target = lists->visualRect(lists->model()->index(onto, 0));
        drop(*data, lists->viewport(), isBelow ? target.bottomLeft() : target.topLeft(), Qt::MoveAction);
        QCOMPARE(names("toDoLists"), expected);
    }

    void staysWhereItIsWhileTabLeadsThroughTheLists()
    {
        open();
        trigger("mOPrt");
        for (const char *next :
             {"printBoxes", "printDates", "printNotes", "printEmpty", "toDoPrintShow", "toDoPrintClose"}) {
            key(Qt::Key_Tab);
            QCOMPARE(m_window->focusWidget()->objectName(), QString::fromLatin1(next));
        }
        find<QWidget>("printEmpty")->setFocus();
        key(Qt::Key_Down);
        QCOMPARE(m_window->focusWidget()->objectName(), u"toDoPrintShow"_s);
        find<QListView>("toDoLists")->setFocus(Qt::TabFocusReason);
        QVERIFY(find<QPushButton>("toDoPrintShow")->isVisible());
        QCOMPARE(labelText("toDoTitle"), u"Today"_s);
        key(Qt::Key_Return);
        QCOMPARE(labelText("toDoTitle"), u"To Do"_s);
    }

    void movesWhatIsOverdueToToday()
    {
        open();
        chooseList(0);
        enter(u"Renew passports"_s);
        grid()->setFocus();
        grid()->setCurrentIndex(index(0, ItemsModel::Due));
        typeCell(u"11/15/2026"_s);
        QVERIFY(!find<QPushButton>("moveOverdue")->isVisible());
        trigger("mVToday");
        QCOMPARE(labelText("toDoWords"), u"1 overdue"_s);
        click("moveOverdue");
        QCOMPARE(labelText("toDoWords"), u"1 today"_s);
        QVERIFY(!find<QPushButton>("moveOverdue")->isVisible());
    }

    void asksBeforeAListIsDeletedAndBringsItBack()
    {
        open();
        chooseList(0);
        enter(u"Sweep the yard"_s);
        m_test->dialogs.willAnswer(Answer::Yes);
        trigger("mLDel");
        QCOMPARE(asked(), {ToDoMessages::deleteList(u"To Do"_s, {u"Sweep the yard"_s})});
        QCOMPARE(names("toDoLists"), QStringList());
        trigger("mEUndo");
        chooseList(0);
        QCOMPARE(texts(), QStringList{u"Sweep the yard"_s});
        trigger("mEBack");
        QVERIFY(!isOffered("bringBack")); // undo has brought it back
        QTest::keyClick(m_window->focusWidget(), Qt::Key_Escape);
        trigger("mERedo");
        trigger("mEBack");
        click("bringBack");
        QCOMPARE(labelText("toDoTitle"), u"To Do"_s);
        QCOMPARE(texts(), QStringList{u"Sweep the yard"_s});
        QCOMPARE(said(), u"Brought back: To Do"_s);
    }

    void copiesExportsAndShowsPages()
    {
        open();
        chooseList(0);
        enter(u"Sweep the yard"_s);
        trigger("mOCopy");
        QCOMPARE(asked(), {ToDoMessages::copied()});
        QVERIFY(QGuiApplication::clipboard()->text().contains(u"Sweep the yard\t"_s));
        m_test->dialogs.willAnswer(Answer::Ok);
        trigger("mUExcel");
        QCOMPARE(asked().size(), 1);
        QVERIFY(m_test->bytes(u"To Do.xls"_s).endsWith("\r\nSweep the yard\t\t\t\t\t\r\n"));
        trigger("mOPrt");
        QVERIFY(find<QRadioButton>("printWhat_0")->isChecked());
        click("toDoPrintShow");
        QVERIFY(m_window->isPreviewShown());
    }

    void showsWhereAnItemStands()
    {
        open();
        chooseList(0);
        enter(u"a"_s);
        enter(u"b"_s);
        const int id = index(1, ItemsModel::Text).data(ItemsModel::idRole).toInt();
        trigger("mVDone");
        m_window->showPlace({.record = id});
        QCOMPARE(labelText("toDoTitle"), u"To Do"_s);
        QCOMPARE(current(), u"b"_s);
    }

    void readsARowAloud()
    {
        open();
        chooseList(0);
        enter(u"Renew passports"_s);
        grid()->setFocus();
        grid()->setCurrentIndex(index(0, ItemsModel::Due));
        typeCell(u"11/15/2026"_s);
        grid()->setCurrentIndex(index(0, ItemsModel::Who));
        typeCell(u"Anne"_s);
        QCOMPARE(index(0, ItemsModel::Text).data(Qt::AccessibleTextRole).toString(),
                 u"Renew passports, due Nov 15, overdue, Anne, not done"_s);
        QCOMPARE(cell(0, ItemsModel::Due), u"Nov 15, overdue"_s);
    }

private:
    void open(TestProgram::Content content = TestProgram::Empty)
    {
        m_test = std::make_unique<TestProgram>(content);
        openAgain();
    }
    void openAgain()
    {
        delete m_window;
        m_window = new ToDo1(m_test->program);
        showActive(*m_window);
    }
    ItemGrid *grid() const { return find<ItemGrid>("toDoGrid"); }
    QModelIndex index(int row, int column) const { return grid()->model()->index(row, column); }
    QString cell(int row, int column) const { return index(row, column).data().toString(); }
    QString current() const
    {
        return grid()->currentIndex().siblingAtColumn(ItemsModel::Text).data().toString();
    }
    QByteArray file() const { return m_test->bytes(u"ToDo1.Fil"_s); }

    QStringList texts(ToDoRow::Kind kind = ToDoRow::Item, int column = -1) const
    {
        QStringList texts;
        for (int row = 0; row < grid()->model()->rowCount(); ++row) {
            if (index(row, 0).data(ItemsModel::rowKindRole).toInt() != kind)
                continue;
            const int shown = column >= 0 ? column : kind == ToDoRow::Item ? int(ItemsModel::Text) : 0;
            texts << index(row, shown).data().toString();
        }
        return texts;
    }
    QStringList names(const char *list) const
    {
        QStringList names;
        const QAbstractItemModel &model = *find<QListView>(list)->model();
        for (int row = 0; row < model.rowCount(); ++row)
            names << model.index(row, 0).data().toString();
        return names;
    }
    void chooseList(int row) const
    {
        auto *lists = find<QListView>("toDoLists");
        QTest::mouseClick(lists->viewport(), Qt::LeftButton, {},
                          lists->visualRect(lists->model()->index(row, 0)).center());
    }
    void chooseRows(int first, int last) const
    {
        grid()->setCurrentIndex(index(first, ItemsModel::Text));
        grid()->selectionModel()->select({index(first, 0), index(last, ItemsModel::columns - 1)},
                                         QItemSelectionModel::ClearAndSelect);
    }
    void enter(const QString &text) const
    {
        auto *box = find<QLineEdit>("newItem");
        box->setFocus();
        typeInto(box, text);
        QTest::keyClick(box, Qt::Key_Return);
        QVERIFY(box->hasFocus());
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::keyClick(m_window->focusWidget(), key, modifiers);
    }
    static void drop(const QMimeData &data, QWidget *onto, QPoint place, Qt::DropAction action)
    {
        QDragEnterEvent enter(place, action, &data, Qt::LeftButton, Qt::NoModifier);
        QDropEvent drop(place, action, &data, Qt::LeftButton, Qt::NoModifier);
        for (QDropEvent *event : {static_cast<QDropEvent *>(&enter), &drop})
            QCoreApplication::sendEvent(onto, event);
    }
    /// Types into the current cell; the row stays the current one.
    void typeCell(const QString &text) const
    {
        const QPersistentModelIndex typed = grid()->currentIndex();
        key(Qt::Key_F2);
        QWidget *box = m_window->focusWidget();
        qobject_cast<QLineEdit *>(box)->selectAll();
        typeInto(box, text);
        QTest::keyClick(box, Qt::Key_Return);
        grid()->setCurrentIndex(typed);
    }
};

QTEST_MAIN(TestToDoWindow)
#include "tst_todowindow.moc"
