// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/taskpanel.h"

class NewPasswordForm;

/// Asks for the password that a backup is sealed with.
class BackupSealPanel final : public TaskPanel
{
    Q_OBJECT
public:
    explicit BackupSealPanel(QWidget *parent = nullptr);

    void start();
    /// The key is being made: nothing can be typed meanwhile.
    void setWorking(bool isWorking);
    void refuse(const QString &line);

public slots:
    void leave() override;

signals:
    /// The backup is to be sealed with it.
    void chosen(const QString &password);

private:
    void choose();

    NewPasswordForm *m_form;
    QPushButton *m_go;
    bool m_isWorking = false;
};
