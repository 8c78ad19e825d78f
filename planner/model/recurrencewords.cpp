// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/model/recurrencewords.h"

#include <QRegularExpression>
#include <QStringList>

#include <array>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Words that name a kind by themselves; those that stand first win, as "half-yearly" holds "yearly".
struct Word {
    QLatin1StringView pattern;
    Recurrence::Kind kind;
    int interval = 1;
};

constexpr std::array words{
    Word{"birthday|b'?day|anniversary|name day"_L1, Recurrence::Yearly},
    Word{"half-?yearly|twice a year"_L1, Recurrence::Monthly, 6},
    Word{"bi-?weekly|fortnightly|every fortnight"_L1, Recurrence::Weekly, 2},
    Word{"weekdays|workdays|(every|each) (weekday|workday)|mon(day)?( ?- ?| to )fri(day)?"_L1,
         Recurrence::Weekdays},
    Word{"quarterly|every quarter"_L1, Recurrence::Monthly, 3},
    Word{"daily|nightly|every (morning|noon|afternoon|evening|night)"_L1, Recurrence::Daily},
    Word{"weekly|once a week"_L1, Recurrence::Weekly},
    Word{"monthly|once a month|rent|mortgage"_L1, Recurrence::Monthly},
    Word{"yearly|annual|annually|once a year"_L1, Recurrence::Yearly},
};

const QString weekday = u"monday|tuesday|wednesday|thursday|friday|saturday|sunday"_s;

QRegularExpression wholeWords(const QString &pattern)
{
    return QRegularExpression(u"\\b(?:"_s + pattern + u")\\b"_s, QRegularExpression::CaseInsensitiveOption);
}

Qt::DayOfWeek dayNamed(const QString &name)
{
    return Qt::DayOfWeek(weekday.split(u'|').indexOf(name.toLower()) + 1);
}

QList<Qt::DayOfWeek> weekdaysIn(const QString &text)
{
    QList<Qt::DayOfWeek> days;
    for (auto names = wholeWords(u"(%1)s?"_s.arg(weekday)).globalMatch(text); names.hasNext();)
        days.append(dayNamed(names.next().captured(1)));
    return days;
}

/// "Every other Tuesday", "each month", "every 10 years"; "Tuesdays".
std::optional<std::pair<Recurrence::Kind, int>> everySo(const QString &text)
{
    static const QStringList numbers{u"one"_s, u"other"_s, u"three"_s, u"four"_s, u"five"_s, u"six"_s};
    const auto found = wholeWords(u"(?:every|each) (?:(two|%1|[1-9]\\d?) )?(day|week|month|year|%2)s?"_s.arg(
                                      numbers.join(u'|'), weekday))
                           .match(text);
    if (!found.hasMatch()) {
        const bool isPlural = wholeWords(u"(?:%1)s"_s.arg(weekday)).match(text).hasMatch();
        return isPlural ? std::optional(std::pair(Recurrence::Weekly, 1)) : std::nullopt;
    }
    const QString number = found.captured(1).toLower().replace("two"_L1, "other"_L1);
    const int spelled = int(numbers.indexOf(number)) + 1;
    const int interval = number.isEmpty() ? 1 : spelled > 0 ? spelled : number.toInt();
    const QString unit = found.captured(2).toLower();
    return std::pair(unit == "day"_L1     ? Recurrence::Daily
                     : unit == "month"_L1 ? Recurrence::Monthly
                     : unit == "year"_L1  ? Recurrence::Yearly
                                          : Recurrence::Weekly,
                     interval);
}

std::optional<std::pair<Recurrence::Kind, int>> named(const QString &text)
{
    for (const Word &word : words) {
        if (wholeWords(word.pattern).match(text).hasMatch())
            return std::pair(word.kind, word.interval);
    }
    return everySo(text);
}

} // namespace

std::optional<Recurrence> RecurrenceWords::recurrence(const QString &text, QDate date)
{
    const QString plain = text.simplified();
    const auto ofTheMonth =
        wholeWords(u"(?:1st|2nd|3rd|4th|first|second|third|fourth|last) (?:%1)s?"_s.arg(weekday));
    if (ofTheMonth.match(plain).hasMatch())
        return {};
    const auto found = named(plain);
    const QList<Qt::DayOfWeek> days = weekdaysIn(plain);
    if (!found || (found->first == Recurrence::Weekly && days.size() > 1))
        return {};
    Recurrence recurrence;
    recurrence.kind = found->first;
    recurrence.interval = found->second;
    recurrence.weekday = days.value(0, Qt::DayOfWeek(date.dayOfWeek()));
    recurrence.dayOfMonth = date.day();
    return recurrence;
}
