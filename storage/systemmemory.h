// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

/// What the computer has room for in memory.
namespace SystemMemory {

/// How many bytes a program can take without others having to give way; 0 when nobody says.
qint64 available();

} // namespace SystemMemory
