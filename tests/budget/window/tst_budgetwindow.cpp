// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/budget/window/openbudget.h"

using namespace Qt::Literals::StringLiterals;

/// The window of the budget: its sheet, its year, its questions.
class TestBudget1 : public OpenBudget
{
    Q_OBJECT
private slots:
    void init() { open(); }
    void cleanup() { close(); }

    void opensTheYearOfToday()
    {
        open(TestProgram::Household);
        QCOMPARE(cell(0, 0), u"Rent"_s);
        QCOMPARE(cell(0, 1), u"1,250.00"_s);
        QVERIFY(!m_window->isModified());
    }

    void writesWhatIsTyped()
    {
        enter(0, 0, u"Rent"_s);
        QCOMPARE(place(), u"1,0"_s);
        enter(0, 1, u"980"_s);
        QCOMPARE(cell(0, 1), u"980.00"_s);
        QVERIFY(m_window->isModified());
        click("saveBudget");
        QVERIFY(!m_window->isModified());
        QVERIFY(m_test->bytes(u"2026.Fil"_s).startsWith("\"Rent\"\r\n\"980.00\"\r\n\"\"\r\n"));
    }
};

QTEST_MAIN(TestBudget1)
#include "tst_budgetwindow.moc"
