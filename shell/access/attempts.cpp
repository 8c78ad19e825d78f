// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/access/attempts.h"

#include <algorithm>

Attempts::Attempts(PasswordMemory &memory, std::chrono::milliseconds step, QObject *parent)
    : QObject(parent)
    , m_memory(memory)
{
    m_timer.setInterval(step);
    connect(&m_timer, &QTimer::timeout, this, &Attempts::countDown);
}

void Attempts::resume()
{
    if (m_memory.wait.hasExpired())
        return;
    const auto step = m_timer.interval();
    m_stepsLeft = int((m_memory.wait.remainingTime() + step - 1) / step);
    m_timer.start();
    emit waiting(m_stepsLeft);
}

void Attempts::addWrong()
{
    ++m_wrong;
    ++m_memory.wrongAnswers;
    m_memory.wait =
        QDeadlineTimer(m_timer.intervalAsDuration() * std::min(m_memory.wrongAnswers, longestWait));
    if (isSpent())
        emit spent();
    else
        resume();
}

void Attempts::reset()
{
    m_wrong = 0;
    m_memory.wrongAnswers = 0;
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
