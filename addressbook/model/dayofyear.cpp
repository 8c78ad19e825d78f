#include "addressbook/model/dayofyear.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace {

constexpr qsizetype longestDate = 40;
constexpr int greatestDay = 31;
constexpr int monthCount = 12;

/// A number of the text: how many digits it has tells a year from a day.
struct Number {
    int value = 0;
    int digits = 0;

    bool isYear() const { return digits > 2; }
    bool isReadable() const { return digits <= 4; }
};

/// What of a date's text matters: a named month, and the first three numbers.
struct Parts {
    int namedMonth = 0;
    std::array<Number, 3> numbers;
    std::size_t count = 0;
};

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

/// ASCII letters are all that months are named with.
char lowered(char character)
{
    return character >= 'A' && character <= 'Z' ? char(character - 'A' + 'a') : character;
}

bool isLetter(char character)
{
    const char lower = lowered(character);
    return lower >= 'a' && lower <= 'z';
}

/// The month that `name` begins, with three letters at least; 0 for any other word.
int monthNamed(QByteArrayView name)
{
    constexpr std::array<std::string_view, monthCount> names{"january",   "february", "march",    "april",
                                                             "may",       "june",     "july",     "august",
                                                             "september", "october",  "november", "december"};
    if (name.size() < 3)
        return 0;
    for (std::size_t i = 0; i < names.size(); ++i) {
        const bool isShorter = std::size_t(name.size()) <= names[i].size();
        if (isShorter && std::equal(name.begin(), name.end(), names[i].begin(),
                                    [](char typed, char letter) { return lowered(typed) == letter; }))
            return int(i) + 1;
    }
    return 0;
}

Number numberOf(QByteArrayView digits)
{
    Number number;
    number.digits = int(digits.size());
    for (const char digit : digits.first(std::min<qsizetype>(digits.size(), 4)))
        number.value = number.value * 10 + (digit - '0');
    return number;
}

/// The run of characters of one kind at the start of `text`.
template <typename IsKind>
QByteArrayView run(QByteArrayView text, IsKind isKind)
{
    const auto end = std::find_if_not(text.begin(), text.end(), isKind);
    return text.first(end - text.begin());
}

/// A date's text in one byte a character; characters beyond ASCII mean nothing in it.
class DateBytes
{
public:
    explicit DateBytes(QStringView text)
        : m_size(std::min(text.size(), longestDate))
    {
        for (qsizetype i = 0; i < m_size; ++i)
            m_bytes[std::size_t(i)] = text[i].unicode() < 0x80 ? char(text[i].unicode()) : '?';
    }

    QByteArrayView view() const { return {m_bytes.data(), m_size}; }

private:
    std::array<char, longestDate> m_bytes;
    qsizetype m_size;
};

Parts partsOf(QByteArrayView text)
{
    Parts parts;
    while (!text.isEmpty()) {
        QByteArrayView part = run(text, isDigit);
        if (!part.isEmpty()) {
            if (parts.count < parts.numbers.size())
                parts.numbers[parts.count++] = numberOf(part);
        } else if (part = run(text, isLetter); part.isEmpty()) {
            part = text.first(1);
        } else if (parts.namedMonth == 0) {
            parts.namedMonth = monthNamed(part);
        }
        text = text.sliced(part.size());
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
    return of(DateBytes(text).view(), style);
}

DayOfYear DayOfYear::of(QByteArrayView text, DateStyle style)
{
    const Parts parts = partsOf(text.first(std::min(text.size(), longestDate)));
    const Number &first = parts.numbers[0], &second = parts.numbers[1];
    if (parts.namedMonth != 0) {
        const Number &day = first.isYear() ? second : first;
        return dayOfYear(parts.namedMonth, day.isYear() ? 0 : day.value);
    }
    if (parts.count < 2 || !first.isReadable() || !second.isReadable())
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
    if (text.isEmpty() || text.size() > 9)
        return 0;
    const DateBytes typed(text);
    if (!std::ranges::all_of(typed.view(), isDigit))
        return monthNamed(typed.view());
    const int month = text.size() > 2 ? 0 : numberOf(typed.view()).value;
    return month <= monthCount ? month : 0;
}
