// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budget/model/messages.h"
#include "budget/window/budgetwindow.h"
#include "budget/window/sheetgrid.h"
#include "tests/support/openwindow.h"
#include "tests/support/rows.h"

/// The budget open on 21 November 2026, and what a person does in it.
class OpenBudget : public OpenWindow<Budget1>
{
protected:
    void open(TestProgram::Content content = TestProgram::Empty, const QString &whyReadOnly = {})
    {
        delete m_window; // without its questions
        m_test = std::make_unique<TestProgram>(content, whyReadOnly);
        show();
    }
    /// A new window on the same folder.
    void show()
    {
        delete m_window;
        m_window = new Budget1(m_test->program);
        showActive(*m_window);
    }

    SheetGrid *grid() const { return find<SheetGrid>("VSGd1"); }
    void goTo(int row, int column) const { grid()->setCurrentIndex(grid()->model()->index(row, column)); }
    QString cell(int row, int column) const { return grid()->model()->index(row, column).data().toString(); }
    /// Where the current cell is, as "row,column".
    QString place() const
    {
        return QStringLiteral("%1,%2").arg(grid()->currentIndex().row()).arg(grid()->currentIndex().column());
    }
    /// A key, in the box that is typed into where one is open.
    void press(int key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::keyClick(typingPlace(), Qt::Key(key), modifiers);
        QCoreApplication::processEvents();
    }
    void type(const QString &text) const
    {
        for (const QChar character : text)
            QTest::sendKeyEvent(QTest::Click, typingPlace(), Qt::Key_unknown, QString(character),
                                Qt::NoModifier);
    }
    /// The grid, or the box in one of its cells.
    QWidget *typingPlace() const
    {
        for (auto *box : grid()->findChildren<QLineEdit *>(QStringLiteral("Text1"))) {
            if (!box->isHidden())
                return box;
        }
        return grid();
    }
    /// Types `text` into a cell, and Enter.
    void enter(int row, int column, const QString &text) const
    {
        goTo(row, column);
        type(text);
        press(Qt::Key_Return);
    }
};
