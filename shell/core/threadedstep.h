// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

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

    /// Runs `work` there, and `then` here when it has ended. Does nothing while another step runs.
    void start(const std::function<void()> &work, const std::function<void()> &then);
    bool isRunning() const { return m_thread != nullptr; }

private:
    std::unique_ptr<QThread> m_thread;
};
