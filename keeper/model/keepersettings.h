// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/sealing/secretbytes.h"

#include <QDateTime>
#include <QList>
#include <QStringList>

/// A sheet that was printed: kept so that old ones can be shredded.
struct PrintedSheet {
    QDateTime time;
    QString what; ///< "Emergency sheet" or the like
    bool hasSecrets = false;
    QStringList titles; ///< of the entries on it

    bool operator==(const PrintedSheet &) const = default;
};

/// What the keeper is told once and remembers, sealed like its entries.
struct KeeperSettings {
    int lockMinutes = 5;
    bool locksMinimised = false;
    int clipboardSeconds = 30;
    bool tellsExpiry = false;    ///< on the card, without any name
    bool knowsPrinting = false;  ///< the user was told that print systems keep pages
    QString newCode;             ///< a recovery code that nobody has said yet to have kept
    QList<PrintedSheet> printed; ///< the latest last

    /// As many of the latest sheets as have room.
    SecretBytes encoded() const;
    static KeeperSettings decoded(QByteArrayView bytes);

    bool operator==(const KeeperSettings &) const = default;
};
