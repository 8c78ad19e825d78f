// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/mainmenu/topbuttons.h"

#include "shell/mainmenu/mainmenumessages.h"

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace TopButtons {

namespace {

constexpr std::array<TopButton, count> buttons{{
    {"Address", "Family and friends: enter and look up", "address-book",
     OpensFunction{Function::AddressBook, Area::AddressBookButton}, Function::AddressBook},
    {"Viewer", "Family and friends: all in one grid", "address-viewer",
     OpensFunction{Function::AddressViewer, Area::AddressViewerButton}, Function::AddressViewer},
    {"Friends", "Family and friends data", "address-book", SameAsEntry{"mFB"}, Function::AddressBook},
    {"Calendar", "Calendar maker", "calendar", SameAsEntry{"mFCal"}, Function::CalendarMaker},
    {"Mailing", "Mailing list", "envelope", OtherEdition{0}},
    {"", "", "", Gap{}},
    {"Recipes", "Recipes", "file", OtherEdition{}},
    {"Weight", "Weight tracker", "weight", SameAsEntry{"mFWeight"}, Function::WeightTracker},
    {"Journal", "Daily journal", "journal", SameAsEntry{"mFJour"}, Function::Journal},
    {"Planner", "Daily planner", "planner", SameAsEntry{"mFP"}, Function::Planner},
    {"To Do", "To do list", "todo", SameAsEntry{"mFToDo"}, Function::ToDoList},
    {"Shopping", "Shopping list", "page", OtherEdition{}},
    {"Checks", "Check register", "worksheet", OtherEdition{3}},
    {"Medical", "Medical record", "file", OtherEdition{12}},
    {"Menus", "Menu planner", "page", OtherEdition{}},
    {"Coupons", "Coupons", "label", OtherEdition{}},
    {"Gifts", "Gift list", "page", OtherEdition{}},
    {"Budget", "Personal budget", "budget", SameAsEntry{"mMB"}, Function::Budget},
    {"Car Log", "Automobile tracker", "car-log", SameAsEntry{"mIMain"}, Function::CarLog},
    {"Loans", "Loans", "worksheet", OtherEdition{4}},
    {"Bills", "Bills to pay", "worksheet", OtherEdition{5}},
    {"Policies", "Insurance policies", "file", OtherEdition{7}},
    {"Vaccines", "Vaccinations", "file", OtherEdition{12}},
    {"Inventory", "Home inventory", "home", OtherEdition{6}},
    {"Inv View", "Home inventory view", "view",
     ShowsListFile{"HINV2.Fil", "Home Inventory View", ShowsListFile::View, 6}},
    {"Inv Total", "Home inventory rollup", "worksheet",
     ShowsListFile{"HINV2.Fil", "Home Inventory Rollup", ShowsListFile::Rollup, 6}},
    {"Videos", "Video library", "picture", OtherEdition{8}},
    {"Vid View", "Video library view", "view",
     ShowsListFile{"Video2.Fil", "Video Library View", ShowsListFile::View, 8}},
    {"Vid Total", "Video library rollup", "worksheet",
     ShowsListFile{"Video2.Fil", "Video Library Rollup", ShowsListFile::Rollup, 8}},
    {"Accounts", "Bank accounts", "worksheet", OtherEdition{10}},
    {"Music", "Music library", "file", OtherEdition{}},
    {"Books", "Book library", "file", OtherEdition{}},
    {"Garden", "Garden diary", "file", OtherEdition{}},
    {"Pets", "Pets", "file", OtherEdition{}},
    {"Trips", "Travel plans", "file", OtherEdition{}},
    {"Letters", "Letters", "mail", OtherEdition{}},
    {"Labels", "Labels", "label", OtherEdition{}},
    {"Protect", "Password control", "password-control", SameAsEntry{"mUP"}, Function::PasswordControl},
    {"Keeper", "Password keeper", "password-keeper",
     OpensFunction{Function::PasswordKeeper, Area::PasswordKeeper}, Function::PasswordKeeper},
    {"Photos", "Photo album", "photo", SameAsEntry{"mUPhoto"}, Function::PhotoAlbum},
    {"Help", "Program overview", "help", SameAsEntry{"mHI"}},
    {"Exit", "Exit Quillery", "exit", SameAsEntry{"mOE"}},
}};

constexpr std::array designed{0, 1, 3, 7, 8, 9, 10, 17, 18, 37, 38, 39, -1, 40, 41};

} // namespace

std::span<const TopButton, count> all()
{
    return buttons;
}

QString objectName(int position)
{
    return u"Toolbar1_"_s + QString::number(position);
}

Message emptyListNotice(const ShowsListFile &button)
{
    const QString title = QString::fromLatin1(button.title);
    return button.purpose == ShowsListFile::View ? StartMessages::noFilesToView(title)
                                                 : StartMessages::noFilesToRollUp(title);
}

std::span<const int> designedLayout()
{
    return designed;
}

} // namespace TopButtons
