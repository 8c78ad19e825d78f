// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/restorerun.h"

#include "backup/model/restorework.h"

RestoreRun::RestoreRun(Order order, RestoreSource &source, RestoreAsker &asker, Progress progress)
    : m_work(std::make_unique<RestoreWork>(std::move(order), source, asker, std::move(progress), m_isStopped))
{}

RestoreRun::~RestoreRun() = default;

RestoreResult RestoreRun::run()
{
    return m_work->run();
}
