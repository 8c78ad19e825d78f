// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPlainTextEdit>

/// The note of an item, opened under its row. Esc and leaving keep what was typed.
class NoteBox final : public QPlainTextEdit
{
    Q_OBJECT
public:
    explicit NoteBox(QWidget *parent);

    /// Shows the note of an item; what is being typed there stays.
    void show(int item, const QString &note);
    /// What was typed is kept.
    void finish();

signals:
    void typed(int item, const QString &note);
    /// The note is to be closed.
    void left();
    void said(const QString &line);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void limit();

    int m_item = 0;
    QString m_before;
};
