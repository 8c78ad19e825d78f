// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/model/weightnumbers.h"

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double tooHeavy = 100'000;

/// What single precision loses of a text with two decimals must not turn its rounding.
constexpr double slack = 5e-4;

/// The number of tenths in `number`; a half counts upwards.
long long tenths(double number)
{
    return std::llround(std::floor(std::abs(number) * 10 + 0.5 + slack));
}

/// What a text begins with.
struct Leading {
    double number = 0;
    qsizetype length = 0; ///< of the number with the blanks before it; 0: none
};

/// `characters` are bytes or UTF-16 units: those that count are the same in both.
template <typename Character>
Leading leading(const Character *characters, qsizetype size)
{
    qsizetype at = 0;
    while (at < size && characters[at] == ' ')
        ++at;
    Leading found;
    double scale = 1;
    bool isBehindPoint = false;
    bool hasDigits = false;
    for (; at < size; ++at) {
        const Character c = characters[at];
        if (c >= '0' && c <= '9') {
            found.number = found.number * 10 + (c - '0');
            scale *= isBehindPoint ? 10 : 1;
            hasDigits = true;
        } else if ((c == '.' || c == ',') && !isBehindPoint) {
            isBehindPoint = true;
        } else {
            break;
        }
    }
    found.number /= scale; // no number where both are endless
    found.length = hasDigits ? at : 0;
    return found;
}

bool isWeight(const Leading &found)
{
    return found.length > 0 && found.number > 0 && found.number < tooHeavy;
}

std::optional<float> weightOf(const Leading &found)
{
    return isWeight(found) ? std::optional(float(found.number)) : std::nullopt;
}

} // namespace

std::optional<float> WeightNumbers::number(QByteArrayView text)
{
    return weightOf(leading(text.data(), text.size()));
}

std::optional<float> WeightNumbers::number(QStringView text)
{
    return weightOf(leading(text.utf16(), text.size()));
}

std::optional<double> WeightNumbers::typed(QStringView text)
{
    const QStringView whole = text.trimmed();
    const Leading found = leading(whole.utf16(), whole.size());
    return isWeight(found) && found.length == whole.size() ? std::optional(found.number) : std::nullopt;
}

QString WeightNumbers::text(double weight)
{
    const long long rounded = tenths(weight);
    QString text = rounded >= 10 ? QString::number(rounded / 10) : QString();
    text += u'.';
    if (rounded % 10 != 0)
        text += QString::number(rounded % 10);
    return text;
}

QString WeightNumbers::difference(double difference)
{
    const long long rounded = tenths(difference);
    if (rounded == 0)
        return u"0"_s;
    QString text = (difference < 0 ? u'-' : u'+') + QString::number(rounded / 10);
    if (rounded % 10 != 0)
        text += u'.' + QString::number(rounded % 10);
    return text;
}
