// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/liveline.h"
#include "storage/datafolder.h"

#include <QDate>

#include <optional>

/// What the card of the keeper says: never a title, nor how many entries there are.
namespace KeeperNews {

/// `isOpen`: it is unlocked just now. Nothing before it is set up.
std::optional<LiveLine> liveLine(const DataFolder &folder, bool isOpen, QDate today);

} // namespace KeeperNews
