// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// Comma-separated values for spreadsheets, as `CsvFile` reads them.
namespace CsvText {

/// A line with its end; cells with commas, quotes or line ends stand in quotes.
QString line(const QStringList &cells);

/// The lines as the bytes of a file in UTF-8.
QByteArray file(const QString &lines);

/// "Family van fuel.csv" of `name` and `what`, without characters that no file name has.
QString fileName(const QString &name, const QString &what);

} // namespace CsvText
