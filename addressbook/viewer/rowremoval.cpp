// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/viewer/rowremoval.h"

#include "addressbook/model/viewerlines.h"
#include "addressbook/viewer/gridpane.h"
#include "shell/controls/activitybar.h"
#include "shell/frame/undostack.h"

void removeFromGrid(GridPane &grid, const AddressGrid::Identity &entry, UndoStack &undo,
                    ActivityBar &activity)
{
    const auto result = [](bool isDone) { return isDone ? ChangeResult::Done : ChangeResult::Outdated; };
    if (!grid.remove(entry))
        return;
    undo.push({ViewerLines::rowDeleted(entry.name),
               [&grid, entry, result] { return result(grid.bringBack(entry)); },
               [&grid, entry, result] { return result(grid.remove(entry)); }, UndoStep::Typed});
    activity.say(ViewerLines::removed(entry.name));
    undo.offer();
}
