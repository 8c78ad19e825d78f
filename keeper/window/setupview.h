// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/newpasswordform.h"

class QProgressBar;
class QPushButton;

/// What stands in the window before there is a keeper: what it is, and the master password that it begins
/// with.
class SetUpView final : public QWidget
{
    Q_OBJECT
public:
    explicit SetUpView(NewPasswordForm::Strength strength, QWidget *parent = nullptr);

    void start();
    void setMaking(bool isMaking);

signals:
    void chosen(const QString &master);
    void said(const QString &line);

private:
    void choose();

    NewPasswordForm *m_form;
    QProgressBar *m_making;
    QPushButton *m_make;
};
