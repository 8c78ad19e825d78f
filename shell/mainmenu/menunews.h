// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/programstate.h"
#include "shell/program/functions.h"
#include "storage/filestamp.h"

#include <QDateTime>
#include <QList>

#include <map>
#include <optional>

struct FunctionFace;
struct Program;

/// What the main menu has to say today: the live line of each card and the sentence under the date. Each
/// function's files are read when first asked for, and again only when one of them has changed or a new day
/// has come.
class MenuNews
{
public:
    explicit MenuNews(Program &program)
        : m_program(program)
    {}

    /// Reads what is new. A guarded function is not read at all.
    void refresh();

    /// The line of a card; empty for a function that is not built in or has no news.
    std::optional<LiveLine> line(Function function) const;

    /// "Good morning. Anne Lind has a birthday on Tuesday."
    QString sentence() const;

    /// Greets by the time of `now` and tells the most urgent of `lines` that has a sentence, the first among
    /// equals; without any it wishes a good day.
    static QString sentence(const QDateTime &now, const QList<LiveLine> &lines);

private:
    struct Reading {
        FileStamp files;
        QDate day;
        int minute; ///< of the day, for news that go on with the clock; else 0
        DateStyle style;
        QString guarded; ///< what the card says of it; empty while every way is open
        bool operator==(const Reading &) const = default;
    };
    struct Known {
        Reading reading;
        std::optional<LiveLine> line;
    };

    Reading readingOf(const FunctionFace &face, const FunctionEntry &entry) const;

    Program &m_program;
    std::map<Function, Known> m_known;
};
