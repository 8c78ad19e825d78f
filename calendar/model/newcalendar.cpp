// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/model/newcalendar.h"

#include "calendar/model/holidaysets.h"
#include "shell/core/dates.h"
#include "shell/core/settings.h"
#include "shell/core/settingskeys.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int lateInTheYear = 9; ///< the month from which on the next year's calendar is meant

bool hasLetter(QLocale::Territory territory, DateStyle style)
{
    return territory == QLocale::UnitedStates || territory == QLocale::Canada || style == DateStyle::Usa;
}

} // namespace

QString NewCalendar::title(QDate from, int months)
{
    const int last = from.addMonths(months - 1).year();
    QString title = u"Family Calendar %1"_s.arg(from.year());
    if (last != from.year())
        title += u"/%1"_s.arg(last % 100, 2, 10, QChar(u'0'));
    return title;
}

WallCalendar NewCalendar::proposed(QDate today, DateStyle style, const Settings &settings,
                                   QLocale::Territory territory)
{
    WallCalendar calendar;
    const int year = today.year() + (today.month() >= lateInTheYear ? 1 : 0);
    calendar.from = QDate(std::clamp(year, WallCalendar::firstYear, WallCalendar::lastYear), 1, 1);
    calendar.title = title(calendar.from, calendar.months);
    calendar.look.paper = hasLetter(territory, style) ? u"Letter"_s : u"A4"_s;
    calendar.look.firstDay = Dates::weekStart(settings.number(SettingsKeys::calendarWeekStart));
    calendar.look.hasWeekNumbers =
        settings.number(SettingsKeys::calendarWeekNumbers) != SettingsKeys::calendarWeekNumbersHidden;
    if (const QString country = HolidaySets::nameFor(territory); !country.isEmpty())
        calendar.holidaySets = {country};
    return calendar;
}

QStringList NewCalendar::persons(const QString &typed)
{
    QStringList persons;
    for (const QString &part : typed.split(u',')) {
        const QString name = part.simplified();
        if (!name.isEmpty() && !persons.contains(name, Qt::CaseInsensitive) &&
            persons.size() < WallCalendar::mostPersons)
            persons.append(name);
    }
    return persons;
}
