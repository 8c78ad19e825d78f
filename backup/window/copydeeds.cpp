// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/window/copydeeds.h"

#include "backup/model/copyopening.h"
#include "backup/model/restoremessages.h"
#include "backup/window/comparedcopy.h"
#include "backup/window/copypasswordbox.h"
#include "backup/window/diskwork.h"
#include "backup/window/runpanel.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/workviews.h"
#include "shell/program/program.h"

#include <QDir>

using namespace Qt::Literals::StringLiterals;

CopyDeeds::CopyDeeds(const BackupDesk &desk, RunPanel &run, QWidget &view, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
    , m_panel(run)
    , m_view(view)
{}

CopyDeeds::~CopyDeeds() = default;

void CopyDeeds::open(BackupSet set)
{
    if (m_desk.work.isRunning())
        return;
    if (!QDir(set.folder).exists()) {
        m_desk.program.dialogs.ask(&m_desk.window,
                                   RestoreMessages::notice(u"The backup is no longer there."_s));
        return;
    }
    const auto password = CopyPasswordBox::ofSet(m_desk.program, set, &m_desk.window);
    if (!password)
        return;
    const auto copy = std::make_shared<ComparedCopy>();
    const auto opening = std::make_shared<CopyOpening>(
        set, *password, m_desk.work, [this](const DiskProgress &progress) { m_desk.work.tell(progress); });
    m_panel.begin(set.isSealed() ? u"Opening the sealed backup"_s : u"Opening the backup"_s,
                  u"Opening a backup"_s);
    m_desk.setBusy(true);
    m_desk.views.open(&m_panel);
    const auto open = [opening, copy] {
        copy->opened = opening->run(copy->folder);
        copy->readAreas();
    };
    m_desk.work.start({open, [opening] { opening->stop(); }},
                      [this, set, copy, opening] { finish(set, copy, opening->isStopped()); });
}

/// Where nothing came, the copy goes, with what lies there of it.
void CopyDeeds::finish(const BackupSet &set, const std::shared_ptr<ComparedCopy> &copy, bool isStopped)
{
    const OpenedCopy &opened = copy->opened;
    m_desk.setBusy(false);
    if (opened.isOpen)
        emit this->opened(set, copy);
    m_desk.views.open(&m_view);
    m_view.setFocus();
    if (opened.isOpen)
        return;
    if (isStopped || opened.refusal.isEmpty())
        emit said(u"Stopped: the backup was not opened"_s);
    else
        m_desk.program.dialogs.ask(&m_desk.window, RestoreMessages::refused(opened.refusal));
}
