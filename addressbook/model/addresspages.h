#pragma once

#include "addressbook/model/addressentry.h"
#include "shell/core/page.h"

#include <functional>

/// The printed pages of the address book.
namespace AddressPages {

/// How many entries share a sheet.
enum class PerSheet { Two = 2, Four = 4, Eight = 8 };

/// Walks over the entries to print and hands each to its visitor until that returns false, so that a full
/// book is never held at once.
using Source = std::function<void(const std::function<bool(const AddressEntry &)> &visit)>;

/// Finds the file of a stored picture path; empty when there is none.
using PictureFinder = std::function<QString(const QString &stored)>;

/// One entry under "Information For " and its names; `picturePath` is the file to show beside it, or empty.
Page entryPage(const AddressEntry &entry, const QString &picturePath, DateStyle style, QDate printedOn);

/// An empty form to fill in by hand.
Page worksheet(DateStyle style, QDate printedOn);

/// The entries with their pictures, so many to a sheet. Places follow the sheet of `setup`.
Page cards(PerSheet perSheet, const PageSetup &setup, const Source &entries, const PictureFinder &find,
           DateStyle style, QDate printedOn);

/// "Ashford, Northland 75944": the last line of an address; empty without town, state and postal code.
QString townLine(const AddressEntry &entry);

/// The entry as lines of label and value, empty ones left out; for the clipboard.
QString clipboardText(const AddressEntry &entry);

} // namespace AddressPages
