// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/drives.h"
#include "backup/model/setlist.h"
#include "backup/window/backupdesk.h"
#include "shell/frame/functionwindow.h"

#include <functional>

class BackupDeeds;
class BackupView;
class BringBackView;
class CopyDeeds;
class DiskWork;
class PlacesPane;
class RestoreDeeds;
class RestoreView;
class RunPanel;
class SnapshotsPanel;
class SetDeeds;
class WorkViews;

/// Backup and restore: the drives at the left; what goes onto the chosen one, or comes back from it.
class Backup1 final : public FunctionWindow
{
    Q_OBJECT
public:
    /// `drives` tells which are plugged in.
    explicit Backup1(Program &program, std::function<QList<Drive>()> drives = &Drives::now,
                     QWidget *parent = nullptr);
    ~Backup1() override;

    /// Shows the side of `place` with its function chosen: see `BackupPlace`.
    void showPlace(const Place &place);

    /// What runs now: "Backing up, disk 2 of 3, 61 %"; empty while nothing does.
    QString runningLine() const;

protected:
    void filesChanged() override;

private:
    BackupDesk desk();
    void makeCommands();
    void addSides(QMenu *menu);
    void makeFoot();
    void open(BackupPlace::Side side);
    void open(QWidget *view);
    void look();
    void chooseFolder();
    std::optional<BackupSet> chosenSet() const;
    bool mayStop();

    DiskWork *m_work;
    PlacesPane *m_places;
    WorkViews *m_views;
    BackupView *m_backup;
    RestoreView *m_restore;
    BringBackView *m_bringBack;
    RunPanel *m_run;
    SnapshotsPanel *m_snapshots;
    BackupDeeds *m_deeds;
    RestoreDeeds *m_restoring;
    SetDeeds *m_sets;
    CopyDeeds *m_opening;
    struct {
        QAction *start, *restore, *folder, *test, *remove;
    } m_commands{};
};
