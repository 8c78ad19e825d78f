// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/model/datefacts.h"

#include "shell/core/dates.h"

#include <QLocale>

using namespace Qt::Literals::StringLiterals;

namespace {

QString monthAndDay(QDate day, DateStyle style)
{
    const QString month = QLocale::c().monthName(day.month());
    const QString number = QString::number(day.day());
    return style == DateStyle::Usa ? month + u' ' + number : number + u' ' + month;
}

} // namespace

QString DateFacts::ofBirth(QDate birth, QDate today, DateStyle style)
{
    if (!birth.isValid() || birth > today)
        return {};
    if (birth == today)
        return u"Born today"_s;
    const QDate next = Dates::nextAnniversary(birth, today);
    const QString age = QString::number(next.year() - birth.year());
    if (const QString when = Dates::nearDay(next, today); !when.isEmpty())
        return u"Birthday "_s + when + u", turning "_s + age;
    return u"Turning "_s + age + u" on "_s + monthAndDay(next, style);
}

QString DateFacts::ofAnniversary(QDate date, QDate today)
{
    if (!date.isValid() || date >= today)
        return {};
    const QDate next = Dates::nextAnniversary(date, today);
    const int years = next.year() - date.year();
    const QString count = QString::number(years) + (years == 1 ? u" year "_s : u" years "_s);
    const QString when = Dates::nearDay(next, today);
    return count + (when.isEmpty() ? u"in "_s + QLocale::c().monthName(next.month()) : when);
}
