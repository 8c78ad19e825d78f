// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "journal/window/journaldesk.h"
#include "shell/access/attempts.h"
#include "storage/sealing/keyslots.h"

#include <QObject>
#include <QPointer>

#include <chrono>

class JournalOpening;
class JournalSeal;
class ThreadedStep;
class UnlockView;

/// What stands in the journal's window while it is sealed and locked: the question for its password or its
/// recovery code, or why nobody can open it. Trying an answer takes long and has a thread of its own.
class JournalDoor final : public QObject
{
    Q_OBJECT
public:
    /// `step` is what each further wrong answer waits longer.
    JournalDoor(const JournalDesk &desk, std::chrono::milliseconds step, QObject *parent);
    ~JournalDoor() override;

    /// Shows what the state of the seal asks for. False where the journal can be shown.
    bool show();
    /// The journal shall be locked while an answer is still tried: what that opens is locked at once. A wrong
    /// one counts all the same.
    void lockBehind();

signals:
    /// The journal can be shown now, by its password or with its recovery code; `line` is what is to be said.
    void opened(const QString &line, bool isByCode);
    /// What nobody could open was set aside.
    void cleared();
    void lockDue();
    void said(const QString &line);

private:
    JournalSeal &seal() const;
    void ask();
    void makeUnlockView();
    void showTrouble(bool isLater);
    void setYearsAside();
    void answer(const QString &text);
    void judge(JournalOpening opening, bool isByCode);

    JournalDesk m_desk;
    ThreadedStep *m_step;
    bool m_isLockDue = false;
    AttemptMemory m_memory;
    Attempts m_attempts;
    UnlockView *m_unlock = nullptr; ///< made when it is first needed
    QPointer<QWidget> m_trouble;
};
