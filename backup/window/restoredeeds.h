// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/restorerun.h"
#include "backup/model/setlist.h"
#include "backup/model/snapshots.h"
#include "backup/window/backupdesk.h"
#include "backup/window/restoredemands.h"
#include "shell/core/message.h"

#include <QObject>

#include <atomic>
#include <functional>
#include <memory>

class QAction;
class QMenu;
class RestorePanel;
class RestoreView;
class RunPanel;
class ThreadedStep;

/// Restores a backup: shows first what would happen, asks for the passwords that guard it, runs, and has the
/// program start anew.
class RestoreDeeds final : public QObject
{
    Q_OBJECT
public:
    RestoreDeeds(const BackupDesk &desk, RestoreView &view, RunPanel &run, QObject *parent);
    ~RestoreDeeds() override;

    /// "Restore...".
    QAction *addStart(QMenu *menu);
    /// Shows what restoring a snapshot would do.
    void startFrom(const Snapshot &snapshot);
    /// A restore runs now.
    bool isRunning() const { return m_run != nullptr; }

signals:
    void said(const QString &line);

private:
    struct Opened;
    class Asker;

    QString whyNot() const;
    void start();
    void lookInto(const BackupSet &set, const QString &password);
    void look(const std::shared_ptr<Opened> &opened, const QString &doing, const std::function<void()> &way);
    void follow(const std::shared_ptr<Opened> &opened);
    void makePlan(const std::shared_ptr<Opened> &opened);
    void showPlan();
    void restoreHere();
    void restoreIntoFolder();
    void run(const RestorePlan::Aim &aim);
    bool mayPrepare(RestoreRun::Order &order, bool isFileChosen) const;
    void finish(const RestoreResult &result, const RestorePlan::Aim &aim);
    void openSide();
    void tell(const Message &message) const;

    BackupDesk m_desk;
    RestoreView &m_view;
    RunPanel &m_panel;
    RestorePanel *m_plan;
    RestoreDemands m_demands;
    ThreadedStep *m_step;
    std::shared_ptr<Opened> m_opened;
    std::unique_ptr<Asker> m_asker;
    std::shared_ptr<RestoreRun> m_run;
    std::atomic<bool> m_isStopped = false;
};
