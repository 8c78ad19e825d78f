// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/backuppages.h"
#include "backup/window/backupdesk.h"
#include "shell/controls/rowsmodel.h"
#include "shell/controls/taskpanel.h"

class QTableView;

/// What came of a backup: that all of it is copied and read back, function by function.
class BackedUpPanel final : public TaskPanel
{
    Q_OBJECT
public:
    explicit BackedUpPanel(const BackupDesk &desk, QWidget *parent = nullptr);

    void tell(const BackupReport &report, const QList<ReportedCount> &counts);

private:
    BackupDesk m_desk;
    QLabel *m_words;
    RowsModel<ReportedCount> *m_model;
    QTableView *m_view;
    BackupReport m_report;
    QList<ReportedCount> m_counts;
};
