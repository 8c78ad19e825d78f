// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The pages of the built-in manual by their numeric context.
namespace HelpContext {
inline constexpr int ProgramOverview = 1000;
inline constexpr int AddressBook = 1001;
inline constexpr int PasswordControl = 1002;
inline constexpr int Appearance = 1003;
inline constexpr int PagePreview = 1004;
inline constexpr int Planner = 1005;
inline constexpr int AddressViewer = 1006;
inline constexpr int Keys = 1007;
inline constexpr int Budget = 1008;
inline constexpr int BackupAndRestore = 1009;
inline constexpr int CarLog = 1010;
inline constexpr int WeightTracker = 1011;
inline constexpr int ToDoList = 1012;
inline constexpr int PasswordKeeper = 1013;
inline constexpr int Journal = 1014;
inline constexpr int CalendarMaker = 1015;
inline constexpr int PhotoAlbum = 1016;

inline constexpr int all[] = {
    ProgramOverview, AddressBook,    PasswordControl, Appearance,       PagePreview, Planner,
    AddressViewer,   Keys,           Budget,          BackupAndRestore, CarLog,      WeightTracker,
    ToDoList,        PasswordKeeper, Journal,         CalendarMaker,    PhotoAlbum};
} // namespace HelpContext
