// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPlainTextEdit>

class QLabel;

/// The box for the comments, of several lines: takes 1000 characters at most and none that the files cannot
/// hold, and counts them in a label that stands elsewhere.
class CommentsBox final : public QPlainTextEdit
{
    Q_OBJECT
public:
    CommentsBox(const QString &name, QWidget *parent);

    /// "Length (Max. = 1000) : 12".
    QLabel *length() const { return m_length; }
    /// Shows `text`, unless it does so already.
    void show(const QString &text);
    /// Whether something was typed since a text was shown.
    bool isTouched() const { return toPlainText() != m_shown; }
    void setLocked(bool locked);

    QSize sizeHint() const override { return minimumSize(); }

signals:
    void edited();
    /// The focus went elsewhere.
    void left();
    /// Something typed or pasted was not taken; a sentence for the status bar.
    void refused(const QString &reason);

protected:
    void insertFromMimeData(const QMimeData *source) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void check();
    void count();

    QLabel *m_length;
    QString m_shown;
    QString m_taken; ///< the text as it was before what is being checked
    bool m_isChecking = false;
};
