// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/taskpanel.h"

class QProgressBar;

/// A panel whose task walks through files for a while: a bar below its work tells how far it is, the leave
/// button and Esc stop it first.
class WalkPanel : public TaskPanel
{
    Q_OBJECT
public:
    WalkPanel(const QString &name, const QString &title, QWidget *parent = nullptr);

public slots:
    void leave() override;

protected:
    /// Fills the panel; the bar stands below it.
    void setWalkWork(QWidget *work);
    void setLeave(QPushButton *button);
    /// `total` 0: it is not known yet.
    void showWalk(int done, int total);
    /// The walk is over.
    void endWalk();
    bool isWalking() const { return m_isWalking; }
    virtual void stopWalk() = 0;

private:
    QProgressBar *m_bar;
    QPushButton *m_leave = nullptr;
    QString m_leaveCaption;
    bool m_isWalking = false;
};
