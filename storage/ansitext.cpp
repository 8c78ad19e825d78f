// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/ansitext.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

namespace {

using CodePage = std::array<char16_t, 256>;

// Windows-1252 is Latin-1 but for these 32. The five that it leaves undefined stand for themselves, so that
// every byte that is read can be written again.
constexpr std::array<char16_t, 32> from80To9F = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

constexpr CodePage makeCodePage()
{
    CodePage page{};
    for (std::size_t byte = 0; byte < page.size(); ++byte)
        page[byte] = char16_t(byte);
    for (std::size_t i = 0; i < from80To9F.size(); ++i)
        page[0x80 + i] = from80To9F[i];
    return page;
}

constexpr CodePage codePage = makeCodePage();

constexpr int noByte = -1;

/// The byte of `character`, or noByte.
int byteOf(char16_t character)
{
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF))
        return character;
    const auto found = std::ranges::find(from80To9F, character);
    return found == from80To9F.end() ? noByte : 0x80 + int(found - from80To9F.begin());
}

bool isAscii(QByteArrayView bytes)
{
    // Lists of many thousand lines are read through here: eight bytes at a time.
    const char *at = bytes.data();
    const char *const end = at + bytes.size();
    for (; end - at >= 8; at += 8) {
        std::uint64_t eight = 0;
        std::memcpy(&eight, at, sizeof eight);
        if ((eight & 0x8080808080808080U) != 0)
            return false;
    }
    return std::all_of(at, end, [](char byte) { return (byte & 0x80) == 0; });
}

bool isAscii(QStringView text)
{
    return std::ranges::all_of(text, [](QChar character) { return character.unicode() < 0x80; });
}

QString composed(QStringView text)
{
    return text.toString().normalized(QString::NormalizationForm_C);
}

/// Characters of `text` from `at` that belong together: 2 for a surrogate pair, which is never in the code
/// page.
qsizetype unitsAt(QStringView text, qsizetype at)
{
    return text[at].isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate() ? 2 : 1;
}

/// A zero byte means "never written" in a file, so its character is as foreign as one without a byte.
bool isForeign(QChar character)
{
    return character.isNull() || byteOf(character.unicode()) == noByte;
}

} // namespace

QByteArray AnsiText::encode(QStringView text)
{
    if (isAscii(text))
        return text.toLatin1();

    const QString whole = composed(text);
    QByteArray bytes;
    bytes.reserve(whole.size());
    for (qsizetype at = 0; at < whole.size(); at += unitsAt(whole, at)) {
        const int byte = byteOf(whole[at].unicode());
        bytes += byte == noByte ? '?' : char(byte);
    }
    return bytes;
}

QString AnsiText::decode(QByteArrayView bytes)
{
    if (isAscii(bytes))
        return QString::fromLatin1(bytes);

    QString text(bytes.size(), Qt::Uninitialized);
    std::ranges::transform(bytes, text.begin(),
                           [](char byte) { return QChar(codePage[std::uint8_t(byte)]); });
    return text;
}

bool AnsiText::isHoldable(QStringView text)
{
    return foreignCharacters(text).isEmpty();
}

QString AnsiText::foreignCharacters(QStringView text)
{
    const QString whole = isAscii(text) ? text.toString() : composed(text);
    QString foreign;
    for (qsizetype at = 0; at < whole.size(); at += unitsAt(whole, at)) {
        const QStringView character = QStringView(whole).sliced(at, unitsAt(whole, at));
        if (isForeign(character.front()) && !foreign.contains(character))
            foreign += character;
    }
    return foreign;
}

QByteArray AnsiText::field(QStringView text, qsizetype width)
{
    return encode(text).leftJustified(std::max<qsizetype>(width, 0), ' ', true);
}

QString AnsiText::fieldText(QByteArrayView bytes)
{
    if (const qsizetype zero = bytes.indexOf('\0'); zero >= 0)
        bytes.truncate(zero);
    // Most of a field is blanks: no call for each of them.
    qsizetype length = bytes.size();
    while (length > 0 && bytes[length - 1] == ' ')
        --length;
    return decode(bytes.first(length));
}

QStringView AnsiText::trimmedBlanks(QStringView text)
{
    while (text.startsWith(u' '))
        text = text.sliced(1);
    return trimmedBlanksRight(text);
}

QStringView AnsiText::trimmedBlanksRight(QStringView text)
{
    while (text.endsWith(u' '))
        text.chop(1);
    return text;
}
