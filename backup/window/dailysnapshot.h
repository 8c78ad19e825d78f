// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/threadedstep.h"

#include <QObject>

#include <memory>

class SnapshotRun;
struct Program;

/// The snapshot of the day: made on a thread of its own, with nothing said
/// about it, where the household has changed since the last one.
class DailySnapshot final : public QObject
{
    Q_OBJECT
public:
    explicit DailySnapshot(const Program &program);
    /// Stops one that is being made.
    ~DailySnapshot() override;

    /// Once, long after what is seen first.
    void begin();
    bool isRunning() const { return m_step.isRunning(); }

private:
    const Program &m_program;
    std::shared_ptr<SnapshotRun> m_run;
    ThreadedStep m_step{nullptr};
};
