// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QFont>

/// A font as the font chooser gives it, with its colour.
struct PageFont {
    QFont font;
    QColor color = Qt::black;

    bool operator==(const PageFont &) const = default;
};
