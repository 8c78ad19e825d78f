// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/undostep.h"
#include "todo/model/todofiles.h"
#include "todo/model/todosheet.h"

#include <QObject>
#include <QTimer>

class ToDoDifference;
struct Program;

/// The lists as they are now. Every change is one step that can be taken back, and is written a second after
/// the last one, without a word.
class OpenLists final : public QObject
{
    Q_OBJECT
public:
    explicit OpenLists(const Program &program, QObject *parent = nullptr);

    /// A copy of it shares what is not changed.
    const ToDoSheet &sheet() const { return m_sheet; }
    /// Why nothing may be changed; empty where it may.
    QString whyLocked() const;
    /// Whether the files have everything.
    bool isSaved() const { return m_isSaved; }

    /// Reads the files; what was not saved is dropped. Returns the number of things that another program had
    /// left there, and that are taken in.
    int load();
    /// Makes the lists `wanted`, in one step that undo calls `title`; nothing happens where they are so
    /// already. False: nothing may be changed, and the user was told.
    bool change(const QString &title, const ToDoSheet &wanted);
    /// Writes what is not saved yet. False when the disk refuses.
    [[nodiscard]] bool save();
    QStringList fileNames() const { return ToDoFiles::names(); }

signals:
    /// The lists are others than before: read, changed, or a change taken back.
    void changed();
    /// Something was changed, and may be taken back.
    void edited(const UndoStep &step);
    /// The files were read or written by this window.
    void fileTouched();
    /// A quiet line for the status bar.
    void said(const QString &line);

private:
    void hold(const ToDoSheet &sheet);
    ChangeResult exchange(const ToDoDifference &difference, bool isForth);

    const Program &m_program;
    ToDoFiles m_files;
    ToDoSheet m_sheet;
    QString m_whyLocked;
    QTimer m_soon; ///< until the next save
    bool m_isSaved = true;
};
