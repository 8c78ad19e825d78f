// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/backuppages.h"
#include "backup/model/backuprun.h"
#include "backup/window/backupdesk.h"

#include <QObject>

#include <memory>
#include <optional>

class BackupSealPanel;
class BackupView;
class BackedUpPanel;
class QAction;
class QMenu;
class RunPanel;
class SealedKey;
class ThreadedStep;

/// Makes backups: asks what must be asked first, runs them, and shows what came of them.
class BackupDeeds final : public QObject
{
    Q_OBJECT
public:
    BackupDeeds(const BackupDesk &desk, BackupView &view, RunPanel &run, QObject *parent);
    ~BackupDeeds() override;

    /// "Back Up Now".
    QAction *addStart(QMenu *menu);

    bool isRunning() const { return m_run != nullptr; }

signals:
    void said(const QString &line);
    /// A backup has ended, in whatever way.
    void ended();

private:
    /// What a run leaves behind on its thread.
    struct Outcome {
        BackupReport report;
        QList<BackupCount> here;
    };

    void begin();
    void derive(const QString &password);
    void start(std::shared_ptr<const SealedKey> seal);
    bool mayStart();
    /// Whether every window's unsaved work is settled.
    bool areWindowsReady() const;
    /// The record of the unfinished backup where it is to be gone on with; no value: the user stays.
    std::optional<std::optional<SetRecord>> unfinished() const;
    BackupJob job(const std::optional<SetRecord> &unfinished) const;
    void finish(const Outcome &outcome);
    QList<ReportedCount> reported(const Outcome &outcome) const;

    BackupDesk m_desk;
    BackupView &m_view;
    RunPanel &m_panel;
    BackupSealPanel *m_sealPanel;
    ThreadedStep *m_step;
    BackedUpPanel *m_done;
    std::shared_ptr<BackupRun> m_run;
};
