// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "keeper/model/keeperentry.h"
#include "shell/controls/taskpanel.h"

class EntryForm;
class Keeper;
class QListWidget;
struct Program;

/// "Earlier Versions": what an entry was before its last changes, each for looking at, any of them to be
/// brought back.
class VersionsPanel final : public TaskPanel
{
    Q_OBJECT
public:
    VersionsPanel(const Program &program, const Keeper &keeper, QWidget *window, QWidget *parent = nullptr);

    /// False where the entry has no earlier version.
    bool start(const QByteArray &id);
    void forget();

public slots:
    void leave() override;

signals:
    /// `entry` is to be the current one again.
    void chosen(const KeeperEntry &entry);
    void copyWanted(const QString &caption, const QString &text);

private:
    void showVersion();

    const Program &m_program;
    const Keeper &m_keeper;
    QByteArray m_id;
    QListWidget *m_list;
    EntryForm *m_form;
    QPushButton *m_back;
};
