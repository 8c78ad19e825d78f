// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "journal/model/journalentry.h"

/// Where the pictures of an entry stand in its text: lines "[picture 2]" name them by their place in it.
namespace PicturePlaces {

/// The text with a line at its end for each of `count` pictures that it does not name.
QString complete(const QString &text, qsizetype count);

/// The entry with those of its pictures that its text names, numbered anew without gaps.
JournalEntry named(JournalEntry entry);

/// The text, which names the pictures behind `count` others now.
QString behind(const QString &text, qsizetype count);

} // namespace PicturePlaces
