// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/access/attempts.h"

Attempts::Attempts(std::chrono::milliseconds step, QObject *parent)
    : QObject(parent)
{
    m_timer.setInterval(step);
    connect(&m_timer, &QTimer::timeout, this, &Attempts::countDown);
}

void Attempts::addWrong()
{
    ++m_wrong;
    if (isSpent()) {
        emit spent();
        return;
    }
    m_stepsLeft = m_wrong;
    m_timer.start();
    emit waiting(m_stepsLeft);
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
