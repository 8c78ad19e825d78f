// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QDate>

#include <vector>

/// A part of a year as its file has it: bytes that stay as they are for as long as nobody changes the day.
struct JournalBlock {
    enum Kind {
        Loose, ///< lines in front of the first entry; without a date
        Entry,
        Earlier ///< the day as it was before the last sitting that changed it
    };

    Kind kind = Entry;
    QDate date{};
    QByteArray bytes; ///< from its first line on

    bool operator==(const JournalBlock &) const = default;
};

/// The blocks of a year: loose lines first, then by date, each day's entries before its earlier ones.
using JournalBlocks = std::vector<JournalBlock>;
