// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/datafolder.h"

#include <QStringList>

/// What the journal has in the household, for other functions.
namespace JournalHoldings {

/// Its files that are there: the years, those that were set aside, and the key of the seal.
QStringList files(const DataFolder &folder);

/// The pictures of the entries as full paths, each once; those that are not to be found are left out, and so
/// are those of sealed years, which only the password tells.
QStringList pictures(const DataFolder &folder);

} // namespace JournalHoldings
