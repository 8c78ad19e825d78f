// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/model/carnumbers.h"

#include "shell/core/dates.h"

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int mostDigits = 10;
constexpr int mostDecimals = 6; ///< those behind them change nothing that is shown
constexpr int mostMonths = 1200;

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

qsizetype digitsAt(QStringView text)
{
    qsizetype count = 0;
    while (count < text.size() && isDigit(text[count]))
        ++count;
    return count;
}

bool separatesThousands(QChar character)
{
    return character == u',' || character == u'\'' || character.isSpace();
}

QStringView withoutBlanksAndCurrency(QStringView text)
{
    while (!text.isEmpty() && (text[0].isSpace() || text[0].category() == QChar::Symbol_Currency))
        text = text.sliced(1);
    return text;
}

/// The number's digits at the start of `text`, which they are taken from, thousands separators left out.
QString takeWhole(QStringView &text)
{
    QString digits = text.first(digitsAt(text)).toString();
    text = text.sliced(digits.size());
    if (digits.isEmpty() || digits.size() > 3)
        return digits;
    while (!text.isEmpty() && separatesThousands(text[0]) && digitsAt(text.sliced(1)) == 3) {
        digits += text.sliced(1, 3);
        text = text.sliced(4);
    }
    return digits;
}

/// "03/02/2026": thousands of rows have their dates in the form in which they are kept, and are read again at
/// each edit. Invalid for any other form, and where day and month stand the other way round.
QDate usualDate(QStringView text, DateStyle style)
{
    constexpr qsizetype length = 10;
    const auto isSlash = [&text](qsizetype at) { return text[at] == u'/'; };
    if (text.size() != length || !isSlash(2) || !isSlash(5))
        return {};
    const auto number = [&text](qsizetype from, qsizetype digits) {
        int value = 0;
        for (const QChar digit : text.sliced(from, digits)) {
            if (digit < u'0' || digit > u'9')
                return -1;
            value = 10 * value + digit.unicode() - u'0';
        }
        return value;
    };
    const int first = number(0, 2);
    const int second = number(3, 2);
    const int year = number(6, 4);
    const bool isMonthFirst = style == DateStyle::Usa;
    return year < 1000 ? QDate() : QDate(year, isMonthFirst ? first : second, isMonthFirst ? second : first);
}

} // namespace

std::optional<double> CarNumbers::number(QStringView text)
{
    QStringView rest = withoutBlanksAndCurrency(text);
    QString digits = takeWhole(rest);
    if (digits.size() > mostDigits)
        return {};
    if (!rest.isEmpty() && (rest[0] == u'.' || rest[0] == u',')) {
        if (const qsizetype decimals = digitsAt(rest.sliced(1)); decimals > 0)
            digits += u'.' + rest.sliced(1, std::min<qsizetype>(decimals, mostDecimals));
    }
    return digits.isEmpty() ? std::nullopt : std::optional(digits.toDouble());
}

std::optional<int> CarNumbers::months(QStringView text)
{
    const double months = number(text).value_or(0);
    return months >= 1 && months <= mostMonths ? std::optional(int(months)) : std::nullopt;
}

std::optional<qint64> CarNumbers::cents(QStringView text)
{
    const std::optional<double> amount = number(text);
    return amount ? std::optional(std::llround(*amount * 100)) : std::nullopt;
}

std::optional<QDate> CarNumbers::date(QStringView text, DateStyle style)
{
    const QDate usual = usualDate(text, style);
    return usual.isValid() ? usual : Dates::parse(text, style);
}

QString CarNumbers::text(double number)
{
    QString text = CarNumbers::text(number, 2);
    while (text.endsWith(u'0'))
        text.chop(1);
    if (text.endsWith(u'.'))
        text.chop(1);
    return text;
}

QString CarNumbers::text(double number, int decimals)
{
    return QString::number(number, 'f', decimals);
}

QString CarNumbers::costText(qint64 cents)
{
    return text(double(cents) / 100, 2);
}
