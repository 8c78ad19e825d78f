// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class Clock;
class FunctionCatalogue;

/// Puts every function that is built into this program into its catalogue; `clock` says which year the files
/// of today belong to.
void addFunctions(FunctionCatalogue &functions, const Clock &clock);
