#pragma once

#include <QString>

/// What the 21 flags of password control guard, by the index of the flag (see `Area` and `ProtectedAreas`).
namespace GuardedAreas {

/// The function behind `area` as its menu entry names it, without an access key. Areas of other editions are
/// named by what is known of them, at least by their number.
QString name(int area);

/// Whether this edition opens anything through `area`; the flags of the others are only kept.
bool isOfThisEdition(int area);

} // namespace GuardedAreas
