#include "planner/dayrecord.h"

using namespace Qt::Literals::StringLiterals;

namespace DayRecord {

QString yearFileName(int year)
{
    // Never trim it: a file without the blank is not the planner's.
    return u" %1.Cal"_s.arg(year);
}

int number(QDate date)
{
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
