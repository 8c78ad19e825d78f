// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/programstate.h"
#include "storage/datafolder.h"
#include "storage/wholefileschange.h"
#include "todo/model/todosheet.h"

#include <QDate>
#include <QStringList>

#include <array>

/// The To Do list's files in a folder: its own, `ToDo1.Fil`, which is the authority, and the two that other
/// programs read.
class ToDoFiles
{
public:
    struct Opened {
        ToDoSheet sheet;    ///< with what was taken in
        ToDoSheet former;   ///< without it
        int takenIn = 0;    ///< items that another program has put into its file since the last save
        bool isNew = false; ///< there is no file of our own yet
        QString whyLocked;  ///< a sentence for the user; empty where the lists may be changed
    };

    explicit ToDoFiles(const DataFolder &folder)
        : m_folder(folder)
    {}

    const DataFolder &folder() const { return m_folder; }

    /// The names of the three files, in the order in which they are written.
    static QStringList names();

    /// Reads the files and writes nothing. Without a file of our own, the lists are those that the other two
    /// tell of.
    Opened open(DateStyle style, QDate today) const;
    /// The lists without what another program has put there; an empty sheet where they cannot be read.
    ToDoSheet read(DateStyle style, QDate today) const;

    /// Writes those of the three files that have changed, all of them or none. False, with a line in the log,
    /// where the disk refuses.
    [[nodiscard]] bool save(const ToDoSheet &sheet) const;
    /// Adds to `change` what `save` would write.
    void addTo(WholeFilesChange &change, const ToDoSheet &sheet) const;

private:
    /// What the three files hold then, in the order of `names`.
    std::array<QByteArray, 3> contents(const ToDoSheet &sheet) const;

    const DataFolder &m_folder;
};
