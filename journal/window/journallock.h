// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "journal/window/journaldesk.h"
#include "shell/program/idleclock.h"

#include <QObject>

class JournalLockPanel;
class QMenu;

/// Says when a sealed journal that is open shall lock itself: asked to, when nobody was at the desk for a
/// while, with the computer's own lock and sleep, and by choice when its window is minimised.
class JournalLock final : public QObject
{
    Q_OBJECT
public:
    JournalLock(const JournalDesk &desk, QObject *parent);

    void addCommands(QMenu *options);
    /// The window was minimised.
    void minimised();

signals:
    void due();
    void said(const QString &line);

private:
    void follow();
    void openPanel();
    QString whyNotSealed() const;

    JournalDesk m_desk;
    IdleLimit m_idle;
    JournalLockPanel *m_panel = nullptr;
};
