// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/csvcells.h"

#include "shell/core/dates.h"

#include <algorithm>
#include <array>

namespace {

constexpr int mostDigits = 12;
constexpr qsizetype longestCurrency = 3;

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

bool isLetter(QChar character)
{
    return character.isLetter();
}

bool isMinus(QChar character)
{
    return character == u'-' || character == u'\u2212' || character == u'\u2013';
}

/// The number without what stands around it: blanks, a currency, a sign, which is put into `isNegative`.
QStringView bare(QStringView text, bool &isNegative)
{
    const auto isAround = [](QChar character) {
        return character.isSpace() || character.category() == QChar::Symbol_Currency;
    };
    for (qsizetype before = -1; before != text.size() && !text.isEmpty();) {
        before = text.size();
        const QChar first = text.front();
        const QChar last = text.back();
        if (isAround(first) || first == u'+' || isMinus(first)) {
            isNegative = isNegative || isMinus(first);
            text = text.sliced(1);
        } else if (isAround(last) || last == u'+' || isMinus(last)) {
            isNegative = isNegative || isMinus(last);
            text = text.chopped(1);
        } else if (first == u'(' && last == u')' && text.size() > 2) {
            isNegative = true;
            text = text.sliced(1).chopped(1);
        } else if (first.isLetter()) {
            const auto end = std::ranges::find_if_not(text, isLetter);
            if (end - text.begin() <= longestCurrency)
                text = text.sliced(end - text.begin());
        } else if (last.isLetter()) {
            qsizetype letters = 0;
            while (letters < text.size() && text[text.size() - 1 - letters].isLetter())
                ++letters;
            if (letters <= longestCurrency)
                text = text.chopped(letters);
        }
    }
    return text;
}

} // namespace

std::optional<qint64> CsvCells::amount(QStringView text, QChar decimal)
{
    bool isNegative = false;
    text = bare(text, isNegative);
    const qsizetype point = text.lastIndexOf(decimal);
    qint64 cents = 0;
    int digits = 0;
    int decimals = 0;
    for (qsizetype at = 0; at < text.size(); ++at) {
        const QChar character = text[at];
        if (isDigit(character)) {
            const bool isDecimal = point >= 0 && at > point;
            if (isDecimal && decimals == 2)
                continue; // less than a cent
            cents = cents * 10 + (character.unicode() - u'0');
            decimals += isDecimal ? 1 : 0;
            if (++digits > mostDigits)
                return {};
        } else if (at != point && character != u'.' && character != u',' && character != u'\'' &&
                   character != u'\u2019' && !character.isSpace()) {
            return {};
        }
    }
    if (digits == 0)
        return {};
    for (; decimals < 2; ++decimals)
        cents *= 10;
    return isNegative ? -cents : cents;
}

QDate CsvCells::date(QStringView text, DateOrder order)
{
    std::array<int, 3> numbers{};
    std::array<int, 3> digits{};
    std::size_t part = 0;
    for (const QChar character : text.trimmed()) {
        if (isDigit(character) && digits[part] < 8) {
            numbers[part] = numbers[part] * 10 + (character.unicode() - u'0');
            ++digits[part];
        } else if ((character == u'.' || character == u'/' || character == u'-') && part < 2 &&
                   digits[part] > 0) {
            ++part;
        } else if (part == 2 && digits[2] > 0 && (character.isSpace() || character == u'T')) {
            break; // a time
        } else {
            // Month names are rare enough to be read the long way.
            const auto named = text.size() <= 20 ? Dates::parse(text, DateStyle::Other) : std::nullopt;
            return named.value_or(QDate());
        }
    }
    if (part == 0 && digits[0] == 8)
        return {numbers[0] / 10000, numbers[0] / 100 % 100, numbers[0] % 100};
    if (part != 2 || digits[1] > 2)
        return {};
    if (digits[0] == 4 && digits[2] <= 2)
        return {numbers[0], numbers[1], numbers[2]};
    if (digits[0] > 2 || (digits[2] != 2 && digits[2] != 4))
        return {};
    const int year = digits[2] == 2 ? 2000 + numbers[2] : numbers[2];
    return order == DateOrder::DayFirst ? QDate(year, numbers[1], numbers[0])
                                        : QDate(year, numbers[0], numbers[1]);
}

QChar CsvCells::decimalSign(const QStringList &texts)
{
    int points = 0;
    int commas = 0;
    for (const QString &text : texts) {
        bool isNegative = false;
        const QStringView number = bare(text, isNegative);
        const qsizetype point = number.lastIndexOf(u'.');
        const qsizetype comma = number.lastIndexOf(u',');
        const qsizetype behind = number.size() - 1 - std::max(point, comma);
        // Three digits behind a single mark are thousands or not: that says nothing.
        const bool tells = (point >= 0 && comma >= 0) || behind == 1 || behind == 2;
        points += tells && point > comma ? 1 : 0;
        commas += tells && comma > point ? 1 : 0;
        // "1.250": were the point decimal, cents would have three digits.
        commas += !tells && behind == 3 && point > comma ? 1 : 0;
        points += !tells && behind == 3 && comma > point ? 1 : 0;
    }
    return commas > points ? u',' : u'.';
}

CsvCells::DateOrder CsvCells::dateOrder(const QStringList &texts, DateStyle style)
{
    bool hasPoints = false;
    for (const QString &text : texts) {
        hasPoints = hasPoints || text.contains(u'.');
        const bool isDayFirst = date(text, DateOrder::DayFirst).isValid();
        const bool isMonthFirst = date(text, DateOrder::MonthFirst).isValid();
        if (isDayFirst != isMonthFirst)
            return isDayFirst ? DateOrder::DayFirst : DateOrder::MonthFirst;
    }
    return hasPoints || style == DateStyle::Other ? DateOrder::DayFirst : DateOrder::MonthFirst;
}
