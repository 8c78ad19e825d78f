// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/openedbackup.h"
#include "backup/model/restorerun.h"
#include "backup/window/backupdesk.h"
#include "shell/access/passwordcheck.h"

#include <optional>

/// What a restore demands before anything is written: the password that guards the backup, where none is set
/// here.
class RestoreDemands
{
public:
    explicit RestoreDemands(const BackupDesk &desk)
        : m_desk(desk)
    {}

    PasswordCheck passwordHere() const;

    /// What is to be restored.
    struct Wanted {
        const OpenedBackup &backup;
        const QList<RestoreItem> &items; ///< all that it has
        bool isFileChosen = false;       ///< that of the password
    };

    /// Called on the thread of the run: false where it may not go on, which the user was told. The file of
    /// the password comes along in `order` where it must.
    bool areMet(RestoreRun::Order &order, const Wanted &wanted) const;

private:
    bool areMetHere(RestoreRun::Order &order, const Wanted &wanted, const QByteArray &copy) const;
    bool isGiven(const QByteArray &copy) const;

    BackupDesk m_desk;
};
