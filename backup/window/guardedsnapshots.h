// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/window/householdsources.h"
#include "shell/core/threadedstep.h"

#include <QMap>
#include <QObject>

struct Program;

/// Says, when a function is marked or sealed, that older snapshots hold it as it was before, and offers to
/// delete them.
class GuardedSnapshots final : public QObject
{
    Q_OBJECT
public:
    explicit GuardedSnapshots(const Program &program);

    /// Once, before anything is changed.
    void begin();
    bool isRunning() const { return m_step.isRunning(); }

private:
    using Copies = QMap<QString, HouseholdSources::Copy>;

    Copies copiesNow() const;
    void look();
    void offer(const QString &functions, const QStringList &paths);

    const Program &m_program;
    Copies m_copies; ///< as they were when this was asked last
    ThreadedStep m_step{nullptr};
};
