// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/area.h"
#include "shell/core/programstate.h"
#include "shell/program/functions.h"

#include <QSet>
#include <QString>

#include <span>

/// How a function presents itself on the main menu.
struct FunctionFace {
    Function function;
    const char *name; ///< of its card's object name: "card_" and this
    const char *icon;
    const char *title;           ///< on the card
    const char *quietLine;       ///< what it is for: its card's line while it has no news
    int area;                    ///< the guard of its menu entry and its card
    int buttonArea = Area::None; ///< the guard of its own button on the top toolbar, where that is another

    QString cardName() const;
    QString titleText() const { return QString::fromLatin1(title); }
    QString quietText() const { return QString::fromLatin1(quietLine); }
    /// Why its entries and its card cannot be used while it is not built in.
    QString missingReason() const;
    /// Whether any way into the function asks for the password: it then tells nothing of itself.
    bool isGuarded(const ProtectedAreas &areas) const;
    /// What the card of a guarded function says: that it is, and which way still opens it.
    QString guardedText(const ProtectedAreas &areas) const;
};

namespace FunctionFaces {

/// The functions with a card, in the order of the cards.
std::span<const FunctionFace> cards();

/// Any function's face; the address viewer has one too.
const FunctionFace &of(Function function);

/// The areas behind which files are sealed with a password of their function's own.
QSet<int> sealedAreas(const Program &program);

} // namespace FunctionFaces
