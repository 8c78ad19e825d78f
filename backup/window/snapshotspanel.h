// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/snapshots.h"
#include "backup/window/backupdesk.h"
#include "shell/controls/rowsmodel.h"
#include "shell/controls/taskpanel.h"
#include "shell/core/threadedstep.h"

#include <memory>

class QComboBox;
class QLabel;
class QTableView;
class SnapshotRun;

/// The snapshots that are there, with what they take of the disk: one more can be made, one deleted, and the
/// user says where they are kept and how much space they may take.
class SnapshotsPanel final : public TaskPanel
{
    Q_OBJECT
public:
    explicit SnapshotsPanel(const BackupDesk &desk, QWidget *parent = nullptr);
    /// Stops one that is being made.
    ~SnapshotsPanel() override;

    void open();

signals:
    void said(const QString &words);
    void restoreWanted(const Snapshot &snapshot);

private:
    void look();
    void follow();
    void makeNow();
    void removeChosen();
    void restoreChosen();
    void chooseFolder();
    void setLimit();

    BackupDesk m_desk;
    QLabel *m_words;
    RowsModel<Snapshot> *m_model;
    QTableView *m_view;
    QComboBox *m_limit;
    QPushButton *m_now;
    QPushButton *m_remove;
    QPushButton *m_restore;
    std::shared_ptr<SnapshotRun> m_run;
    ThreadedStep m_step;
};
