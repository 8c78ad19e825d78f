// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QDate>
#include <QDateTime>
#include <QString>

/// When a picture was taken, as cameras, names and other programs say it; in EDTF, empty where it says
/// nothing. Years before 1826, when the first photograph was taken, the first of January 1970, where clocks
/// that were never set begin, and days to come are no dates.
namespace TakenDate {

/// "2026:11:21 14:03:00", as cameras write it.
QString fromCamera(const QByteArray &text, QDate today);

/// "2026-11-21T14:03:00+01:00" or less of it, as programs write it; also what we wrote there that is less
/// certain than that ("1974~").
QString fromProgram(const QByteArray &text, QDate today);

/// "IMG_20190704_153012.jpg", "2019-07-04 15.30.12.png" and the like.
QString fromName(const QString &fileName, QDate today);

/// The time of a file.
QString fromTime(const QDateTime &time, QDate today);

} // namespace TakenDate
