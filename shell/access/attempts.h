// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QTimer>

#include <chrono>

/// Makes guessing a password slow: each wrong answer waits a step longer than the one before it, and the
/// third ends the asking.
class Attempts final : public QObject
{
    Q_OBJECT
public:
    static constexpr int allowed = 3;

    /// `step` is a second for people; tests take less.
    explicit Attempts(std::chrono::milliseconds step, QObject *parent = nullptr);

    void addWrong();
    /// A right answer: the next wrong one is the first again.
    void reset() { m_wrong = 0; }
    bool isSpent() const { return m_wrong >= allowed; }
    bool isWaiting() const { return m_timer.isActive(); }

signals:
    /// Once a step while the wait lasts, first with the whole of it.
    void waiting(int stepsLeft);
    void waited();
    void spent();

private:
    void countDown();

    QTimer m_timer;
    int m_wrong = 0;
    int m_stepsLeft = 0;
};
