// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/model/amount.h"

#include <QRegularExpression>

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int mostDigits = 15; ///< with more, a number and its power of ten are no longer exact
constexpr std::array powers{1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                            1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

/// The slow way, for what few cells hold: many digits, an exponent.
double convert(QStringView number)
{
    const QByteArray bytes = number.toLatin1();
    double value = 0;
    const auto [end, error] = std::from_chars(bytes.begin(), bytes.end(), value);
    return error == std::errc() && std::isfinite(value) ? value : 0;
}

/// The number at the start of `text`, which has neither blanks nor a sign; the comma at `comma` is left out.
double unsignedNumber(QStringView text, qsizetype comma)
{
    std::int64_t digits = 0;
    int digitCount = 0;
    int decimals = 0;
    bool hasPoint = false;
    qsizetype at = 0;
    for (; at < text.size(); ++at) {
        const QChar character = text[at];
        if (isDigit(character)) {
            digits = digits * 10 + (character.unicode() - u'0');
            decimals += hasPoint ? 1 : 0;
            if (++digitCount > mostDigits)
                break;
        } else if (character == u'.' && !hasPoint) {
            hasPoint = true;
        } else if (at != comma) {
            break;
        }
    }
    const bool isPlain = at == text.size() || (digitCount <= mostDigits && text[at].toLower() != u'e');
    if (isPlain || digitCount == 0)
        return double(digits) / powers[std::size_t(decimals)];
    return convert(comma < 0 ? text : QString(text.first(comma) + text.sliced(comma + 1)));
}

double number(QStringView text, qsizetype comma)
{
    qsizetype start = 0;
    while (start < text.size() && text[start].isSpace())
        ++start;
    const bool hasSign = start < text.size() && (text[start] == u'-' || text[start] == u'+');
    const bool isNegative = hasSign && text[start] == u'-';
    start += hasSign ? 1 : 0;
    if (comma >= 0 && comma < start)
        return 0;
    const double value = unsignedNumber(text.sliced(start), comma < 0 ? -1 : comma - start);
    return isNegative ? -value : value;
}

/// Whether `text` is digits in groups of three behind one of up to three, and decimals at most.
bool hasThousandsGroups(QStringView text)
{
    const QStringView whole = text.first(text.indexOf(u'.') < 0 ? text.size() : text.indexOf(u'.'));
    int sinceComma = 0;
    bool isFirst = true;
    for (const QChar character : whole) {
        if (isDigit(character)) {
            ++sinceComma;
        } else if (character == u',' && (isFirst ? sinceComma >= 1 && sinceComma <= 3 : sinceComma == 3)) {
            isFirst = false;
            sinceComma = 0;
        } else {
            return false;
        }
    }
    return !isFirst && sinceComma == 3;
}

} // namespace

double Amount::leading(QStringView text)
{
    return number(text, -1);
}

double Amount::stored(QStringView text)
{
    return number(text, text.indexOf(u','));
}

double Amount::typed(QStringView text)
{
    const QStringView trimmed = text.trimmed();
    if (!hasThousandsGroups(trimmed))
        return leading(text);
    return leading(trimmed.toString().remove(u','));
}

bool Amount::isWholly(QStringView text)
{
    static const QRegularExpression number(uR"(^\s*[-+]?(\d{1,3}(,\d{3})+|\d*)(\.\d*)?(e[-+]?\d+)?\s*$)"_s,
                                           QRegularExpression::CaseInsensitiveOption);
    return number.match(text.toString()).hasMatch();
}

double Amount::rounded(double amount)
{
    // A decimal number lies a little beside the binary one: the nearest of those counts that it is shown as.
    return std::round(amount * 100 * (1 + 1e-15)) / 100;
}

QString Amount::text(double amount)
{
    const double cents = std::abs(std::round(amount * 100 * (1 + 1e-15)));
    const bool isLong = cents >= powers.back(); // more than any whole number holds, as noise in a file has it
    const QString digits = isLong ? QString::number(cents, 'f', 0) : QString::number(std::int64_t(cents));
    QString text = digits.rightJustified(2, u'0');
    text.insert(text.size() - 2, u'.');
    return amount < 0 && cents > 0 ? u'-' + text : text;
}
