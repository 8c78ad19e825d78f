// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// What the calendar maker says quietly, in its status bar and on its calendars.
namespace CalendarLines {

using namespace Qt::Literals::StringLiterals;

inline QString laterVersion()
{
    return u"This calendar was written by a later version of Quillery: it can be read, but not changed."_s;
}

inline QString foreignFile(const QString &file)
{
    return file + u" is not a file of this calendar maker: it is left as it is."_s;
}

inline QString unreadableFile(const QString &file)
{
    return file + u" cannot be read: nothing can be changed."_s;
}

inline QString notSaved()
{
    return u"The disk refused to save the calendar"_s;
}

/// Another program has written the file meanwhile; what it wrote is a calendar of its own now.
inline QString keptBeside(const QString &title)
{
    return u"Somebody else has changed \u201c%1\u201d meanwhile: theirs is kept as a calendar of its own"_s
        .arg(title);
}

} // namespace CalendarLines
