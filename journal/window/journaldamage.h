// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "journal/window/journaldesk.h"

#include <QObject>

class QListWidget;
class QMenu;
class TaskPanel;

/// What of the sealed years does not open as it should, named by the dates: on the page of the day, in the
/// status bar, and in the panel "Damaged Records", which leads to the days.
class JournalDamage final : public QObject
{
    Q_OBJECT
public:
    JournalDamage(const JournalDesk &desk, QObject *parent);

    /// The command that opens it.
    void addCommand(QMenu *utilities);
    /// "2 records are damaged: March 14, 2026; ..."; empty where none is.
    QString summary() const;
    /// What is amiss with the day; empty where nothing is.
    QString wordsOf(QDate date) const;
    /// Nothing is listed any more.
    void forget();

private:
    struct Row {
        QDate date; ///< of the day, or the first of its year
        QString words;
    };

    QList<Row> rows() const;
    void makePanel();
    void open();
    void goToChosen();

    JournalDesk m_desk;
    TaskPanel *m_panel = nullptr;
    QListWidget *m_list = nullptr;
};
