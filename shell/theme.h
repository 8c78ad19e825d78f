#pragma once

#include "shell/icons.h"

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
    static const Theme &of(const QWidget *widget);

    QPalette palette() const;
    QString styleSheet() const;

    /// Gives the application its style, palette, style sheet and base font, once at start. A high-contrast platform
    /// theme keeps its own palette and gets no style sheet.
    static void apply(QApplication &application);
};

/// Steps of the type scale, each from the application's base font.
namespace TypeScale {
QFont label();       ///< 10 pt: labels and hints
QFont body();        ///< 10.5 pt: boxes, buttons, reading
QFont group();       ///< 12 pt semibold: group headings
QFont cardTitle();   ///< 13 pt semibold
QFont emptyTitle();  ///< 16 pt semibold: the sentence of an empty panel
QFont windowTitle(); ///< 17.5 pt semibold: record and window titles
QFont date();        ///< 22 pt semibold: the date on the main menu
} // namespace TypeScale

/// Contrast of two opaque colours after the WCAG formula: 1 to 21.
double contrast(const QColor &one, const QColor &other);
/// Pure black or white, whichever contrasts more with `background`.
QColor inkOn(const QColor &background);
