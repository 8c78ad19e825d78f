// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "addressbook/model/addressentry.h"
#include "shell/core/page.h"
#include "shell/core/pagecontext.h"

#include <functional>

class AddressBook;
class NameList;

/// The printed pages of the address book.
namespace AddressPages {

/// How many entries share a sheet.
enum class PerSheet { Two = 2, Four = 4, Eight = 8 };

/// Walks over the entries to print and hands each to its visitor until that returns false, so that a full
/// book is never held at once.
using Source = std::function<void(const std::function<bool(const AddressEntry &)> &visit)>;

/// The entries of `count` lines of `names` from `first` on, as far as there are so many; lines that lead
/// nowhere are left out. Book and names must outlive it.
Source entriesOf(const AddressBook &book, const NameList &names, int first, int count);

/// Whether the entries have more pictures than should be printed at once.
bool hasManyPictures(const Source &entries);

/// Finds the file of a stored picture path; empty when there is none.
using PictureFinder = std::function<QString(const QString &stored)>;

/// One entry under "Information For " and its names; `picturePath` is the file to show beside it, or empty.
Page entryPage(const AddressEntry &entry, const QString &picturePath, const PageContext &context);

/// An empty form to fill in by hand.
Page worksheet(const PageContext &context);

/// The entries with their pictures, so many to a sheet. Places follow the sheet of the context.
Page cards(PerSheet perSheet, const Source &entries, const PictureFinder &find, const PageContext &context);

/// "Ashford, Northland 75944": the last line of an address; empty without town, state and postal code.
QString townLine(const AddressEntry &entry);

/// The entry as lines of label and value, empty ones left out; for the clipboard.
QString clipboardText(const AddressEntry &entry);

} // namespace AddressPages
