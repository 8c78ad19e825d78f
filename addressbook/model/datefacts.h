// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/programstate.h"

#include <QDate>
#include <QString>

/// What can be told from an entry's dates, in a few words beside the boxes.
namespace DateFacts {

/// "47, turns 48 on Tuesday"; "47, turns 48 on November 24" when it is more than six days away; "Turns 48
/// today". Empty for no date and for one that is still to come.
QString ofBirth(QDate birth, QDate today, DateStyle style);

/// "22 years in June"; "22 years on Tuesday" within six days. Empty for no date, and before the first year is
/// near.
QString ofAnniversary(QDate date, QDate today);

} // namespace DateFacts
