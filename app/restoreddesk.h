// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/datafolder.h"

class QSettings;

/// The user's desk as a restore has left it in the household's folder.
namespace RestoredDesk {

/// Takes it into `store`, once, before anything is read there: it is removed then. What it says nothing about
/// stays as it is.
void takeUp(const DataFolder &folder, QSettings &store);

} // namespace RestoredDesk
