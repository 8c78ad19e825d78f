// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/knownperson.h"
#include "shell/core/programstate.h"

#include <QDate>
#include <QList>
#include <QStringList>

class DataFolder;

/// What the address book holds, for the rest of the household. Nothing is made by asking.
namespace AddressHoldings {

/// The persons of the book in record order: "Anne Lind".
QStringList names(const DataFolder &folder);

/// The same persons with their records and dates of birth; none is born after `today`.
QList<KnownPerson> persons(const DataFolder &folder, DateStyle style, QDate today);

/// Those of the book's files that are there.
QStringList files(const DataFolder &folder);

/// The entries' pictures as full paths, each once; those that are not to be found are left out.
QStringList pictures(const DataFolder &folder);

} // namespace AddressHoldings
