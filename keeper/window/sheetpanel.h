// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/taskpanel.h"

class QCheckBox;
class QLineEdit;
class QPlainTextEdit;

/// "Emergency Sheet": what a paper for the safe says, for oneself and for those who are left behind.
class SheetPanel final : public TaskPanel
{
    Q_OBJECT
public:
    /// What is typed here is on the paper alone.
    struct Words {
        QString where;
        QString call;
        QString code; ///< empty: a line to write it on
        bool isWithEntries = true;
    };

    explicit SheetPanel(QWidget *parent = nullptr);

    /// `code` is the recovery code where it was just made.
    void start(int chosen, const QString &code);
    Words words() const;
    void forget();

signals:
    void accepted();
    void said(const QString &line);

private:
    void accept();

    QCheckBox *m_withEntries;
    QPlainTextEdit *m_where;
    QPlainTextEdit *m_call;
    QLineEdit *m_code;
};
