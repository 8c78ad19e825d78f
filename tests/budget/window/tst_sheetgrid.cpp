// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/budget/window/openbudget.h"

#include <QClipboard>
#include <QMenu>
#include <QScrollBar>

using namespace Qt::Literals::StringLiterals;

namespace {

struct Key {
    int key;
    Qt::KeyboardModifiers modifiers;
};
using Keys = QList<Key>;

constexpr auto ctrl = Qt::ControlModifier;
constexpr auto shift = Qt::ShiftModifier;
constexpr Key tab{Qt::Key_Tab, {}};
constexpr Key enterKey{Qt::Key_Return, {}};

} // namespace

/// The keys of the grid, and what is typed into it.
class TestSheetGrid : public OpenBudget
{
    Q_OBJECT
private slots:
    void init() { open(); }
    void cleanup() { close(); }

    void walks_data()
    {
        // From row 2, March (1,3); the sheet has amounts in rows 0 to 4, January to May, but for (1,4).
        rows<Keys, QString>(
            {{"arrows", {{Qt::Key_Right, {}}, {Qt::Key_Down, {}}}, u"2,4 2,4"_s},
             {"left and up", {{Qt::Key_Left, {}}, {Qt::Key_Up, {}}}, u"0,2 0,2"_s},
             {"Tab", {{Qt::Key_Tab, {}}}, u"1,4 1,4"_s},
             {"Tab at the end of the row", {{Qt::Key_End, {}}, {Qt::Key_Tab, {}}}, u"2,0 2,0"_s},
             {"Shift+Tab", {{Qt::Key_Backtab, shift}}, u"1,2 1,2"_s},
             {"Enter", {{Qt::Key_Return, {}}}, u"2,3 2,3"_s},
             {"Shift+Enter", {{Qt::Key_Enter, shift}}, u"0,3 0,3"_s},
             {"Tabs and Enter", {tab, tab, {Qt::Key_Backtab, shift}, enterKey}, u"2,3 2,3"_s},
             {"Tabs and Enter twice", {tab, tab, enterKey, tab, enterKey}, u"3,3 3,3"_s},
             {"Tabs into the next row", {{Qt::Key_End, {}}, tab, tab, enterKey}, u"3,12 3,12"_s},
             {"an arrow among the Tabs", {tab, {Qt::Key_Down, {}}, tab, enterKey}, u"3,4 3,4"_s},
             {"Tabs and Shift+Enter", {tab, {Qt::Key_Enter, shift}}, u"0,4 0,4"_s},
             {"Home", {{Qt::Key_Home, {}}}, u"1,0 1,0"_s},
             {"End", {{Qt::Key_End, {}}}, u"1,12 1,12"_s},
             {"Ctrl+Home", {{Qt::Key_Home, ctrl}}, u"0,0 0,0"_s},
             {"Ctrl+End", {{Qt::Key_End, ctrl}}, u"4,12 4,12"_s},
             {"over a gap", {{Qt::Key_Right, ctrl}}, u"1,5 1,5"_s},
             {"to the last amount", {{Qt::Key_Down, ctrl}}, u"4,3 4,3"_s},
             {"to the edge", {{Qt::Key_Down, ctrl}, {Qt::Key_Down, ctrl}}, u"49,3 49,3"_s},
             {"a range", {{Qt::Key_Right, shift}, {Qt::Key_Down, shift}}, u"1,3 2,4"_s},
             {"a range back", {{Qt::Key_Up, shift}, {Qt::Key_Left, shift}}, u"0,2 1,3"_s},
             {"a range to the edge", {{Qt::Key_Down, ctrl | shift}}, u"1,3 4,3"_s},
             {"all", {{Qt::Key_A, ctrl}}, u"0,0 49,12"_s}});
    }

    void walks()
    {
        const auto [keys, expected] = row<Keys, QString>();
        fillBlock();
        goTo(1, 3);
        for (const Key &key : keys)
            press(key.key, key.modifiers);
        QCOMPARE(chosen(), expected);
    }

    void leavesTheGridBehindTheLastCell()
    {
        goTo(49, 12);
        press(Qt::Key_Tab);
        QVERIFY(!grid()->hasFocus());
    }

    void typesInPlaceOfWhatACellHeld_data()
    {
        rows<Keys, QString, QString>({{"Enter", {{Qt::Key_Return, {}}}, u"7.00"_s, u"2,3"_s},
                                      {"Shift+Enter", {{Qt::Key_Return, shift}}, u"7.00"_s, u"0,3"_s},
                                      {"Tab", {{Qt::Key_Tab, {}}}, u"7.00"_s, u"1,4"_s},
                                      {"an arrow", {{Qt::Key_Left, {}}}, u"7.00"_s, u"1,2"_s},
                                      {"an arrow up", {{Qt::Key_Up, {}}}, u"7.00"_s, u"0,3"_s},
                                      {"Fill Right", {{Qt::Key_R, ctrl}}, u"7.00"_s, u"1,3"_s},
                                      {"Esc", {{Qt::Key_Escape, {}}}, u"5.00"_s, u"1,3"_s}});
    }

    void typesInPlaceOfWhatACellHeld()
    {
        const auto [keys, text, expected] = row<Keys, QString, QString>();
        fillBlock();
        goTo(1, 3);
        type(u"7"_s);
        for (const Key &key : keys)
            press(key.key, key.modifiers);
        QCOMPARE(cell(1, 3), text);
        QCOMPARE(place(), expected);
    }

    void editsWhatACellHolds()
    {
        fillBlock();
        goTo(1, 3);
        press(Qt::Key_F2);
        press(Qt::Key_Home);
        type(u"1"_s);
        press(Qt::Key_Right); // moves in the text
        press(Qt::Key_Return);
        QCOMPARE(cell(1, 3), u"15.00"_s);
        // Nothing typed: nothing checked.
        goTo(20, 3);
        press(Qt::Key_F2);
        press(Qt::Key_Return);
        QVERIFY(asked().isEmpty());
    }

    void checksWhatIsTyped_data()
    {
        rows<QString, QString, QList<Message>>(
            {{"a number", u"42.5"_s, u"42.50"_s, {}},
             {"a formula", u"=3*42.50"_s, u"127.50"_s, {}},
             {"words", u"abc"_s, {}, {BudgetMessages::onlyNumbers()}},
             {"negative", u"-5"_s, {}, {BudgetMessages::onlyNumbers()}},
             {"too much", u"10000"_s, u"9999.99"_s, {BudgetMessages::cellLimit()}}});
    }

    void checksWhatIsTyped()
    {
        const auto [typed, shown, messages] = row<QString, QString, QList<Message>>();
        enter(0, 1, typed);
        QCOMPARE(cell(0, 1), shown);
        QCOMPARE(asked(), messages);
        QCOMPARE(labelText("Label3_0"), shown.isEmpty() ? u".00"_s : shown);
    }

    void clearsCopiesAndPastes()
    {
        fillBlock();
        goTo(0, 1);
        press(Qt::Key_Right, shift);
        press(Qt::Key_Down, shift);
        press(Qt::Key_X, ctrl);
        QCOMPARE(QGuiApplication::clipboard()->text(), u"5.00\t5.00\n5.00\t5.00\n"_s);
        QCOMPARE(cell(1, 2), QString());
        QVERIFY(asked().isEmpty());
        goTo(10, 6);
        press(Qt::Key_V, ctrl);
        QCOMPARE(cell(11, 7), u"5.00"_s);
        QCOMPARE(chosen(), u"10,6 11,7"_s);
        press(Qt::Key_C, ctrl);
        press(Qt::Key_Delete);
        QCOMPARE(cell(11, 7), QString());
        trigger("mEUndo");
        QCOMPARE(cell(11, 7), u"5.00"_s);
        trigger("mEUndo");
        trigger("mEUndo");
        QCOMPARE(cell(0, 1) + cell(11, 7), u"5.00"_s);
        trigger("mERedo");
        QCOMPARE(cell(0, 1), QString());
    }

    void saysWhatItDidNotRead()
    {
        enter(0, 1, u"85,50"_s);
        QCOMPARE(cell(0, 1), u"85.00"_s);
        QTRY_VERIFY(said().contains(u"\"85,50\" was read as 85.00"_s));
        enter(0, 1, u"1,250"_s);
        QCoreApplication::processEvents();
        QVERIFY(!said().contains(u"was read"_s));
    }

    void pastesWithOneWord()
    {
        goTo(0, 0);
        QGuiApplication::clipboard()->setText(u"Gas\t1\tx\ty\n"_s);
        press(Qt::Key_V, ctrl);
        const QList<Message> shown = asked();
        QCOMPARE(shown.size(), 1);
        QVERIFY(shown[0].text.startsWith(BudgetMessages::onlyNumbers().text));
        QGuiApplication::clipboard()->setText(u"\u2603Tea"_s);
        goTo(49, 0);
        press(Qt::Key_V, ctrl);
        QCOMPARE(cell(49, 0), u"Tea"_s);
        QVERIFY(said().contains(u"\u2603"_s));
        goTo(3, 0);
        press(Qt::Key_N, ctrl);
        QVERIFY(said().contains(u"Row 50"_s)); // no room for another
    }

    void worksOnRows()
    {
        enter(0, 0, u"Rent"_s);
        enter(1, 0, u"Gas"_s);
        goTo(1, 0);
        press(Qt::Key_Up, Qt::AltModifier);
        QCOMPARE(cell(0, 0) + cell(1, 0), u"GasRent"_s);
        QCOMPARE(place(), u"0,0"_s);
        press(Qt::Key_N, ctrl);
        QCOMPARE(cell(1, 0), u"Gas"_s);
        for (const Answer answer : {Answer::No, Answer::Yes}) {
            m_test->dialogs.willAnswer(answer);
            click("Command6");
            QCOMPARE(asked(), {BudgetMessages::deleteRow()});
        }
        QCOMPARE(cell(0, 0) + cell(1, 0), u"GasRent"_s);
        // Each can be taken back where it is told of, and leaves one at its row.
        goTo(1, 4);
        m_test->dialogs.willAnswer(Answer::Yes);
        trigger("mODel");
        QCOMPARE(asked(), {BudgetMessages::deleteRow()});
        QCOMPARE(said(), u"Deleted row: Rent"_s);
        press(Qt::Key_Up);
        QVERIFY(!find<QAbstractButton>("statusUndo")->isVisible());
        trigger("mEInsert");
        QCOMPARE(said(), u"Inserted row 1"_s);
        click("statusUndo");
        trigger("mEUndo");
        QCOMPARE(cell(0, 0) + cell(1, 0), u"GasRent"_s);
        QCOMPARE(chosen(), u"1,4 1,4"_s);
        grid()->clearSelection();
        grid()->setCurrentIndex({});
        trigger("mODel");
        QCOMPARE(asked(), {BudgetMessages::noCellChosen()});
    }

    void opensTheMenuOfACell_data()
    {
        rows<bool, QString>({{"planned", false, u"Cut"_s}, {"spent", true, u"Amounts of This Cell"_s}});
    }

    void opensTheMenuOfACell()
    {
        const auto [isSpent, first] = row<bool, QString>();
        trigger(isSpent ? "mVSpent" : "mVPlanned");
        emit grid()->customContextMenuRequested({});
        const auto *menu = find<QMenu>("cellMenu");
        QCOMPARE(menu->actions().first()->text().remove(u'&'), first);
        QCOMPARE(menu->actions().last()->text(), u"&Delete Row"_s);
        QVERIFY(menu->actions().contains(find<QAction>("mEInsert")));
    }

    void fillsAndSpreads()
    {
        enter(0, 1, u"5"_s);
        goTo(0, 1);
        press(Qt::Key_R, ctrl);
        QCOMPARE(cell(0, 12), u"5.00"_s);
        enter(0, 0, u"Gas"_s);
        goTo(0, 1);
        m_test->dialogs.willInput(u"=2*60"_s);
        trigger("mESpread");
        QCOMPARE(m_test->dialogs.takePrompts().join(u'|'),
                 u"Spread a Yearly Sum|Enter the sum for Gas that is to be spread evenly over the twelve "
                 "months.|60.00"_s);
        QCOMPARE(cell(0, 1) + cell(0, 12), u"10.0010.00"_s);
        grid()->choose({0, 1, 1, 2});
        m_test->dialogs.willInput(u"9,50"_s);
        trigger("mESpread");
        QCOMPARE(
            m_test->dialogs.takePrompts().join(u'|'),
            u"Spread a Yearly Sum|Enter the sum for each of the 2 rows that is to be spread evenly over the "
            "2 chosen months.|"_s);
        QCOMPARE(cell(0, 1) + cell(1, 2) + cell(0, 3), u"4.504.5010.00"_s);
        QVERIFY(said().startsWith(u"\"9,50\" was read as 9.00"_s));
        trigger("mEUndo");
        QCOMPARE(cell(0, 1) + cell(1, 2), u"10.00"_s);
        goTo(3, 1);
        trigger("mESecond");
        QCOMPARE(cell(3, 3), QString());
        m_test->dialogs.willInput(u"none"_s);
        m_test->dialogs.willInput(u"120000"_s);
        m_test->dialogs.willInput({});
        m_test->dialogs.takePrompts();
        trigger("mESpread");
        QVERIFY(m_test->dialogs.takePrompts().contains(u"120000"_s)); // asked again with what was typed
        QCOMPARE(asked(), (QList<Message>{BudgetMessages::onlyNumbers(), BudgetMessages::cellLimit()}));
        QCOMPARE(cell(3, 1), QString());
    }

    void dividesTheRoom_data()
    {
        // A month that is wider than the others; item, first and second month, how many are in view.
        rows<int, int, QList<int>>({{"enough for all", 70, 1200, {180, 85, 85, 12}},
                                    {"just enough", 70, 960, {120, 70, 70, 12}},
                                    {"too little", 70, 959, {145, 74, 74, 11}},
                                    {"a wide one among them", 100, 1000, {130, 100, 70, 12}},
                                    {"a wide one where there is room", 100, 1400, {200, 100, 100, 12}},
                                    {"next to none", 70, 100, {120, 70, 70, 1}}});
    }

    void dividesTheRoom()
    {
        const auto [first, room, expected] = row<int, int, QList<int>>();
        SheetColumns::Widths needed;
        needed.fill(70);
        needed[0] = first;
        const SheetColumns columns = SheetColumns::in(room, 120, needed);
        QCOMPARE((QList{columns.item, columns.months[0], columns.months[1], columns.inView}), expected);
    }

    void showsTheWholeYear_data()
    {
        rows<QString>({{"small amounts", u"5"_s}, {"large ones", u"9999.99"_s}});
    }

    /// Each figure whole, in the size that the window opens with.
    void showsTheWholeYear()
    {
        const auto [amount] = row<QString>();
        m_window->resize(1280, 800);
        QGuiApplication::clipboard()->setText(amount);
        grid()->choose({0, 1, 0, 12});
        trigger("mEPasteCells");
        QCoreApplication::processEvents();
        QCOMPARE(grid()->monthsInView(), 12);
        for (const char *figure : {"Label3_11", "Label7_11"}) {
            const auto *label = find<QLabel>(figure);
            QVERIFY(label->font().stretch() == QFont::Unstretched);
            QVERIFY(label->sizeHint().width() <= label->width());
        }
    }

    void keepsItemsAndSumsInSight()
    {
        m_window->resize(800, 600);
        QCoreApplication::processEvents();
        goTo(40, 12);
        QVERIFY(!grid()->isColumnHidden(0));
        QVERIFY(grid()->isColumnHidden(1));
        auto *december = find<QLabel>("Label3_11");
        QVERIFY(december->isVisible());
        QVERIFY(!find<QLabel>("Label3_0")->isVisible());
        const int edge = grid()->visualRect(grid()->currentIndex()).right();
        QCOMPARE(grid()->viewport()->mapTo(m_window, QPoint(edge, 0)).x(),
                 december->mapTo(m_window, QPoint(december->width() - 1, 0)).x());
        // Another month becomes wide, and fewer have room.
        const int inView = grid()->monthsInView();
        m_test->dialogs.willInput(u"99999.99"_s);
        m_test->dialogs.willAnswer(Answer::No);
        QTest::mouseClick(find<QLabel>("Label5_9"), Qt::LeftButton);
        asked();
        QVERIFY(grid()->monthsInView() < inView);
        QVERIFY(!grid()->isColumnHidden(12));
        QVERIFY(find<QScrollBar>("monthBar")->isVisible());
        find<QScrollBar>("monthBar")->setValue(0);
        QVERIFY(!grid()->isColumnHidden(1));
        // Whole rows only.
        QCOMPARE(grid()->viewport()->height() % grid()->rowHeight(0), 0);
    }

    void showsSixRowsInALowWindow()
    {
        m_window->resize(944, 500); // a screen of 1920 x 1080 at 200 %
        QCoreApplication::processEvents();
        QCOMPARE(grid()->viewport()->height() % grid()->rowHeight(0), 0);
        QVERIFY(grid()->viewport()->height() / grid()->rowHeight(0) >= 6);
        const auto *exit = find<QPushButton>("Command3");
        QCOMPARE(exit->visibleRegion().boundingRect().size(), exit->size());
        m_window->resize(944, 700);
        QCoreApplication::processEvents();
        QVERIFY(grid()->rowHeight(0) >= 28);
    }

private:
    /// Amounts of 5.00 in rows 0 to 4, January to May, but for (1,4).
    void fillBlock()
    {
        QGuiApplication::clipboard()->setText(u"5"_s);
        grid()->choose({0, 1, 4, 5});
        trigger("mEPasteCells");
        goTo(1, 4);
        trigger("mEClear");
        asked();
    }
    QString chosen() const
    {
        const SheetRange range = grid()->range();
        return u"%1,%2 %3,%4"_s.arg(range.top).arg(range.left).arg(range.bottom).arg(range.right);
    }
};

QTEST_MAIN(TestSheetGrid)
#include "tst_sheetgrid.moc"
