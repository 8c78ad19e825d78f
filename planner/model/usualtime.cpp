// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/model/usualtime.h"

#include <QLocale>
#include <QRegularExpression>
#include <QTime>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The hour of the day for one as it was spoken; -1 when it is none. `half` is "a", "p" or empty.
int hourOfDay(int hour, QStringView half)
{
    if (half.isEmpty())
        return hour >= 1 && hour <= 5 ? hour + 12 : hour;
    if (hour < 1 || hour > 12)
        return -1;
    return hour % 12 + (half.startsWith(u'p', Qt::CaseInsensitive) ? 12 : 0);
}

} // namespace

QString UsualTime::of(const QString &typed)
{
    static const QRegularExpression form(
        uR"(^\s*(\d{1,2})(?:[:.\s]?(\d{2}))?\s*(?:([AaPp])\.?\s?(?:[Mm]\.?)?)?\s*$)"_s);
    const auto match = form.match(typed);
    if (!match.hasMatch())
        return {};
    // "08:30" and "0830" are the hours of a clock that counts to 24.
    const bool isOfLongClock = match.capturedView(1).startsWith(u'0');
    const int spoken = match.capturedView(1).toInt();
    const QStringView half = match.capturedView(3);
    const int hour = isOfLongClock && half.isEmpty() ? spoken : hourOfDay(spoken, half);
    if (isOfLongClock && half.isEmpty() && match.capturedView(2).isEmpty())
        return {}; // more is to come
    const QTime time(hour, match.capturedView(2).toInt());
    if (!time.isValid())
        return {};
    const QString usual = QLocale::c().toString(time, u"h:mm AP"_s);
    return usual == typed.trimmed() ? QString() : usual;
}

bool UsualTime::hasNoHalf(const QString &time)
{
    const QString text = time.trimmed();
    return !text.isEmpty() && !text.endsWith("AM"_L1, Qt::CaseInsensitive) &&
           !text.endsWith("PM"_L1, Qt::CaseInsensitive);
}
