// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/access/passwordmemory.h"
#include "shell/core/programstate.h"

#include <QSet>
#include <QString>

#include <functional>

class PasswordCheck;
class QWidget;
struct Program;

/// Asks for the password in front of a guarded function. The prompt itself is handed in, so that the rule can
/// be tested without a window.
class AccessGate
{
public:
    /// Shows the password prompt and leaves its verdict in `ProgramState::passwordGateResult`.
    using Prompt = std::function<void(Program &, QWidget *parent)>;

    explicit AccessGate(Prompt prompt);

    /// Whether the function behind `area` may open: asks when its flag is set. `Area::None` always opens.
    bool mayOpen(Program &program, int area, QWidget *parent);

    /// Whether the function behind `area` may be seen again: always asks.
    bool mayUncover(Program &program, int area, QWidget *parent);

    /// Whether the password was given for `area` in this run, and nobody has locked the desk since.
    bool wasPassed(int area) const { return m_passed.contains(area); }
    /// The desk was locked: what is guarded asks again.
    void forgetPassed() { m_passed.clear(); }

    /// Whether password control itself may open: asks when a password is stored.
    bool mayOpenPasswordControl(Program &program, QWidget *parent);

    /// The password was given; `before` are the wrong answers since it was given last.
    void noteRightAnswer(const WrongAnswers &before) { m_before = before; }
    /// What is to be said in the window that opens now: "3 wrong answers since Friday, 20 November, 21:04".
    /// Empty when there were none, and once it was said.
    QString takeNotice(const Program &program);

    /// What all that ask for the password share.
    PasswordMemory &memory() { return m_memory; }

private:
    PasswordCheck check(Program &program);
    bool takeVerdict(Program &program) const;
    bool notePassed(int area, bool isPassed);

    Prompt m_prompt;
    PasswordMemory m_memory;
    WrongAnswers m_before;
    QSet<int> m_passed;
};
