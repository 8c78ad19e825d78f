// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "addressbook/model/addressbook.h"

#include <QObject>

#include <functional>

class EntryEditor;
class EntryList;
class QMenu;
class UndoStack;

/// What is done to the book on the entry screen and can be undone: entries saved and deleted, pictures taken.
class BookChanges final : public QObject
{
    Q_OBJECT
public:
    /// What it works on. `openBook` reads the list anew and shows the entry of a record in it; where that has
    /// none, the one that stands where the shown one stood.
    struct Desk {
        AddressBook &book;
        EntryList &list;
        EntryEditor &editor;
        UndoStack &undo;
        std::function<void(int record)> openBook;
    };

    BookChanges(Desk desk, QObject *parent);

    /// Deletes the shown entry, or the stray line, and says how that went.
    void removeShown();
    /// The shown entry was saved.
    void saved(const AddressBook::SaveResult &result);
    void takePicture(const QString &path);

signals:
    /// A quiet line for the status bar.
    void said(const QString &line);

private:
    void show(int record);
    ChangeResult exchangePicture(const QString &shown, const QString &wanted);

    Desk m_desk;
};
