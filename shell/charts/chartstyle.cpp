// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/charts/chartstyle.h"

#include "shell/look/theme.h"

#include <QApplication>
#include <QFontMetrics>
#include <QWidget>

#include <algorithm>
#include <array>

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

/// Of the lines behind the first, which has the accent.
constexpr std::array<QRgb, 5> hues{0x97501F, 0x2B6296, 0x7A4588, 0x4A7326, 0x505A66};

QColor halfWayToWhite(QColor color)
{
    return {(color.red() + 255) / 2, (color.green() + 255) / 2, (color.blue() + 255) / 2};
}

} // namespace

QPen ChartStyle::linePen(qsizetype index) const
{
    QPen pen(lineColor(index), isOnPaper ? 1.5 : 2, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
    static const QList<QList<qreal>> dashes{{}, {6, 3}, {2, 2}, {8, 3, 2, 3}, {12, 4}, {2, 5}};
    const bool isLikeFirst = index > 0 && lineColor(index) == lineColor(0);
    if (const QList<qreal> &pattern = dashes[index % dashes.size()];
        (isOnPaper || isLikeFirst) && !pattern.isEmpty())
        pen.setDashPattern(pattern);
    return pen;
}

QColor ChartStyle::groundOf(const QWidget *widget)
{
    while (!widget->palette().brush(QPalette::Window).isOpaque() && widget->parentWidget())
        widget = widget->parentWidget();
    return widget->palette().color(QPalette::Window);
}

/// Of the palette: a panel of the user's colour passes its ink on. Bars and lines keep their hue where it can
/// be seen, or take that of the other scheme where this one can.
ChartStyle ChartStyle::onScreen(const QWidget *widget)
{
    const QPalette palette = widget->palette();
    const QColor ground = groundOf(widget);
    const bool isDark = Theme::of(widget).scheme == Icons::Scheme::Dark;
    const auto visible = [&](const QColor &onLight, const QColor &onDark) {
        for (const QColor &color : {isDark ? onDark : onLight, isDark ? onLight : onDark}) {
            if (contrast(color, ground) >= leastContrast)
                return color;
        }
        return palette.color(ThemeRole::strong);
    };
    QList<QColor> lines{visible(Theme::light().accent, Theme::dark().accent)};
    for (const QRgb hue : hues)
        lines << visible(QColor(hue), halfWayToWhite(hue));
    return {.ground = ground,
            .text = palette.color(QPalette::WindowText),
            .quiet = palette.color(ThemeRole::quiet),
            .line = palette.color(ThemeRole::line),
            .series = lines.first(),
            .lines = lines,
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
            .lines = {Qt::black},
            .isOnPaper = true,
            .title = pixels(15, QFont::DemiBold),
            .body = pixels(12),
            .label = pixels(12),
            .rowHeight = paperRowHeight,
            .inset = inset};
}
