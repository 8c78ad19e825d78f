// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// What is counted and told of the text of an entry.
namespace JournalWords {

/// The words of a text: what stands between blanks and has a letter or a digit. Places of pictures have none.
int count(const QString &text);

/// The first line of a text that says something, without its signs.
QString firstLine(const QString &text);

} // namespace JournalWords
