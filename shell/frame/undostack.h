// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/undostep.h"

#include <QObject>

#include <memory>
#include <vector>

class ActivityBar;
class Commands;
class QAction;
class QMenu;
class QWidget;
struct Program;

/// What was done in a window and can be taken back, a step at a time, for as long as the window is open. A
/// step that the disk refuses stays to be tried again; one that somebody else has written over goes. Qt's own
/// stack can do neither.
class UndoStack final : public QObject
{
    Q_OBJECT
public:
    /// `mayReplace` is asked before a step that changes files: text that was typed and not saved is never
    /// lost to it.
    UndoStack(Program &program, Commands &commands, ActivityBar &activity, std::function<bool()> mayReplace,
              QWidget *window);

    /// Puts "Undo" and "Redo" into `menu`.
    void addCommands(QMenu *menu);

    /// Adds what was just done. What was taken back before it cannot be done again.
    void push(UndoStep step);
    /// The same for a change of files, unless it changed nothing; `show` brings what they hold now to the
    /// screen.
    void push(const QString &title, RecordChange change, std::function<void()> show);
    /// The same for files of any kind.
    void push(const QString &title, const std::shared_ptr<FileChange> &change, std::function<void()> show);
    /// Puts "Undo" behind what the status bar says, to be clicked, when the last step says it.
    void offer();
    /// Nothing can be taken back any more, and nothing of it is told.
    void clear();
    /// What was typed gave way to what the files hold.
    void forgetTyped();

private:
    using Steps = std::vector<std::shared_ptr<UndoStep>>;
    using Way = std::function<ChangeResult()> UndoStep::*;

    void undo();
    void redo();
    void go(Steps &from, Steps &to, Way way, const QString &done);
    void refresh();

    Program &m_program;
    Commands &m_commands;
    ActivityBar &m_activity;
    std::function<bool()> m_mayReplace;
    Steps m_done;
    Steps m_undone;
    QAction *m_undo = nullptr;
    QAction *m_redo = nullptr;
    bool m_isAtWork = false;
};
