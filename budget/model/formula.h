// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringView>

#include <optional>

/// Amounts that are typed as a sum: "=3*42.50", with the four operations and brackets.
namespace Formula {

/// Whether `text` begins with "=".
bool is(QStringView text);

/// What `text` comes to; nothing where it is no formula, where something is wrong in it, and where it divides
/// by nothing. Numbers are typed as amounts are: "1,250" is 1250.
std::optional<double> value(QStringView text);

} // namespace Formula
