#include "shell/guardedareas.h"

#include "shell/gate.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// The two functions of other editions that are known by name.
constexpr int homeInventory = 6;
constexpr int videoLibrary = 8;

/// The name of an area of this edition; empty for any other.
QString ownName(int area)
{
    switch (area) {
    case Area::AddressBook:
        return u"Family/Friends Data"_s;
    case Area::AddressViewer:
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
    case Area::AddressBookButton:
        return u"Family/Friends Data (toolbar button)"_s;
    case Area::AddressViewerButton:
        return u"Family/Friends Viewer (toolbar button)"_s;
    default:
        return {};
    }
}

} // namespace

QString GuardedAreas::name(int area)
{
    if (isOfThisEdition(area))
        return ownName(area);
    switch (area) {
    case homeInventory:
        return u"Home Inventory"_s;
    case videoLibrary:
        return u"Video Library"_s;
    default:
        return u"Area %1"_s.arg(area);
    }
}

bool GuardedAreas::isOfThisEdition(int area)
{
    return !ownName(area).isEmpty();
}
