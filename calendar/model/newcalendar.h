// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/model/wallcalendar.h"
#include "shell/core/programstate.h"

#include <QLocale>

class Settings;

/// What a new calendar begins with, before a person chooses.
namespace NewCalendar {

/// "Family Calendar 2027", or "Family Calendar 2027/28" where it goes on into the next year.
QString title(QDate from, int months);

/// The twelve months of this year, from September on those of the next one, with the weeks of the household's
/// settings and the holidays of the country.
WallCalendar proposed(QDate today, DateStyle style, const Settings &settings,
                      QLocale::Territory territory = QLocale::system().territory());

/// The names in "Anne, Tom": each once, six at most.
QStringList persons(const QString &typed);

} // namespace NewCalendar
