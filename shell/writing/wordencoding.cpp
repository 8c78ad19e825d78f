// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/writing/wordencoding.h"

#include "storage/ansitext.h"

#include <algorithm>

namespace {

/// The letters and digits of an encoding's name: "iso88591" for "ISO8859-1" and "ISO-8859-1".
QByteArray plainName(const QByteArray &name)
{
    QByteArray plain = name.toLower();
    plain.removeIf([](char character) {
        return (character < 'a' || character > 'z') && (character < '0' || character > '9');
    });
    return plain;
}

} // namespace

std::optional<WordEncoding> WordEncoding::named(const QByteArray &name)
{
    const QByteArray plain = plainName(name);
    if (plain == "utf8")
        return WordEncoding(Kind::Utf8);
    if (plain == "iso88591")
        return WordEncoding(Kind::Latin1);
    if (plain == "cp1252" || plain == "windows1252" || plain == "microsoftcp1252")
        return WordEncoding(Kind::Windows1252);
    return std::nullopt;
}

std::string WordEncoding::encoded(QStringView word) const
{
    std::string letters(std::size_t(word.size()), char());
    std::ranges::transform(word, letters.begin(), [](QChar character) { return character.toLatin1(); });
    const auto isPlain = [](QChar character) { return character.unicode() < 0x80; };
    if (std::ranges::all_of(word, isPlain)) // the same in each of them
        return letters;
    switch (m_kind) {
    case Kind::Utf8:
        return word.toUtf8().toStdString();
    case Kind::Latin1:
        return std::ranges::all_of(word, [](QChar character) { return character.unicode() < 0x100; })
                   ? letters
                   : std::string();
    case Kind::Windows1252:
        return AnsiText::isHoldable(word) ? AnsiText::encode(word).toStdString() : std::string();
    }
    Q_UNREACHABLE();
}

QString WordEncoding::decoded(QByteArrayView bytes) const
{
    switch (m_kind) {
    case Kind::Utf8:
        return QString::fromUtf8(bytes);
    case Kind::Latin1:
        return QString::fromLatin1(bytes);
    case Kind::Windows1252:
        return AnsiText::decode(bytes);
    }
    Q_UNREACHABLE();
}
