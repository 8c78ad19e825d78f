// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/access/attempts.h"
#include "shell/access/passwordcheck.h"

#include <QDialog>

#include <functional>

class QLabel;
class QLineEdit;
class QPushButton;
struct Program;

/// Asks for a password that belongs to a backup, and not to what is here: accepted with the right one alone,
/// rejected after three wrong ones, each of which waits longer than the one before.
class CopyPasswordBox final : public QDialog
{
    Q_OBJECT
public:
    using Check = std::function<bool(const QString &password)>;

    /// Without a `check` it is for the caller to find out whether the password is right.
    CopyPasswordBox(Program &program, const QString &heading, const QString &words, Check check,
                    QWidget *parent);

    QString password() const;
    void accept() override;

private:
    void layOut(const QString &heading, const QString &words);
    void showWait(int seconds);
    void endWait();

    Program &m_program;
    Check m_check;
    PasswordCheck m_wrong; ///< where wrong answers are counted, whichever prompt they are given to
    Attempts m_attempts;
    QLineEdit *m_password;
    QLabel *m_refusal;
    QPushButton *m_ok;
    QPushButton *m_cancel;
    bool m_isWrong = false;
};
