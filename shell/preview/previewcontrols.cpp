// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/preview/previewcontrols.h"

#include "shell/look/theme.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionButton>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int sideGap = 14;
constexpr int iconGap = 9;
constexpr double corner = 6;
constexpr int tabWidth = 34;
constexpr int tabPadding = 16;
constexpr int sampleHeight = 40;
constexpr int leastSampleHeight = 32;

bool isMain(const QWidget &button)
{
    return button.property("main").toBool();
}

} // namespace

void ColumnButton::setSign(QLatin1StringView name)
{
    const Theme &theme = Theme::of(this);
    setIcon(isMain(*this) ? Icons::tinted(name, theme.scheme, theme.onAccent)
                          : Icons::icon(name, theme.scheme));
}

void ColumnButton::paintEvent(QPaintEvent *)
{
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text.clear();
    option.icon = {};
    QPainter painter(this);
    style()->drawControl(QStyle::CE_PushButton, &option, &painter, this);

    const int side = option.iconSize.width();
    const QRect sign(sideGap, (height() - side) / 2, side, side);
    icon().paint(&painter, sign, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
    QPalette colors = palette();
    if (isMain(*this) && isEnabled())
        colors.setColor(QPalette::ButtonText, Theme::of(this).onAccent);
    const QRect word = rect().adjusted(sign.right() + iconGap, 0, -sideGap / 2, 0);
    const bool showsKeys = style()->styleHint(QStyle::SH_UnderlineShortcut, &option, this);
    const int flags =
        int(Qt::AlignVCenter | Qt::AlignLeft) | (showsKeys ? Qt::TextShowMnemonic : Qt::TextHideMnemonic);
    style()->drawItemText(&painter, word, flags, colors, isEnabled(), text(), QPalette::ButtonText);
}

QSize EdgeTab::sizeHint() const
{
    const int word = fontMetrics().size(Qt::TextShowMnemonic, text()).width();
    return {tabWidth, word + iconSize().width() + iconGap + 2 * tabPadding};
}

void EdgeTab::paintEvent(QPaintEvent *)
{
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text.clear();
    option.icon = {};
    QPainter painter(this);
    style()->drawControl(QStyle::CE_PushButton, &option, &painter, this);
    const int side = iconSize().width();
    icon().paint(&painter, QRect((width() - side) / 2, tabPadding, side, side));
    painter.translate(width(), tabPadding + side + iconGap);
    painter.rotate(90);
    const QRect word(0, 0, height() - 2 * tabPadding - side - iconGap, width());
    style()->drawItemText(&painter, word, int(Qt::AlignCenter | Qt::TextShowMnemonic), palette(), isEnabled(),
                          text(), QPalette::ButtonText);
}

QSize FontSample::sizeHint() const
{
    return {120, sampleHeight};
}

QSize FontSample::minimumSizeHint() const
{
    return {40, leastSampleHeight};
}

void FontSample::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(palette().color(ThemeRole::line));
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), corner, corner);

    const QRectF room = QRectF(rect()).adjusted(8, 3, -8, -3);
    const QSizeF wanted = fontMetrics().size(Qt::TextSingleLine, text());
    const double scale =
        std::min({1.0, room.width() / (wanted.width() + 2), room.height() / std::max(1.0, wanted.height())});
    painter.setFont(font());
    painter.setPen(palette().color(QPalette::WindowText));
    painter.translate(room.center());
    painter.scale(scale, scale);
    const QRectF place(QPointF(-wanted.width() / 2 - 1, -wanted.height() / 2), wanted + QSizeF(2, 0));
    painter.drawText(place, Qt::AlignCenter | Qt::TextSingleLine, text());
}
