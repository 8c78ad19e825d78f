// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

/// What the calendar maker says quietly, in its status bar and on its calendars.
namespace CalendarLines {

using namespace Qt::Literals::StringLiterals;

inline QString laterVersion()
{
    return u"Written by a later version of Quillery: it can be read, but not changed."_s;
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

/// A bar that ends before it begins stands on its first day.
inline QString turnedBars(const QStringList &texts)
{
    const QString first = u"\u201c%1\u201d"_s.arg(texts.value(0));
    if (texts.size() == 1)
        return u"The bar %1 ends before it begins: it is shown on its first day"_s.arg(first);
    return u"%1 bars end before they begin and are shown on their first day, %2 first"_s.arg(texts.size())
        .arg(first);
}

/// Another program has written the file meanwhile; what it wrote is a calendar of its own now.
inline QString keptBeside(const QString &title)
{
    return u"Somebody else has changed \u201c%1\u201d meanwhile: theirs is kept as a calendar of its own"_s
        .arg(title);
}

} // namespace CalendarLines
