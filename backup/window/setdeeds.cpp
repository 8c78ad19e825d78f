// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/window/setdeeds.h"

#include "backup/model/backuplines.h"
#include "backup/model/diskrecords.h"
#include "backup/model/messages.h"
#include "backup/window/diskwork.h"
#include "backup/window/runpanel.h"
#include "backup/window/windowlines.h"
#include "shell/core/dates.h"
#include "shell/core/threadedstep.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/workviews.h"

#include <algorithm>
#include <memory>
#include <utility>

using namespace Qt::Literals::StringLiterals;

SetDeeds::SetDeeds(const BackupDesk &desk, Chosen chosen, RunPanel &run, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
    , m_chosen(std::move(chosen))
    , m_panel(run)
    , m_step(new ThreadedStep(this))
{}

SetDeeds::~SetDeeds() = default;

QAction *SetDeeds::addTest(QMenu *menu)
{
    return m_desk.commands.add(
        menu, u"mBTest"_s, u"&Test This Backup"_s, [this] { test(); }, [this] { return whyNoTest(); });
}

QAction *SetDeeds::addDelete(QMenu *menu)
{
    return m_desk.commands.add(
        menu, u"mBDelete"_s, u"&Delete This Backup..."_s, [this] { remove(); },
        [this] { return whyNoDeletion(); });
}

QString SetDeeds::whyNoTest() const
{
    const std::optional<BackupSet> set = m_chosen();
    if (!set)
        return BackupWindowLines::noSetThere();
    return set->isComplete() ? QString() : BackupWindowLines::notComplete(*set);
}

QString SetDeeds::whyNoDeletion() const
{
    return m_chosen() ? QString() : BackupWindowLines::noSetThere();
}

QString SetDeeds::when(const BackupSet &set) const
{
    return Dates::monthDayYear(set.begun().toLocalTime().date(), m_desk.program.state.dateStyle);
}

void SetDeeds::test()
{
    const std::optional<BackupSet> set = m_chosen();
    if (m_desk.work.isRunning() || !set)
        return;
    SetCheck::Job job;
    job.drive = set->drive;
    job.folder = set->folder;
    job.household = m_desk.program.folder;
    job.now = [clock = &m_desk.program.clock] { return clock->now().toUTC(); };
    emit said({});
    m_panel.begin(u"Testing the backup of %1"_s.arg(when(*set)), u"Testing a backup"_s);
    auto check = std::make_shared<SetCheck>(
        std::move(job), m_desk.work, [this](const DiskProgress &progress) { m_desk.work.tell(progress); });
    auto report = std::make_shared<CheckReport>();
    m_from = m_desk.views.currentWidget();
    m_desk.setBusy(true);
    m_desk.views.open(&m_panel);
    m_desk.work.start({[check, report] { *report = check->run(); }, [check] { check->stop(); }},
                      [this, report] { finish(*report); });
}

void SetDeeds::finish(const CheckReport &report)
{
    m_desk.setBusy(false);
    m_desk.views.goHome();
    if (!m_desk.views.isShown(m_from))
        m_desk.views.open(m_from);
    emit changed();
    if (report.end == CheckReport::End::Stopped)
        emit said(u"The test was stopped"_s);
    else if (report.isWhole())
        emit said(u"Tested: all of it is as it was written"_s);
    else
        m_desk.program.dialogs.ask(&m_desk.window, BackupMessages::damaged(report.damaged));
}

void SetDeeds::remove()
{
    const std::optional<BackupSet> set = m_chosen();
    if (!set || m_desk.work.isRunning() || m_step->isRunning())
        return;
    const std::optional<SetRecord> last = DiskRecords::readSet(m_desk.program.folder.path());
    const QList<BackupSet> deletable = SetList::deletable(SetList::on(set->drive), last);
    const auto isIt = [&set](const BackupSet &each) { return each.folder == set->folder; };
    if (!std::ranges::any_of(deletable, isIt)) {
        m_desk.program.dialogs.ask(&m_desk.window, BackupMessages::notDeletable());
        return;
    }
    const Message question = BackupMessages::deleteSet(when(*set), BackupLines::size(set->bytes));
    if (m_desk.program.dialogs.ask(&m_desk.window, question) != Answer::Yes)
        return;
    auto isGone = std::make_shared<bool>(false);
    m_step->start([set = *set, last, isGone] { *isGone = SetList::remove(set, last); },
                  [this, isGone] {
                      emit said(*isGone ? u"The backup is deleted"_s
                                        : u"The disk refused to delete the backup"_s);
                      emit changed();
                  });
}
