// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/drives.h"
#include "backup/model/setlist.h"

#include <QAbstractListModel>
#include <QDate>
#include <QWidget>

#include <functional>
#include <optional>
#include <vector>

class QListView;
class QPushButton;
class QSettings;
class QTimer;
class QVBoxLayout;
class ThreadedStep;

/// A drive that is plugged in, or a folder that was chosen.
struct BackupPlaceRow {
    Drive drive;
    std::optional<BackupSet> last{}; ///< the newest complete set on it
    int disk = 0;                    ///< without one: which disk it is of another set
    bool isKnown = false;            ///< it has been looked at
    bool isOther = false;            ///< a folder that was chosen

    bool operator==(const BackupPlaceRow &) const = default;
};

/// The drives and folders as a list: name, free space, the last set there.
class PlacesModel final : public QAbstractListModel
{
    Q_OBJECT
public:
    explicit PlacesModel(QObject *parent);

    void setRows(std::vector<BackupPlaceRow> rows, QDate today);
    const std::vector<BackupPlaceRow> &rows() const { return m_rows; }
    QModelIndex indexOf(const QString &folder) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    std::vector<BackupPlaceRow> m_rows;
    QDate m_today;
};

/// The pane at the left: the drives that are plugged in, and folders of the user's choice. It looks again
/// every few seconds while it is seen; drives are asked on a thread of its own.
class PlacesPane final : public QWidget
{
    Q_OBJECT
public:
    /// `drives` is asked for those that are plugged in, on another thread. `store` remembers the folders that
    /// were added.
    PlacesPane(std::function<QDate()> today, std::function<QList<Drive>()> drives, QSettings &store,
               QWidget *parent = nullptr);
    ~PlacesPane() override;

    /// The chosen drive or folder; none without one.
    std::optional<BackupPlaceRow> chosen() const;
    /// Adds `folder`, where it is no drive of the list, and chooses it.
    void addFolder(const QString &folder);
    /// Chooses a drive by its name, where nothing is chosen yet.
    void prefer(const QString &name);
    /// Looks again, at the sets too.
    void look();
    /// Puts a button under the list.
    void addButton(QPushButton *button);

signals:
    /// Another one is chosen, or something was found out about it.
    void chosenChanged();

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void take(std::vector<BackupPlaceRow> rows);
    QString suitable() const;

    std::function<QDate()> m_today;
    std::function<QList<Drive>()> m_drives;
    QSettings &m_store;
    PlacesModel *m_model;
    QListView *m_view;
    QVBoxLayout *m_rows;
    ThreadedStep *m_step;
    QTimer *m_timer;
    QStringList m_others; ///< folders that were chosen, also in former windows
    QString m_chosen;     ///< the folder of the chosen row
    QString m_preferred;
    bool m_isAgain = false; ///< to be looked at once more behind what runs
};
