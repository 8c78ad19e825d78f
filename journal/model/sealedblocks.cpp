// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/model/sealedblocks.h"

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

using Kind = SealedLabel::Kind;

constexpr QByteArrayView blockSign("=== ");
constexpr QByteArrayView earlierWord("earlier");
constexpr qsizetype dateLength = 10;
constexpr std::array<std::pair<Kind, QByteArrayView>, 3> kindWords{
    {{Kind::Entry, "entry"}, {Kind::Earlier, "earlier"}, {Kind::Head, "head"}}};

bool isDigit(char byte)
{
    return byte >= '0' && byte <= '9';
}

/// Whether the 10 bytes look like a date, of a day that there is or not.
bool looksLikeDate(QByteArrayView bytes)
{
    for (qsizetype at = 0; at < dateLength; ++at) {
        if (at == 4 || at == 7 ? bytes[at] != '-' : !isDigit(bytes[at]))
            return false;
    }
    return true;
}

QDate dateOf(QByteArrayView bytes)
{
    const auto number = [&bytes](qsizetype at, qsizetype length) {
        int value = 0;
        for (const char digit : bytes.sliced(at, length))
            value = 10 * value + (digit - '0');
        return value;
    };
    const int year = number(0, 4);
    const int month = number(5, 2);
    const int day = number(8, 2);
    return QDate::isValid(year, month, day) ? QDate(year, month, day) : QDate();
}

bool beginsBlock(QByteArrayView line)
{
    if (line.size() < blockSign.size() + dateLength || !line.startsWith(blockSign) ||
        !looksLikeDate(line.sliced(blockSign.size())))
        return false;
    const QByteArrayView rest = line.sliced(blockSign.size() + dateLength);
    return rest.isEmpty() || rest[0] == ' ' || rest[0] == '\r' || rest[0] == '\n';
}

/// The digits of a number, the first of which stands for so many `units`.
void addNumber(QByteArray &line, int number, int units)
{
    for (; units > 0; units /= 10)
        line += char('0' + number / units % 10);
}

int digitOf(char hex)
{
    return isDigit(hex) ? hex - '0' : hex >= 'a' && hex <= 'f' ? hex - 'a' + 10 : -1;
}

std::optional<SealedBlocks::Nonce> nonceOf(QByteArrayView hex)
{
    SealedBlocks::Nonce nonce{};
    if (hex.size() != 2 * qsizetype(nonce.size()))
        return std::nullopt;
    for (std::size_t i = 0; i < nonce.size(); ++i) {
        const int high = digitOf(hex[2 * qsizetype(i)]);
        const int low = digitOf(hex[2 * qsizetype(i) + 1]);
        if (high < 0 || low < 0)
            return std::nullopt;
        nonce[i] = char(16 * high + low);
    }
    return nonce;
}

std::optional<SealedBlocks::Listed> listedOf(QByteArrayView line)
{
    if (line.size() < dateLength + 2 || !looksLikeDate(line))
        return std::nullopt;
    const QByteArrayView rest = line.sliced(dateLength + 1);
    const qsizetype blank = rest.indexOf(' ');
    if (blank < 0)
        return std::nullopt;
    const auto *const known =
        std::ranges::find(kindWords, rest.first(blank), &decltype(kindWords)::value_type::second);
    const std::optional<SealedBlocks::Nonce> nonce = nonceOf(rest.sliced(blank + 1));
    if (known == kindWords.end() || !nonce)
        return std::nullopt;
    return SealedBlocks::Listed{{dateOf(line), known->first}, *nonce};
}

} // namespace

SealedLabel SealedBlocks::labelOf(QByteArrayView block)
{
    if (!beginsBlock(block))
        return {{}, Kind::Head};
    const QByteArrayView rest = block.sliced(blockSign.size() + dateLength);
    const qsizetype end = rest.indexOf('\n');
    const bool isEarlier = rest.first(end < 0 ? rest.size() : end).trimmed() == earlierWord;
    return {dateOf(block.sliced(blockSign.size())), isEarlier ? Kind::Earlier : Kind::Entry};
}

std::vector<QByteArrayView> SealedBlocks::cut(QByteArrayView plain)
{
    std::vector<QByteArrayView> blocks;
    qsizetype start = 0;
    const auto endAt = [&](qsizetype end) {
        const QByteArrayView block = plain.sliced(start, end - start);
        const bool isOurLine = start == 0 && block == plainLine;
        if (!block.isEmpty() && !isOurLine)
            blocks.push_back(block);
        start = end;
    };
    for (qsizetype at = 0; at >= 0 && at < plain.size();) {
        if (plain[at] == blockSign[0] && beginsBlock(plain.sliced(at)))
            endAt(at);
        const qsizetype lineEnd = plain.indexOf('\n', at);
        at = lineEnd < 0 ? -1 : lineEnd + 1;
    }
    endAt(plain.size());
    return blocks;
}

QByteArray SealedBlocks::encoded(const std::vector<Listed> &list)
{
    QByteArray lines;
    lines.reserve(qsizetype(list.size()) * 72);
    for (const Listed &each : list) {
        const QDate date = each.label.date; // zeros where it is none
        addNumber(lines, date.year(), 1000);
        lines += '-';
        addNumber(lines, date.month(), 10);
        lines += '-';
        addNumber(lines, date.day(), 10);
        lines += ' ';
        lines +=
            std::ranges::find(kindWords, each.label.kind, &decltype(kindWords)::value_type::first)->second;
        lines += ' ';
        lines += QByteArrayView(each.nonce).toByteArray().toHex();
        lines += "\r\n";
    }
    return lines;
}

std::vector<SealedBlocks::Listed> SealedBlocks::decoded(QByteArrayView bytes)
{
    std::vector<Listed> list;
    list.reserve(std::size_t(bytes.size() / 64));
    while (!bytes.isEmpty()) {
        const qsizetype end = bytes.indexOf('\n');
        const QByteArrayView line = end < 0 ? bytes : bytes.first(end);
        if (const std::optional<Listed> listed = listedOf(line.endsWith('\r') ? line.chopped(1) : line))
            list.push_back(*listed);
        bytes = end < 0 ? QByteArrayView() : bytes.sliced(end + 1);
    }
    return list;
}
