// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/undostep.h"

#include <QHash>
#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

struct Program;

/// The pictures that the records of all functions name, for what finds them again when they were moved.
namespace HouseholdPictures {

/// Those that are not there, as the records have them, of functions that tell: `isPassed` says for an area
/// whether its password was given.
QStringList missing(const Program &program, const std::function<bool(int area)> &isPassed);

/// Has their records name other files in the place of these: from what a record has to where the file is now.
/// One step for each function; nothing where one of them refuses, and what the others did is taken back.
std::optional<std::vector<UndoStep>> relink(const Program &program, const QHash<QString, QString> &files,
                                            const std::function<bool(int area)> &isPassed);

} // namespace HouseholdPictures
