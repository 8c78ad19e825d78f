// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/mainmenu/functionsmenu.h"

#include "shell/frame/commands.h"
#include "shell/mainmenu/functionopener.h"
#include "shell/mainmenu/menukeys.h"
#include "shell/program/functionfaces.h"
#include "shell/program/program.h"

#include <QMenu>

namespace {

/// An entry of the menu, which opens a function.
struct Entry {
    const char *name;
    const char *caption;
    Function function;
    const char *separator = nullptr; ///< below the entry
};

constexpr Entry entries[] = {
    {"mIMain", "&Automobile Tracker", Function::CarLog, "mO22"},
    {"mFCal", "&Calendar Maker", Function::CalendarMaker, "mO25"},
    {"mFB", "&Family/Friends Data", Function::AddressBook},
    {"MfViewer", "&Family/Friends Viewer", Function::AddressViewer, "mO7"},
    {"mMB", "&Personal Budget", Function::Budget, "mO40"},
    {"mFJour", "&Personal Journal", Function::Journal},
    {"mFP", "&Personal Planner", Function::Planner},
    {"mFToDo", "&Personal To Do List", Function::ToDoList, "mO8"},
    {"mUPhoto", "&Photo Album", Function::PhotoAlbum, "mO9"},
    {"mPWKpr", "&Passowrd Keerper", Function::PasswordKeeper, "mO23"},
    {"mUP", "&Password Control", Function::PasswordControl, "mO24"},
    {"mFWeight", "&Weight Tracker", Function::WeightTracker},
};

} // namespace

void fillFunctionsMenu(QMenu &menu, Commands &commands, const Program &program, const FunctionOpener &opener)
{
    new MenuKeys(&menu); // seven entries share the P
    for (const Entry &entry : entries) {
        const Function function = entry.function;
        commands.add(
            &menu, QString::fromLatin1(entry.name), QString::fromLatin1(entry.caption),
            [&opener, function] { opener.open(function); },
            [&program, function] {
                return program.functions.has(function) ? QString()
                                                       : FunctionFaces::of(function).missingReason();
            });
        if (entry.separator)
            menu.addSeparator()->setObjectName(QString::fromLatin1(entry.separator));
    }
}
