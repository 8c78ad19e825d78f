// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/mainmenu/mainmenuwindow.h"
#include "tests/support/openwindow.h"
#include "tests/support/rows.h"

#include <QSignalSpy>

/// The main menu on a folder of its own, with functions that are empty windows, and all that it did.
class OpenMainMenu : public OpenWindow<Startfrm>
{
protected:
    struct Given {
        QLocale locale{QLocale::English, QLocale::UnitedStates};
        QSize screen{1280, 800};
        PasswordGateResult verdict = PasswordGateResult::Open;
    };
    struct Done {
        QList<int> opened;
        QList<int> guards; ///< areas that the password was asked for
        QStringList addresses;
        int newsRead = 0;
    };

    /// A program whose main menu is still to be shown.
    void make(TestProgram::Content content = TestProgram::Empty)
    {
        m_test = std::make_unique<TestProgram>(content);
        m_given = {};
        m_done = {};
        m_test->gate = AccessGate([this](Program &program, QWidget *) {
            QVERIFY(activity() != QLatin1String("Loading"));
            m_done.guards << program.state.guardedArea;
            program.state.passwordGateResult = m_given.verdict;
        });
    }
    void addAllFunctions()
    {
        for (int i = 0; i <= int(Function::AddressViewer); ++i)
            addFunction(Function(i));
    }
    void addFunction(Function function, std::optional<LiveLine> line = {}, const QStringList &files = {})
    {
        const auto open = [this, function](Program &) {
            m_done.opened << int(function);
            auto *window = new QWidget;
            window->setAttribute(Qt::WA_DeleteOnClose);
            return window;
        };
        const auto news = [this, line](const Program &, QDate) {
            ++m_done.newsRead;
            return line;
        };
        m_test->functions.add(function, {open, news, files, {}});
    }
    void protectAll()
    {
        for (int area = 0; area < ProtectedAreas::count; ++area)
            m_test->state.protectedAreas.setFlag(area, QStringLiteral("YES"));
    }

    /// Makes the window and shows it, as main does.
    void show()
    {
        m_window =
            new Startfrm(m_test->program,
                         Surroundings{[this](const QUrl &address) { m_done.addresses << address.toString(); },
                                      [this] { return m_given.locale; },
                                      [this](const QWidget &) { return m_given.screen; }});
        showActive(*m_window);
    }
    void close()
    {
        for (QWidget *open : m_test->functions.openWindows())
            delete open;
        OpenWindow::close();
    }
    QString activity() const { return labelText("StatusBar1_Panel1"); }
    /// Bytes of one record of a file of records; empty when the file ends before it.
    QByteArray record(const QString &file, int length, int number) const
    {
        return m_test->bytes(file).mid((number - 1) * length, length);
    }

    Given m_given;
    Done m_done;
};
