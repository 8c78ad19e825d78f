// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>

/// Easter Sunday of either church, in the calendar of today; no date outside of 1900 to 2199.
namespace Easter {

QDate western(int year);
QDate orthodox(int year);

} // namespace Easter
