// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/model/weightwords.h"

#include "shell/core/dates.h"
#include "weight/model/weightnumbers.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QString reason(GoalForecast::Kind kind)
{
    using enum GoalForecast::Kind;
    switch (kind) {
    case Expected:
        break;
    case Reached:
        return u"the goal is reached"_s;
    case NoGoal:
        return u"there is no goal weight"_s;
    case TooFew:
        return u"too few weigh-ins in the last four weeks"_s;
    case TooOld:
        return u"no weigh-in in the last four weeks"_s;
    case LeadsAway:
        return u"the last four weeks lead away from it"_s;
    case TooFar:
        return u"more than ten years at this pace"_s;
    }
    return {};
}

} // namespace

QStringList WeightWords::headings()
{
    return {u"Date of Weigh In"_s, u"Current Weight"_s, u"Change from last Entry"_s,
            u"Beginning Weight Difference"_s};
}

QString WeightWords::weight(double weight)
{
    QString text = WeightNumbers::text(weight);
    if (text.endsWith(u'.'))
        text.chop(1);
    return text.isEmpty() || text.startsWith(u'.') ? QString(u'0' + text) : text;
}

QString WeightWords::aWeek(double change)
{
    return WeightNumbers::difference(change) + u" a week"_s;
}

QString WeightWords::toGoal(const WeightFigures &figures)
{
    if (figures.forecast.kind == GoalForecast::Kind::Reached)
        return u"reached"_s;
    if (!figures.toGoal)
        return u"-"_s;
    return weight(std::abs(*figures.toGoal)) + (*figures.toGoal < 0 ? u" to lose"_s : u" to gain"_s);
}

QString WeightWords::goalDay(const GoalForecast &forecast, DateStyle style)
{
    if (forecast.kind == GoalForecast::Kind::Reached)
        return u"reached"_s;
    return forecast.date.isValid() ? Dates::shortWithYear(forecast.date, style) : u"-"_s;
}

QString WeightWords::goalRange(const GoalForecast &forecast, DateStyle style)
{
    if (!forecast.date.isValid())
        return reason(forecast.kind);
    if (!forecast.latest.isValid())
        return Dates::shortWithYear(forecast.earliest, style) + u" at the earliest"_s;
    const bool isOneYear = forecast.earliest.year() == forecast.latest.year();
    const QString earliest = isOneYear ? Dates::shortText(forecast.earliest, style)
                                       : Dates::shortWithYear(forecast.earliest, style);
    return earliest + u" to "_s + Dates::shortWithYear(forecast.latest, style);
}

QString WeightWords::goalSentence(const GoalForecast &forecast, DateStyle style)
{
    if (forecast.kind == GoalForecast::Kind::Reached)
        return u"The goal is reached."_s;
    if (!forecast.date.isValid())
        return u"No day for the goal: "_s + reason(forecast.kind) + u'.';
    const QString day =
        u"If the last four weeks go on like this, the goal is reached about "_s + goalDay(forecast, style);
    return day + (forecast.latest.isValid() ? u", between "_s : u", "_s) +
           goalRange(forecast, style).replace(u" to "_s, u" and "_s) + u'.';
}
