// SPDX-License-Identifier: GPL-3.0-or-later
#include "todo/model/todofiles.h"
#include "tools/pictures/albums.h"
#include "tools/pictures/picturesession.h"

#include <QCheckBox>
#include <QComboBox>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Lists of a household in which not all is done.
constexpr auto lists =
    "Quillery To Do 1\r\n"
    "list\t1\tplain\tAround the house\r\n"
    "list\t2\tshopping\tShopping\r\n"
    "list\t3\tplain\tPapers\r\n"
    "item\t1\t1\t0\t2026-11-17\t\tAnne\tmonth 3 17\t2026-10-01\tChange the filters\tThe ones of the kitchen "
    "are in the "
    "cellar, second shelf.\r\n"
    "item\t2\t1\t0\t2026-11-21\t\tAnne > Nils > Karin\tday 3 after\t2026-11-18\tWater the ferns\t\r\n"
    "item\t3\t1\t0\t2026-11-27\t\t\t\t2026-11-10\tPaint the fence\t\r\n"
    "item\t4\t1\t1\t2026-11-24\t\tNils\t\t2026-11-10\tBuy paint and two brushes\t\r\n"
    "item\t5\t1\t1\t\t2026-11-20\tNils\t\t2026-11-10\tSand the rails\t\r\n"
    "item\t6\t1\t0\t\t\tKarin\t\t2026-11-12\tClear the attic\t\r\n"
    "item\t7\t1\t0\t2026-11-18\t2026-11-19\t\t\t2026-11-12\tSweep the leaves\t\r\n"
    "item\t8\t1\t0\t2026-12-04\t\tAnne\tweek 1 fri\t2026-11-20\tTake the bins out\t\r\n"
    "item\t9\t1\t0\t2026-11-20\t2026-11-21\tAnne\tweek 1 fri\t2026-11-13\tTake the bins out\t\r\n"
    "item\t10\t2\th\t\t\t\t\t2026-11-12\tBakery\t\r\n"
    "item\t11\t2\t0\t\t\t\t\t2026-11-12\tRye bread\t\r\n"
    "item\t12\t2\th\t\t\t\t\t2026-11-12\tDairy\t\r\n"
    "item\t13\t2\t0\t\t\t\t\t2026-11-12\tMilk\t\r\n"
    "item\t14\t2\t0\t\t\t\t\t2026-11-12\tButter, unsalted\t\r\n"
    "item\t15\t3\t0\t2026-11-15\t\tAnne\t\t2026-10-30\tRenew passports\tPhotos first.\r\n"
    "item\t16\t3\t0\t2026-11-21\t\tNils\tyear 1 11-21\t2026-10-30\tCall the chimney sweep\t\r\n"
    "item\t17\t3\t0\t2026-12-31\t\tVera\t\t2026-10-30\tTax papers to Vera\t\r\n";

void furnish(const DataFolder &folder)
{
    QFile::remove(folder.filePath(u"TODOActv.FIL"_s)); // that of another program
    QFile file(folder.filePath(u"ToDo1.Fil"_s));
    if (!file.open(QIODevice::WriteOnly) || file.write(lists) < 0)
        qFatal("the lists cannot be written");
}

/// What is wrong while it is typed, word by word, and the table of corrections.
void takeSpelling(const Camera &camera)
{
    PictureSession session(camera);
    furnish(session.program().folder);
    session.open(Function::ToDoList);
    session.fill("newItem", u"Bring the watring can down from the celar "_s);
    session.take("todo-misspelt");
    session.key(Qt::Key_Return);
    session.trigger("mSpCheck");
    session.take("todo-spelling");
    session.click("spellClose");
    session.trigger("mSpTable");
    session.take("todo-corrections");
    session.fill("correctionSearch", u"tom"_s);
    session.take("todo-corrections-found");
}

/// Each kind of page, from a list on.
void takePages(PictureSession &session)
{
    session.clickRow("toDoLists", 0);
    session.trigger("mOPrt");
    session.take("todo-print");
    session.find<QCheckBox>("printEmpty").setChecked(true);
    for (const auto &[what, name] : {std::pair("printWhat_0", "todo-page-list"),
                                     {"printWhat_1", "todo-page-all"},
                                     {"printWhat_2", "todo-page-today"},
                                     {"printWhat_3", "todo-page-persons"},
                                     {"printWhat_4", "todo-page-done"}}) {
        session.click(what);
        session.click("toDoPrintShow");
        session.takePage(name);
        session.key(Qt::Key_Escape);
    }
    session.click("printWhat_0");
    session.find<QComboBox>("printList").setCurrentIndex(1);
    session.click("toDoPrintShow");
    session.take("todo-print-preview");
    session.takePage("todo-page-shopping");
    session.key(Qt::Key_Escape);
    session.key(Qt::Key_Escape);
}

} // namespace

void Albums::toDo(const Camera &camera)
{
    takeSpelling(camera);
    {
        PictureSession session(camera);
        session.open(Function::ToDoList);
        session.take("todo-household-today");
        session.clickRow("toDoLists", 0);
        session.take("todo-household");
    }
    PictureSession session(camera);
    furnish(session.program().folder);
    session.open(Function::ToDoList);
    session.take("todo-today");
    session.clickRow("toDoLists", 0);
    session.take("todo-list");
    session.clickRow("toDoGrid", 0, 1);
    session.trigger("mENote");
    session.take("todo-note");
    session.key(Qt::Key_Escape);
    session.clickRow("toDoLists", 1);
    session.take("todo-shopping");
    for (const auto &[command, name] :
         {std::pair("mVComing", "todo-coming"), {"mVPerson", "todo-by-person"}, {"mVDone", "todo-done"}}) {
        session.trigger(command);
        session.take(name);
    }
    takePages(session);
    session.fill("toDoSearch", u"the"_s);
    session.take("todo-search");
    session.trigger("mVToday");
    session.trigger("mLFrom");
    session.take("todo-new-list");
    session.fill("newListDate", u"Dec-12-2026"_s);
    session.click("newListMake");
    session.take("todo-from-template");
}
