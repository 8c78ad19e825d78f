// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringView>
#include <QTime>

/// Times of day as people type them: "9:30 AM", "9.30pm", "14:05", "8".
namespace TimeOfDay {

/// The time that `text` names; invalid where it names none or goes on behind it.
QTime of(QStringView text);

/// The time that `text` begins with, "9:30 AM Dentist"; invalid where it begins with none. A number alone is
/// none: it may count anything.
QTime leading(QStringView text);
/// What stands behind that time; all of `text` where it begins with none.
QStringView behindLeading(QStringView text);

} // namespace TimeOfDay
