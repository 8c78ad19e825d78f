// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "planner/model/messages.h"
#include "planner/model/plannerfiles.h"
#include "planner/window/dayeditor.h"
#include "planner/window/plannerwindow.h"
#include "shell/controls/activitybar.h"
#include "shell/controls/controls.h"
#include "shell/controls/monthview.h"
#include "tests/support/plannerdays.h"
#include "tests/support/rows.h"
#include "tests/support/testprogram.h"

#include <QAction>
#include <QPointer>
#include <QRadioButton>

inline void writeDay(const TestProgram &test, QDate date, const PlannerDay &day)
{
    PlannerFiles files(test.folder);
    QVERIFY(files.write(date, day));
}

/// The planner open on 21 November 2026, and what a person does in it.
class OpenPlanner
{
public:
    explicit OpenPlanner(TestProgram &test)
        : m_window(new Zcalandar1(test.program))
    {
        showActive(*m_window);
    }
    ~OpenPlanner() { delete m_window.data(); } // without its questions
    Q_DISABLE_COPY_MOVE(OpenPlanner)

    Zcalandar1 &window() const { return *m_window; }
    bool isOpen() const { return m_window && m_window->isVisible(); }
    template <typename T>
    T *find(const QByteArray &name) const
    {
        return control<T>(*m_window, name.constData());
    }

    FieldBox *time(int row) const { return find<FieldBox>("Text1_" + QByteArray::number(row)); }
    FieldBox *text(int row) const { return find<FieldBox>("Text2_" + QByteArray::number(row)); }
    void type(int row, const QString &time, const QString &text) const
    {
        typeInto(this->time(row), time);
        typeInto(this->text(row), text);
    }
    /// QTest::keyClicks() knows ASCII alone.
    static void typeInto(QWidget *box, const QString &text)
    {
        for (const QChar c : text)
            QTest::sendKeyEvent(QTest::Click, box, Qt::Key_unknown, QString(c), Qt::NoModifier);
    }
    /// Types `text` in the place of what the box holds.
    void set(const QByteArray &name, const QString &text) const
    {
        find<QLineEdit>(name)->selectAll();
        QTest::keyClicks(find<QLineEdit>(name), text);
    }
    void trigger(const char *name) const { find<QAction>(name)->trigger(); }
    void click(const char *name) const { QTest::mouseClick(find<QPushButton>(name), Qt::LeftButton); }
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
    QString caption() const { return find<QLabel>("SSPanel4")->accessibleName(); }
    QString said() const { return m_window->findChild<ActivityBar *>()->message(); }
    bool isShown(const char *name) const { return find<QWidget>(name)->isVisible(); }
    QStringList rows() const
    {
        QStringList rows;
        for (int row = 0; row < 14; ++row)
            rows << time(row)->text() + QLatin1Char('|') + text(row)->text();
        while (!rows.isEmpty() && rows.last() == QLatin1String("|"))
            rows.removeLast();
        return rows;
    }

private:
    QPointer<Zcalandar1> m_window;
};
