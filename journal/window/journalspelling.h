// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class WindowWriting;
struct JournalDesk;

/// The spelling of the journal: the page is checked as one types, and walked through on demand.
namespace JournalSpelling {

/// With the other words of the thesaurus; it belongs to the window.
WindowWriting *make(const JournalDesk &desk);

} // namespace JournalSpelling
