// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSize>
#include <QString>

#include <functional>

class QWidget;
class SettingsChange;
struct Program;

/// Procedures that every window calls.
namespace HINFO1 {

/// Switch the screen-wide mouse pointer, as `Hourglass` does. "On" twice is still one hourglass; "off" always
/// ends it.
void hourglassOn();
void hourglassOff();

/// Says that a chosen colour cannot be told from the text.
void showColorConflict(Program &program, QWidget *parent);

/// Asks for the family name, writes it to the family name file and makes it the program-wide one. Cancel or
/// an empty answer deletes a stored name after asking. False when the name could not be written: it holds for
/// this run.
[[nodiscard]] bool askFamilyName(Program &program, QWidget *parent);

/// Waits, processing window messages, until the wall-clock second has moved on by one.
void pauseOneSecond(const Program &program);
/// The same, but for not waiting any longer once `isEnough` says so.
void pauseOneSecond(const Program &program, const std::function<bool()> &isEnough);

/// Kept distinct from every answer of a message box: tells `updateProgramColors` not to ask.
inline constexpr int updateWithoutAsking = 9786;

/// Writes `pending` (the decimal text of a colour) to every program-wide colour record and to the windows'
/// own ones. Asks first unless `answerHolder` holds `updateWithoutAsking`; any answer but Yes, or an empty
/// text, writes none of them. Clears `pending`. False when nothing could be written: the colour holds for
/// this run. What `along` changes is written with them, and where nothing else is written too.
[[nodiscard]] bool updateProgramColors(Program &program, QWidget *parent, QString &pending, int answerHolder,
                                       SettingsChange along);
[[nodiscard]] bool updateProgramColors(Program &program, QWidget *parent, QString &pending, int answerHolder);

/// Writes display mode and, for a smaller-screen window, its size: `size` is in pixels at 15 twips each,
/// raised to 12000 by 9000 twips and clamped to 32767. False when any of it could not be written.
[[nodiscard]] bool saveMainWindowSize(Program &program, bool maximized, QSize size);

inline constexpr int twipsPerPixel = 15;
inline constexpr QSize minimumTwips{12000, 9000};

} // namespace HINFO1
