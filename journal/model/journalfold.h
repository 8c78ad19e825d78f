// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "journal/model/journalblock.h"

#include <QStringView>

#include <utility>
#include <vector>

/// The texts of entries as they are searched: folded, in one line, without asterisks and the places of
/// pictures.
namespace JournalFold {

/// Between the text of an entry, its captions and its tags: no folded text holds it.
inline constexpr char partEnd = '\n';

/// Adds an entry to `folded`: its text, its captions, and its tags with a comma behind each. Where the tags
/// begin.
qsizetype append(QByteArray &folded, const JournalBlock &block);

/// What is typed to be looked for.
QByteArray of(QStringView text);

/// A line folded, with the place in it that each folded byte comes from, and the end behind them.
struct Line {
    QByteArray folded;
    std::vector<qsizetype> places;
};
Line line(QStringView text);

} // namespace JournalFold
