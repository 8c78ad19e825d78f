// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "journal/model/journal.h"

/// A clock that stands at ten to nine on 23 November 2026, or where it is set.
class StandingClock final : public Clock
{
public:
    StandingClock() = default;
    explicit StandingClock(const QDateTime &now)
        : m_now(now)
    {}
    QDateTime now() const override { return m_now; }

private:
    QDateTime m_now{QDate(2026, 11, 23), QTime(8, 50, 40)};
};

/// What stands in front of every year.
inline const QByteArray journalHead = QByteArrayLiteral("Quillery journal 1\r\n");

/// An entry in a line: its date, then what is there of time, tags, pictures, other lines and text.
inline QString described(const JournalEntry &entry)
{
    QStringList parts{entry.date.toString(Qt::ISODate)};
    if (entry.written.isValid())
        parts << entry.written.toString(QStringLiteral("'at' yyyy-MM-dd hh:mm"));
    for (const QString &tag : entry.tags)
        parts << u'#' + tag;
    for (const JournalPicture &picture : entry.pictures)
        parts << u'<' + picture.path + u'>' + picture.caption;
    for (const QString &line : entry.otherLines)
        parts << u'{' + line + u'}';
    return parts.join(u' ') + u": " + QString(entry.text).replace(u'\n', u'/');
}

/// Every entry of a year, and every earlier version.
inline QStringList described(Journal &journal, int year)
{
    QStringList days;
    for (QDate day(year, 1, 1); day.year() == year; day = day.addDays(1)) {
        if (const auto entry = journal.entry(day))
            days << described(*entry);
        if (const auto earlier = journal.earlier(day))
            days << u"earlier " + described(*earlier);
    }
    return days;
}
