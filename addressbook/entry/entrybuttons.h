// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class Commands;
class EmptyPage;
class EntryEditor;
class QAction;

/// The commands whose buttons stand in the foot of an entry.
struct EntryCommands {
    QAction *clear;
    QAction *remove;
    QAction *picture;
    QAction *printOptions;
    QAction *otherScreen;
    QAction *modify;
    QAction *saveNew;
    QAction *exit;
};

/// Puts the buttons into the foot, each on its screens.
void addEntryButtons(EntryEditor &editor, Commands &can, const EntryCommands &entry);

/// Puts what an empty book offers on its page.
void addEmptyButtons(EmptyPage &page, Commands &can, QAction *enter, QAction *restore);
