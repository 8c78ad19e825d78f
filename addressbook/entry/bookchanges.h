// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "addressbook/model/addressbook.h"

#include <QObject>

#include <functional>

class Commands;
class EntryEditor;
class EntryList;
class QMenu;
class TaskPanel;
class TrashPanel;
class UndoStack;
class WorkViews;
struct Program;

/// What is done to the book on the entry screen and can be undone: entries saved, deleted and brought back,
/// pictures taken.
class BookChanges final : public QObject
{
    Q_OBJECT
public:
    /// What it works on.
    struct Desk {
        AddressBook &book;
        EntryList &list;
        EntryEditor &editor;
        UndoStack &undo;
        /// Reads the list anew and shows the entry of a record in it; where that has none, the one that
        /// stands where the shown one stood.
        std::function<void(int record)> openBook;
        std::function<bool()> mayReplace; ///< asks about what was typed and not saved
        std::function<void(TaskPanel *panel)> openPanel;
    };

    BookChanges(Program &program, Desk desk, QObject *parent);

    /// Puts "Undo", "Redo" and "Bring Back Deleted..." into `edit`, and the panel of the last into `views`.
    void addCommands(QMenu *edit, Commands &commands, WorkViews &views);

    /// Deletes the shown entry, or the stray line, and says how that went.
    void removeShown();
    /// The shown entry was saved.
    void saved(const AddressBook::SaveResult &result);

signals:
    /// A quiet line for the status bar.
    void said(const QString &line);

private:
    void openTrash();
    void bringBack(const Trash::Item &item);
    void add(const QString &title, RecordChange change, int record);
    void show(int record);
    void pictureExchanged(const QString &before, const QString &now);
    ChangeResult exchangePicture(const QString &shown, const QString &wanted);

    Program &m_program;
    Desk m_desk;
    TrashPanel *m_trash = nullptr;
    bool m_isExchanging = false; ///< the picture that comes is a step's
};
