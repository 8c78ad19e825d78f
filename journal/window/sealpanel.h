// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/newpasswordform.h"
#include "shell/controls/taskpanel.h"

class QLineEdit;

/// Asks for passwords of the journal: a new one to seal it with, the old one to open the seal, or both to
/// change it. What the seal does not protect stands beside them.
class SealPanel final : public TaskPanel
{
    Q_OBJECT
public:
    enum Kind { Seal, OpenSeal, Change, Forgotten };

    explicit SealPanel(NewPasswordForm::Strength strength, QWidget *parent = nullptr);

    /// `unsealed` are the files that a seal leaves as they are.
    void start(Kind kind, const QStringList &unsealed);
    void refuse(const QString &line);
    /// Something slow is under way.
    void setWorking(bool isWorking);
    /// Nothing that was typed is left.
    void forget();

public slots:
    void leave() override;

signals:
    /// What is not asked for is empty.
    void chosen(const QString &old, const QString &password);

private:
    void choose();

    Kind m_kind = Seal;
    QLabel *m_words;
    QWidget *m_oldPart;
    QLineEdit *m_old;
    NewPasswordForm *m_form;
    QLabel *m_facts;
    QLabel *m_refusal;
    QPushButton *m_go;
    QPushButton *m_close;
    bool m_isWorking = false;
};
