// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "keeper/model/keeper.h"
#include "keeper/window/keeperdesk.h"
#include "keeper/window/strengthwords.h"
#include "shell/frame/functionwindow.h"
#include "shell/program/idleclock.h"

#include <QUrl>

#include <chrono>

class ClipboardGuard;
class EntryCommands;
class EntryWork;
class KeeperDoor;
class KeeperExchange;
class KeeperPane;
class KeeperPrint;
class KeeperTools;
class WorkViews;
class Writing;

/// The password keeper: the entries at the left, the chosen one at the right, and in front of both the
/// question for the master password. It locks itself by its own clock.
class Form4 final : public FunctionWindow
{
    Q_OBJECT
public:
    explicit Form4(Program &program, QWidget *parent = nullptr, PasswordCost cost = PasswordCost::moderate(),
                   std::chrono::milliseconds step = std::chrono::seconds(1));
    ~Form4() override;

    bool isModified() const override;
    /// Closes what is open over it, seals what was typed and forgets the keys.
    void lock();

    Keeper &keeper() { return m_keeper; }
    EntryCommands &entryCommands() const { return *m_commands; }

protected:
    [[nodiscard]] bool save() override;
    void drop() override;
    Message leaveQuestion() const override;
    void changeEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    KeeperDesk desk();
    QWidget *makeWorkPanel();
    void makeCommands();
    void addOptions(QMenu *options);
    void makeView(QMenu *view);
    void connectParts();
    void opened(const QString &line);
    void followSettings();
    bool isOpen() const { return m_keeper.state() == Keeper::State::Open; }
    void copyList();
    QString whyLocked() const;

    Keeper m_keeper;
    Writing *m_writing; ///< knows the words of the spelling dictionary
    StrengthWords m_strength;
    ClipboardGuard *m_clipboard;
    IdleLimit m_idle; ///< nobody was there
    WorkViews *m_stack;
    KeeperPane *m_pane;
    KeeperDoor *m_door;
    EntryWork *m_work;
    EntryCommands *m_commands;
    KeeperTools *m_tools;
    KeeperPrint *m_print;
    KeeperExchange *m_exchange;
    bool m_locksMinimised = false;
};
