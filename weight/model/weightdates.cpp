// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/model/weightdates.h"

#include "shell/core/dates.h"
#include "storage/ansitext.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// The number in two or four digits of a date; -1 where they are none.
int digits(QByteArrayView text)
{
    int number = 0;
    for (const char c : text) {
        if (c < '0' || c > '9')
            return -1;
        number = number * 10 + (c - '0');
    }
    return number;
}

} // namespace

QString WeightDates::tableText(QDate date)
{
    return Dates::numbers(date, DateStyle::Usa);
}

QString WeightDates::longText(QDate date)
{
    return QLocale::c().toString(date, u"MMMM dd, yyyy"_s);
}

QDate WeightDates::date(QStringView text)
{
    return Dates::parse(text, DateStyle::Usa).value_or(QDate());
}

QDate WeightDates::date(QByteArrayView text)
{
    if (text.size() == 10 && text[2] == '/' && text[5] == '/') {
        const QDate date(digits(text.sliced(6)), digits(text.first(2)), digits(text.sliced(3, 2)));
        if (date.isValid())
            return date;
    }
    return text.isEmpty() ? QDate() : date(AnsiText::decode(text));
}
