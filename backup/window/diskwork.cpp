// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/window/diskwork.h"

#include <QCoreApplication>
#include <QMutexLocker>
#include <QThread>

#include <utility>

DiskWork::DiskWork(QObject *parent)
    : QObject(parent)
{}

DiskWork::~DiskWork()
{
    if (!m_thread)
        return;
    stop();
    constexpr unsigned long step = 20; // milliseconds
    while (!m_thread->wait(step))
        QCoreApplication::sendPostedEvents(this); // what it wants done here, or it would wait for ever
}

void DiskWork::start(Task task, std::function<void()> then)
{
    Q_ASSERT(!m_thread);
    m_task = std::move(task);
    m_then = std::move(then);
    m_question.reset();
    m_answer.reset();
    m_isStopped = false;
    m_thread.reset(QThread::create(m_task.work));
    connect(m_thread.get(), &QThread::finished, this, &DiskWork::finish);
    m_thread->start();
}

void DiskWork::finish()
{
    m_thread->wait();
    m_thread.reset();
    m_question.reset();
    const std::function<void()> then = std::exchange(m_then, {});
    then();
}

void DiskWork::stop()
{
    if (!m_thread)
        return;
    m_task.stop();
    {
        const QMutexLocker lock(&m_mutex);
        m_isStopped = true;
    }
    answer({DiskAnswer::Action::Stop, {}});
}

void DiskWork::answer(const DiskAnswer &answer)
{
    {
        const QMutexLocker lock(&m_mutex);
        m_answer = answer;
        m_isAnswered.wakeAll();
    }
    if (std::exchange(m_question, std::nullopt))
        emit answered();
}

DiskAnswer DiskWork::ask(const DiskQuestion &question)
{
    QMutexLocker lock(&m_mutex);
    if (m_isStopped)
        return {};
    m_answer.reset();
    QMetaObject::invokeMethod(
        this,
        [this, question] {
            m_question = question;
            emit asked();
        },
        Qt::QueuedConnection);
    while (!m_answer)
        m_isAnswered.wait(&m_mutex);
    return *std::exchange(m_answer, std::nullopt);
}

void DiskWork::tell(const DiskProgress &progress)
{
    QMetaObject::invokeMethod(
        this, [this, progress] { emit told(progress); }, Qt::QueuedConnection);
}

void DiskWork::doHere(const std::function<void()> &what)
{
    QMetaObject::invokeMethod(this, what, Qt::BlockingQueuedConnection);
}
