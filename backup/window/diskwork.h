// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/diskprogress.h"
#include "backup/model/diskquestions.h"

#include <QMutex>
#include <QObject>
#include <QWaitCondition>

#include <functional>
#include <memory>
#include <optional>

class QThread;

/// Long work with disks on a thread of its own: a backup, its test, a restore. What it asks comes here, and
/// it waits there until it is answered.
class DiskWork final : public QObject, public DiskAsker
{
    Q_OBJECT
public:
    /// What the thread does: `work` runs there, `stop` may be called from anywhere.
    struct Task {
        std::function<void()> work;
        std::function<void()> stop;
    };

    explicit DiskWork(QObject *parent);
    /// Stops what runs, and waits for it.
    ~DiskWork() override;

    /// Runs the task, and `then` here when it has ended. Nothing else may be running.
    void start(Task task, std::function<void()> then);
    bool isRunning() const { return m_thread != nullptr; }
    /// The task ends soon; a question that waits is answered so.
    void stop();

    /// The question that waits for an answer; none while there is none.
    const std::optional<DiskQuestion> &question() const { return m_question; }
    void answer(const DiskAnswer &answer);

    /// Called on the thread of the task: `told` follows here.
    void tell(const DiskProgress &progress);
    /// Does `what` here while the thread of the task, on which it is called, waits.
    void doHere(const std::function<void()> &what);

    DiskAnswer ask(const DiskQuestion &question) override;

signals:
    void told(const DiskProgress &progress);
    /// `question()` is to be answered.
    void asked();
    void answered();

private:
    void finish();

    std::unique_ptr<QThread> m_thread;
    Task m_task;
    std::function<void()> m_then;
    std::optional<DiskQuestion> m_question; ///< as this thread knows it
    QMutex m_mutex;
    QWaitCondition m_isAnswered;
    std::optional<DiskAnswer> m_answer;
    bool m_isStopped = false;
};
