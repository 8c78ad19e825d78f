// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

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

} // namespace ToDoLines
