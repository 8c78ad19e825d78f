// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/look/colortext.h"

#include "shell/look/theme.h"

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 largestColor = 0xFFFFFF;
/// System colours are counted from here upwards.
constexpr qint64 firstSystemColor = -2147483648LL;

/// The palette's colour for each system colour, by its index.
constexpr std::array systemRoles{
    QPalette::Mid,             // scroll bar
    QPalette::Window,          // desktop
    QPalette::Highlight,       // active title bar
    QPalette::Mid,             // inactive title bar
    QPalette::Window,          // menu bar
    QPalette::Base,            // window background
    QPalette::WindowText,      // window frame
    QPalette::WindowText,      // menu text
    QPalette::WindowText,      // window text
    QPalette::HighlightedText, // title bar text
    QPalette::Window,          // active border
    QPalette::Window,          // inactive border
    QPalette::Dark,            // application workspace
    QPalette::Highlight,       // highlight
    QPalette::HighlightedText, // highlighted text
    QPalette::Window,          // button face
    QPalette::Dark,            // button shadow
    QPalette::PlaceholderText, // disabled text
    QPalette::ButtonText,      // button text
    QPalette::PlaceholderText, // inactive title bar text
    QPalette::Light,           // light edge
    QPalette::Shadow,          // dark shadow
    QPalette::Midlight,        // soft edge
    QPalette::ToolTipText,     // tool tip text
    QPalette::ToolTipBase,     // tool tip background
};

} // namespace

QString ColorText::defaultText()
{
    return u"Default"_s;
}

bool ColorText::isDefault(const QString &text)
{
    const QString trimmed = text.trimmed();
    return trimmed.isEmpty() || trimmed.compare(defaultText(), Qt::CaseInsensitive) == 0;
}

QString ColorText::encode(const QColor &color)
{
    const QRgb rgb = color.rgb();
    return QString::number(qRed(rgb) | qGreen(rgb) << 8 | qBlue(rgb) << 16);
}

std::optional<QColor> ColorText::decodeInk(const QString &text, const QPalette &palette)
{
    bool isNumber = false;
    const qint64 number = text.trimmed().toLongLong(&isNumber);
    if (!isNumber || number > largestColor)
        return {};
    if (number >= 0)
        return QColor(int(number & 0xFF), int(number >> 8 & 0xFF), int(number >> 16 & 0xFF));
    const qint64 index = number - firstSystemColor;
    if (index < 0 || index >= qint64(systemRoles.size()))
        return {};
    return palette.color(systemRoles.at(std::size_t(index)));
}

std::optional<QColor> ColorText::decode(const QString &text, const QPalette &palette)
{
    const QString trimmed = text.trimmed();
    // The designed colour, chosen in whichever scheme, goes on following the scheme.
    if (trimmed == encode(Theme::light().panel) || trimmed == encode(Theme::dark().panel))
        return {};
    return decodeInk(trimmed, palette);
}
