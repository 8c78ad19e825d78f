// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

/// Shows a new recovery code, once, with what is to be done with it.
class RecoveryNote final : public QWidget
{
    Q_OBJECT
public:
    explicit RecoveryNote(QWidget *parent);

    /// Shows `code`, with the focus on "Print".
    void show(const QString &code);
    const QString &code() const { return m_code; }
    /// How the printing went.
    void say(const QString &words);
    /// Forgets the code.
    void clear();

signals:
    void printRequested();
    void done();

private:
    QString m_code;
    QLabel *m_shown;
    QLabel *m_words;
    QPushButton *m_print;
};
