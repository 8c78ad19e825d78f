// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/datetoken.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace {

constexpr int readDigits = 4;
constexpr std::size_t shortestMonth = 3;
constexpr std::array<std::string_view, 12> monthNames{"january",   "february", "march",    "april",
                                                      "may",       "june",     "july",     "august",
                                                      "september", "october",  "november", "december"};

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

int numberOf(std::string_view digits)
{
    int number = 0;
    for (const char digit : digits.substr(0, readDigits))
        number = number * 10 + (digit - '0');
    return number;
}

/// The month that `name` begins, with three letters at least; 0 for any other word.
int monthNamed(std::string_view name)
{
    if (name.size() < shortestMonth)
        return 0;
    const auto isSame = [](char typed, char letter) { return lowered(typed) == letter; };
    for (std::size_t i = 0; i < monthNames.size(); ++i) {
        const std::string_view month = monthNames[i];
        if (name.size() <= month.size() && std::equal(name.begin(), name.end(), month.begin(), isSame))
            return int(i) + 1;
    }
    return 0;
}

} // namespace

DateToken DateToken::take(QByteArrayView &text)
{
    const auto runOf = [text](bool (*isKind)(char)) {
        const auto end = std::find_if_not(text.begin(), text.end(), isKind);
        return std::string_view(text.data(), std::size_t(end - text.begin()));
    };
    DateToken token;
    token.character = text.front();
    if (const std::string_view digits = runOf(isDigit); !digits.empty())
        token = {Number, numberOf(digits), int(digits.size()), token.character};
    else if (const std::string_view word = runOf(isLetter); !word.empty())
        token = {Word, monthNamed(word), int(word.size()), token.character};
    text = text.sliced(token.length);
    return token;
}

DateToken::Bytes DateToken::bytes(QStringView text)
{
    Bytes bytes(std::min(text.size(), longestDate));
    std::transform(text.begin(), text.begin() + bytes.size(), bytes.begin(), [](QChar character) {
        return character.unicode() < 0x80 ? char(character.unicode()) : '?';
    });
    return bytes;
}
