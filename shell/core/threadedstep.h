// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <deque>
#include <functional>
#include <memory>

class QThread;

/// One slow step at a time on a thread of its own, with the window painted meanwhile.
class ThreadedStep final : public QObject
{
    Q_OBJECT
public:
    explicit ThreadedStep(QObject *parent);
    /// Waits for the step that runs; nothing follows it.
    ~ThreadedStep() override;

    /// Runs `work` there, and `then` here when it has ended; behind the step that runs already, if one does.
    void start(const std::function<void()> &work, const std::function<void()> &then);
    bool isRunning() const { return m_thread != nullptr; }

private:
    struct Step {
        std::function<void()> work;
        std::function<void()> then;
    };

    std::unique_ptr<QThread> m_thread;
    std::deque<Step> m_waiting;
};
