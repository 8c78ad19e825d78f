// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/setlist.h"
#include "backup/window/backupdesk.h"

#include <QObject>

#include <memory>

class CopyOpening;
class QWidget;
class RunPanel;
struct ComparedCopy;

/// Opens a backup to be compared that is sealed or lies on several disks: asks for its password and for the
/// disks in turn, and shows how far it is.
class CopyDeeds final : public QObject
{
    Q_OBJECT
public:
    /// `view` is shown again when the panel of the run goes.
    CopyDeeds(const BackupDesk &desk, RunPanel &run, QWidget &view, QObject *parent);
    ~CopyDeeds() override;

    void open(BackupSet set);

signals:
    void opened(const BackupSet &set, const std::shared_ptr<ComparedCopy> &copy);
    void said(const QString &line);

private:
    void finish(const BackupSet &set, const std::shared_ptr<ComparedCopy> &copy, bool isStopped);

    BackupDesk m_desk;
    RunPanel &m_panel;
    QWidget &m_view;
};
