// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include <functional>

class QCheckBox;
class QLabel;
class QLineEdit;

/// Two boxes for a new password, with what is to be said of it.
class NewPasswordForm final : public QWidget
{
    Q_OBJECT
public:
    /// What is known of the strength of a typed password, in words.
    using Strength = std::function<QString(const QString &password)>;

    struct Words {
        QString caption; ///< "Master password"
        QString missing; ///< "Type a master password first"
    };

    /// `name` is that of the first box: "newMaster", and of the others newMasterAgain, newMasterShow,
    /// newMasterStrength.
    NewPasswordForm(const QString &name, Words words, Strength strength, QWidget *parent);

    void start();
    QString password() const;
    /// Why it cannot be taken yet, with the focus in the box that is meant; empty when it can.
    QString refusal();
    /// Shows `line` below the boxes until something is typed.
    void say(const QString &line);
    void setEditable(bool isEditable);

signals:
    void edited();
    /// Enter was pressed in the second box.
    void entered();

private:
    void follow();

    Words m_said;
    Strength m_strength;
    QLineEdit *m_password;
    QLineEdit *m_again;
    QCheckBox *m_show;
    QLabel *m_words;
};
