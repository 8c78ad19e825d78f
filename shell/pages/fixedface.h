// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFont>

/// Letters of one width in which l, 1, I, O and 0 all look different: for secrets and codes.
namespace FixedFace {

/// In the size that the program's font has.
QFont font();

} // namespace FixedFace
