// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "todo/window/newlistpanel.h"

/// The words of the panel for a new list.
namespace NewListLines {

using namespace Qt::Literals::StringLiterals;

inline QString beginsWith()
{
    return u"It begins as:"_s;
}

inline QString day()
{
    return u"The day that its dates count from:"_s;
}

inline QString dayHint()
{
    return u"such as the day on which a trip begins or guests come"_s;
}

inline QString noDay()
{
    return u"Type the day that its dates count from: \u201c12 July\u201d, \u201cfri\u201d or \u201c+10\u201d"_s;
}

inline QString keepTitle()
{
    return u"Save List as a Template"_s;
}

inline QString keep()
{
    return u"&Save Template"_s;
}

inline QString caption(const NewListPanel::Beginning &beginning)
{
    switch (beginning.kind) {
    case NewListPanel::Beginning::Plain:
        return u"An empty list"_s;
    case NewListPanel::Beginning::Shopping:
        return u"An empty shopping list"_s;
    case NewListPanel::Beginning::KeptList:
        return beginning.name;
    case NewListPanel::Beginning::OwnTemplate:
        return u"%1 (your template)"_s.arg(beginning.name);
    case NewListPanel::Beginning::BuiltIn:
        return u"%1 (template)"_s.arg(beginning.name);
    }
    return {};
}

inline QString what(const NewListPanel::Beginning &beginning)
{
    switch (beginning.kind) {
    case NewListPanel::Beginning::Plain:
        return u"Things to do, with dates, steps and headings."_s;
    case NewListPanel::Beginning::Shopping:
        return u"What was bought is offered again while you type, and goes back under its heading."_s;
    case NewListPanel::Beginning::KeptList:
        return beginning.hasDays ? u"Each date becomes so many days before or after the day above."_s
                                 : u"All that is on the list is kept, open and done."_s;
    default:
        return beginning.hasDays
                   ? u"Each thing gets its date so many days before or after the day above."_s
                   : u"All that the template has is put on the list, and can be changed there."_s;
    }
}

} // namespace NewListLines
