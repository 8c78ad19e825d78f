// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "keeper/window/keeperdesk.h"
#include "shell/access/attempts.h"
#include "storage/sealing/keyslots.h"

#include <QObject>

#include <chrono>
#include <memory>

class CodePanel;
class KeeperOpening;
class MasterPanel;
class SetUpView;
class ThreadedStep;
class UnlockView;
class QMenu;

/// The way into the keeper: begins one, opens it, gives it another master password or recovery code. What
/// takes long runs on a thread of its own.
class KeeperDoor final : public QObject
{
    Q_OBJECT
public:
    /// `step` is what each further wrong answer waits longer.
    KeeperDoor(const KeeperDesk &desk, std::chrono::milliseconds step, QObject *parent);
    ~KeeperDoor() override;

    /// "Change Master Password" and "New Recovery Code".
    void addCommands(QMenu *menu);
    /// Shows what the state of the files asks for, unless the keeper is open.
    void show();
    /// A code that nobody has said yet to have kept is shown again.
    void showCodeAgain();
    /// The keeper is locked: no code is left in the window.
    void forget();
    /// The keeper shall be locked while an answer is still tried: what that opens is locked at once. A wrong
    /// one counts all the same.
    void lockBehind();

signals:
    /// The keeper is open now; `line` is what is to be said.
    void opened(const QString &line);
    void lockDue();
    void codePrintWanted(const QString &code);
    void said(const QString &line);

private:
    using Slot = KeySlots::Slot;

    void showTrouble();
    void setFilesAside();
    void answer(const QString &text);
    void judge(KeeperOpening opening, Slot slot);
    void begin(const QString &master);
    void openMasterPanel(bool isForgotten);
    void changeMaster(const QString &old, const QString &master);
    void makeCode();
    void showCode(const QString &code);
    void noteCode(const QString &code);
    void work(const std::function<void()> &slow, const std::function<void()> &then);
    QString whyNotOpen() const;

    KeeperDesk m_desk;
    ThreadedStep *m_step;
    bool m_isLockDue = false;
    AttemptMemory m_memory;
    Attempts m_attempts;
    UnlockView *m_unlock;
    SetUpView *m_setUp;
    CodePanel *m_code = nullptr;
    MasterPanel *m_master = nullptr;
    QWidget *m_trouble = nullptr;
};
