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
    const int age = next.year() - birth.year();
    const QString near = Dates::nearDay(next, today);
    const QString when = near.isEmpty() ? u"on "_s + monthAndDay(next, style) : near;
    const QString turns = u"urns %1 %2"_s.arg(age).arg(when);
    return next == today ? u'T' + turns : u"%1, t%2"_s.arg(age - 1).arg(turns);
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
