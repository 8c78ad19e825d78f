// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/foldedtext.h"

#include "storage/ansitext.h"
#include "storage/utf8text.h"

#include <QString>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <vector>

namespace {

/// What a character is folded to, in UTF-8.
struct Folded {
    std::array<char, 3> bytes{};
    quint8 length = 0;
};

Folded of(QByteArrayView utf8)
{
    Folded folded;
    folded.length = quint8(std::min<qsizetype>(utf8.size(), qsizetype(folded.bytes.size())));
    std::copy_n(utf8.data(), folded.length, folded.bytes.begin());
    return folded;
}

/// Letters that are more than a letter and its accent.
QByteArrayView written(char32_t character)
{
    switch (character) {
    case U'\u00df': // sharp s
        return "ss";
    case U'\u00e6': // ae
        return "ae";
    case U'\u0153': // oe
        return "oe";
    case U'\u00f8': // o with a stroke
        return "o";
    case U'\u00f0': // eth
    case U'\u0111': // d with a stroke
        return "d";
    case U'\u00fe': // thorn
        return "th";
    case U'\u0142': // l with a stroke
        return "l";
    case U'\u0131': // i without a dot
        return "i";
    default:
        return {};
    }
}

constexpr char32_t tableEnd = 0x2000;

Folded foldedLetter(char32_t character)
{
    if (character < U' ' || (character >= 0x7F && character <= 0xA0))
        return of(" ");
    if (character >= 0x0300 && character < 0x0370) // accents by themselves
        return {};
    const bool hasAccents = character < 0x0530 || character >= 0x1E00;
    const QChar letter{char16_t(character)};
    const QChar base = hasAccents ? QString(letter).normalized(QString::NormalizationForm_D).front() : letter;
    const QChar folded = base.toCaseFolded();
    const QByteArrayView known = written(folded.unicode());
    return known.isEmpty() ? of(QString(folded).toUtf8()) : of(known);
}

const Folded &inTable(char32_t character)
{
    static const std::vector<Folded> table = [] {
        std::vector<Folded> letters;
        letters.reserve(tableEnd);
        for (char32_t letter = 0; letter < tableEnd; ++letter)
            letters.push_back(foldedLetter(letter));
        return letters;
    }();
    return table[character];
}

/// Blanks, dashes and quotes count as those of the keyboard.
QByteArrayView likeOnTheKeyboard(char32_t character)
{
    if ((character >= 0x2000 && character <= 0x200A) || character == 0x202F || character == 0x205F ||
        character == 0x3000 || character == 0x2028 || character == 0x2029)
        return " ";
    if (character >= 0x2010 && character <= 0x2015)
        return "-";
    if (character >= 0x2018 && character <= 0x201B)
        return "'";
    if (character >= 0x201C && character <= 0x201F)
        return "\"";
    return {};
}

char *put(char *at, QByteArrayView bytes)
{
    return std::copy(bytes.begin(), bytes.end(), at);
}

/// A character of three bytes or four.
char *putUtf8(char *at, char32_t character)
{
    const auto next = [](char32_t bits) { return char(0x80U | (bits & 0x3FU)); };
    if (character > 0xFFFF) {
        *at++ = char(0xF0U | (character >> 18U));
        *at++ = next(character >> 12U);
    } else {
        *at++ = char(0xE0U | (character >> 12U));
    }
    *at++ = next(character >> 6U);
    *at++ = next(character);
    return at;
}

char *putFolded(char *at, char32_t character)
{
    if (character < tableEnd) {
        const Folded &folded = inTable(character);
        // All of them are copied: it takes no branch, and what follows goes over it.
        std::memcpy(at, folded.bytes.data(), folded.bytes.size());
        return at + folded.length;
    }
    if (character >= 0x200B && (character <= 0x200F || character == 0xFEFF)) // nothing to be seen
        return at;
    if (const QByteArrayView known = likeOnTheKeyboard(character); !known.isEmpty())
        return put(at, known);
    const char32_t folded = QChar::toCaseFolded(character);
    return folded < tableEnd ? putFolded(at, folded) : putUtf8(at, folded);
}

char foldedAscii(char byte)
{
    const auto letter = quint8(byte);
    const quint8 small = letter + quint8(quint8(letter - 'A') < 26 ? 'a' - 'A' : 0);
    return char(quint8(small - ' ') < 0x5F ? small : quint8(' '));
}

/// Folds so many bytes of one character each. As none of them lies where another goes, the compiler takes
/// sixteen at once.
template <std::size_t count>
void foldAsciiPiece(const char *__restrict at, char *__restrict out)
{
    for (std::size_t i = 0; i < count; ++i)
        out[i] = foldedAscii(at[i]);
}

/// The same where so many stand next; else nothing.
template <std::size_t count>
bool foldNextAscii(const char *&at, const char *end, char *&out)
{
    if (std::size_t(end - at) < count)
        return false;
    std::uint64_t all = 0;
    for (std::size_t i = 0; i < count; i += sizeof all) {
        std::uint64_t word = 0;
        std::memcpy(&word, at + i, sizeof word);
        all |= word;
    }
    if ((all & 0x8080808080808080U) != 0)
        return false;
    foldAsciiPiece<count>(at, out);
    at += count;
    out += count;
    return true;
}

/// Bytes of one character each, as many as stand together; where they end.
const char *foldAscii(const char *at, const char *end, char *&out)
{
    while (foldNextAscii<32>(at, end, out)) {}
    foldNextAscii<16>(at, end, out);
    foldNextAscii<8>(at, end, out);
    while (at < end && quint8(*at) < 0x80)
        *out++ = foldedAscii(*at++);
    return at;
}

char32_t characterOf(QByteArrayView bytes)
{
    constexpr unsigned bitsOfNext = 6;
    constexpr std::array<unsigned, 5> bitsOfFirst{0, 0x7F, 0x1F, 0x0F, 0x07};
    char32_t character = quint8(bytes.front()) & bitsOfFirst[std::size_t(bytes.size())];
    for (const char byte : bytes.sliced(1))
        character = (character << bitsOfNext) | (quint8(byte) & 0x3FU);
    return character;
}

/// As most letters are that are not ASCII.
bool isOfTwoBytes(QByteArrayView bytes)
{
    const auto lead = quint8(bytes.front());
    return lead >= 0xC2 && lead < 0xE0 && bytes.size() > 1 && (quint8(bytes[1]) & 0xC0U) == 0x80;
}

} // namespace

char *FoldedText::write(char *out, QByteArrayView bytes)
{
    const char *at = bytes.data();
    const char *const end = at + bytes.size();
    while (at < end) {
        if (quint8(*at) < 0x80) {
            at = foldAscii(at, end, out);
            continue;
        }
        const QByteArrayView rest(at, end - at);
        if (isOfTwoBytes(rest)) {
            out = putFolded(out, characterOf(rest.first(2)));
            at += 2;
            continue;
        }
        const qsizetype length = Utf8Text::characterAt(rest, 0);
        out = putFolded(out, length > 0 ? characterOf(rest.first(length))
                                        : char32_t(AnsiText::decode(rest.first(1)).front().unicode()));
        at += std::max<qsizetype>(length, 1);
    }
    return out;
}

void FoldedText::append(QByteArray &folded, QByteArrayView bytes)
{
    const qsizetype before = folded.size();
    folded.resize(before + mostGrowth * bytes.size());
    folded.resize(write(folded.data() + before, bytes) - folded.constData());
}

void FoldedText::append(QByteArray &folded, char32_t character)
{
    std::array<char, 8> bytes{};
    folded.append(bytes.data(), putFolded(bytes.data(), character) - bytes.data());
}

QByteArray FoldedText::of(QStringView text)
{
    QByteArray folded;
    append(folded, text.toUtf8());
    return folded;
}
