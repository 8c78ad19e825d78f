// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "keeper/model/keeperentry.h"

#include <QWidget>

#include <vector>

class QCheckBox;
class QLineEdit;
class QPushButton;
class QVBoxLayout;
class SecretBox;

/// The fields of an entry that the user has named: each has a name and a text, which may be a secret.
class OwnFields final : public QWidget
{
    Q_OBJECT
public:
    explicit OwnFields(QWidget *parent);

    void load(const KeeperEntry &entry);
    /// Puts them behind the other fields of `entry`. Rows with neither name nor text are no fields.
    void store(KeeperEntry &entry) const;
    void setLocked(bool isLocked);
    QList<SecretBox *> secrets() const;

signals:
    void edited();
    void rowAdded();
    void copyWanted(const QString &caption, const QString &text);

private:
    struct Row {
        QWidget *whole;
        QLineEdit *name;
        QLineEdit *plain;
        SecretBox *secret;
        QCheckBox *isSecret;
        QPushButton *remove;
    };

    void addRow(const KeeperText &field);
    void removeRow(QWidget *whole);
    void turn(const Row &row) const;
    static QString textOf(const Row &row);

    std::vector<Row> m_rows;
    QVBoxLayout *m_layout;
    QPushButton *m_add;
    bool m_isLocked = false;
    int m_made = 0; ///< rows so far: each has names of its own
};
