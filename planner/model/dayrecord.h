// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>
#include <QDate>
#include <QString>

/// Where the appointments of a date are kept: one file per year, one record of 900 bytes per date.
namespace DayRecord {

inline constexpr int length = 900;
/// The highest record that a date produces: 31 December.
inline constexpr int last = 431;

/// " 2026.Cal": the blank in front is part of the name on disk.
QString yearFileName(int year);

/// The record of `date`: day and month as digits up to September, a block of its own for each month after. An
/// invalid date has the number 0, which no record has.
int number(QDate date);

/// The bytes of a record in the bytes of its year's file; fewer or none when the file is short, none for a
/// number below 1.
QByteArrayView ofNumber(QByteArrayView year, int number);

/// Whether a record carries the mark of a saved day, followed by nothing but blanks; asked before a record is
/// decoded, since many are holes.
bool isSaved(QByteArrayView record);

/// The date of `record` in `year`; an invalid date for a record that no date of that year produces.
QDate date(int record, int year);

} // namespace DayRecord
