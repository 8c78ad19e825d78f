// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/model/dayrecord.h"

#include "planner/model/plannerday.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace DayRecord {

QString yearFileName(int year)
{
    // Never trim it: a file without the blank is not the planner's.
    return u" %1.Cal"_s.arg(year);
}

int number(QDate date)
{
    if (!date.isValid())
        return 0;
    switch (date.month()) {
    case 10:
        return 320 + date.day();
    case 11:
        return 360 + date.day();
    case 12:
        return 400 + date.day();
    default:
        return 10 * date.day() + date.month();
    }
}

QByteArrayView ofNumber(QByteArrayView year, int number)
{
    const qsizetype offset = (qsizetype(number) - 1) * length;
    if (number < 1 || offset >= year.size())
        return {};
    return year.sliced(offset, std::min<qsizetype>(length, year.size() - offset));
}

bool isSaved(QByteArrayView record)
{
    constexpr QByteArrayView mark("Full      ");
    constexpr qsizetype markAt = plannerDayLayout.size() - mark.size();
    if (record.size() < markAt + PlannerDay::savedMark.size())
        return false;
    // Where the file is cut, what is left of the blanks is enough.
    const QByteArrayView found = record.sliced(markAt, std::min(mark.size(), record.size() - markAt));
    return mark.startsWith(found);
}

QDate date(int record, int year)
{
    if (record > 400)
        return record <= last ? QDate(year, 12, record - 400) : QDate();
    if (record > 360)
        return QDate(year, 11, record - 360);
    if (record > 320)
        return QDate(year, 10, record - 320);
    // 32 and above cannot be a day, so QDate refuses the holes between the blocks by itself.
    return record > 10 && record % 10 != 0 ? QDate(year, record % 10, record / 10) : QDate();
}

} // namespace DayRecord
