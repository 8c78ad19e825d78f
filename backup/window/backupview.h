// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/backupnews.h"
#include "backup/model/diskplan.h"
#include "backup/window/backupdesk.h"
#include "shell/controls/titledview.h"

#include <optional>

class BackupOutline;
class HoldingsModel;
class QCheckBox;
class QComboBox;
class QLabel;
class QTableView;

/// The side "Back Up": when the last backup was made, what goes along, and where to.
class BackupView final : public TitledView
{
    Q_OBJECT
public:
    explicit BackupView(const BackupDesk &desk, QWidget *parent = nullptr);

    /// Ticks one function alone; none: all.
    void choose(const QString &key);
    QStringList chosen() const;
    /// The household's holdings, as they were looked at last.
    const BackupOutline &outline() const { return *m_outline; }
    /// The size of each disk, where it is not what the drive has.
    std::optional<DiskRoom> room() const;
    /// Whether the backup is to be sealed with a password of its own.
    bool isToBeSealed() const;
    /// What the household knows of its last backup.
    const BackupNews &news() const { return m_news; }

    /// Looks again at what there is.
    void look();
    /// Why no backup can be made now; empty where one can.
    QString whyNot() const;

protected:
    void resizeEvent(QResizeEvent *event) override;
    void refresh() override;

private:
    QWidget *makeOptions();
    void makeTable();
    void replan();
    void showPlan();
    void remind();

    BackupDesk m_desk;
    BackupOutline *m_outline;
    HoldingsModel *m_model;
    QLabel *m_words;
    QTableView *m_view;
    QComboBox *m_sizes;
    QComboBox *m_reminder;
    QCheckBox *m_seal;
    BackupNews m_news;
};
