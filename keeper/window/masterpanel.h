// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/newpasswordform.h"
#include "shell/controls/taskpanel.h"

class QLineEdit;

/// "Change Master Password": the old one, unless it was forgotten, and the new one twice.
class MasterPanel final : public TaskPanel
{
    Q_OBJECT
public:
    explicit MasterPanel(NewPasswordForm::Strength strength, QWidget *parent = nullptr);

    /// Whoever came in by the recovery code does not know the old one.
    void start(bool isForgotten);
    void setWorking(bool isWorking);
    void refuse(const QString &line);

public slots:
    void leave() override;

signals:
    /// `old` is empty where it was forgotten.
    void chosen(const QString &old, const QString &master);

private:
    void choose();

    QWidget *m_oldPart;
    QLineEdit *m_old;
    NewPasswordForm *m_form;
    QLabel *m_refusal;
    QPushButton *m_change;
    bool m_isForgotten = false;
    bool m_isWorking = false;
};
