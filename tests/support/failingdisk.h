// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/disk.h"

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
