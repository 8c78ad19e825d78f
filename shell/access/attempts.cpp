// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/access/attempts.h"

#include <algorithm>

namespace {

int stepsOf(int wrongAnswers)
{
    return std::min(wrongAnswers, Attempts::longestWait);
}

} // namespace

Attempts::Attempts(AttemptMemory &memory, std::chrono::milliseconds step, QObject *parent)
    : QObject(parent)
    , m_memory(memory)
{
    m_timer.setInterval(step);
    connect(&m_timer, &QTimer::timeout, this, &Attempts::countDown);
}

void Attempts::resume(const WrongAnswers &wrong, const QDateTime &now)
{
    if (!m_memory.isBegun && wrong.count > 0) {
        // A clock that was set back lengthens no wait.
        const qint64 steps =
            std::clamp<qint64>(stepsOf(wrong.count) - wrong.last.secsTo(now), 0, stepsOf(wrong.count));
        m_memory.wait = QDeadlineTimer(m_timer.intervalAsDuration() * steps);
    }
    m_memory.isBegun = true;
    goOn();
}

void Attempts::goOn()
{
    if (m_memory.wait.hasExpired())
        return;
    const auto step = m_timer.interval();
    m_stepsLeft = int((m_memory.wait.remainingTime() + step - 1) / step);
    m_timer.start();
    emit waiting(m_stepsLeft);
}

void Attempts::addWrong(const WrongAnswers &wrong)
{
    ++m_wrong;
    m_memory.isBegun = true;
    // Where nothing can be written, they are counted here alone.
    m_memory.wait = QDeadlineTimer(m_timer.intervalAsDuration() * stepsOf(std::max(wrong.count, m_wrong)));
    if (isSpent())
        emit spent();
    else
        goOn();
}

void Attempts::reset()
{
    m_wrong = 0;
    m_memory.wait = QDeadlineTimer(0);
}

void Attempts::countDown()
{
    if (--m_stepsLeft > 0) {
        emit waiting(m_stepsLeft);
        return;
    }
    m_timer.stop();
    emit waited();
}
