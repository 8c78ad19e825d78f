// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/walker.h"

#include <QPointer>
#include <QThread>

#include <utility>

Walker::Walker(QObject *parent)
    : QObject(parent)
    , m_isStopped(std::make_shared<Stop>(false))
{}

Walker::~Walker()
{
    *m_isStopped = true;
    if (m_thread)
        m_thread->wait();
}

void Walker::start(Work work, std::function<void(bool wasStopped)> then)
{
    if (m_thread) {
        *m_isStopped = true;
        m_next = [this, work = std::move(work), then = std::move(then)] { start(work, then); };
        return;
    }
    m_isStopped = std::make_shared<Stop>(false);
    m_thread.reset(QThread::create([work = std::move(work), isStopped = m_isStopped] { work(*isStopped); }));
    connect(m_thread.get(), &QThread::finished, this, [this, then = std::move(then)] { end(then); });
    m_thread->start(QThread::LowPriority);
}

void Walker::stop()
{
    *m_isStopped = true;
}

void Walker::tell(std::function<void()> report)
{
    QMetaObject::invokeMethod(this, std::move(report), Qt::QueuedConnection);
}

void Walker::end(const std::function<void(bool)> &then)
{
    m_thread->wait();
    // Not at once: this is called by its signal, with what it holds.
    m_thread.release()->deleteLater();
    const QPointer<Walker> self(this);
    const bool wasStopped = *m_isStopped;
    const std::function<void()> next = std::exchange(m_next, {});
    then(wasStopped);
    if (self && !m_thread && next)
        next();
}
