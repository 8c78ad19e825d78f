// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class LinkButton;
class QCheckBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;

/// What stands in the window while the keeper is locked: the question for the master password, or for the
/// recovery code.
class UnlockView final : public QWidget
{
    Q_OBJECT
public:
    explicit UnlockView(QWidget *parent = nullptr);

    /// Empty and ready; asks for the master password.
    void start();
    /// The answer is being tried.
    void setTrying(bool isTrying);
    /// A quiet line below the box; nothing can be typed while `isWaiting`.
    void refuse(const QString &line, bool isWaiting = false);
    bool isForCode() const { return m_isForCode; }

signals:
    void answered(const QString &text);

private:
    QWidget *makeForm();
    void turn(bool isForCode);
    void answer();

    QLabel *m_words;
    QLabel *m_caption;
    QLineEdit *m_box;
    QCheckBox *m_show;
    QLabel *m_refusal;
    QProgressBar *m_trying;
    QPushButton *m_open;
    LinkButton *m_other;
    bool m_isForCode = false;
};
