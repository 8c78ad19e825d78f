// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>

/// Looking for bytes among many.
namespace ByteSearch {

/// The first place of `sought`, which is not empty, from `at` on; null when it is not there before `end`.
const char *find(const char *at, const char *end, QByteArrayView sought);

} // namespace ByteSearch
