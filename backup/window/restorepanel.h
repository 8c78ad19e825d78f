// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/restoreplan.h"
#include "backup/window/backupdesk.h"
#include "shell/controls/rowsmodel.h"
#include "shell/controls/taskpanel.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QTableView;

/// What restoring a backup would do, file by file, before anything is done: all of it, or one function's
/// part.
class RestorePanel final : public TaskPanel
{
    Q_OBJECT
public:
    explicit RestorePanel(const BackupDesk &desk, QWidget *parent = nullptr);

    /// Shows the plan, for one `function` by its key or, without one, for all. `title` names the backup;
    /// `hasPasswordHere`: the password's file is then chosen separately.
    void show(const QString &title, const QList<RestoreItem> &items, const QString &function,
              bool hasPasswordHere);

    /// What is chosen, but for the file of the password.
    QList<RestoreItem> chosen() const;
    /// Everything is chosen.
    bool isAll() const;
    /// The file of the password is to be restored, too.
    bool isPasswordChosen() const;

signals:
    void restoreWanted();
    void folderWanted();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void fillFunctions(const QString &function);
    void follow();

    BackupDesk m_desk;
    QComboBox *m_functions;
    QCheckBox *m_password;
    QLabel *m_words;
    RowsModel<RestoreItem> *m_model;
    QTableView *m_view;
    QPushButton *m_now;
    QPushButton *m_folder;
    QList<RestoreItem> m_items;
    bool m_mayForce = false; ///< the file of the password may come along unasked
};
