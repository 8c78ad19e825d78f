// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/datebox.h"
#include "shell/core/clock.h"
#include "weight/model/weightentry.h"

#include <QObject>

class Commands;
class QAction;
class QMenu;

/// The date checker: while it is on, dates after today are refused. It is on whenever a window opens.
class DateCheck final : public QObject
{
    Q_OBJECT
public:
    DateCheck(const Clock &clock, QObject *parent);

    bool isOn() const { return m_isOn; }
    /// "Turn OFF Date Checker", or ON, for a menu and buttons.
    QAction *addCommand(Commands &commands, QMenu *menu);

    /// How the boxes read dates: as in the files, the month comes first.
    DateReading reading() const { return {m_style, m_clock}; }
    /// What becomes of a date that was typed or picked, in the table or on the sheet, where `before` stood.
    WeightEntry tableDate(const QString &typed, const QString &before) const;
    WeightEntry sheetDate(const QString &typed, const QString &before) const;

signals:
    void said(const QString &line);

private:
    void toggle();
    QString caption() const;
    WeightEntry::DateChecker checker() const;

    const Clock &m_clock;
    DateStyle m_style = DateStyle::Usa;
    Commands *m_commands = nullptr;
    QAction *m_command = nullptr;
    bool m_isOn = true;
};
