// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "addressbook/model/addressentry.h"
#include "shell/core/pagecontext.h"
#include "shell/core/pagesheets.h"

#include <functional>
#include <vector>

class AddressBook;
class NameList;

/// The printed pages of the address book.
namespace AddressPages {

/// How many entries share a sheet.
enum class PerSheet { Two = 2, Four = 4, Eight = 8 };

/// The entries to print. They are read as they are needed: a full book is never held at once.
struct Entries {
    int count = 0;
    /// Those from `first` on, at most `count`.
    std::function<std::vector<AddressEntry>(int first, int count)> read;
};

/// The records that `count` lines of `names` from `first` on lead to, as far as there are so many; lines that
/// lead nowhere are left out.
std::vector<int> recordsOf(const NameList &names, int first, int count);
/// The book must outlive the entries.
Entries entriesOf(const AddressBook &book, std::vector<int> records);

/// More pictures should not be printed at once.
inline constexpr int recommendedPictures = 16;
/// How many of the entries have a picture; who finds more than are recommended counts no further.
int countPictures(const Entries &entries);

/// Finds the file of a stored picture path; empty when there is none.
using PictureFinder = std::function<QString(const QString &stored)>;

/// One entry under "Information For " and its names, without what is empty; `picturePath` is the file to show
/// beside it, or empty.
Page entryPage(const AddressEntry &entry, const QString &picturePath, const PageContext &context);

/// An empty form to fill in by hand.
Page worksheet(const PageContext &context);

/// Whether the cards leave a place for the picture, each at the same spot; one without a picture leaves it
/// empty.
enum class PicturePlaces { None, OnEachCard };

/// The entries with their pictures, so many to a sheet. Places follow the sheet of the context.
PageSheets cards(PerSheet perSheet, const Entries &entries, PicturePlaces pictures, const PictureFinder &find,
                 const PageContext &context);

/// "Ashford, Northland 75944": the last line of an address; empty without town, state and postal code.
QString townLine(const AddressEntry &entry);

/// The entry as lines of label and value, empty ones left out; for the clipboard.
QString clipboardText(const AddressEntry &entry);

} // namespace AddressPages
