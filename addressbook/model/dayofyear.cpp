// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/model/dayofyear.h"

#include "shell/core/datetoken.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

namespace {

constexpr int greatestDay = 31;
constexpr int monthCount = 12;
constexpr int mostDigits = 4;

/// What of a date's text matters: a named month, and the first three numbers.
struct Parts {
    int namedMonth = 0;
    std::array<DateToken, 3> numbers;
    std::size_t count = 0;
};

Parts partsOf(QByteArrayView text)
{
    Parts parts;
    while (!text.isEmpty()) {
        const DateToken token = DateToken::take(text);
        if (token.kind == DateToken::Word && parts.namedMonth == 0)
            parts.namedMonth = token.value;
        else if (token.kind == DateToken::Number && parts.count < parts.numbers.size())
            parts.numbers[parts.count++] = token;
    }
    return parts;
}

DayOfYear dayOfYear(int month, int day)
{
    if (month < 1 || month > monthCount)
        return {};
    return {month, day <= greatestDay ? day : 0};
}

} // namespace

DayOfYear DayOfYear::of(QStringView text, DateStyle style)
{
    return of(QByteArrayView(DateToken::bytes(text)), style);
}

DayOfYear DayOfYear::of(QByteArrayView text, DateStyle style)
{
    const Parts parts = partsOf(text.first(std::min(text.size(), DateToken::longestDate)));
    const DateToken &first = parts.numbers[0], &second = parts.numbers[1];
    if (parts.namedMonth != 0) {
        const DateToken &day = first.isYear() ? second : first;
        return dayOfYear(parts.namedMonth, day.isYear() ? 0 : day.value);
    }
    if (parts.count < 2 || first.length > mostDigits || second.length > mostDigits)
        return {};
    if (first.isYear()) // 1997-04-21
        return second.isYear() ? DayOfYear() : dayOfYear(second.value, parts.numbers[2].value);
    if (second.isYear()) // 04/1997
        return dayOfYear(first.value, 0);
    const bool isMonthFirst = style == DateStyle::Usa;
    int month = isMonthFirst ? first.value : second.value;
    int day = isMonthFirst ? second.value : first.value;
    if (month > monthCount && day <= monthCount)
        std::swap(month, day);
    return dayOfYear(month, day);
}

int DayOfYear::monthTyped(QStringView text)
{
    text = text.trimmed();
    if (text.endsWith(u'.'))
        text.chop(1); // "Sep."
    const DateToken::Bytes typed = DateToken::bytes(text);
    QByteArrayView rest(typed);
    if (rest.isEmpty())
        return 0;
    const DateToken month = DateToken::take(rest);
    return rest.isEmpty() && !month.isYear() && month.value <= monthCount ? month.value : 0;
}
