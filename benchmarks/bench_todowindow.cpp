// SPDX-License-Identifier: GPL-3.0-or-later
// How long 10,000 things to do take from the click on the card to the painted window, and each key of a
// search, a tick and a move until the rows are painted.

#include "benchmarks/windowdesk.h"
#include "todo/model/todofiles.h"
#include "todo/window/todowindow.h"

#include <QAbstractItemView>
#include <QAction>
#include <QLineEdit>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int items = 10'000;
constexpr int lists = 20;

/// A program whose lists are long: every fifth thing is open, five hundred of them in the first list.
class Desk final : public WindowDesk
{
public:
    Desk()
    {
        ToDoSheet sheet;
        for (int list = 1; list <= lists; ++list)
            sheet.addList({0, ListKind::Plain, u"List %1"_s.arg(list)});
        std::vector<ToDoItem> all;
        for (int i = 0; i < items; ++i) {
            const bool isOpen = i % 5 == 0;
            ToDoItem item{.list = isOpen && i < items / 4 ? 1 : i % lists + 1};
            item.due = QDate(2026, 11, 1).addDays(i % 60);
            item.actual = isOpen ? QDate() : QDate(2026, 1, 1).addDays(i % 300);
            item.text = u"Clean the filter of the old pump %1"_s.arg(i);
            all.push_back(item);
        }
        sheet.addAll(all);
        if (!ToDoFiles(folder()).save(sheet))
            qFatal("cannot write the lists");
    }
};

void openLists(benchmark::State &state)
{
    Desk desk;
    BestTime best(state, mostToOpen);
    for ([[maybe_unused]] auto round : state) {
        best.start();
        ToDo1 window(desk.program);
        PaintWatch watch(window.centralWidget());
        window.show();
        watch.wait();
        best.stop();
    }
}
BENCHMARK(openLists)->Iterations(10)->Unit(benchmark::kMillisecond);

/// Letters that are in all, then digits that leave a few.
void searchByKeys(benchmark::State &state)
{
    Desk desk;
    ToDo1 window(desk.program);
    window.show();
    auto *box = window.findChild<QLineEdit *>(u"toDoSearch"_s);
    auto *grid = window.findChild<QAbstractItemView *>(u"toDoGrid"_s);
    PaintWatch watch(grid->viewport());
    watch.wait();
    int count = 0;
    BestTime best(state, mostToEdit);
    for ([[maybe_unused]] auto round : state) {
        const QString texts[] = {u"p"_s, u"pu"_s, u"pump 9"_s, u"pump 98"_s};
        best.start();
        box->setText(texts[count++ % 4]);
        watch.wait();
        best.stop();
    }
}
BENCHMARK(searchByKeys)->Iterations(40)->Unit(benchmark::kMillisecond);

/// A command on the first row of the first list, with everything that follows from it.
void act(benchmark::State &state, const char *command)
{
    Desk desk;
    ToDo1 window(desk.program);
    window.show();
    auto *listRows = window.findChild<QAbstractItemView *>(u"toDoLists"_s);
    auto *grid = window.findChild<QAbstractItemView *>(u"toDoGrid"_s);
    listRows->setCurrentIndex(listRows->model()->index(0, 0));
    QApplication::processEvents();
    grid->setFocus();
    PaintWatch watch(grid->viewport());
    int row = 0;
    BestTime best(state, mostToEdit);
    for ([[maybe_unused]] auto round : state) {
        grid->setCurrentIndex(grid->model()->index(++row, 1));
        QApplication::processEvents();
        best.start();
        window.findChild<QAction *>(QString::fromLatin1(command))->trigger();
        watch.wait();
        best.stop();
    }
}
BENCHMARK_CAPTURE(act, tick, "mETick")->Iterations(30)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(act, moveDown, "mEDown")->Iterations(30)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char *argv[])
{
    return runOnScreen(argc, argv);
}
