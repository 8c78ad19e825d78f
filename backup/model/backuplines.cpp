// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/backuplines.h"

using namespace Qt::Literals::StringLiterals;

QString BackupLines::daysAgo(qint64 days)
{
    if (days <= 0)
        return u"today"_s;
    return days == 1 ? u"yesterday"_s : QString(number(days) + u" days ago"_s);
}

QString BackupLines::timeLeft(qint64 seconds)
{
    if (seconds < 0)
        return {};
    if (seconds < 60)
        return u"less than a minute left"_s;
    const qint64 minutes = (seconds + 30) / 60;
    const QString time = minutes < 60 ? counted(minutes, u"minute"_s, u"minutes"_s)
                                      : counted((minutes + 30) / 60, u"hour"_s, u"hours"_s);
    return u"about %1 left"_s.arg(time);
}
