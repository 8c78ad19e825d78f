// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/diskprogress.h"
#include "backup/window/diskwork.h"

#include <QElapsedTimer>

/// Tells how far the reading of a file is, ten times a second at most; on the thread of the work.
class ReadMeter
{
public:
    ReadMeter(qint64 bytes, DiskWork &work)
        : m_work(&work)
    {
        m_progress.allBytes = bytes;
        m_begun.start();
        m_told.start();
    }

    void tell(qint64 bytes)
    {
        constexpr qint64 milliseconds = 100;
        if (!m_told.hasExpired(milliseconds))
            return;
        m_told.start();
        m_progress.bytes = bytes;
        m_progress.seconds = m_begun.elapsed() / 1000;
        m_work->tell(m_progress);
    }

private:
    DiskWork *m_work;
    DiskProgress m_progress;
    QElapsedTimer m_begun;
    QElapsedTimer m_told;
};
