// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/setlist.h"
#include "backup/window/backupdesk.h"
#include "shell/controls/rowsmodel.h"
#include "shell/controls/titledview.h"

#include <optional>

class QLabel;
class QTableView;
class ThreadedStep;

/// The side "Restore": the backups on the chosen drive, the newest first.
class RestoreView final : public TitledView
{
    Q_OBJECT
public:
    explicit RestoreView(const BackupDesk &desk, QWidget *parent = nullptr);
    ~RestoreView() override;

    /// Ticks one function alone in what follows; none: all.
    void choose(const QString &key) { m_function = key; }
    QString function() const { return m_function; }
    /// The chosen set; none without one.
    std::optional<BackupSet> chosen() const;
    /// Looks again at the sets of the chosen drive.
    void look();
    /// Why nothing can be done with a set; empty where one is chosen.
    QString whyNoSet() const;

protected:
    void refresh() override;

private:
    void take(std::vector<BackupSet> sets);

    BackupDesk m_desk;
    QLabel *m_words;
    RowsModel<BackupSet> *m_model;
    QTableView *m_view;
    ThreadedStep *m_step;
    QString m_function;
    QString m_folder; ///< whose sets are shown
    bool m_isAgain = false;
};
