// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/taskpanel.h"

class QCheckBox;
class QSpinBox;

/// "When It Locks": after how long without key or mouse a sealed journal locks itself, and whether with its
/// window minimised.
class JournalLockPanel final : public TaskPanel
{
    Q_OBJECT
public:
    explicit JournalLockPanel(QWidget *parent = nullptr);

    void start(int minutes, bool isWhenMinimised);
    int minutes() const;
    bool isWhenMinimised() const;

signals:
    void accepted();

private:
    QSpinBox *m_minutes;
    QCheckBox *m_minimised;
};
