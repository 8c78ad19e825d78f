// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

struct Program;

/// The persons that other functions know by name, where no password guards them.
namespace HouseholdNames {

QStringList of(const Program &program);

} // namespace HouseholdNames
