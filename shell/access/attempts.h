// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/access/passwordmemory.h"

#include <QObject>
#include <QTimer>

#include <chrono>

/// Makes guessing a password slow: each wrong answer waits a step longer than the one before it, whichever
/// prompt it was given to and however often the program was started between, and the third in one prompt ends
/// the asking. Who asks keeps the count.
class Attempts final : public QObject
{
    Q_OBJECT
public:
    static constexpr int allowed = 3;

    /// No answer waits longer, in steps.
    static constexpr int longestWait = 30;

    /// `step` is a second for people; tests take less. `memory` outlives the prompt.
    Attempts(AttemptMemory &memory, std::chrono::milliseconds step, QObject *parent = nullptr);

    /// Goes on with the wait of an earlier prompt; the first time in a run with what the last of `wrong` has
    /// left of its wait.
    void resume(const WrongAnswers &wrong, const QDateTime &now);
    /// A wrong answer, which is counted in `wrong` already.
    void addWrong(const WrongAnswers &wrong);
    /// A right answer: the next wrong one is the first again.
    void reset();
    bool isSpent() const { return m_wrong >= allowed; }
    bool isWaiting() const { return m_timer.isActive(); }

signals:
    /// Once a step while the wait lasts, first with the whole of it.
    void waiting(int stepsLeft);
    void waited();
    void spent();

private:
    void goOn();
    void countDown();

    AttemptMemory &m_memory;
    QTimer m_timer;
    int m_wrong = 0;
    int m_stepsLeft = 0;
};
