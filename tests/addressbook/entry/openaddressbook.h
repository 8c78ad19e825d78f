// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "addressbook/entry/entrywindow.h"
#include "addressbook/entry/namelistmodel.h"
#include "addressbook/model/messages.h"
#include "shell/controls/controls.h"
#include "tests/support/openwindow.h"
#include "tests/support/scriptedmodem.h"

#include <QAbstractItemModelTester>
#include <QListView>

/// The address book's screen on a folder of its own, and the hands that work it.
class OpenAddressBook : public OpenWindow<ADDBKVIEW>
{
protected:
    void open(TestProgram::Content content)
    {
        delete m_window;
        m_line = {};
        m_test = std::make_unique<TestProgram>(content);
        show();
    }
    /// A new window on the same folder.
    void show()
    {
        delete m_window;
        m_window = new ADDBKVIEW(
            m_test->program, nullptr, [this] { return std::make_unique<ScriptedModem>(m_line); },
            [this](const QUrl &url) {
                m_opened.append(url.toString(QUrl::FullyEncoded));
                return m_opens;
            });
        new QAbstractItemModelTester(list()->model(), QAbstractItemModelTester::FailureReportingMode::QtTest,
                                     m_window);
        showActive(*m_window);
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

    FieldBox *box(int field) const { return find<FieldBox>("Text1_" + QByteArray::number(field)); }
    QListView *list() const { return find<QListView>("List1"); }
    QString lineAt(int row) const
    {
        return list()->model()->index(row, 0).data(NameListModel::LineRole).toString();
    }
    QString selectedName() const
    {
        return list()->selectionModel()->selectedRows().value(0).data().toString();
    }
    QString count() const { return labelText("Label1"); }
    /// In the button row, or in the title line of a narrow window.
    QString words() const
    {
        return control<QLabel>(*find<QWidget>("buttonRow"), "rowWords")->text() + labelText("titleWords");
    }
    QByteArray record(int number) const
    {
        return m_test->bytes(QStringLiteral("Addbk1.Fil")).mid((number - 1) * 724, 724);
    }
    QByteArray index(int number) const
    {
        return m_test->bytes(QStringLiteral("Addbk2.Fil")).mid((number - 1) * 60, 60);
    }

    TelephoneLine m_line;
    QStringList m_opened; ///< by the links
    bool m_opens = true;
};
