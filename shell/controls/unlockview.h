// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class LinkButton;
class QCheckBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;

/// What stands in a window while what it shows is locked: the question for its password, or for the recovery
/// code.
class UnlockView final : public QWidget
{
    Q_OBJECT
public:
    /// What it says of what is locked.
    struct Words {
        QLatin1StringView icon; ///< of the function
        QString title;          ///< "The keeper is locked"
        QString sentence;       ///< "Type the master password to open it."
        QString caption;        ///< "Master password"
        QString usePassword;    ///< "Use the master password"
        QString missing;        ///< "Type the master password first."
        QString trying;         ///< "The keeper is being opened"
    };
    /// What its box and its button are called.
    struct Names {
        QString box;
        QString button;
    };

    UnlockView(Words words, const Names &names, QWidget *parent = nullptr);

    /// Empty and ready; asks for the password.
    void start();
    /// The answer is being tried: nothing that is typed meanwhile is taken.
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
    void hold(const QString &why);

    Words m_said;
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
