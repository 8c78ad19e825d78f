// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "journal/model/journalentry.h"
#include "shell/controls/taskpanel.h"

class QPlainTextEdit;

/// A day as it was before the last sitting that changed it, to be read and brought back.
class EarlierPanel final : public TaskPanel
{
    Q_OBJECT
public:
    explicit EarlierPanel(QWidget *parent = nullptr);

    /// `whyLocked`: why nothing can be changed.
    void show(const JournalEntry &earlier, const QString &day, const QString &whyLocked);
    void forget();

signals:
    void bringBackWanted();
    void deleteWanted();

private:
    QLabel *m_words;
    QLabel *m_more;
    QPlainTextEdit *m_text;
    QPushButton *m_delete;
    QPushButton *m_bring;
};
