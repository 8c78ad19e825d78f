// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/model/nextyear.h"

#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int monthsOfYear = 12;
constexpr int century = 100;

/// The years of the calendar in `title`, "2027" and "2026/27", raised by `years`.
QString raisedTitle(const WallCalendar &calendar, int years)
{
    static const QRegularExpression form(u"(?<![0-9])([0-9]{4})(?:([/\u2013-])([0-9]{2}))?(?![0-9])"_s);
    QString title = calendar.title;
    qsizetype at = 0;
    for (auto match = form.match(title, at); match.hasMatch(); match = form.match(title, at)) {
        const int year = match.captured(1).toInt();
        at = match.capturedEnd();
        if (year < calendar.from.year() || year > calendar.lastDay().year())
            continue;
        QString raised = QString::number(year + years);
        if (const QString second = match.captured(3); !second.isEmpty())
            raised += match.captured(2) + u"%1"_s.arg((second.toInt() + years) % century, 2, 10, QChar(u'0'));
        title.replace(match.capturedStart(), match.capturedLength(), raised);
        at = match.capturedStart() + raised.size();
    }
    return title;
}

} // namespace

int NextYear::yearsOn(const WallCalendar &calendar)
{
    return calendar.months > monthsOfYear ? 2 : 1;
}

std::optional<WallCalendar> NextYear::of(const WallCalendar &calendar)
{
    const int years = yearsOn(calendar);
    WallCalendar next = calendar;
    next.from = calendar.from.addYears(years);
    if (next.lastDay().year() > WallCalendar::lastYear)
        return {};
    next.title = raisedTitle(calendar, years);
    next.filled.clear();
    next.spans.clear();
    next.photos.clear();
    for (const auto &[month, photo] : calendar.photos.asKeyValueRange())
        next.photos.insert(month.addYears(years), photo);
    next.days.clear();
    for (const auto &[date, lines] : calendar.days.asKeyValueRange()) {
        for (const DayLine &line : lines) {
            if (line.isTyped() && line.isYearly)
                next.days[date.addYears(years)].append(line);
        }
    }
    return next;
}
