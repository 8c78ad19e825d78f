// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/datafolder.h"
#include "storage/sealing/keyslots.h"

#include <QString>
#include <QStringList>

/// The two files of the keeper as they can be judged without a key.
namespace KeeperFiles {

inline const QString keys = QStringLiteral("Secfile2.fil");
inline const QString entries = QStringLiteral("Secfile1.Fil");

enum class State {
    None, ///< neither file: it can be set up
    Locked,
    Open,           ///< never said of files alone
    KeyFileDamaged, ///< neither copy of the key file opens: nothing is written
    FileMissing,    ///< one of the two: neither is made anew over the other
    Foreign,        ///< files of these names that are none of ours: never written to
    Newer           ///< of a later version of the program
};

KeySlots keySlots(const DataFolder &folder);

State state(const DataFolder &folder);

/// The file that is missing while the other is there.
QString missing(const DataFolder &folder);

/// Files of these names that are none of ours.
QStringList foreign(const DataFolder &folder);

/// Gives those other names: "Secfile1 (set aside).Fil". False when the disk refuses.
[[nodiscard]] bool setAside(const DataFolder &folder);

/// Those of the two that are there.
QStringList existing(const DataFolder &folder);

} // namespace KeeperFiles
