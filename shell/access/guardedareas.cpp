// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/access/guardedareas.h"

#include "shell/core/area.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// The two functions of other editions that are known by name.
constexpr int homeInventory = 6;
constexpr int videoLibrary = 8;

/// The function of this edition behind `area`; empty for any other.
QString ownFunction(int area)
{
    switch (area) {
    case Area::AddressBook:
    case Area::AddressBookButton:
        return u"Family/Friends Data"_s;
    case Area::AddressViewer:
    case Area::AddressViewerButton:
        return u"Family/Friends Viewer"_s;
    case Area::Planner:
        return u"Personal Planner"_s;
    case Area::Budget:
        return u"Personal Budget"_s;
    case Area::PasswordKeeper:
        return u"Password Keeper"_s;
    case Area::CarLog:
        return u"Automobile Tracker"_s;
    case Area::Journal:
        return u"Personal Journal"_s;
    default:
        return {};
    }
}

} // namespace

QString GuardedAreas::functionName(int area)
{
    if (isOfThisEdition(area))
        return ownFunction(area);
    switch (area) {
    case homeInventory:
        return u"Home Inventory"_s;
    case videoLibrary:
        return u"Video Library"_s;
    default:
        return u"Area %1"_s.arg(area);
    }
}

QString GuardedAreas::name(int area)
{
    const bool isButton = area == Area::AddressBookButton || area == Area::AddressViewerButton;
    return isButton ? functionName(area) + u" (toolbar)"_s : functionName(area);
}

int GuardedAreas::otherWay(int area)
{
    switch (area) {
    case Area::AddressBook:
        return Area::AddressBookButton;
    case Area::AddressBookButton:
        return Area::AddressBook;
    case Area::AddressViewer:
        return Area::AddressViewerButton;
    case Area::AddressViewerButton:
        return Area::AddressViewer;
    default:
        return Area::None;
    }
}

QString GuardedAreas::wayOf(int area)
{
    return name(area) == functionName(area) ? u"the menu entry and card"_s : u"the toolbar button"_s;
}

QString GuardedAreas::level(int area, const QSet<int> &sealed)
{
    return sealed.contains(area) ? u"Sealed"_s : u"Asks for the password; the files stay readable"_s;
}

QString GuardedAreas::openWay(int area, const ProtectedAreas &areas)
{
    const int other = otherWay(area);
    const bool isOpen = other != Area::None && areas.isProtected(area) && !areas.isProtected(other);
    return isOpen ? wayOf(other) : QString();
}

bool GuardedAreas::isOfThisEdition(int area)
{
    return !ownFunction(area).isEmpty();
}
