// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/knownperson.h"

#include <QList>

#include <functional>

struct Program;

/// The persons that other functions know, with what is known of them.
namespace HouseholdPersons {

/// Those of functions that no password guards, and of guarded ones whose guard `isPassed` says that it was
/// passed: it is given the area.
QList<KnownPerson> of(const Program &program, const std::function<bool(int area)> &isPassed);

/// Whether there are any that the password keeps back.
bool areKeptBack(const Program &program, const std::function<bool(int area)> &isPassed);

} // namespace HouseholdPersons
