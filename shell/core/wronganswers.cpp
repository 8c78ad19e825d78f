// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/wronganswers.h"

#include <QList>
#include <QLocale>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int mostCounted = 999'999;

/// Whole seconds, as a file keeps them.
QDateTime inSeconds(const QDateTime &time)
{
    return QDateTime(time.date(), QTime(time.time().hour(), time.time().minute(), time.time().second()));
}

} // namespace

void WrongAnswers::add(const QDateTime &time)
{
    count = std::min(count + 1, mostCounted);
    last = inSeconds(time);
    if (!first.isValid())
        first = last;
}

QString WrongAnswers::text() const
{
    if (count == 0)
        return {};
    return QString::number(count) + u';' + first.toString(Qt::ISODate) + u';' + last.toString(Qt::ISODate);
}

WrongAnswers WrongAnswers::parsed(QStringView text)
{
    const QList<QStringView> values = text.split(u';');
    if (values.size() != 3)
        return {};
    bool isNumber = false;
    const int count = values[0].toInt(&isNumber);
    const QDateTime first = QDateTime::fromString(values[1].toString(), Qt::ISODate);
    const QDateTime last = QDateTime::fromString(values[2].toString(), Qt::ISODate);
    if (!isNumber || count <= 0 || !first.isValid() || !last.isValid())
        return {};
    return {std::min(count, mostCounted), first, last};
}

QString WrongAnswers::words(DateStyle style, QDate today) const
{
    if (count == 0)
        return {};
    const bool isUsa = style == DateStyle::Usa;
    QString form = isUsa ? u"dddd, MMMM d"_s : u"dddd, d MMMM"_s;
    if (first.date().year() != today.year())
        form += isUsa ? u", yyyy"_s : u" yyyy"_s;
    form += isUsa ? u", h:mm AP"_s : u", HH:mm"_s;
    const QString since = QLocale::c().toString(first, form);
    return count == 1 ? u"1 wrong answer since "_s + since : u"%1 wrong answers since "_s.arg(count) + since;
}
