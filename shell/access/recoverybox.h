// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/access/attempts.h"
#include "shell/access/passwordcheck.h"

#include <QDialog>

#include <chrono>

class QLabel;
class QLineEdit;
class QPushButton;
class QStackedWidget;
class RecoveryNote;
struct Program;

/// The way back in for whoever has forgotten the password: takes the recovery code, then a new password, and
/// shows the new code that comes with it. Accepted when all of that is done; it opens nothing. A code that
/// was made before and not yet said to be kept is shown at once.
class RecoveryBox final : public QDialog
{
    Q_OBJECT
public:
    /// `step` is what each further wrong answer waits longer.
    RecoveryBox(Program &program, std::chrono::milliseconds step, QWidget *parent);

    /// What the main button of the step does.
    void accept() override;
    /// A new password that was set stays set, and its code is shown again behind the next right answer.
    void reject() override;

private:
    enum Step { AskForCode, AskForPassword, ShowCode };

    QWidget *makeCodeStep();
    QWidget *makePasswordStep();
    QLayout *makeFoot();
    void layOut();
    void takeCode();
    void takePassword();
    void showCode();
    void showWait(int seconds);
    void endWait();
    void refuse(QLineEdit *box, const QString &reason);
    void print();

    Program &m_program;
    PasswordCheck m_file;
    Attempts m_attempts;
    QStackedWidget *m_steps;
    QLineEdit *m_code;
    QLineEdit *m_new;
    QLineEdit *m_repeat;
    RecoveryNote *m_note;
    QLabel *m_refusal;
    QPushButton *m_next;
    QPushButton *m_cancel;
    bool m_isWrong = false; ///< the code that was typed last
};
