// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/taskpanel.h"

class Keeper;
class QCheckBox;
class QSpinBox;

/// "Settings": when the keeper locks itself, how long the clipboard keeps what was copied, what the card may
/// tell. They are sealed with the entries.
class KeeperSettingsPanel final : public TaskPanel
{
    Q_OBJECT
public:
    explicit KeeperSettingsPanel(Keeper &keeper, QWidget *parent = nullptr);

    void start();

signals:
    void settingsChanged();
    void said(const QString &line);

private:
    QWidget *makeChoices();
    void save();

    Keeper &m_keeper;
    QSpinBox *m_minutes;
    QCheckBox *m_locksMinimised;
    QSpinBox *m_seconds;
    QCheckBox *m_tellsExpiry;
};
