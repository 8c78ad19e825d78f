// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The 21 areas that a password can guard, by their index in `ProtectedAreas`. Areas of other editions are
/// kept.
namespace Area {
inline constexpr int AddressBook = 0;
inline constexpr int AddressViewer = 1;
inline constexpr int Planner = 2;
inline constexpr int Budget = 9;
inline constexpr int PasswordKeeper = 11;
inline constexpr int CarLog = 13;
inline constexpr int Journal = 14;
inline constexpr int AddressBookButton = 15;
inline constexpr int AddressViewerButton = 16;
inline constexpr int None = -1;
} // namespace Area
