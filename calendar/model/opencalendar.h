// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/model/wallcalendar.h"
#include "shell/core/undostep.h"
#include "storage/datafolder.h"

#include <QByteArray>
#include <QObject>
#include <QStringList>
#include <QTimer>

#include <optional>

class Clock;

/// A calendar as it is now. Every change is one step that can be taken back, and is written a second after
/// the last one, without a word.
class OpenCalendar final : public QObject
{
    Q_OBJECT
public:
    /// The calendar of file `number`; nothing is read before `load`.
    OpenCalendar(const DataFolder &folder, const Clock &clock, int number, QObject *parent = nullptr);

    int number() const { return m_number; }
    /// A copy of it shares what is not changed.
    const WallCalendar &calendar() const { return m_calendar; }
    /// Why nothing may be changed; empty where it may.
    QString whyLocked() const;
    /// Whether the file has everything.
    bool isSaved() const { return m_isSaved; }
    QStringList fileNames() const;

    /// Reads the file; what was not saved is dropped. One without a first month begins this January.
    void load();
    /// Makes the calendar `after`, in one step that undo calls `title`; nothing happens where it is so
    /// already. What was drafted is part of the step. False: nothing may be changed, and the user was told.
    bool change(const QString &title, const WallCalendar &after);
    /// The same while somebody types: what this becomes is one step only with `change` or `endDraft`.
    bool draft(const WallCalendar &after);
    /// Makes what was drafted, if anything, a step.
    void endDraft(const QString &title);
    /// Writes what is not saved yet. What somebody else has written into the file meanwhile becomes a
    /// calendar of its own. False when the disk refuses.
    [[nodiscard]] bool save();

signals:
    /// The calendar is another than before: read, changed, or a change taken back.
    void changed();
    /// Something was changed, and may be taken back.
    void edited(const UndoStep &step);
    /// The file was read or written here.
    void fileTouched();
    /// What somebody else had written was kept as the calendar `number`.
    void keptBeside(int number);
    /// A quiet line for the status bar.
    void said(const QString &line);

private:
    bool mayChange();
    void hold(const WallCalendar &calendar);
    void push(const QString &title, const WallCalendar &before);
    ChangeResult exchange(const WallCalendar &shown, const WallCalendar &wanted);
    [[nodiscard]] bool keepOthers();

    const DataFolder &m_folder;
    const Clock &m_clock;
    int m_number;
    WallCalendar m_calendar;
    std::optional<WallCalendar> m_beforeDraft;
    QByteArray m_bytes; ///< of the file, as it was last read or written
    QString m_whyLocked;
    QTimer m_soon; ///< until the next save
    bool m_isSaved = true;
};
