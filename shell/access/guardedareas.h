// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/programstate.h"

#include <QSet>
#include <QString>

/// What the 21 flags of password control guard, by the index of the flag (see `Area` and `ProtectedAreas`).
namespace GuardedAreas {

/// The function behind `area` as its menu entry names it, without an access key. Functions of other editions
/// are named by what is known of them, at least by their number.
QString functionName(int area);

/// The function and, where there are two ways to it, which of them `area` guards.
QString name(int area);

/// The area that guards the other way into the function behind `area`; `Area::None` where there is one way.
int otherWay(int area);

/// What a mark does for the function: asks for the password only, or its files are among the `sealed` ones.
QString level(int area, const QSet<int> &sealed);

/// By which way the function still opens without the password: "the toolbar button". Empty while `area` is
/// not marked in `areas`, has no other way, or that is marked too.
QString openWay(int area, const ProtectedAreas &areas);

/// The words for the way that `area` guards: "the toolbar button" or "the menu entry and card".
QString wayOf(int area);

/// Whether this edition opens anything through `area`; the flags of the others are only kept.
bool isOfThisEdition(int area);

} // namespace GuardedAreas
