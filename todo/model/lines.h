// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

/// What the To Do list says quietly, in its status bar and on its lists.
namespace ToDoLines {

using namespace Qt::Literals::StringLiterals;

/// The list that there is where the household has none yet.
inline QString firstList()
{
    return u"To Do"_s;
}

/// The list of items whose own list is not there.
inline QString found()
{
    return u"Found"_s;
}

inline QString laterVersion()
{
    return u"The lists were written by a later version of Quillery: they can be read, but not changed."_s;
}

inline QString foreignFile()
{
    return u"ToDo1.Fil is not a file of this To Do list: nothing can be changed until it is moved away."_s;
}

inline QString unreadableFile()
{
    return u"ToDo1.Fil cannot be read: nothing can be changed."_s;
}

/// "Deleted: Renew passports", "Deleted: 3 things".
inline QString acted(const QString &what, const QStringList &texts)
{
    return what + u": "_s + (texts.size() == 1 ? texts.front() : u"%1 things"_s.arg(texts.size()));
}

/// In the note of a repeating item that was done late.
inline QString missed(int dates)
{
    return dates == 1 ? u"1 date was missed"_s : u"%1 dates were missed"_s.arg(dates);
}

inline QString listNeedsName()
{
    return u"A list needs a name."_s;
}

inline QString listIsThere(const QString &name)
{
    return u"There is a list \"%1\" already."_s.arg(name);
}

inline QString listNameTooLong(int characters)
{
    return u"The name of a list has room for %1 characters."_s.arg(characters);
}

inline QString notHoldable(const QString &characters)
{
    return u"The files of the household cannot hold: %1"_s.arg(characters);
}

} // namespace ToDoLines
