// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/model/calendaroptions.h"

#include "shell/core/dates.h"
#include "shell/core/settingskeys.h"

namespace {

constexpr NumberSetting monthsSetting{SettingsKeys::calendarFile, 14};
constexpr NumberSetting weekNumbersSetting = SettingsKeys::calendarWeekNumbers;
constexpr NumberSetting weekStartSetting = SettingsKeys::calendarWeekStart;
constexpr NumberSetting todaySetting{SettingsKeys::calendarFile, 17};

int choice(const Settings &settings, const NumberSetting &setting, int first, int last)
{
    const int number = settings.number(setting);
    return number >= first && number <= last ? number : first;
}

} // namespace

CalendarOptions CalendarOptions::read(const Settings &settings)
{
    return {choice(settings, monthsSetting, 0, 1), choice(settings, weekNumbersSetting, 0, 1),
            choice(settings, weekStartSetting, 1, 7), choice(settings, todaySetting, 0, 1)};
}

bool CalendarOptions::write(Settings &settings) const
{
    SettingsChange change(settings);
    change.setNumber(monthsSetting, months);
    change.setNumber(weekNumbersSetting, weekNumbers);
    change.setNumber(weekStartSetting, weekStart);
    change.setNumber(todaySetting, today);
    return change.commit();
}

Qt::DayOfWeek CalendarOptions::firstDay() const
{
    return Dates::weekStart(weekStart);
}
