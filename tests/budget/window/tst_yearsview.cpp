// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/model/budgetfiles.h"
#include "tests/budget/window/openbudget.h"

#include <QComboBox>
#include <QScrollArea>
#include <QScrollBar>
#include <QTableView>

using namespace Qt::Literals::StringLiterals;

/// A year beside the year before, over the sheet.
class TestYearsView : public OpenBudget
{
    Q_OBJECT
private slots:
    void init() { open(); }
    void cleanup() { close(); }

    void comparesWhatIsTyped()
    {
        BudgetSheet before;
        before.rows[0].item = u"Rent"_s;
        before.rows[0].amounts[2] = u"900.00"_s;
        QVERIFY(BudgetFiles(m_test->folder).write(2025, before));
        enter(0, 0, u"Rent"_s);
        enter(0, 3, u"950"_s);
        openView();
        QVERIFY(!isMissing());
        QCOMPARE(labelText("yearsTitle"), u"2026: 50.00 more than in 2025"_s);
        QCOMPARE(line("yearsTable", 0), u"Rent|950.00|900.00|+50.00"_s);
        QCOMPARE(line("asideTable", 0), u"Rent|Mar 2027|950.00|237.50"_s);
        QVERIFY(find<QWidget>("asideSum")->accessibleName().endsWith(u"237.50"_s));
        // Rows give way before the sums under them do.
        m_window->resize(1200, 560);
        QTRY_COMPARE(find<QScrollArea>("yearsScroll")->verticalScrollBar()->maximum(), 0);
        m_window->findChild<QComboBox *>(u"yearsCompared"_s)->setCurrentIndex(3);
        QCOMPARE(line("yearsTable", 2), u"March|-950.00|-900.00|-50.00"_s);
        QVERIFY(find<QWidget>("yearsSum")->accessibleName().startsWith(u"Balance"_s));

        // Undo reaches the sheet from here, and Esc leads back to it.
        QTest::keyClick(m_window, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(labelText("yearsTitle"), u"2026: 900.00 less than in 2025"_s);
        QTest::keyClick(find<QTableView>("yearsTable"), Qt::Key_Escape);
        QVERIFY(grid()->isVisible() && grid()->hasFocus());
    }

    void saysThatAYearIsMissing()
    {
        openView();
        QVERIFY(isMissing());
        QCOMPARE(labelText("yearsMissing"), u"There is no budget of 2025 to compare with."_s);
        QCOMPARE(
            labelText("asideWords"),
            u"Items that are paid in one to three months of the year would stand here; there are none."_s);
        QVERIFY(!find<QTableView>("asideTable")->isVisible());
    }

    void printsWhatIsShown()
    {
        open(TestProgram::Household);
        openView();
        click("yearsPrint");
        QVERIFY(m_window->isPreviewShown());
        QVERIFY(!find<QAction>("mVYears")->isEnabled());
        QTest::keyClick(m_window, Qt::Key_Escape);
        QVERIFY(find<QTableView>("yearsTable")->isVisible());
        click("yearsClose");
        QVERIFY(grid()->isVisible());
    }

private:
    void openView() const
    {
        QTest::keyClick(m_window, Qt::Key_4, Qt::ControlModifier);
        QVERIFY(find<QTableView>("yearsTable")->hasFocus());
    }
    bool isMissing() const { return find<QLabel>("yearsMissing")->isVisible(); }
    QString line(const char *table, int row) const
    {
        const QAbstractItemModel *model = find<QTableView>(table)->model();
        QStringList cells;
        for (int column = 0; column < model->columnCount(); ++column)
            cells << model->index(row, column).data().toString();
        return cells.join(u'|');
    }
};

QTEST_MAIN(TestYearsView)
#include "tst_yearsview.moc"
