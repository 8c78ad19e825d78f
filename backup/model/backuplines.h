// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLocale>
#include <QString>

/// Numbers and times as the windows and pages of the backup tell them.
namespace BackupLines {

/// "1,204".
inline QString number(qint64 count)
{
    QLocale locale(QLocale::English, QLocale::UnitedStates);
    return locale.toString(count);
}

/// "1 file", "1,204 files".
inline QString counted(qint64 count, const QString &one, const QString &several)
{
    return number(count) + QLatin1Char(' ') + (count == 1 ? one : several);
}

inline QString files(qint64 count)
{
    return counted(count, QStringLiteral("file"), QStringLiteral("files"));
}

inline QString pictures(qint64 count)
{
    return counted(count, QStringLiteral("picture"), QStringLiteral("pictures"));
}

/// "2.1 GB", as drives are sold: 1,000 MB are 1 GB.
inline QString size(qint64 bytes)
{
    return QLocale::c().formattedDataSize(bytes, bytes < 1000 ? 0 : 1, QLocale::DataSizeSIFormat);
}

/// "today", "yesterday", "9 days ago".
QString daysAgo(qint64 days);

/// "about 2 minutes left"; empty while nobody can tell.
QString timeLeft(qint64 seconds);

} // namespace BackupLines
