// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The memory that the program has used and does not use any more: boxes, texts and pages give it back as it
/// is, with what stood in it.
namespace FreeMemory {

/// Overwrites all of it that the calling thread can be given again, as far as the system's library lets that
/// be done (glibc; elsewhere nothing happens). Takes milliseconds.
void wipe();

} // namespace FreeMemory
