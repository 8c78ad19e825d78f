// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/model/wallcalendar.h"

#include <QString>

/// What is said of filling a calendar, in its panel and in the status bar.
namespace FillLines {

QString filled(const QString &summary);
QString sourcesChanged(const QString &summary);
QString nothingToFill();
QString nothingTicked();
QString guardedNote();
QString guardRefused(const QString &title);
QString behindPassword();
QString fillCaption(LineSource source);
QString rulesOfCalendar();
QString nothingAnyMore();
QString nothingThere();
QString countOfEntries(qsizetype count);

} // namespace FillLines
