// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/access/attempts.h"
#include "shell/access/passwordcheck.h"

#include <QWidget>

#include <chrono>

class Clock;
class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class RecoveryNote;
class TitleLine;

/// The part of password control that sets, changes and removes the password. What is done here is in force at
/// once.
class PasswordPane final : public QWidget
{
    Q_OBJECT
public:
    /// With a reason why the file is for reading only, nothing can be set.
    PasswordPane(PasswordCheck &file, AttemptMemory &memory, const Clock &clock,
                 std::chrono::milliseconds step, QString whyReadOnly, QWidget *parent);

    /// Shows what the file says now.
    void refresh();

    /// Takes the code that is shown away, if it is none any more.
    void forgetOldCode();

    /// The button that comes first, for the focus.
    QWidget *firstControl() const;

    /// What the right answer given last said of the wrong ones before it.
    const WrongAnswers &wrongBefore() const { return m_wrongBefore; }

signals:
    /// The form opened, or closed again.
    void formShown(bool isShown);
    void passwordSet();
    void passwordChanged();
    void passwordRemoved();
    void codeMade();
    /// The new recovery code is to be printed.
    void printRequested(const QString &code);
    /// The file turned out to be damaged.
    void damageFound();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    enum class Task { None, Set, Change, Remove, NewCode };

    QWidget *makeForm();
    void connectAll();
    void begin(Task task);
    void close();
    void closeNote();
    void enter(const QLineEdit *box);
    void carryOut();
    bool apply(Task task, const QString &code);
    void tell(Task task);
    bool needsCode(Task task) const;
    bool takesNewPassword() const { return m_task == Task::Set || m_task == Task::Change; }
    bool isAcceptable();
    bool refuse(QLineEdit *box, const QString &reason);
    void showWait(int seconds);
    void endWait();
    void endAsking();

    PasswordCheck &m_file;
    const Clock &m_clock;
    Attempts m_attempts;
    WrongAnswers m_wrongBefore;
    QString m_whyReadOnly;
    Task m_task = Task::None;
    bool m_isWrong = false; ///< what was last typed here

    TitleLine *m_title;
    QLabel *m_summary;
    QPushButton *m_set;
    QPushButton *m_change;
    QPushButton *m_remove;
    QPushButton *m_newCode;
    RecoveryNote *m_note;

    QLabel *m_heading;
    QLineEdit *m_old;
    QLineEdit *m_new;
    QLineEdit *m_repeat;
    QCheckBox *m_showPasswords;
    QLabel *m_refusal;
    QPushButton *m_ok;
    QPushButton *m_cancel;
    QWidget *m_oldPart;
    QWidget *m_newPart;
    QWidget *m_form;
};
