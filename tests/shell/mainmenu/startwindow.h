// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/mainmenu/mainmenuwindow.h"
#include "tests/support/rows.h"
#include "tests/support/testprogram.h"

#include <QAction>
#include <QLabel>
#include <QSignalSpy>

/// A main menu on a temporary folder, with every function built in as an empty window, and all that it did.
class StartWindow
{
public:
    explicit StartWindow(TestProgram::Content content = TestProgram::Empty)
        : test(content)
    {
        test.gate = AccessGate([this](Program &program, QWidget *) {
            asked << program.state.guardedArea;
            program.state.passwordGateResult = verdict;
        });
    }
    ~StartWindow()
    {
        for (QWidget *open : test.functions.openWindows())
            delete open;
    }

    void addAllFunctions()
    {
        for (int i = 0; i <= int(Function::AddressViewer); ++i)
            addFunction(Function(i));
    }
    void addFunction(Function function, std::optional<LiveLine> line = {}, const QStringList &files = {})
    {
        const auto open = [this, function](Program &) {
            opened << int(function);
            auto *window = new QWidget;
            window->setAttribute(Qt::WA_DeleteOnClose);
            return window;
        };
        const auto news = [this, line](const Program &, QDate) {
            ++newsRead;
            return line;
        };
        test.functions.add(function, {open, news, files, {}});
    }
    void protectAll()
    {
        for (int area = 0; area < ProtectedAreas::count; ++area)
            test.state.protectedAreas.setFlag(area, QStringLiteral("YES"));
    }

    /// Makes the window and shows it, as main does.
    Startfrm &show()
    {
        const QLocale locale = systemLocale;
        window = std::make_unique<Startfrm>(
            test.program,
            Surroundings{[this](const QUrl &address) { addresses << address.toString(); },
                         [locale] { return locale; }, [this](const QWidget &) { return screen; }});
        showActive(*window);
        return *window;
    }
    void trigger(const char *action) const { control<QAction>(*window, action)->trigger(); }
    QString activity() const { return control<QLabel>(*window, "StatusBar1_Panel1")->text(); }
    /// Bytes of one record of a file of records; empty when the file ends before it.
    QByteArray record(const QString &file, int length, int number) const
    {
        return test.bytes(file).mid((number - 1) * length, length);
    }

    TestProgram test;
    QLocale systemLocale{QLocale::English, QLocale::UnitedStates};
    QSize screen{1280, 800};
    PasswordGateResult verdict = PasswordGateResult::Open;
    QList<int> opened;
    QList<int> asked; ///< areas that the password was asked for
    QStringList addresses;
    int newsRead = 0;
    std::unique_ptr<Startfrm> window;
};
