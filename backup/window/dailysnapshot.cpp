// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/window/dailysnapshot.h"

#include "backup/model/privatefolder.h"
#include "backup/window/householdsnapshot.h"
#include "shell/program/program.h"
#include "storage/log.h"

DailySnapshot::DailySnapshot(const Program &program)
    : m_program(program)
{}

DailySnapshot::~DailySnapshot()
{
    if (m_run)
        m_run->stop();
}

void DailySnapshot::begin()
{
    m_step.start(&PrivateFolder::removeLeft, [] {}); // what a killed program left lies open there
    if (m_program.folder.isReadOnly())
        return;
    SnapshotJob job = HouseholdSnapshot::job(m_program);
    job.isDaily = true;
    m_run = std::make_shared<SnapshotRun>(job);
    const auto report = std::make_shared<SnapshotReport>();
    m_step.start([run = m_run, report] { *report = run->run(); },
                 [report] {
                     if (report->end == SnapshotReport::End::NotMade)
                         qCWarning(storageLog).noquote() << report->refusal;
                 });
}
