// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "addressbook/model/addressviewer.h"
#include "addressbook/viewer/viewerwindow.h"
#include "shell/controls/gridview.h"
#include "tests/support/scriptedmodem.h"
#include "tests/support/testprogram.h"

#include <QAction>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

/// The viewer's screen on a household of its own, and the hands that work it.
class OpenViewer : public QObject
{
protected:
    void open(TestProgram::Content content = TestProgram::Household)
    {
        m_test = std::make_unique<TestProgram>(content);
        show();
    }
    /// A new window on the same folder.
    void show()
    {
        m_window.reset();
        m_window = std::make_unique<ADDBKDISPLAY>(
            m_test->program, nullptr,
            ADDBKDISPLAY::Surroundings{[this] { return std::make_unique<ScriptedModem>(m_line); },
                                       [this](const QUrl &url) {
                                           m_mail << url;
                                           return true;
                                       }});
        m_window->setAttribute(Qt::WA_DeleteOnClose, false);
        showActive(*m_window);
    }
    void close()
    {
        m_window.reset();
        QVERIFY(m_test->dialogs.isDone());
        m_line = {};
        m_mail.clear();
    }
    /// Changes a file while another window is in front.
    void changeElsewhere(const QString &name, const QByteArray &bytes)
    {
        QWidget other;
        showActive(other);
        m_test->setBytes(name, bytes);
        QFile file(m_test->path(name));
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(QDateTime(QDate(2030, 1, 1), QTime()), QFileDevice::FileModificationTime));
        showActive(*m_window);
    }

    void click(const char *name) { QTest::mouseClick(control<QPushButton>(*m_window, name), Qt::LeftButton); }
    void trigger(const char *name) { control<QAction>(*m_window, name)->trigger(); }
    void choose(Information information)
    {
        const QString name = QStringLiteral("information_%1").arg(int(information));
        control<QRadioButton>(*m_window, qPrintable(name))->click();
    }
    void chooseRange(DisplayRange::Kind kind)
    {
        control<QRadioButton>(*m_window, qPrintable(QStringLiteral("range_%1").arg(kind)))->click();
    }
    QLineEdit *searchBox() const { return control<QLineEdit>(*m_window, "searchText"); }
    void type(const QString &text)
    {
        searchBox()->selectAll();
        QTest::keyClicks(searchBox(), text);
    }
    void select(int row, int column = 0) { grid()->setCurrentIndex(grid()->model()->index(row, column)); }

    GridView *grid() const { return control<GridView>(*m_window, "VSFlexGrid1"); }
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
    QString count() const { return control<QLabel>(*m_window, "nameCount")->text(); }
    QString mode() const { return control<QPushButton>(*m_window, "displayMode")->text(); }
    bool isOffered(const char *button) const { return control<QPushButton>(*m_window, button)->isEnabled(); }
    QList<Message> asked() { return m_test->dialogs.takeShown(); }

    std::unique_ptr<TestProgram> m_test;
    std::unique_ptr<ADDBKDISPLAY> m_window;
    TelephoneLine m_line;
    QList<QUrl> m_mail;
};
