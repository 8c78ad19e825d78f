// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/model/cardates.h"

#include "cars/model/carnumbers.h"
#include "shell/core/dates.h"

#include <algorithm>
#include <array>
#include <optional>

namespace {

constexpr int mostMonths = 12;
constexpr int mostDays = 31;
constexpr qsizetype longestDate = 40;
/// The fields of the sheet that may hold a whole date.
constexpr std::array dateFields{VehicleSheet::RegistrationMonth, VehicleSheet::PurchaseDate,
                                VehicleSheet::InsuranceExpiration};

/// Where the first two numbers of a date stand.
struct Number {
    qsizetype at = 0;
    qsizetype length = 0;
    int value = 0;
};
struct DayAndMonth {
    Number first;
    Number second;
};

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

bool isSeparator(QChar character)
{
    return character == u'/' || character == u'.' || character == u'-' || character == u',' ||
           character == u' ';
}

/// The number at `at`, which moves behind it and the separators that follow.
Number takeNumber(QStringView text, qsizetype &at)
{
    Number number{.at = at};
    for (; at < text.size() && isDigit(text[at]); ++at) {
        if (++number.length <= 4)
            number.value = 10 * number.value + text[at].unicode() - u'0';
    }
    while (at < text.size() && isSeparator(text[at]))
        ++at;
    return number;
}

bool mayBe(const Number &month, const Number &day)
{
    return month.value >= 1 && month.value <= mostMonths && day.value >= 1 && day.value <= mostDays;
}

/// Of a date of three numbers with the year behind; nothing in any other text.
std::optional<DayAndMonth> dayAndMonth(QStringView text)
{
    qsizetype at = 0;
    while (at < text.size() && text[at].isSpace())
        ++at;
    const Number first = takeNumber(text, at);
    const Number second = takeNumber(text, at);
    const Number year = takeNumber(text, at);
    const auto isShort = [](const Number &number) { return number.length == 1 || number.length == 2; };
    const bool isYear = isShort(year) || year.length == 4;
    if (text.size() > longestDate || at < text.size() || !isShort(first) || !isShort(second) || !isYear ||
        !(mayBe(first, second) || mayBe(second, first)))
        return {};
    return DayAndMonth{first, second};
}

/// Calls `visit` with every text of `car` that may be a date.
template <typename Car, typename Visit>
void visitDates(Car &car, Visit visit)
{
    for (const VehicleSheet::Field field : dateFields)
        visit(car.sheet.fields[field]);
    for (auto &action : car.sheet.actions)
        visit(action.date);
    for (auto *history : {&car.maintenance, &car.repairs}) {
        for (auto &row : *history)
            visit(row.date);
    }
    for (auto &row : car.fuel)
        visit(row.date);
}

void turnText(QString &text)
{
    const auto found = dayAndMonth(text);
    if (!found)
        return;
    const auto &[first, second] = *found;
    if (first.length == second.length) {
        for (qsizetype i = 0; i < first.length; ++i)
            std::swap(text[first.at + i], text[second.at + i]);
        return;
    }
    const QString one = text.mid(first.at, first.length);
    const QString other = text.mid(second.at, second.length);
    text.replace(second.at, second.length, one);
    text.replace(first.at, first.length, other);
}

} // namespace

DateStyle CarDates::orderOf(const CarRecord &car, DateStyle style)
{
    qsizetype monthFirst = 0;
    qsizetype dayFirst = 0;
    visitDates(car, [&](const QString &text) {
        const auto found = dayAndMonth(text);
        monthFirst += found && found->second.value > mostMonths ? 1 : 0;
        dayFirst += found && found->first.value > mostMonths ? 1 : 0;
    });
    if (monthFirst == dayFirst)
        return style;
    return monthFirst > dayFirst ? DateStyle::Usa : DateStyle::Other;
}

void CarDates::turn(CarRecord &car)
{
    visitDates(car, turnText);
}

QString CarDates::shown(const QString &text, DateStyle style)
{
    const auto date = CarNumbers::date(text, style);
    return date ? Dates::numbers(*date, style) : text;
}
