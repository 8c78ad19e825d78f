// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>
#include <QDate>
#include <QString>

/// Dates as the weight tracker's files and boxes have them, whatever the style of dates: the month comes
/// first.
namespace WeightDates {

/// "01/05/2026": the form of the table, on the screen and in the file.
QString tableText(QDate date);
/// "January 05, 2026": the form of the sheet's boxes, on the screen and in the file.
QString longText(QDate date);

/// The date of a text in either form, or in any other that can be read with the month first; invalid where it
/// is none.
QDate date(QStringView text);
/// The same of the bytes of a file; quick for the form of the table.
QDate date(QByteArrayView text);

} // namespace WeightDates
