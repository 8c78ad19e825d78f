// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/functionrecords.h"

#include <QByteArrayView>

#include <functional>

/// A function's records as a table for spreadsheets, a line for each record and a column for each thing that
/// any of them says: readable without this program.
namespace ReadableCopy {

/// Gives the bytes of the file to `take`, piece by piece; stops where it answers false. True where all of it
/// was taken.
bool write(const FunctionRecords &records, const std::function<bool(QByteArrayView bytes)> &take);

} // namespace ReadableCopy
