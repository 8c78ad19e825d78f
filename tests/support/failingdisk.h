// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/changeset.h"
#include "storage/disk.h"

#include <QTest>

/// What can go wrong on the way to the disk.
enum class DiskFailure {
    OneStep, ///< one step is refused: the disk is full
    TheEnd   ///< nothing more happens from a step on: the program was killed
};

/// While it lives, the disk refuses its `refused`-th step, counted from 1.
class FailingDisk
{
public:
    FailingDisk(DiskFailure failure, int refused)
    {
        Disk::setGate([this, failure, refused] {
            ++m_steps;
            return failure == DiskFailure::TheEnd ? m_steps < refused : m_steps != refused;
        });
    }
    ~FailingDisk() { Disk::setGate({}); }
    Q_DISABLE_COPY_MOVE(FailingDisk)

    /// Steps tried so far.
    int steps() const { return m_steps; }

private:
    int m_steps = 0;
};

/// Fails `change` at each of its steps, in both ways, from what `prepare` puts on the disk. After recovery
/// `state` is as before or, always when the change said so, as it is where nothing fails. What was only
/// refused is taken back at once.
template <typename Prepare, typename Change, typename State>
void failAtEachStep(const DataFolder &folder, Prepare prepare, Change change, State state)
{
    prepare();
    const auto before = state();
    int steps = 0;
    {
        const FailingDisk disk(DiskFailure::OneStep, 0);
        QVERIFY(change());
        steps = disk.steps();
    }
    const auto after = state();
    QVERIFY(after != before && steps > 0);
    for (const DiskFailure failure : {DiskFailure::OneStep, DiskFailure::TheEnd}) {
        for (int refused = 1; refused <= steps; ++refused) {
            prepare();
            bool isDone = false;
            {
                const FailingDisk disk(failure, refused);
                isDone = change();
            }
            const bool isTakenBack = isDone || failure == DiskFailure::TheEnd || state() == before;
            QVERIFY(ChangeSet::recover(folder));
            const auto now = state();
            const QByteArray step = "step " + QByteArray::number(refused);
            QVERIFY2(isTakenBack && (now == after || (!isDone && now == before)), step.constData());
        }
    }
}
