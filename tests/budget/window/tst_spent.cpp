// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/model/budgetfiles.h"
#include "budget/window/budgetwindow.h"
#include "budget/window/duemodel.h"
#include "budget/window/sheetgrid.h"
#include "shell/core/place.h"
#include "tests/support/openwindow.h"
#include "tests/support/rows.h"

#include <QComboBox>
#include <QTableView>

using namespace Qt::Literals::StringLiterals;

/// What was spent, in the budget's window: typed into its layer, listed, ticked as paid.
class TestSpent : public OpenWindow<Budget1>
{
    Q_OBJECT
private slots:
    void init() { open(); }

    void cleanup() { close(); }

    void addsWhatIsTyped()
    {
        trigger("mVSpent");
        typeAt(0, 3, u"80"_s);
        typeAt(0, 3, u"-10"_s); // came back
        typeAt(0, 3, u"35.5"_s);
        QCOMPARE(textAt(0, 3), u"105.50"_s);
        QCOMPARE(labelText("Label3_2"), u"105.50"_s);
        typeAt(1, 3, u"85,50"_s);
        QCOMPARE(textAt(1, 3), u"85.00"_s);
        QCOMPARE(said(), u"\"85,50\" was read as 85.00: decimals stand behind a point"_s);
        trigger("mEUndo");
        typeAt(2, 3, u"5"_s); // a row without an item
        QCOMPARE(textAt(2, 3), QString());
        trigger("mEUndo");
        QCOMPARE(textAt(0, 3), u"70.00"_s);
        trigger("mERedo");
        const QByteArray yearFile = m_test->bytes(u"2026.Fil"_s);
        trigger("mOSave");
        QCOMPARE(m_test->bytes(u"Quillery.spent-2026"_s), QByteArray("Quillery spent amounts 1\n"
                                                                     "spent\t2026-03-20\t80.00\tRent\t\n"
                                                                     "spent\t2026-03-20\t-10.00\tRent\t\n"
                                                                     "spent\t2026-03-20\t35.50\tRent\t\n"));
        QCOMPARE(m_test->bytes(u"2026.Fil"_s), yearFile);
        QVERIFY(!m_window->isModified());
    }

    void showsTheTotalsOfItsLayer()
    {
        m_window->resize(1280, 800); // the title has its long form
        QCOMPARE(labelText("budgetTitle"), u"March 2026: 50.00 left"_s);
        trigger("mVSpent");
        QCOMPARE(labelText("budgetTitle"), u"March 2026: 150.00 not spent yet"_s);
        QCOMPARE(find<QPushButton>("Command8")->toolTip(), u"Nothing was spent in 2026 yet"_s);
        typeAt(1, 3, u"160"_s);
        QCOMPARE(labelText("budgetTitle"), u"March 2026: 10.00 spent over the income"_s);
        QVERIFY(find<QAction>("mEIncome")->isEnabled() && !find<QAction>("mEFill")->isEnabled());
        click("Command8");
        QCOMPARE(labelText("totalsTitle"), u"Totals For Year 2026, Spent"_s);
        QCOMPARE(labelText("Label14"), u"160.00 "_s);
        trigger("mEUndo");
        QCOMPARE(labelText("Label14"), u".00 "_s);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        trigger("mVPlanned");
        click("Command8");
        QCOMPARE(labelText("totalsTitle"), u"Totals For Year 2026"_s);
        QCOMPARE(labelText("Label14"), u"200.00 "_s);
    }

    void renamesWithTheSheet()
    {
        trigger("mVSpent");
        typeAt(0, 3, u"70"_s);
        typeAt(0, 0, u"Flat"_s);
        QCOMPARE(textAt(0, 3), u"70.00"_s);
        trigger("mOSave");
        QVERIFY(m_test->bytes(u"Quillery.spent-2026"_s).contains("\t70.00\tFlat\t\n"));
        QVERIFY(m_test->bytes(u"2026.Fil"_s).startsWith("\"Flat\"\r\n"));
        trigger("mEUndo");
        QCOMPARE(textAt(0, 3), u"70.00"_s);
        trigger("mERedo");
        QVERIFY(!m_window->isModified());
    }

    void listsTheAmountsOfACell()
    {
        m_grid->setCurrentIndex(m_grid->model()->index(0, 3));
        trigger("mVAmounts");
        auto *amount = find<QLineEdit>("spentAmount");
        typeInto(amount, u"12"_s);
        find<QLineEdit>("spentNote")->setText(u"cash"_s);
        click("spentTake");
        typeInto(amount, u"-2"_s);
        click("spentTake");
        QCOMPARE(labelText("spentSum"), u"10.00 of 100.00 planned"_s);
        auto *list = find<QTableView>("spentList");
        list->selectRow(0);
        amount->setText(u"120"_s);
        click("spentTake");
        QCOMPARE(labelText("spentSum"), u"18.00 over the 100.00 planned"_s);
        click("spentDelete");
        QCOMPARE(list->model()->rowCount(), 1);
        trigger("mEUndo");
        QCOMPARE(list->model()->index(0, 3).data().toString(), u"cash"_s);
        find<QLineEdit>("spentDate")->setText(u"Mar-14-2025"_s);
        click("spentTake");
        QCOMPARE(said(), u"Type a date of 2026"_s);
        m_test->dialogs.willAnswer(Answer::No);
        m_window->close();
    }

    void ticksWhatIsPaid()
    {
        m_grid->setCurrentIndex(m_grid->model()->index(0, 0));
        trigger("mVDue");
        QCOMPARE(find<QComboBox>("dueMonth")->currentIndex(), 2);
        auto *list = find<QTableView>("dueList");
        QCOMPARE(QApplication::focusWidget(), list);
        QTest::keyClick(list, Qt::Key_3);
        QVERIFY(list->findChild<QLineEdit *>()->alignment().testFlag(Qt::AlignRight));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_1);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCoreApplication::processEvents();
        QCOMPARE(list->model()->index(0, DueModel::Paid).data().toString(), QString());
        find<QComboBox>("dueMonth")->setCurrentIndex(1);
        QCOMPARE(list->model()->index(0, DueModel::Paid).data().toString(), u"Overdue"_s);
        find<QComboBox>("dueMonth")->setCurrentIndex(2);
        QTest::keyClick(list, Qt::Key_Space);
        QCOMPARE(list->model()->index(0, DueModel::Spent).data().toString(), u"100.00"_s);
        click("dueClose");
        trigger("mOSave");
        QCOMPARE(m_test->bytes(u"Quillery.spent-2026"_s),
                 QByteArray("Quillery spent amounts 1\n"
                            "due\t31\tRent\n"
                            "paid\t3\t100.00\tRent\n"
                            "spent\t2026-03-20\t100.00\tRent\tPaid\n"));
    }

    void bringsInABankFile()
    {
        m_test->setBytes(u"bank.csv"_s, "Date;Payee;Amount\n"
                                        "2026-03-02;City Garage 12;-40,00\n"
                                        "2026-03-05;City Garage 9;-10,50\n"
                                        "2026-03-06;Employer;900,00\n"
                                        "2026-03-07;\n");
        m_test->dialogs.willChooseFile(m_test->path(u"bank.csv"_s));
        trigger("mUBank");
        auto *list = find<QTableView>("importList");
        QTRY_COMPARE(list->model()->rowCount(), 4);
        QVERIFY(!isOffered("importTake"));
        QCOMPARE(list->model()->index(3, 5).data().toString(), u"Not read: no amount"_s);
        QCOMPARE(find<QLineEdit>("ruleText")->text(), u"City Garage"_s);
        find<QComboBox>("ruleItem")->setCurrentText(u"Fuel"_s);
        click("ruleAdd");
        QTRY_VERIFY(isOffered("importTake"));
        // The rule is still there when nothing is taken.
        click("importClose");
        QTRY_COMPARE(said(), u"Kept: the rules for bank files"_s);
        m_test->dialogs.willChooseFile(m_test->path(u"bank.csv"_s));
        trigger("mUBank");
        QTRY_VERIFY(isOffered("importTake"));
        list->selectRow(1);
        QTest::keyClick(list, Qt::Key_Space);
        QCOMPARE(list->model()->index(1, 5).data().toString(), u"Left out"_s);
        QTest::keyClick(list, Qt::Key_Space);
        click("importTake");
        QTRY_COMPARE(said(), u"Brought in: 2 amounts, 50.50"_s);
        QCOMPARE(m_grid->currentIndex(), m_grid->model()->index(1, 3));
        QCOMPARE(textAt(1, 3), u"50.50"_s);
        trigger("mEUndo");
        QCOMPARE(textAt(1, 3), QString());
        trigger("mERedo");
        trigger("mOSave");
        QCOMPARE(m_test->bytes(u"Quillery.spent-2026"_s),
                 QByteArray("Quillery spent amounts 1\n"
                            "rule\tFuel\tCity Garage\n"
                            "spent\t2026-03-02\t40.00\tFuel\tCity Garage 12\n"
                            "spent\t2026-03-05\t10.50\tFuel\tCity Garage 9\n"));
        m_test->dialogs.willChooseFile(m_test->path(u"bank.csv"_s));
        trigger("mUBank");
        QTRY_COMPARE(list->model()->rowCount(), 4);
        QCOMPARE(list->model()->index(0, 5).data().toString(), u"Is there already"_s);
        // A line chosen by hand is asked about; what came in needs no item.
        m_test->setBytes(u"more.csv"_s,
                         "Date;Payee;Amount\n2026-03-09;Market;-5,00\n2026-03-06;Employer;900,00\n");
        click("importClose");
        m_test->dialogs.willChooseFile(m_test->path(u"more.csv"_s));
        trigger("mUBank");
        QTRY_COMPARE(list->model()->rowCount(), 2);
        find<QComboBox>("ruleItem")->setCurrentText(u"Fuel"_s);
        click("ruleThisLine");
        list->selectRow(1);
        find<QComboBox>("ruleItem")->setCurrentText(u"Fuel"_s);
        click("ruleThisLine");
        QCOMPARE(said(), u"This line does not count as spent in this year, so that it needs no item"_s);
        m_test->dialogs.willAnswer(Answer::Cancel);
        click("importClose");
        QVERIFY(list->isVisible());
        m_test->dialogs.willAnswer(Answer::Yes);
        click("importClose");
        QTRY_COMPARE(said(), u"Brought in: 1 amount, 5.00"_s);
        trigger("mEUndo");
        m_test->dialogs.willChooseFile(m_test->path(u"none.csv"_s));
        trigger("mUBank");
        QCOMPARE(said(), u"none.csv cannot be read"_s);
    }

    void refusesWhatCannotBeWritten_data()
    {
        rows<QString, QByteArray, QString>(
            {{"for reading only", u"Only to look at"_s, "spent\t2026-03-01\t5.00\tRent\t\n",
              u"Only to look at"_s},
             {"a later version",
              {},
              "Quillery spent amounts 2\nspent\t2026-03-01\t5.00\tRent\t\n",
              u"Quillery.spent-2026 was written by a later version of the program: it is only shown"_s}});
    }

    void refusesWhatCannotBeWritten()
    {
        const auto [whyReadOnly, spent, reason] = row<QString, QByteArray, QString>();
        open(whyReadOnly, spent);
        trigger("mVSpent");
        typeAt(0, 3, u"7"_s);
        QCOMPARE(textAt(0, 3), u"5.00"_s);
        m_grid->setCurrentIndex(m_grid->model()->index(0, 3));
        trigger("mVAmounts");
        QCOMPARE(find<QPushButton>("spentTake")->toolTip(), reason);
        typeInto(find<QLineEdit>("spentAmount"), u"7"_s);
        QTest::keyClick(find<QLineEdit>("spentAmount"), Qt::Key_Return);
        click("spentClose");
        trigger("mVDue");
        QTest::keyClick(find<QTableView>("dueList"), Qt::Key_Space);
        QVERIFY(!m_window->isModified());
        QVERIFY(!find<QAction>("mUBank")->isEnabled());
    }

    void leadsToAPlace()
    {
        m_test->setBytes(u"Quillery.spent-2025"_s, "spent\t2025-05-05\t7.00\tGone\tlost\n");
        m_window->showPlace({.date = QDate(2026, 4, 1), .row = 1});
        QCOMPARE(find<QComboBox>("dueMonth")->currentIndex(), 3);
        const QModelIndex due = find<QTableView>("dueList")->currentIndex();
        QCOMPARE(due.siblingAtColumn(0).data().toString(), u"Fuel"_s);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        QCOMPARE(m_grid->currentIndex(), m_grid->model()->index(1, 4));
        m_window->showPlace({.record = 2025, .date = QDate(2025, 5, 5), .row = -1});
        QCOMPARE(find<QComboBox>("Combo1")->currentText(), u"2025"_s);
        QCOMPARE(find<QTableView>("spentList")->model()->index(0, 2).data().toString(), u"Gone"_s);
        // It gets a row of its own again.
        find<QComboBox>("spentItem")->setCurrentText(u"No row"_s);
        QVERIFY(labelText("spentSum").contains(u"7.00"_s));
    }

private:
    void open(const QString &whyReadOnly = {}, const QByteArray &spent = {})
    {
        delete m_window;
        m_test = std::make_unique<TestProgram>(TestProgram::Empty, whyReadOnly);
        m_test->clock.time = {QDate(2026, 3, 20), QTime(10, 24)};
        BudgetSheet sheet;
        sheet.rows[0].item = u"Rent"_s;
        sheet.rows[0].amounts[1] = sheet.rows[0].amounts[2] = u"100.00"_s;
        sheet.rows[1].item = u"Fuel"_s;
        sheet.incomes[2] = u"150.00"_s;
        m_test->setBytes(u"2026.Fil"_s, BudgetFiles::encode(sheet));
        if (!spent.isEmpty())
            m_test->setBytes(u"Quillery.spent-2026"_s, spent);
        m_window = new Budget1(m_test->program);
        showActive(*m_window);
        m_grid = m_window->findChild<SheetGrid *>();
    }

    void typeAt(int row, int column, const QString &text) const
    {
        m_grid->setCurrentIndex(m_grid->model()->index(row, column));
        QTest::keyClicks(m_grid, text.first(1));
        for (auto *box : m_grid->findChildren<QLineEdit *>(u"Text1"_s)) {
            if (box->isHidden())
                continue;
            typeInto(box, text.sliced(1));
            QTest::keyClick(box, Qt::Key_Return);
        }
        QCoreApplication::processEvents();
    }
    QString textAt(int row, int column) const
    {
        return m_grid->model()->index(row, column).data().toString();
    }

    SheetGrid *m_grid = nullptr;
};

QTEST_MAIN(TestSpent)
#include "tst_spent.moc"
