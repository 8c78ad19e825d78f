// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "journal/model/journal.h"

/// Entries as text that leaves the journal.
namespace JournalExport {

/// Which entries.
struct Selection {
    QDate from{}; ///< invalid: from the first one
    QDate to{};   ///< invalid: up to the last one
    QString tag{};
};

/// The entries of the selection, ascending; it reads all years that it needs.
QList<JournalEntry> entries(Journal &journal, const Selection &selection);

/// A file in the form of the journal's own, which an import takes; earlier versions are not in it.
QByteArray text(const QList<JournalEntry> &entries);

/// What is copied of a day: its text as it is read, without marks, and the pictures' captions in their
/// places.
QString plainText(const JournalEntry &entry);

} // namespace JournalExport
