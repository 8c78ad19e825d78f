// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "keeper/model/keeperentry.h"

/// The code by which a telephone joins a Wi-Fi network: black squares that its camera reads.
namespace WiFiCode {

/// Whether codes can be made in this build.
bool canMake();

/// What the code says, "WIFI:T:WPA;S:Home;P:secret;;"; empty for an entry that is no Wi-Fi with a name.
QString text(const KeeperEntry &entry);

/// Its squares, row by row with a white margin around them, '#' for a black one. None where no code can be
/// made, or for what finds no room in one.
QStringList squares(const KeeperEntry &entry);

} // namespace WiFiCode
