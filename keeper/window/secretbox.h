// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QLineEdit>
#include <QWidget>

class QHBoxLayout;
class QLabel;
class QPushButton;
class SecretFace;

/// The line of a secret: the same dots whatever its length. What is typed over them takes its place; nothing
/// that stands in it can be copied other than by asking for it.
class SecretLine final : public QLineEdit
{
    Q_OBJECT
public:
    explicit SecretLine(QWidget *parent);

    void setSecret(const QString &secret);
    QString secret() const { return m_secret; }
    /// Lets the characters be changed one by one.
    void setOpened(bool isOpened);
    void setLocked(bool isLocked);
    /// Stands as dots again, unless it is opened.
    void settle()
    {
        if (!m_isOpened)
            hideAgain();
    }
    /// What it is called, to which screen readers add "hidden".
    void setCaption(const QString &caption);

signals:
    void edited();
    void copyWanted();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    void hideAgain();
    void take(const QString &text);

    QString m_secret;
    QString m_caption;
    bool m_isOpened = false;
};

/// A secret of an entry with what belongs to it: shown in large letters while "Show" is held or until it is
/// hidden again, copied, made anew.
class SecretBox final : public QWidget
{
    Q_OBJECT
public:
    /// Its parts are named after it: "box" has boxLine, boxShow, boxCopy and boxFace.
    SecretBox(const QString &name, const QString &caption, QWidget *parent);

    void setSecret(const QString &secret);
    QString secret() const { return m_line->secret(); }
    /// Another one takes its place, as if it had been typed.
    void replace(const QString &secret);
    void setLocked(bool isLocked);
    void setShown(bool isShown);
    bool isShown() const { return m_isShown; }
    SecretLine &line() const { return *m_line; }
    /// What was typed is in the file: dots again, as many as for any other.
    void settle() { m_line->settle(); }
    /// Quiet words below it, until it is given another secret.
    void setWords(const QString &words);
    /// Gives the focus to its last button: the next Tab leads on, and nothing is typed over the secret.
    void focusEnd();
    /// Puts a button behind the others.
    void addButton(QPushButton *button);

signals:
    /// The secret was changed, by typing say.
    void edited();
    void typed();
    void copyWanted();

private:
    void showFace();

    SecretLine *m_line;
    QPushButton *m_show;
    QElapsedTimer m_held; ///< how long "Show" has been
    QPushButton *m_copy;
    SecretFace *m_face;
    QLabel *m_words;
    QHBoxLayout *m_row;
    bool m_isShown = false; ///< until it is hidden by command
};
