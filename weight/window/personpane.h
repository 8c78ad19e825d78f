// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/guardedchoice.h"

#include <QWidget>

class QLabel;
class QListView;
class QPushButton;
class QStringListModel;
class QVBoxLayout;

/// "Select Individual:", the names of the persons beside the one whose file is open.
class PersonPane final : public QWidget
{
    Q_OBJECT
public:
    explicit PersonPane(GuardedChoice::Guard guard, QWidget *parent = nullptr);

    QStringList names() const;
    /// None of them is shown until `show` says which.
    void setNames(const QStringList &names);
    /// Marks the person as the open one; an empty name: none. Asks nothing.
    void show(const QString &name);
    /// Puts a button under the list.
    void addButton(QPushButton *button);

signals:
    /// The person's file is to be opened; what was typed may go.
    void chosen(const QString &name);
    /// A person was clicked, or Enter pressed on one: typing goes on in what is shown of them.
    void entered();

private:
    QStringListModel *m_model;
    QListView *m_view;
    GuardedChoice *m_choice = nullptr;
    QLabel *m_count;
    QVBoxLayout *m_rows;
};
