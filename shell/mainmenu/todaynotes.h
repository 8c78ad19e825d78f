// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/programstate.h"
#include "shell/program/functions.h"
#include "storage/filestamp.h"

#include <QList>

#include <map>

struct FunctionFace;
struct Program;

/// What today and the next seven days hold, over all functions. As with the cards' news, a function's files
/// are read when first asked for, and again only when one of them has changed or a new day has come.
class TodayNotes
{
public:
    static constexpr int daysAhead = 7;

    struct Note {
        DayNote note;
        Function function;
        bool isOver = false; ///< its time today has passed
        bool operator==(const Note &) const = default;
    };

    explicit TodayNotes(const Program &program)
        : m_program(program)
    {}

    /// Reads what is new. A guarded function is not read at all. False when everything is as it was, and
    /// nothing is over that was not before.
    bool refresh();

    /// By day; in a day first what concerns the whole of it, then by time, then what is to be done some time.
    const QList<Note> &notes() const { return m_notes; }
    QDate today() const { return m_today; }
    /// Whether every function with notes was asked, and there is one.
    bool isWhole() const { return m_isWhole; }

private:
    struct Reading {
        FileStamp files;
        QDate day;
        DateStyle style;
        bool isGuarded;
        bool operator==(const Reading &) const = default;
    };
    struct Known {
        Reading reading;
        QList<DayNote> notes;
    };

    bool read(const FunctionFace &face, const FunctionEntry &entry);
    void gather();
    void leaveOutWhatIsSaidTwice();
    bool isOver(const DayNote &note) const;

    const Program &m_program;
    std::map<Function, Known> m_known;
    QList<Note> m_notes;
    QDate m_today;
    bool m_isWhole = false;
};
