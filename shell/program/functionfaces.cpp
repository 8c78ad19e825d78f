// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/program/functionfaces.h"

#include "shell/program/program.h"

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::array faces{
    FunctionFace{Function::AddressBook, "addressBook", "address-book", "Address Book",
                 "Names, numbers, birthdays", Area::AddressBook, Area::AddressBookButton},
    FunctionFace{Function::Planner, "planner", "planner", "Daily Planner", "Appointments day by day",
                 Area::Planner},
    FunctionFace{Function::CalendarMaker, "calendarMaker", "calendar", "Calendar Maker",
                 "Months to print and hang up", Area::None},
    FunctionFace{Function::ToDoList, "toDoList", "todo", "To Do List", "What is still to be done",
                 Area::None},
    FunctionFace{Function::Journal, "journal", "journal", "Daily Journal", "A page for every day",
                 Area::Journal},
    FunctionFace{Function::Budget, "budget", "budget", "Personal Budget", "What comes in and goes out",
                 Area::Budget},
    FunctionFace{Function::CarLog, "carLog", "car-log", "Car Log", "Care, repairs and fuel", Area::CarLog},
    FunctionFace{Function::WeightTracker, "weightTracker", "weight", "Weight Tracker", "Weigh-ins and goals",
                 Area::None},
    FunctionFace{Function::PhotoAlbum, "photoAlbum", "photo", "Photo Album", "Your pictures in albums",
                 Area::None},
    FunctionFace{Function::PasswordKeeper, "passwordKeeper", "password-keeper", "Password Keeper",
                 "Your passwords, locked away", Area::PasswordKeeper},
    FunctionFace{Function::PasswordControl, "passwordControl", "password-control", "Password Control",
                 "What the password guards", Area::None},
    FunctionFace{Function::Backup, "backup", "backup", "Backup", "A second copy of it all", Area::None},
    FunctionFace{Function::AddressViewer, "addressViewer", "address-viewer", "Address Viewer",
                 "All names in one grid", Area::AddressViewer, Area::AddressViewerButton},
};

constexpr std::size_t cardCount = faces.size() - 1; // the viewer has none

} // namespace

QString FunctionFace::cardName() const
{
    return u"card_"_s + QString::fromLatin1(name);
}

QString FunctionFace::missingReason() const
{
    return titleText() + u" is not part of this program yet."_s;
}

bool FunctionFace::isGuarded(const ProtectedAreas &areas) const
{
    return areas.isProtected(area) || areas.isProtected(buttonArea);
}

QString FunctionFace::guardedText(const ProtectedAreas &areas) const
{
    if (!areas.isProtected(area))
        return u"Protected; this card opens"_s;
    if (buttonArea != Area::None && !areas.isProtected(buttonArea))
        return u"Protected; toolbar opens"_s;
    return u"Protected"_s;
}

std::span<const FunctionFace> FunctionFaces::cards()
{
    return std::span(faces).first<cardCount>();
}

const FunctionFace &FunctionFaces::of(Function function)
{
    return *std::find_if(faces.begin(), faces.end(),
                         [function](const FunctionFace &face) { return face.function == function; });
}

QSet<int> FunctionFaces::sealedAreas(const Program &program)
{
    QSet<int> areas;
    for (const FunctionFace &face : cards()) {
        const FunctionEntry *entry = program.functions.entry(face.function);
        if (entry && entry->isSealed && entry->isSealed(program))
            areas.insert(face.area);
    }
    return areas;
}
