// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/charts/chartstyle.h"

#include "shell/look/theme.h"

#include <QApplication>
#include <QFontMetrics>
#include <QWidget>

#include <algorithm>

namespace {

constexpr int leastRowHeight = 28;
constexpr int paperRowHeight = 17;
constexpr int screenInset = 6;
constexpr double leastContrast = 3;

QFont pixels(int size, QFont::Weight weight = QFont::Normal)
{
    QFont font = QApplication::font();
    font.setPixelSize(size);
    font.setWeight(weight);
    return font;
}

} // namespace

/// Of the palette: a panel of the user's colour passes its ink on. The bars keep their hue where it can be
/// seen.
ChartStyle ChartStyle::onScreen(const QWidget *widget)
{
    const QPalette palette = widget->palette();
    const QColor ground = palette.color(QPalette::Window);
    const QColor accent = Theme::of(widget).accent;
    return {.ground = ground,
            .text = palette.color(QPalette::WindowText),
            .quiet = palette.color(ThemeRole::quiet),
            .line = palette.color(ThemeRole::line),
            .series = contrast(accent, ground) >= leastContrast ? accent : palette.color(ThemeRole::strong),
            .title = TypeScale::group(),
            .body = TypeScale::body(),
            .label = TypeScale::label(),
            .rowHeight = std::max(leastRowHeight, QFontMetrics(TypeScale::body()).height() + 8),
            .inset = screenInset};
}

ChartStyle ChartStyle::onPaper(int inset)
{
    return {.ground = Qt::white,
            .text = Qt::black,
            .quiet = Qt::black,
            .line = QColor(0xDD, 0xDD, 0xDD),
            .series = QColor(0x0B, 0x67, 0x60),
            .title = pixels(15, QFont::DemiBold),
            .body = pixels(12),
            .label = pixels(12),
            .rowHeight = paperRowHeight,
            .inset = inset};
}
