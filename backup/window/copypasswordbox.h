// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/access/attempts.h"
#include "shell/access/passwordcheck.h"

#include <QDialog>

#include <functional>
#include <optional>

class QLabel;
class QLineEdit;
class QPushButton;
class ThreadedStep;
struct BackupSet;
struct Program;

/// Asks for a password that belongs to a backup, and not to what is here: accepted with the right one alone.
/// Where the check is quick, a wrong one waits, each longer than the one before, and the third is the last.
class CopyPasswordBox final : public QDialog
{
    Q_OBJECT
public:
    using Check = std::function<bool(const QString &password)>;
    enum class Pace {
        Braked, ///< wrong answers wait, and are counted
        Slow    ///< the check is brake enough: it takes a second, on a thread of its own
    };

    CopyPasswordBox(Program &program, const QString &heading, const QString &words, Check check,
                    QWidget *parent, Pace pace = Pace::Braked);

    /// Asks for the password of a set that is sealed: nothing where it is not given, an empty one of a set
    /// that lies open.
    static std::optional<QString> ofSet(Program &program, const BackupSet &set, QWidget *parent);

    QString password() const;
    void accept() override;

private:
    void layOut(const QString &heading, const QString &words);
    void checkSlowly();
    void showChecked(bool isRight);
    void setWaiting(const QString &why);
    void showWait(int seconds);
    void endWait();

    Program &m_program;
    Check m_check;
    ThreadedStep *m_slow;  ///< null where wrong answers wait
    PasswordCheck m_wrong; ///< where wrong answers are counted, whichever prompt they are given to
    Attempts m_attempts;
    QLineEdit *m_password;
    QLabel *m_refusal;
    QPushButton *m_ok;
    QPushButton *m_cancel;
    bool m_isWrong = false;
};
