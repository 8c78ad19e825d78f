// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "addressbook/model/addressviewer.h"
#include "addressbook/viewer/viewerwindow.h"
#include "shell/controls/gridview.h"
#include "tests/support/openwindow.h"
#include "tests/support/rows.h"
#include "tests/support/scriptedmodem.h"

#include <QLineEdit>
#include <QRadioButton>

/// The viewer's screen on a household of its own, and the hands that work it.
class OpenViewer : public OpenWindow<ADDBKDISPLAY>
{
protected:
    void open()
    {
        m_line = {};
        m_mail.clear();
        m_test = std::make_unique<TestProgram>(TestProgram::Household);
        show();
    }
    /// A new window on the same folder.
    void show()
    {
        delete m_window;
        m_window = new ADDBKDISPLAY(
            m_test->program, nullptr,
            ADDBKDISPLAY::Surroundings{[this] { return std::make_unique<ScriptedModem>(m_line); },
                                       [this](const QUrl &url) {
                                           m_mail << url;
                                           return true;
                                       }});
        m_window->setAttribute(Qt::WA_DeleteOnClose, false);
        showActive(*m_window);
    }

    void choose(Information information)
    {
        find<QRadioButton>("information_" + QByteArray::number(int(information)))->click();
    }
    void chooseRange(DisplayRange::Kind kind)
    {
        find<QRadioButton>("range_" + QByteArray::number(kind))->click();
    }
    QLineEdit *searchBox() const { return find<QLineEdit>("searchText"); }
    void type(const QString &text)
    {
        searchBox()->selectAll();
        QTest::keyClicks(searchBox(), text);
    }
    void select(int row, int column = 0) { grid()->setCurrentIndex(grid()->model()->index(row, column)); }

    GridView *grid() const { return find<GridView>("VSFlexGrid1"); }
    QString cell(int row, int column) const { return grid()->model()->index(row, column).data().toString(); }
    /// The first row of whose `column` this is true.
    template <typename Fits>
    int rowWhere(int column, Fits fits) const
    {
        for (int row = 0; row < grid()->model()->rowCount(); ++row)
            if (fits(cell(row, column)))
                return row;
        QTest::qFail("no such row", __FILE__, __LINE__);
        return 0;
    }
    QString count() const { return labelText("nameCount"); }
    QString mode() const { return find<QPushButton>("displayMode")->text(); }

    TelephoneLine m_line;
    QList<QUrl> m_mail;
};
