// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "planner/model/messages.h"
#include "planner/model/plannerfiles.h"
#include "planner/window/dayeditor.h"
#include "planner/window/plannerwindow.h"
#include "shell/controls/controls.h"
#include "shell/controls/monthview.h"
#include "tests/support/openwindow.h"
#include "tests/support/plannerdays.h"
#include "tests/support/rows.h"

#include <QRadioButton>

/// The planner open on 21 November 2026, and what a person does in it.
class OpenPlanner : public OpenWindow<Zcalandar1>
{
protected:
    void open(TestProgram::Content content = TestProgram::Empty)
    {
        delete m_window; // without its questions
        m_test = std::make_unique<TestProgram>(content);
        show();
    }
    /// A new window on the same folder.
    void show()
    {
        delete m_window;
        m_window = new Zcalandar1(m_test->program);
        showActive(*m_window);
    }
    void writeDay(QDate date, const PlannerDay &day) const
    {
        PlannerFiles files(m_test->folder);
        QVERIFY(files.write(date, day));
    }

    FieldBox *time(int row) const { return find<FieldBox>("Text1_" + QByteArray::number(row)); }
    FieldBox *text(int row) const { return find<FieldBox>("Text2_" + QByteArray::number(row)); }
    void type(int row, const QString &time, const QString &text) const
    {
        typeInto(this->time(row), time);
        typeInto(this->text(row), text);
    }
    /// Types `text` in the place of what the box holds.
    void set(const QByteArray &name, const QString &text) const
    {
        find<QLineEdit>(name)->selectAll();
        typeInto(find<QLineEdit>(name), text);
    }
    void tick(const QByteArray &name) const
    {
        auto *button = find<QRadioButton>(name);
        QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(10, button->height() / 2));
    }
    void choose(QDate date) const
    {
        find<MonthView>("MonthView1")->setSelectedDate(date);
        QCoreApplication::processEvents();
    }

    QDate date() const { return m_window->findChild<DayEditor *>()->date(); }
    bool isOpen() const { return m_window && m_window->isVisible(); }
    QString caption() const { return find<QLabel>("SSPanel4")->accessibleName(); }
    QWidget *focus() const { return m_window->focusWidget(); }
    /// False as well for a panel that was not opened yet.
    bool isShown(const char *name) const
    {
        const auto *view = m_window->findChild<QWidget *>(QLatin1StringView(name));
        return view && view->isVisible();
    }
    /// What the rows hold, as "time|text", up to the last that holds anything.
    QStringList shownRows() const
    {
        QStringList rows;
        for (int row = 0; row < 14; ++row)
            rows << time(row)->text() + QLatin1Char('|') + text(row)->text();
        while (!rows.isEmpty() && rows.last() == QLatin1String("|"))
            rows.removeLast();
        return rows;
    }
};
