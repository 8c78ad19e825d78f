// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The quiet lines of the password keeper's window: of the status bar, and why a command cannot be used.
namespace KeeperWindowLines {

using namespace Qt::Literals::StringLiterals;

inline QString titleMissing()
{
    return u"Type a title first"_s;
}

inline QString expiresIsNoDate()
{
    return u"\u201cExpires\u201d holds no date"_s;
}

inline QString withoutTitle()
{
    return u"(no title)"_s;
}

inline QString favouriteWord()
{
    return u", favourite"_s;
}

inline QString damaged(int place)
{
    return u"Damaged, place %1"_s.arg(place);
}

/// An earlier version stands in for what cannot be opened.
inline QString damagedVersion(int place, const QString &day)
{
    return u"Damaged, place %1; as of %2"_s.arg(place).arg(day);
}

inline QString deletedOn(const QString &day)
{
    return u"Deleted on %1"_s.arg(day);
}

inline QString expiresOn(const QString &day, bool isOver)
{
    return (isOver ? u"Expired on %1"_s : u"Expires on %1"_s).arg(day);
}

inline QString countOfEntries(int count, bool isTrash, bool isSearch)
{
    if (count == 0)
        return isSearch ? u"Nothing found"_s : isTrash ? u"The trash is empty"_s : u"No entries"_s;
    return count == 1 ? u"1 entry"_s : u"%1 entries"_s.arg(count);
}

inline QString nothingSearched()
{
    return u"Nothing is searched for"_s;
}

} // namespace KeeperWindowLines
