// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/program/backupplace.h"

#include <QObject>
#include <QString>

#include <map>

class Commands;
class FunctionWindow;
class PanelColors;
class QAction;
struct Program;

/// The commands that every window has, by their given names and captions.
enum class Standard {
    PanelColor, ///< mOC
    TextColor,  ///< mOTC
    Backup,     ///< mUB
    Restore,    ///< mUR
    Help,       ///< mH
    Exit        ///< mOEx
};

/// Makes the standard commands of one window, each when it is first asked for.
class StandardCommands final : public QObject
{
    Q_OBJECT
public:
    /// `window` is what Exit closes, `helpContext` the page of the manual that Help opens.
    StandardCommands(Program &program, Commands &commands, PanelColors &colors, int helpContext,
                     FunctionWindow *window);

    /// Backup and restore say when there is none in this program; backup also when there is nothing to copy
    /// yet, as of the last `lookAtFiles`.
    QAction *action(Standard command);
    /// Looks whether there is something to copy.
    void lookAtFiles();
    /// Puts the command on the toolbar, with its icon and word; a name makes it a tool of its own.
    void addTool(Standard command, const QString &name);
    /// "Main Menu", which stands first on the toolbar.
    void addMainMenuTool();

private:
    QAction *make(Standard command);
    void openBackup(BackupPlace::Side side) const;

    Program &m_program;
    Commands &m_commands;
    PanelColors &m_colors;
    int m_helpContext;
    FunctionWindow *m_window;
    QString m_whyNoBackup;
    std::map<Standard, QAction *> m_made;
};
