// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "journal/window/journaldesk.h"

#include <QObject>

class QMenu;

/// The ways from one day to another.
class DayCommands final : public QObject
{
    Q_OBJECT
public:
    DayCommands(const JournalDesk &desk, QObject *parent);

    void addCommands(QMenu *view);
    void goToday();
    /// So many days on, or back.
    void step(int days);

signals:
    void said(const QString &line);

private:
    void goToDate();
    QString whyNot(QDate date, const QString &none) const;

    JournalDesk m_desk;
};
