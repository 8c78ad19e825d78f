// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/diskprogress.h"
#include "backup/model/diskquestions.h"
#include "backup/window/backupdesk.h"
#include "shell/controls/taskpanel.h"

#include <optional>

class QProgressBar;
class QVBoxLayout;

/// How far a backup, a test or a restore is, and what it asks meanwhile: another disk, say.
class RunPanel final : public TaskPanel
{
    Q_OBJECT
public:
    explicit RunPanel(const BackupDesk &desk, QWidget *parent = nullptr);

    /// Shows the run that begins. `doing` is what the card says of it: "Backing up".
    void begin(const QString &title, const QString &doing);
    /// "Backing up, disk 2 of 3, 61 %".
    QString line() const;

public slots:
    /// Asks whether to stop.
    void leave() override;

signals:
    /// The user wants it stopped.
    void stopWanted();

private:
    /// Its lines stand in the rows themselves: one that wraps is as high there as it needs.
    void addQuestion(QVBoxLayout *rows);
    void follow(const DiskProgress &progress);
    void followQuestion();
    void showQuestion(const std::optional<DiskQuestion> &question);
    void tryAgain();
    void chooseFolder();

    BackupDesk m_desk;
    QProgressBar *m_bar;
    QLabel *m_files;
    QLabel *m_left;
    QLabel *m_file;
    QLabel *m_asked;
    QLabel *m_advice;
    QWidget *m_answers;
    QPushButton *m_again;
    QString m_doing;
    DiskProgress m_progress;
    int m_announced = 0; ///< the tenth that was read aloud last
};
