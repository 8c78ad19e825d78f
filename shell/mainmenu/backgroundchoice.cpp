// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/mainmenu/backgroundchoice.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QLatin1StringView picturePrefix("WP");

bool isPlainNameCharacter(QChar character)
{
    return character.isLetterOrNumber() || character == u'_' || character == u'-';
}

} // namespace

BackgroundChoice BackgroundChoice::ofSlot(int slot)
{
    if (slot < 0 || slot >= slotCount)
        return {};
    return BackgroundChoice(picturePrefix + QString::number(slot + 1));
}

BackgroundChoice BackgroundChoice::ofRecord(const QString &text)
{
    // The record comes from a file that anybody can write: it must not lead out of the program's folder.
    if (!text.startsWith(picturePrefix) || !std::all_of(text.begin(), text.end(), isPlainNameCharacter))
        return {};
    return BackgroundChoice(text);
}

std::optional<int> BackgroundChoice::slot() const
{
    int number = 0;
    for (const QChar character : QStringView(m_name).sliced(isPlain() ? 0 : picturePrefix.size())) {
        if (character < u'0' || character > u'9' || number > slotCount)
            break;
        number = number * 10 + (character.unicode() - u'0');
    }
    if (number < 1 || number > slotCount)
        return std::nullopt;
    return number - 1;
}

QString BackgroundChoice::recordText() const
{
    return isPlain() ? u"Def"_s : m_name;
}

QString BackgroundChoice::fileName() const
{
    return isPlain() ? QString() : QString(m_name + u".jpg"_s);
}
