// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "addressbook/model/addressentry.h"

/// An address that one entry takes over from another: street, town, country and postal code as they are,
/// empty ones too, and the home phone where there is one.
namespace SameAddress {

using Texts = std::array<QString, AddressFieldCount>;

/// Whether `from` has anything to give.
bool hasAny(const AddressEntry &from);

/// `own` with the address of `from`.
Texts taken(const AddressEntry &from, Texts own);

/// The address on one line: "160 High Street, Lund, 44074, (440) 555-0100".
QString onOneLine(const Texts &texts);

/// What stands in `own` and would be replaced, on one line; empty for nothing.
QString replaced(const AddressEntry &from, const Texts &own);

} // namespace SameAddress
