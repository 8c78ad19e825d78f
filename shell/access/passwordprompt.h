// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/access/attempts.h"
#include "shell/access/passwordcheck.h"

#include <QDialog>

#include <chrono>

class QCheckBox;
class QLabel;
class QLayout;
class QLineEdit;
class QPushButton;
struct Program;

/// The password prompt: names the function that is to be opened and is accepted with the right password
/// alone. After three wrong answers it is rejected.
class Form32 final : public QDialog
{
    Q_OBJECT
public:
    /// Reads from the program-wide state what it guards; `step` is what each further wrong answer waits
    /// longer.
    explicit Form32(Program &program, QWidget *parent = nullptr,
                    std::chrono::milliseconds step = std::chrono::seconds(1));

    /// Compares what was typed with the password.
    void accept() override;

private:
    void offerRecovery();
    void recover();
    bool showNewCode();
    void buildForm(const QString &functionName);
    QLayout *makeQuestion(const QString &functionName);
    QLayout *makeFoot();
    void showWait(int seconds);
    void endWait();

    Program &m_program;
    std::chrono::milliseconds m_step;
    PasswordCheck m_file;
    Attempts m_attempts;
    QLineEdit *m_password;
    QCheckBox *m_showPassword;
    QLabel *m_refusal;
    QPushButton *m_recover; ///< offered after a wrong answer
    QPushButton *m_ok;
    QPushButton *m_cancel;
    bool m_isWrong = false; ///< what was last typed here
};

/// The gate's prompt: asks for the password and leaves the verdict in `ProgramState::passwordGateResult`. A
/// file that is damaged is told and refuses.
void showPasswordPrompt(Program &program, QWidget *parent);
