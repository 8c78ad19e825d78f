// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// What the journal says quietly.
namespace JournalLines {

using namespace Qt::Literals::StringLiterals;

inline QString foreignFile(const QString &file)
{
    return file + u" is not a file of this journal: the year can be read, but not changed."_s;
}

inline QString binaryFile(const QString &file)
{
    return file + u" holds bytes that are no text: the year can be read, but not changed."_s;
}

inline QString laterVersion(int year)
{
    return u"%1 was written by a later version of Quillery: it can be read, but not changed."_s.arg(year);
}

inline QString unreadableFile(const QString &file)
{
    return file + u" cannot be read: nothing can be written for that year."_s;
}

inline QString protectedFile(const QString &file)
{
    return file + u" is write-protected: the year can be read, but not changed."_s;
}

inline QString sealed(int year)
{
    return u"%1 is sealed."_s.arg(year);
}

inline QString laterSeal(int year)
{
    return u"%1 was sealed by a later version of Quillery: it cannot be opened."_s.arg(year);
}

inline QString noKey(int year)
{
    return u"%1 is sealed with another key, which is not here: nobody can open it."_s.arg(year);
}

// What becomes of the entries of a file that comes in

inline QString newDay()
{
    return u"Will be a new day"_s;
}

inline QString underTheDay()
{
    return u"Will stand under what the day has"_s;
}

inline QString isThere()
{
    return u"Not taken: the day has it already"_s;
}

inline QString forReading(int year)
{
    return u"Not taken: %1 cannot be written to"_s.arg(year);
}

inline QString saysNothing()
{
    return u"Not taken: there is no text"_s;
}

inline QString earlierVersion()
{
    return u"Not taken: an earlier version"_s;
}

inline QString noDateAbove()
{
    return u"Not read: no date above it"_s;
}

inline QString noDate(const QString &date)
{
    return u"Not read: %1 is no date"_s.arg(date);
}

inline QString noTime(const QString &time)
{
    return u"Not read: %1 is no time"_s.arg(time);
}

} // namespace JournalLines
