// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/threadedstep.h"

#include <QPointer>
#include <QThread>

ThreadedStep::ThreadedStep(QObject *parent)
    : QObject(parent)
{}

ThreadedStep::~ThreadedStep()
{
    if (m_thread)
        m_thread->wait();
}

void ThreadedStep::start(const std::function<void()> &work, const std::function<void()> &then)
{
    if (m_thread) {
        m_waiting.push_back({work, then});
        return;
    }
    m_thread.reset(QThread::create(work));
    connect(m_thread.get(), &QThread::finished, this, [this, then] {
        m_thread->wait();
        m_thread.reset();
        const QPointer<ThreadedStep> self(this);
        then();
        if (!self || m_thread || m_waiting.empty())
            return;
        const Step next = m_waiting.front();
        m_waiting.pop_front();
        start(next.work, next.then);
    });
    m_thread->start();
}
