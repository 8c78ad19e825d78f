// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The program starts anew by itself, to read everything afresh.
namespace Restart {

/// What `QCoreApplication::exit` is called with for that. The windows that are open then go without a word,
/// so that nothing is written any more: whoever calls it has had them closed.
inline constexpr int exitCode = 75;

} // namespace Restart
