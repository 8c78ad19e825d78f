// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/slicedwork.h"

#include <QElapsedTimer>

#include <utility>

namespace {

constexpr int sliceMilliseconds = 12;

} // namespace

SlicedWork::SlicedWork(QObject *parent)
    : QObject(parent)
{
    connect(&m_timer, &QTimer::timeout, this, &SlicedWork::work);
}

void SlicedWork::start(Step step)
{
    m_step = std::move(step);
    m_isStopped = false;
    m_isFirst = true;
    m_timer.start(0);
}

void SlicedWork::stop()
{
    m_isStopped = isRunning();
}

void SlicedWork::work()
{
    QElapsedTimer slice;
    slice.start();
    // One step first, so that progress shows at once.
    do {
        if (!m_isStopped && !m_step())
            return end(false);
    } while (!m_isStopped && !m_isFirst && !slice.hasExpired(sliceMilliseconds));
    m_isFirst = false;
    emit progressed();
    if (m_isStopped)
        end(true);
}

void SlicedWork::end(bool wasStopped)
{
    m_timer.stop();
    m_step = {};
    emit finished(wasStopped);
}
