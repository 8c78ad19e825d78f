// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/message.h"

#include <QDialog>

class FieldBox;
class QHBoxLayout;
class QLabel;
class QVBoxLayout;

/// What message and input boxes share: a sign, the first line of the text as heading, the rest below it, and
/// the buttons at the right. Between 420 and 560 pixels wide. Ctrl+C copies title and text.
class AskingBox : public QDialog
{
    Q_OBJECT
protected:
    AskingBox(const QString &title, const QString &text, Message::Icon icon, QWidget *parent);

    QVBoxLayout &texts() const { return *m_texts; }
    QHBoxLayout &buttons() const { return *m_buttons; }
    QPushButton *addButton(Answer answer, bool preselected);
    /// Call last: gives the box its size.
    void settle();
    void showEvent(QShowEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    QVBoxLayout *m_texts;
    QHBoxLayout *m_buttons;
    QLabel *m_heading;
    QLabel *m_rest = nullptr;
    QString m_text;
};

/// One message with its answers. Esc answers Cancel, or OK where there is nothing else; in a Yes/No box it
/// does nothing, since No may lose work. The underlined letter of an answer gives it, with Alt or alone.
class MessageBox final : public AskingBox
{
    Q_OBJECT
public:
    explicit MessageBox(const Message &message, QWidget *parent = nullptr);

    Answer answer() const { return m_answer; }

    void reject() override;

protected:
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void take(Answer answer);

    QVector<Answer> m_answers;
    Answer m_answer;
    bool m_isNoSafe; ///< No is preselected: Esc and the title bar's button answer it
};

/// A one-line question. The line takes what the files can hold and nothing else.
class InputBox final : public AskingBox
{
    Q_OBJECT
public:
    InputBox(const QString &title, const QString &prompt, const QString &preset, QWidget *parent = nullptr);

    QString text() const;

private:
    FieldBox *m_edit;
    QLabel *m_refusal;
};
