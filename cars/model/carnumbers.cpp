// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/model/carnumbers.h"

#include "shell/core/dates.h"

#include <algorithm>
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

/// The number at the start of `text`, which it is taken from.
std::optional<double> takeNumber(QStringView &text)
{
    text = withoutBlanksAndCurrency(text);
    QString digits = takeWhole(text);
    if (digits.size() > mostDigits)
        return {};
    if (!text.isEmpty() && (text[0] == u'.' || text[0] == u',')) {
        if (const qsizetype decimals = digitsAt(text.sliced(1)); decimals > 0) {
            digits += u'.' + text.sliced(1, std::min<qsizetype>(decimals, mostDecimals));
            text = text.sliced(1 + decimals);
        }
    }
    return digits.isEmpty() ? std::nullopt : std::optional(digits.toDouble());
}

/// "293.50" is "293.5", "7.00" is "7"; `text` has decimals.
QString withoutIdleZeros(QString text)
{
    while (text.endsWith(u'0'))
        text.chop(1);
    if (text.endsWith(u'.'))
        text.chop(1);
    return text;
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
    return takeNumber(text);
}

std::optional<double> CarNumbers::alone(QStringView text)
{
    const std::optional<double> number = takeNumber(text);
    constexpr QStringView others = u"0123456789/:-.,";
    const bool isAlone = std::ranges::none_of(text, [&](QChar one) { return others.contains(one); });
    return isAlone ? number : std::nullopt;
}

QString CarNumbers::plain(QStringView typed)
{
    const QStringView text = typed.trimmed();
    const qsizetype whole = digitsAt(text);
    const bool isWhole = whole == text.size();
    const bool isPlain = isWhole || (whole > 0 && text[whole] == u'.' &&
                                     whole + 1 + digitsAt(text.sliced(whole + 1)) == text.size());
    double sum = 0;
    for (const QStringView part : text.split(u'+')) {
        const std::optional<double> number = alone(part);
        if (!number)
            return {};
        sum += *number;
    }
    return isPlain ? text.toString() : withoutIdleZeros(CarNumbers::text(sum, mostDecimals));
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
    return withoutIdleZeros(CarNumbers::text(number, 2));
}

QString CarNumbers::text(double number, int decimals)
{
    return QString::number(number, 'f', decimals);
}

QString CarNumbers::costText(qint64 cents)
{
    return text(double(cents) / 100, 2);
}

QString CarNumbers::shownCost(const QString &stored)
{
    const bool isAmount = alone(stored).has_value();
    return isAmount ? costText(*cents(stored)) : stored;
}
