// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/buttonrow.h"
#include "shell/controls/controls.h"
#include "shell/controls/flowtoolbar.h"
#include "shell/controls/lowwindow.h"
#include "shell/controls/workscroll.h"
#include "shell/look/theme.h"
#include "tests/support/rows.h"
#include "tests/support/testprogram.h"

#include <QMainWindow>
#include <QMenu>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A window with ten tools, and a form of twenty boxes over four buttons.
struct Sample {
    explicit Sample(int height);

    int moreTools();

    QMainWindow window;
    FlowToolBar *bar = new FlowToolBar(Qt::Horizontal);
    ButtonRow *buttons = new ButtonRow;
    QLineEdit *lastBox = nullptr;
    QScrollArea *form = nullptr;
    QWidget *work = new QWidget;
    int clicked = 0;
};

Sample::Sample(int height)
{
    for (int i = 0; i < 10; ++i)
        bar->addAction(makeAction(u"tool%1"_s.arg(i), u"A long word %1"_s.arg(i), bar));
    for (int i = 0; i < 4; ++i)
        buttons->addLeft(makeButton(u"left%1"_s.arg(i), u"A rare button %1"_s.arg(i), buttons));
    buttons->addRight(makeButton(u"right"_s, u"A usual button"_s, buttons));
    QObject::connect(buttons->findChild<QPushButton *>(u"left3"_s), &QPushButton::clicked, buttons,
                     [this] { ++clicked; });
    auto *boxes = new QWidget;
    auto *rows = new QVBoxLayout(boxes);
    for (int i = 0; i < 20; ++i)
        rows->addWidget(lastBox = new QLineEdit(boxes));
    form = makeScrolling(boxes, u"form"_s, work);
    auto *panel = new QVBoxLayout(work);
    panel->addWidget(form);
    panel->addWidget(buttons);
    auto *content = new QWidget;
    auto *column = new QVBoxLayout(content);
    column->addWidget(bar);
    column->addWidget(new WorkScroll(work), 1);
    window.setCentralWidget(content);
    window.setMinimumSize(400, 300);
    window.resize(640, height);
    showActive(window);
}

/// What the menu of the toolbar's "More" offers.
int Sample::moreTools()
{
    auto *more = control<QToolButton>(window, "more");
    if (!more->isVisible())
        return 0;
    more->click();
    auto *menu = control<QMenu>(window, "moreMenu");
    const auto count = int(menu->actions().size());
    delete menu;
    return count;
}

} // namespace

class TestLowWindow : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { Theme::apply(*qApp); }

    void hasOneRowEach_data()
    {
        rows<int, bool>({{"high", LowWindow::below, false}, {"low", LowWindow::below - 1, true}});
    }

    void hasOneRowEach()
    {
        const auto [height, isLow] = row<int, bool>();
        Sample sample(height);
        const int row = control<QToolButton>(sample.window, "tool0_button")->height();
        QTRY_COMPARE(sample.bar->height() < 2 * row, isLow);
        const QList<QAction *> tools = sample.bar->actions();
        const auto shown = std::ranges::count_if(
            tools, [&](const QAction *tool) { return sample.bar->button(tool)->isVisible(); });
        QCOMPARE(shown + sample.moreTools(), 10);
        QCOMPARE(shown < 10, isLow);

        const int button = control<QPushButton>(sample.window, "right")->height();
        QTRY_COMPARE(sample.buttons->height() < 2 * button, isLow);
        QCOMPARE(control<QPushButton>(sample.window, "moreButtons")->isVisible(), isLow);

        // The form scrolls over its buttons.
        QTRY_VERIFY(sample.form->verticalScrollBar()->maximum() > 0);
        QCOMPARE(control<QScrollArea>(sample.window, "workScroll")->verticalScrollBar()->maximum(), 0);
        QVERIFY(!sample.buttons->visibleRegion().isEmpty());
    }

    void scrollsAsAWholeWhatCannotBeLower()
    {
        Sample sample(400);
        sample.form->setMinimumHeight(500);
        auto *whole = control<QScrollArea>(sample.window, "workScroll");
        QTRY_VERIFY(whole->verticalScrollBar()->maximum() > 0);
        QVERIFY(sample.buttons->visibleRegion().isEmpty());
        control<QPushButton>(sample.window, "right")->setFocus();
        QTRY_VERIFY(!sample.buttons->visibleRegion().isEmpty());
    }

    void putsIntoMoreInANarrowBarWhatGivesWay()
    {
        Sample sample(LowWindow::below);
        const QList<QAction *> tools = sample.bar->actions();
        const auto shown = [&] {
            QStringList names;
            for (const QAction *tool : tools) {
                if (sample.bar->button(tool)->isVisible())
                    names << tool->objectName();
            }
            return names;
        };
        const int row = sample.bar->button(tools[0])->height();
        for (const int tool : {9, 3, 4, 5, 6, 7, 8})
            sample.bar->giveWay(tools[tool]);
        QTRY_VERIFY(sample.bar->height() < 2 * row);
        QVERIFY(shown().size() < 10 && !shown().contains(u"tool9"_s) && !shown().contains(u"tool3"_s));
        QCOMPARE(shown().first(3), (QStringList{u"tool0"_s, u"tool1"_s, u"tool2"_s}));
        QCOMPARE(sample.moreTools(), 10 - shown().size());
        sample.window.resize(3000, LowWindow::below);
        QTRY_COMPARE(shown().size(), 10);
    }

    void pressesWhatMoreHolds()
    {
        Sample sample(LowWindow::below - 1);
        auto *held = control<QPushButton>(sample.window, "left3");
        QTRY_COMPARE(held->focusPolicy(), Qt::NoFocus);
        control<QPushButton>(sample.window, "moreButtons")->click();
        auto *menu = control<QMenu>(sample.window, "moreMenu");
        QCOMPARE(menu->actions().last()->text(), held->text());
        menu->actions().last()->trigger();
        QCOMPARE(sample.clicked, 1);
        // Where "More" has no room beside what is usual either, that stands below.
        auto *right = control<QPushButton>(sample.window, "right");
        right->setMinimumWidth(600);
        sample.buttons->rearrange();
        QTRY_VERIFY(right->y() >= control<QPushButton>(sample.window, "left0")->geometry().bottom());
        right->setMinimumWidth(0);
        sample.window.resize(1600, LowWindow::below - 1);
        QTRY_COMPARE(held->focusPolicy(), Qt::StrongFocus);
        QVERIFY(!control<QPushButton>(sample.window, "moreButtons")->isVisible());
    }
};

QTEST_MAIN(TestLowWindow)
#include "tst_lowwindow.moc"
