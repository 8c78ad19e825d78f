// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/window/sheetlook.h"

#include <QApplication>
#include <QFontMetrics>

#include <algorithm>

namespace {
constexpr int leastRowHeight = 28;
constexpr int leastDenseHeight = 22;
constexpr QColor darkRed(0x80, 0, 0); ///< colour 4 of the sixteen-colour palette
} // namespace

int SheetLook::rowHeight(Rows rows)
{
    const int line = QFontMetrics(QApplication::font()).height();
    return rows == Rows::Roomy ? std::max(leastRowHeight, line + 8) : std::max(leastDenseHeight, line + 4);
}

QFont SheetLook::fitting(QFont font, const QString &number, int room)
{
    const auto fits = [&] { return QFontMetrics(font).horizontalAdvance(number) <= room; };
    if (font.stretch() != QFont::AnyStretch)
        font.setStretch(QFont::Unstretched);
    for (const int stretch : {QFont::SemiCondensed, QFont::Condensed, QFont::ExtraCondensed}) {
        if (fits())
            break;
        font.setStretch(stretch);
    }
    return font;
}

QColor SheetLook::red(const Theme &theme)
{
    return theme.scheme == Icons::Scheme::Dark ? theme.negative : darkRed;
}

QColor SheetLook::redFill(const Theme &theme)
{
    QColor fill = theme.negative;
    fill.setAlphaF(0.12F);
    return fill;
}
