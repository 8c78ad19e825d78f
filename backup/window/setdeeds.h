// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/setcheck.h"
#include "backup/model/setlist.h"
#include "backup/window/backupdesk.h"

#include <QObject>

#include <functional>
#include <optional>

class QAction;
class QMenu;
class QWidget;
class RunPanel;
class ThreadedStep;

/// What is done with a set as it lies there: it is tested, or deleted.
class SetDeeds final : public QObject
{
    Q_OBJECT
public:
    /// The set that is meant, none without one.
    using Chosen = std::function<std::optional<BackupSet>()>;

    SetDeeds(const BackupDesk &desk, Chosen chosen, RunPanel &run, QObject *parent);
    ~SetDeeds() override;

    /// "Test This Backup".
    QAction *addTest(QMenu *menu);
    /// "Delete This Backup".
    QAction *addDelete(QMenu *menu);

signals:
    void said(const QString &line);
    /// The sets are others, or known better.
    void changed();

private:
    QString whyNoTest() const;
    QString whyNoDeletion() const;
    void test();
    void finish(const CheckReport &report);
    void remove();
    QString when(const BackupSet &set) const;

    BackupDesk m_desk;
    Chosen m_chosen;
    RunPanel &m_panel;
    ThreadedStep *m_step;
    QWidget *m_from = nullptr; ///< the view that a test was begun in
};
