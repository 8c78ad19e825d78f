// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/look/icons.h"

#include <QColor>
#include <QPalette>

class QApplication;
class QWidget;

/// The colours that the program is drawn in: one set for light desktops, one for dark ones.
struct Theme {
    Icons::Scheme scheme;
    QColor ground, bar, panel, field, locked;
    QColor text, quiet, line, edge;
    QColor accent, onAccent, soft, mark;
    QColor alternate, head, disabledText, due, negative;
    QColor desk; ///< behind the sheets of the page preview

    static const Theme &light();
    static const Theme &dark();
    /// The set that `palette` belongs to: dark when its window colour is darker than half.
    static const Theme &of(const QPalette &palette);
    /// The set that the application is drawn in; a panel colour of the user's does not change it.
    static const Theme &of(const QWidget *widget);

    /// Soft fill of a pressed control: 10 % darker than `soft`.
    QColor pressed() const { return soft.darker(111); }

    QPalette palette() const;
    /// What a panel passes on to everything that stands on it; an invalid `fill` is the designed colour, an
    /// invalid `ink` the designed text colours.
    QPalette panelPalette(const QColor &fill = {}, const QColor &ink = {}) const;
    QString styleSheet() const;

    /// Gives the application its style, palette, style sheet and base font, once at start. A high-contrast
    /// platform theme keeps its own palette and gets no style sheet.
    static void apply(QApplication &application);
};

/// Palette roles that the program's own controls draw with, so that a coloured panel passes its ink on to
/// them.
namespace ThemeRole {
inline constexpr QPalette::ColorRole quiet = QPalette::LinkVisited;  ///< labels, hints
inline constexpr QPalette::ColorRole strong = QPalette::Link;        ///< links, "required"
inline constexpr QPalette::ColorRole line = QPalette::Mid;           ///< separators, the panel's rim
inline constexpr QPalette::ColorRole mainRim = QPalette::BrightText; ///< rim of the main button
} // namespace ThemeRole

/// Steps of the type scale, each from the application's base font.
namespace TypeScale {
QFont label();       ///< 10 pt: labels and hints
QFont body();        ///< 10.5 pt: boxes, buttons, reading
QFont strong();      ///< 10.5 pt semibold: the activity, the main button
QFont group();       ///< 12 pt semibold: group headings
QFont cardTitle();   ///< 13 pt semibold
QFont emptyTitle();  ///< 16 pt semibold: the sentence of an empty panel
QFont windowTitle(); ///< 17.5 pt semibold: record and window titles
QFont date();        ///< 22 pt semibold: the date on the main menu
/// A width that was designed for words, in the user's base font.
int wide(int pixels);
} // namespace TypeScale

/// Contrast of two opaque colours after the WCAG formula: 1 to 21.
double contrast(const QColor &one, const QColor &other);
/// `ink` drawn nearer to `background`, to be quiet on it, as far as it stays well readable (5:1); `ink`
/// itself where it is not.
QColor quietOn(const QColor &background, const QColor &ink);
/// Pure black or white, whichever contrasts more with `background`.
QColor inkOn(const QColor &background);
