// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class Commands;
class DataFolder;
class EmptyPage;
class EntryEditor;
class EntryLabels;
class QAction;
class WorkViews;

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

/// Puts what is done with the shown entry on the toolbar.
void addEntryTools(Commands &can, QAction *copy, QAction *print, EntryLabels &labels);

/// Puts what an empty book offers on its page.
void addEmptyButtons(EmptyPage &page, Commands &can, QAction *enter, QAction *restore);

/// Lets the picture's button show it as large as the work panel is.
void addEnlargedPicture(EntryEditor &editor, WorkViews &views, const DataFolder &folder);
