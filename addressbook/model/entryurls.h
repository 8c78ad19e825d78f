// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "addressbook/model/addressentry.h"

#include <QUrl>

/// Where the links of an entry lead. Each is empty when the texts hold nothing that it could use.
namespace EntryUrls {

/// "mailto:" and the first address in `text`.
QUrl mail(const QString &text);

/// "tel:" and the number in `text`, which may be followed by words, but not by letters in place of digits.
QUrl call(const QString &text);

/// The first web address in any text of the entry.
QUrl web(const AddressEntry &entry);

/// A search for the entry's address on a map; empty without a street or a town.
QUrl map(const AddressEntry &entry);

} // namespace EntryUrls
