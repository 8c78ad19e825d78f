// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "journal/model/journalentry.h"
#include "shell/core/page.h"
#include "shell/core/pagecontext.h"

#include <functional>

/// What is printed of the journal. Pages are made of values; which entries are read, and where pictures are
/// found, is the caller's affair.
namespace JournalPages {

enum class PictureSize { None, Small, Medium, Large };

struct Options {
    PictureSize pictures = PictureSize::Medium;
    bool eachOnNewSheet = false; ///< where there is more than one day
    bool hasFacts = true;        ///< what other functions have for the day

    bool operator==(const Options &) const = default;
};

/// What the pages are made of.
struct Source {
    QList<JournalEntry> entries{}; ///< by date
    /// Where a picture of an entry is found; without it, where the entry says.
    std::function<QString(const QString &path)> picturePath{};
    /// What other functions have for a date, in short.
    std::function<QStringList(QDate date)> facts{};
    QStringList people{}; ///< whom the household knows, for the yearbook's index
};

/// One day, under its date.
Page day(const Source &source, QDate date, const Options &options, const PageContext &context);
/// The days from `from` to `to` that have an entry.
Page range(const Source &source, QDate from, QDate to, const Options &options, const PageContext &context);
/// All entries with a tag, in whatever letters it is written.
Page tag(const Source &source, const QString &tag, const Options &options, const PageContext &context);
/// The month of `date` as a calendar, with the beginning of each entry in its day.
Page month(const Source &source, QDate date, Qt::DayOfWeek firstDay, const PageContext &context);
/// The year as a book: title sheet, contents by month, the entries, and an index of tags and people.
Page yearbook(const Source &source, int year, const Options &options, const PageContext &context);

} // namespace JournalPages
