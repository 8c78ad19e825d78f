// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frame/standardcommands.h"

#include "shell/core/framelines.h"
#include "shell/frame/commands.h"
#include "shell/frame/commonkeys.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/panelcolors.h"
#include "shell/program/program.h"

#include <utility>

using namespace Qt::Literals::StringLiterals;

StandardCommands::StandardCommands(Program &program, Commands &commands, PanelColors &colors, int helpContext,
                                   FunctionWindow *window)
    : QObject(window)
    , m_program(program)
    , m_commands(commands)
    , m_colors(colors)
    , m_helpContext(helpContext)
    , m_window(window)
{}

QAction *StandardCommands::action(Standard command)
{
    QAction *&made = m_made[command];
    if (!made)
        made = make(command);
    return made;
}

QAction *StandardCommands::make(Standard command)
{
    const auto add = [this](const QString &name, const QString &caption, std::function<void()> run,
                            Commands::Reason unless = {}, const QKeySequence &key = {}) {
        return m_commands.add(nullptr, name, caption, std::move(run), std::move(unless), key);
    };
    const auto noBackup = [this] {
        return m_program.functions.has(Function::Backup) ? QString() : FrameLines::backupNotThere();
    };
    switch (command) {
    case Standard::PanelColor:
        return m_commands.writing(add(u"mOC"_s, u"Panel C&olor"_s, [this] { m_colors.choosePanelColor(); }));
    case Standard::TextColor:
        return m_commands.writing(add(u"mOTC"_s, u"&Text Color"_s, [this] { m_colors.chooseTextColor(); }));
    case Standard::Backup:
        return add(
            u"mUB"_s, u"&Backup Files to Disk"_s,
            [this] {
                if (m_window->mayBackUp())
                    openBackup(BackupPlace::Side::BackUp);
            },
            [this, noBackup] {
                const QString why = noBackup();
                // The first file may have come since; what is there does not go.
                if (why.isEmpty() && !m_whyNoBackup.isEmpty())
                    m_whyNoBackup = m_window->whyNothingToBackUp();
                return why.isEmpty() ? m_whyNoBackup : why;
            });
    case Standard::Restore:
        return m_commands.writing(add(
            u"mUR"_s, u"&Restore Files from Disk"_s, [this] { openBackup(BackupPlace::Side::Restore); },
            noBackup));
    case Standard::Help:
        return add(
            u"mH"_s, u"&Help"_s, [this] { emit m_program.changes.helpRequested(m_helpContext); }, {},
            CommonKeys::help);
    case Standard::Exit:
        return add(u"mOEx"_s, u"E&xit"_s, [this] { m_window->close(); });
    }
    Q_UNREACHABLE();
}

/// The pictures and lists of the address book are copied with its entries.
void StandardCommands::openBackup(BackupPlace::Side side) const
{
    std::optional<Function> function = m_program.functions.functionOf(*m_window);
    if (function == Function::AddressViewer)
        function = Function::AddressBook;
    m_program.functions.open(Function::Backup, m_program, BackupPlace::of(side, function));
}

void StandardCommands::lookAtFiles()
{
    if (!m_made.contains(Standard::Backup))
        return;
    QString why = m_window->whyNothingToBackUp();
    if (why == m_whyNoBackup)
        return;
    m_whyNoBackup = std::move(why);
    m_commands.refresh();
}

void StandardCommands::addTool(Standard command, const QString &name)
{
    switch (command) {
    case Standard::PanelColor:
        m_commands.tool(action(command), "palette"_L1, u"Panel Color"_s, name);
        break;
    case Standard::Backup:
        m_commands.tool(action(command), "backup-command"_L1, u"Backup"_s, name);
        break;
    case Standard::Help:
        m_commands.tool(action(command), "help"_L1, u"Help"_s, name.isEmpty() ? u"toolHelp"_s : name);
        break;
    default:
        Q_UNREACHABLE(); // no toolbar has it
    }
}

void StandardCommands::addMainMenuTool()
{
    QAction *mainMenu = m_commands.add(nullptr, u"mainMenu"_s, u"Main Menu"_s,
                                       [this] { emit m_program.changes.mainMenuRequested(); });
    mainMenu->setToolTip(u"Brings the main menu to the front"_s);
    m_commands.tool(mainMenu, "home"_L1, u"Main Menu"_s);
    m_commands.separateTools();
}
