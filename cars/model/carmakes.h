// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

/// The makes of cars and their models, to choose from; any other text is good as well.
namespace CarMakes {

/// The 43 makes in the order of the alphabet.
QStringList makes();

/// The models of `make`, whatever its case, in order; none for a make that is not among them.
QStringList models(const QString &make);

} // namespace CarMakes
