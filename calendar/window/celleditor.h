// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPlainTextEdit>

/// The lines of a day, typed into where they stand: each paragraph is one of them.
class CellEditor final : public QPlainTextEdit
{
    Q_OBJECT
public:
    explicit CellEditor(QWidget *parent);

    /// Shows these lines over `place`, with the cursor at the end of line `current`; behind the last one it
    /// begins a new one.
    void open(const QRect &place, const QStringList &lines, int current);
    bool isOpen() const { return m_isOpen; }
    /// The day stands elsewhere now.
    void setPlace(const QRect &place);
    /// Takes the lines away, and tells nobody.
    void close();

    /// As they are typed now, with the empty ones.
    QStringList lines() const;
    /// The line that the cursor is in.
    int currentLine() const { return textCursor().blockNumber(); }
    /// Lets the line of the cursor change places with the one above (-1) or below (1).
    void orderLine(int by);
    /// Takes out the line of the cursor.
    void removeLine();

signals:
    void edited();
    /// Esc was pressed, or the focus went elsewhere.
    void left(bool byKey);
    /// A sentence for the status bar.
    void said(const QString &line);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    bool canInsertFromMimeData(const QMimeData *source) const override;
    void insertFromMimeData(const QMimeData *source) override;

private:
    void follow();
    void limit();
    void fit();

    QRect m_place;
    bool m_isOpen = false;
    bool m_isSetting = false;
};
