// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/settings.h"

#include <array>

/// Where each setting lives: file and record, written down once.
namespace SettingsKeys {

inline constexpr SettingsFile generalFile{"GHINV1.Fil", 10};
inline constexpr SettingsFile familyNameFile{"HINVNAME.FIL", 40};
inline constexpr SettingsFile colorFile1{"GColor1.Fil", 20};
inline constexpr SettingsFile colorFile2{"GColor2.Fil", 20};
inline constexpr SettingsFile colorFile3{"GColor3.Fil", 20};
inline constexpr SettingsFile calendarFile{"SWR2.fil", 20};
inline constexpr SettingsFile passwordFile{"PCtrl1.Fil", 140};

/// "Def", or "WP" and the number of a background picture; empty counts as "Def".
inline constexpr TaggedSetting background{generalFile, 3};
/// Always written with `sideToolbarsRemoved`; what it holds never changes how the program starts.
inline constexpr NumberSetting sideToolbarMarker{generalFile, 10};
inline constexpr int sideToolbarsRemoved = 88;

inline constexpr TextSetting familyName{familyNameFile, 1};

/// "Yes" for the smaller-screen display, "No" (or empty) for the full screen; then height and width in twips.
inline constexpr TextSetting smallerScreen{colorFile3, 35};
inline constexpr NumberSetting windowHeight{colorFile3, 36};
inline constexpr NumberSetting windowWidth{colorFile3, 37};

/// "OFF" while the top toolbar is removed; shared by all windows but the weight tracker's copy of it.
inline constexpr TextSetting topToolbar{colorFile1, 55};
inline constexpr TextSetting weightTopToolbar{colorFile1, 81};

/// The serial port of the modem; 0 or empty means 1.
inline constexpr NumberSetting modemPort{colorFile1, 25};

/// Where the planner puts entries without AM or PM: the index of its option button, 0 when empty.
inline constexpr NumberSetting plannerPlacement{colorFile3, 58};

/// Whether calendars number the weeks: 0 or empty yes, 1 no.
inline constexpr NumberSetting calendarWeekNumbers{calendarFile, 15};
inline constexpr int calendarWeekNumbersHidden = 1;
/// The day that a calendar's weeks begin with: 1 Sunday ... 7 Saturday; anything else is Sunday.
inline constexpr NumberSetting calendarWeekStart{calendarFile, 16};

inline constexpr TextSetting mainMenuColor{colorFile1, 49};
inline constexpr TextSetting addressEntryColor{colorFile3, 11}; ///< the photo album's, too
inline constexpr TextSetting budgetColor{colorFile3, 12};
inline constexpr TextSetting passwordKeeperColor{colorFile3, 26};
inline constexpr TextSetting passwordControlColor{colorFile3, 104};
// Records that no older window uses: 201 upwards.
inline constexpr TextSetting addressEntryTextColor{colorFile3, 201};
inline constexpr TextSetting helpColor{colorFile3, 202};
inline constexpr TextSetting plannerColor{colorFile3, 203};
inline constexpr TextSetting addressViewerColor{colorFile3, 204};
inline constexpr TextSetting addressPicturesColor{colorFile3, 205};
inline constexpr TextSetting carColor{colorFile3, 206};
inline constexpr TextSetting weightColor{colorFile3, 207};
inline constexpr TextSetting toDoColor{colorFile3, 208};
inline constexpr TextSetting toDoTextColor{colorFile3, 209};
inline constexpr TextSetting passwordKeeperTextColor{colorFile3, 211};
inline constexpr TextSetting journalColor{colorFile3, 212};
inline constexpr TextSetting journalTextColor{colorFile3, 213};
inline constexpr TextSetting calendarColor{colorFile3, 214};
inline constexpr TextSetting calendarTextColor{colorFile3, 215};
inline constexpr TextSetting backupColor{colorFile3, 216};

/// Minutes without key or mouse after which what the password guards is covered; anything but these is the
/// usual.
inline constexpr NumberSetting idleMinutes{colorFile3, 210};
inline constexpr std::array idleMinutesOffered{1, 5, 10, 30};
inline constexpr int usualIdleMinutes = 10;

/// Days after which another backup is due; anything but these, and not `neverReminded`, is the usual.
inline constexpr NumberSetting backupReminderDays{colorFile3, 217};
inline constexpr std::array backupReminderDaysOffered{7, 14, 30};
inline constexpr int usualBackupReminderDays = 30;
inline constexpr int neverReminded = -1;

/// The records that a program-wide colour update gives one value to, file by file.
inline constexpr std::array<int, 18> programColors1{10, 11, 12, 13, 16, 17, 18, 22, 27,
                                                    32, 36, 38, 40, 49, 54, 56, 70, 80};
inline constexpr std::array<int, 9> programColors2{5, 9, 12, 16, 19, 20, 22, 25, 40};
inline constexpr std::array<int, 10> programColors3{8, 17, 91, 92, 100, 101, 102, 103, 104, 105};

/// The windows' own colours, which would outrank a program-wide one: the update gives them its value, too.
inline constexpr std::array windowColors{
    addressEntryColor,    budgetColor, passwordKeeperColor, helpColor, plannerColor, addressViewerColor,
    addressPicturesColor, carColor,    weightColor,         toDoColor, journalColor, calendarColor,
    backupColor};

/// The program-wide record that a window falls back to when its own is empty or "Default".
inline constexpr TextSetting addressEntryProgramColor{colorFile1, 10};
inline constexpr TextSetting helpProgramColor{colorFile1, 80};
inline constexpr TextSetting plannerProgramColor{colorFile1, 11};
inline constexpr TextSetting budgetProgramColor{colorFile1, 16};
inline constexpr TextSetting addressViewerProgramColor{colorFile1, 12};
inline constexpr TextSetting addressPicturesProgramColor{colorFile1, 13};
inline constexpr TextSetting carProgramColor{colorFile1, 17};
inline constexpr TextSetting weightProgramColor{colorFile1, 18};
inline constexpr TextSetting toDoProgramColor{colorFile1, 22};
inline constexpr TextSetting passwordKeeperProgramColor{colorFile1, 27};
inline constexpr TextSetting journalProgramColor{colorFile1, 32};
inline constexpr TextSetting calendarProgramColor{colorFile1, 36};
inline constexpr TextSetting backupProgramColor{colorFile1, 38};

} // namespace SettingsKeys
