// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/controls.h"

#include <QAction>
#include <QKeySequence>
#include <QObject>
#include <QStringList>

#include <functional>
#include <vector>

class QMenu;

/// What a window can do: each command once, shown in menus, on the toolbar and on buttons, all of which say
/// why it cannot be used now.
class Commands final : public QObject
{
    Q_OBJECT
public:
    /// Why a command cannot be used now; an empty text: it can.
    using Reason = std::function<QString()>;

    /// With a reason why the household is for reading only, no command that writes can be used.
    explicit Commands(QWidget *window, QString whyReadOnly = {});

    /// A command named `name` that stands in `menu`, when there is one.
    QAction *add(QMenu *menu, const QString &name, const QString &caption, std::function<void()> run,
                 Reason unless = {}, const QKeySequence &shortcut = {});
    /// Marks a command as one that changes the household's files, and returns it.
    QAction *writing(QAction *command);
    /// Gives the command a key that works only while `view`, a list or grid, has the focus: elsewhere it
    /// belongs to what is typed.
    void setKeyIn(QWidget *view, QAction *command, const QKeySequence &key);
    bool hasKey(const QKeySequence &key) const;
    /// Why the command with `key` cannot be used where the focus is; empty where it can, and without one.
    QString whyNot(const QKeySequence &key) const;
    /// A second menu entry that does the same in the same state; without a caption of its own it always has
    /// the command's.
    QAction *repeat(QAction *command, QMenu *menu, const QString &name, const QString &caption = {});
    /// Puts the command on the toolbar, with `word` beside its icon. With a name it is a tool of its own: a
    /// menu bar would show the icon in place of an entry's word, and a tool can be hidden where the entry
    /// stays.
    QAction *tool(QAction *command, QLatin1StringView icon, const QString &word, const QString &name = {});
    void separateTools();
    /// A button that does the same in the same state. With the command's caption it always has it.
    QPushButton *button(QAction *command, const QString &name, const QString &caption, QWidget *parent,
                        ButtonKind kind = ButtonKind::Plain);
    /// Lets a button that was made elsewhere, with an icon alone say, do the same in the same state.
    QPushButton *addButton(QAction *command, QPushButton *button);
    /// Renames the command wherever it is shown under its own caption.
    void setCaption(QAction *command, const QString &caption);

    /// Asks every reason again. The frame does so when the view changes and when a preview comes or goes.
    void refresh();

    /// What can stand on the toolbar, and what does by default: object names, with separators between groups.
    const QList<QAction *> &tools() const { return m_tools; }
    const QStringList &toolNames() const { return m_toolNames; }

private:
    struct Command {
        QAction *action;
        Reason unless;
        bool isWriting = false;
        std::vector<QAction *> twins; ///< further entries and tools
        std::vector<QPushButton *> buttons;
        std::vector<QObject *> sameCaption; ///< those of them that are renamed with it
    };

    Command &find(const QAction *action);
    QAction *addTwin(Command &command, const QString &name, const QString &caption);
    void show(const Command &command) const;

    QWidget *m_window;
    QString m_whyReadOnly;
    std::vector<Command> m_commands;
    QList<QAction *> m_tools;
    QStringList m_toolNames;
};
