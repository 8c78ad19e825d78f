// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "journal/model/journalblock.h"
#include "journal/model/journalentry.h"

/// The plain form of the journal's years.
namespace JournalForm {

/// What the bytes of a year's file are.
enum class Form {
    Empty,
    Plain,
    Sealed,
    Later,  ///< written by a later version
    Binary, ///< holds zero bytes, which no text does
    Foreign ///< does not begin as our files do
};
Form formOf(QByteArrayView file);

/// What the first line of a sealed year begins with.
inline constexpr QByteArrayView sealedLine("Quillery journal sealed ");

/// The years that there can be.
inline constexpr int firstYear = 1000;
inline constexpr int lastYear = 9999;

/// The blocks of a plain file, whatever its bytes are. A line that names a date of another year is a line of
/// the text that it stands in.
JournalBlocks blocks(QByteArrayView file, int year);
/// The plain file that holds `blocks`, which are in order.
QByteArray file(const JournalBlocks &blocks);
/// Puts blocks into their order.
void sort(JournalBlocks &blocks);

/// The block of an entry that was written or changed.
JournalBlock block(const JournalEntry &entry, JournalBlock::Kind kind);
/// What a block says.
JournalEntry entry(const JournalBlock &block);
/// The same without when it was written: much faster, for where many are looked at.
JournalEntry untimed(const JournalBlock &block);
/// That without the text.
JournalEntry head(const JournalBlock &block);
/// Two entries of one day as one: what `second` has stands under what `first` has.
JournalEntry joined(const JournalEntry &first, const JournalEntry &second);

/// An entry as its file can hold it: line ends are line feeds, times whole minutes, tags without commas, each
/// once.
JournalEntry tidied(JournalEntry entry);

/// The lines that a block says things in, and its text, as they stand in its bytes.
struct Parts {
    std::vector<QByteArrayView> head; ///< behind the line with the date
    QByteArrayView body;
};
Parts partsOf(QByteArrayView block);

/// Calls `visit` with each line of `text`, without its end.
template <typename Visit>
void forEachLine(QByteArrayView text, Visit visit)
{
    while (!text.isEmpty()) {
        const qsizetype end = text.indexOf('\n');
        QByteArrayView line = end < 0 ? text : text.first(end);
        text = end < 0 ? QByteArrayView() : text.sliced(end + 1);
        if (line.endsWith('\r'))
            line.chop(1);
        visit(line);
    }
}

} // namespace JournalForm
