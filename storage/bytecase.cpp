// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/bytecase.h"

#include "storage/ansitext.h"

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

using ByteTable = std::array<char, 256>;

QChar characterOf(std::size_t byte)
{
    const char character = char(byte);
    return AnsiText::decode(QByteArrayView(&character, 1)).front();
}

/// Every byte of the code page in upper case; a letter whose upper case the code page lacks stays as it is.
ByteTable makeUpperTable()
{
    ByteTable table;
    for (std::size_t byte = 0; byte < table.size(); ++byte) {
        const QChar upper = characterOf(byte).toUpper();
        table[byte] = AnsiText::isHoldable(QStringView(&upper, 1))
                          ? AnsiText::encode(QStringView(&upper, 1)).front()
                          : char(byte);
    }
    return table;
}

/// Every byte as the letter that it is filed under: in lower case and without its accent.
ByteTable makeFilingTable()
{
    constexpr std::array<std::pair<char16_t, char>, 8> withoutParts{{{u'ø', 'o'},
                                                                     {u'æ', 'a'},
                                                                     {u'œ', 'o'},
                                                                     {u'ß', 's'},
                                                                     {u'ð', 'd'},
                                                                     {u'þ', 't'},
                                                                     {u'ƒ', 'f'},
                                                                     {u'’', '\''}}};
    ByteTable table;
    for (std::size_t byte = 0; byte < table.size(); ++byte) {
        const QChar lower = characterOf(byte).toLower();
        const QChar base = QString(lower).normalized(QString::NormalizationForm_D).front();
        const auto known =
            std::ranges::find(withoutParts, lower.unicode(), [](auto pair) { return pair.first; });
        if (known != withoutParts.end())
            table[byte] = known->second;
        else
            table[byte] = base.unicode() < 0x80 ? char(base.unicode()) : char(byte);
    }
    return table;
}

const ByteTable &upperTable()
{
    static const ByteTable table = makeUpperTable();
    return table;
}

const ByteTable &filingTable()
{
    static const ByteTable table = makeFilingTable();
    return table;
}

} // namespace

std::optional<QByteArray> ByteCase::folded(QStringView text)
{
    if (!AnsiText::isHoldable(text))
        return std::nullopt;
    QByteArray bytes = AnsiText::encode(text);
    const ByteTable &upper = upperTable();
    std::ranges::transform(bytes, bytes.begin(), [&upper](char byte) { return upper[quint8(byte)]; });
    return bytes;
}

bool ByteCase::contains(QByteArrayView bytes, QByteArrayView foldedText)
{
    if (foldedText.isEmpty())
        return true;
    if (foldedText.size() > bytes.size())
        return false;
    const ByteTable &upper = upperTable();
    const auto isAt = [&](const char *at) {
        return std::equal(foldedText.begin() + 1, foldedText.end(), at + 1,
                          [&upper](char sought, char byte) { return sought == upper[quint8(byte)]; });
    };
    const char *const end = bytes.data() + bytes.size() - foldedText.size() + 1;
    for (const char *at = bytes.data(); at < end; ++at) {
        if (upper[quint8(*at)] == foldedText.front() && isAt(at))
            return true;
    }
    return false;
}

std::optional<QByteArray> ByteCase::filed(QStringView text)
{
    if (!AnsiText::isHoldable(text))
        return std::nullopt;
    QByteArray bytes = AnsiText::encode(text);
    std::ranges::transform(bytes, bytes.begin(), [](char byte) { return filed(byte); });
    return bytes;
}

char ByteCase::filed(char byte)
{
    return filingTable()[quint8(byte)];
}

char ByteCase::otherCase(char byte)
{
    const ByteTable &upper = upperTable();
    const char large = upper[quint8(byte)];
    if (large != byte)
        return large;
    for (std::size_t small = 0; small < upper.size(); ++small) {
        if (upper[small] == byte && char(small) != byte)
            return char(small);
    }
    return byte;
}

int ByteCase::compare(QByteArrayView one, QByteArrayView other)
{
    const ByteTable &filed = filingTable();
    const qsizetype shorter = std::min(one.size(), other.size());
    for (qsizetype i = 0; i < shorter; ++i) {
        const int difference = int(quint8(filed[quint8(one[i])])) - int(quint8(filed[quint8(other[i])]));
        if (difference != 0)
            return difference;
    }
    if (one.size() != other.size())
        return one.size() < other.size() ? -1 : 1;
    return one.compare(other);
}
