// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "addressbook/entry/entrywindow.h"
#include "addressbook/entry/namelistmodel.h"
#include "addressbook/model/messages.h"
#include "shell/controls/activitybar.h"
#include "shell/controls/controls.h"
#include "tests/support/scriptedmodem.h"
#include "tests/support/testprogram.h"

#include <QAction>
#include <QLabel>
#include <QListView>
#include <QPointer>
#include <QPushButton>

/// The address book's screen on a folder of its own, and the hands that work it.
class OpenAddressBook : public QObject
{
protected:
    void open(TestProgram::Content content)
    {
        delete m_window;
        m_line = {};
        m_test = std::make_unique<TestProgram>(content);
        m_window = new ADDBKVIEW(m_test->program, nullptr,
                                 [this] { return std::make_unique<ScriptedModem>(m_line); });
        showActive(*m_window);
    }
    void close()
    {
        QVERIFY(m_test->dialogs.isDone());
        delete m_window;
    }

    void click(const char *name) { QTest::mouseClick(control<QPushButton>(*m_window, name), Qt::LeftButton); }
    void trigger(const char *name) { control<QAction>(*m_window, name)->trigger(); }
    /// Types any characters; the toolkit's own keyClicks takes ASCII only.
    static void typeInto(QWidget *box, const QString &text)
    {
        for (const QChar character : text)
            QTest::sendKeyEvent(QTest::Click, box, Qt::Key_unknown, QString(character), Qt::NoModifier);
    }
    void type(int field, const QString &text)
    {
        box(field)->setFocus(Qt::TabFocusReason);
        box(field)->selectAll();
        QTest::keyClick(box(field), Qt::Key_Delete);
        typeInto(box(field), text);
    }
    void select(int row) { list()->setCurrentIndex(list()->model()->index(row, 0)); }
    void clickRow(int row)
    {
        const QRect place = list()->visualRect(list()->model()->index(row, 0));
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, place.center());
    }

    FieldBox *box(int field) const
    {
        return control<FieldBox>(*m_window, qPrintable(QStringLiteral("Text1_%1").arg(field)));
    }
    QListView *list() const { return control<QListView>(*m_window, "List1"); }
    QString lineAt(int row) const
    {
        return list()->model()->index(row, 0).data(NameListModel::LineRole).toString();
    }
    QString selectedName() const
    {
        return list()->selectionModel()->selectedRows().value(0).data().toString();
    }
    QString count() const { return control<QLabel>(*m_window, "Label1")->text(); }
    QString said() const { return m_window->findChild<ActivityBar *>()->message(); }
    /// In the button row, or in the title line of a narrow window.
    QString words() const
    {
        return control<QLabel>(*control<QWidget>(*m_window, "buttonRow"), "rowWords")->text() +
               control<QLabel>(*m_window, "titleWords")->text();
    }
    QByteArray record(int number) const
    {
        return m_test->bytes(QStringLiteral("Addbk1.Fil")).mid((number - 1) * 724, 724);
    }
    QByteArray index(int number) const
    {
        return m_test->bytes(QStringLiteral("Addbk2.Fil")).mid((number - 1) * 60, 60);
    }
    QList<Message> asked() { return m_test->dialogs.takeShown(); }

    std::unique_ptr<TestProgram> m_test;
    QPointer<ADDBKVIEW> m_window;
    TelephoneLine m_line;
};
