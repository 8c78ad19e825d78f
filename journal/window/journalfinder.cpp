// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/window/journalfinder.h"

#include "shell/core/slicedwork.h"

JournalFinder::JournalFinder(Journal &journal, QObject *parent)
    : QObject(parent)
    , m_search(journal)
    , m_work(new SlicedWork(this))
{
    connect(m_work, &SlicedWork::progressed, this, &JournalFinder::found);
    connect(m_work, &SlicedWork::finished, this, &JournalFinder::found);
}

bool JournalFinder::isLooking() const
{
    return m_work->isRunning();
}

void JournalFinder::ask(const QString &question, int nearestYear)
{
    m_work->stop();
    m_search.setQuestion(question);
    if (!m_search.isEmpty())
        m_work->start([this, nearestYear] { return m_search.step(nearestYear); });
    emit found();
}

void JournalFinder::forget()
{
    m_work->stop();
    m_search.clear();
}
