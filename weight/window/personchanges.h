// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "weight/model/personfiles.h"
#include "weight/window/weightdesk.h"

#include <QObject>

#include <functional>

class PersonViews;
class QAction;
class QMenu;
class TrashPanel;
class UndoStack;

/// What is done to whole persons: created, saved, deleted, brought back. Files are written at once, and what
/// made or deleted one can be taken back.
class PersonChanges final : public QObject
{
    Q_OBJECT
public:
    /// What it works with beside the person.
    struct Hands {
        UndoStack &undo;
        PersonViews &views;
        /// Reads the list anew and opens a person; the first one where there is none of that name.
        std::function<void(const QString &name)> openList;
        std::function<bool()> mayReplace; ///< asks where something is not saved
    };

    PersonChanges(const WeightDesk &desk, Hands hands, QObject *parent);

    /// "Bring Back Deleted".
    void addEditCommands(QMenu *edit);
    QAction *addCreate(QMenu *options);
    /// "Save", `Command10`.
    QAction *addSave(QMenu *options);
    /// "Save New File", `Command11`.
    QAction *addSaveNew(QMenu *options);
    /// "Delete Displayed File", `Command8`.
    QAction *addDelete(QMenu *options);

    /// Puts the persons of these names, who have a file, at the end of the list.
    void addToList(const QStringList &names);

    /// Writes what was typed, without a word where that went well. False: refused, and the user was told.
    [[nodiscard]] bool save();

signals:
    void said(const QString &line);

private:
    bool saveNew();
    bool saveShown();
    void saveByCommand();
    void saveNewByCommand();
    void start();
    void remove();
    void openTrash();
    void bringBack(const Trash::Item &item);
    void add(const QString &title, const WholeFilesChange &change, const QString &name);
    void refuseName(const Message &refusal);
    Answer ask(const Message &message) const;

    WeightDesk m_desk;
    Hands m_hands;
    TrashPanel *m_trash = nullptr;
};
