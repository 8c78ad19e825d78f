// SPDX-License-Identifier: GPL-3.0-or-later
#include "todo/model/repeatwords.h"

#include "shell/core/dates.h"

#include <QLocale>
#include <QRegularExpression>

#include <algorithm>
#include <iterator>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int leapYear = 2000;
constexpr int mostDays = 31;
constexpr qsizetype shortestName = 3;

constexpr std::array<QLatin1StringView, 12> numberWords{"one"_L1,  "two"_L1, "three"_L1,  "four"_L1,
                                                        "five"_L1, "six"_L1, "seven"_L1,  "eight"_L1,
                                                        "nine"_L1, "ten"_L1, "eleven"_L1, "twelve"_L1};

struct UnitWord {
    Repeat::Unit unit;
    QLatin1StringView word;
};
constexpr UnitWord unitWords[]{
    {Repeat::Day, "day"_L1},     {Repeat::Day, "days"_L1},     {Repeat::Day, "d"_L1},
    {Repeat::Week, "week"_L1},   {Repeat::Week, "weeks"_L1},   {Repeat::Week, "w"_L1},
    {Repeat::Month, "month"_L1}, {Repeat::Month, "months"_L1}, {Repeat::Month, "m"_L1},
    {Repeat::Year, "year"_L1},   {Repeat::Year, "years"_L1},   {Repeat::Year, "y"_L1},
};

/// One word that says it all.
struct WholeWord {
    QLatin1StringView word;
    Repeat::Unit unit;
    int interval;
};
constexpr WholeWord wholeWords[]{
    {"daily"_L1, Repeat::Day, 1},     {"weekly"_L1, Repeat::Week, 1},     {"fortnightly"_L1, Repeat::Week, 2},
    {"monthly"_L1, Repeat::Month, 1}, {"quarterly"_L1, Repeat::Month, 3}, {"yearly"_L1, Repeat::Year, 1},
    {"annually"_L1, Repeat::Year, 1},
};

/// The words of a rule, taken from the left.
class Words
{
public:
    explicit Words(QStringView text)
    {
        QString plain = text.toString().toLower();
        plain.replace(u',', u' ').replace(u'&', u' ');
        // "3d" and "2 weeks" are read alike, and so are "31st" and "31".
        static const QRegularExpression ordinal(u"\\b(\\d+)(st|nd|rd|th)\\b"_s);
        static const QRegularExpression joined(u"\\b(\\d+)([a-z]+)\\b"_s);
        plain.replace(ordinal, u"\\1"_s).replace(joined, u"\\1 \\2"_s);
        m_words = plain.simplified().split(u' ', Qt::SkipEmptyParts);
    }

    bool isAtEnd() const { return m_words.isEmpty(); }
    QString first() const { return m_words.value(0); }
    void drop() { m_words.removeFirst(); }
    QString rest() const { return m_words.join(u' '); }

    bool take(std::initializer_list<QLatin1StringView> words)
    {
        const QString word = first();
        const bool isOne = !word.isEmpty() &&
                           std::ranges::any_of(words, [&word](QLatin1StringView one) { return one == word; });
        if (isOne)
            drop();
        return isOne;
    }

    /// Takes "after it is done" off the end.
    bool takeAfter()
    {
        for (const QString &begin : {u"after"_s, u"from"_s, u"when"_s, u"once"_s}) {
            const qsizetype at = m_words.indexOf(begin);
            if (at < 0 || (at + 1 == m_words.size() && begin != u"after"_s))
                continue;
            static const QStringList known{u"it"_s,  u"is"_s,  u"was"_s,  u"it's"_s,      u"done"_s,
                                           u"the"_s, u"day"_s, u"that"_s, u"completion"_s};
            if (!std::all_of(m_words.cbegin() + at + 1, m_words.cend(),
                             [](const QString &word) { return known.contains(word); }))
                return false;
            m_words.resize(at);
            return true;
        }
        return false;
    }

private:
    QStringList m_words;
};

std::optional<int> weekdayOf(const QString &word)
{
    for (int day = Qt::Monday; word.size() >= shortestName && day <= Qt::Sunday; ++day) {
        const QString name = QLocale::c().dayName(day).toLower();
        if (name.startsWith(word) || name + u's' == word || (word == u"tues"_s && day == Qt::Tuesday))
            return day - 1;
    }
    return {};
}

bool takeWeekdays(Repeat &repeat, Words &words)
{
    const auto set = [&repeat](std::size_t from, std::size_t to) {
        for (std::size_t day = from; day < to; ++day)
            repeat.weekdays[day] = true;
    };
    repeat.unit = Repeat::Week;
    if (words.take({"weekday"_L1, "weekdays"_L1})) {
        set(0, 5);
        return words.isAtEnd();
    }
    if (words.take({"weekend"_L1, "weekends"_L1})) {
        set(5, 7);
        return words.isAtEnd();
    }
    while (!words.isAtEnd()) {
        const std::optional<int> day = weekdayOf(words.first());
        if (!day)
            return false;
        repeat.weekdays[std::size_t(*day)] = true;
        words.drop();
        words.take({"and"_L1});
    }
    return std::ranges::count(repeat.weekdays, true) > 0;
}

/// "day 31", "the 31st", "the last day".
bool takeMonthDay(Repeat &repeat, Words &words)
{
    words.take({"the"_L1});
    if (words.take({"last"_L1})) {
        repeat.day = mostDays;
        return words.take({"day"_L1}) && words.isAtEnd();
    }
    words.take({"day"_L1});
    bool isNumber = false;
    repeat.day = words.first().toInt(&isNumber);
    if (!isNumber || repeat.day < 1 || repeat.day > mostDays)
        return false;
    words.drop();
    return words.isAtEnd();
}

/// "15 March", "March 15".
bool takeYearDay(Repeat &repeat, Words &words)
{
    words.take({"the"_L1});
    const auto date = Dates::parse(QString(words.rest() + u' ' + QString::number(leapYear)), DateStyle::Usa);
    if (date) {
        repeat.month = date->month();
        repeat.day = date->day();
    }
    return date.has_value();
}

/// What is typed without a day has that of `start`.
void setDay(Repeat &repeat, QDate start)
{
    if (repeat.unit == Repeat::Week)
        repeat.weekdays[std::size_t(start.dayOfWeek() - 1)] = true;
    repeat.day = start.day();
    repeat.month = start.month();
}

bool takeDay(Repeat &repeat, Words &words, QDate start)
{
    if (words.isAtEnd()) {
        setDay(repeat, start);
        return true;
    }
    if (!words.take({"on"_L1}))
        return false;
    return repeat.unit == Repeat::Week    ? takeWeekdays(repeat, words)
           : repeat.unit == Repeat::Month ? takeMonthDay(repeat, words)
           : repeat.unit == Repeat::Year  ? takeYearDay(repeat, words)
                                          : false;
}

/// 0 where the number is beyond what a rule may have.
int takeInterval(Words &words)
{
    if (words.take({"other"_L1, "second"_L1}))
        return 2;
    const auto word =
        std::ranges::find_if(numberWords, [&words](QLatin1StringView word) { return word == words.first(); });
    bool isNumber = word != numberWords.end();
    const int number = isNumber ? int(word - numberWords.begin()) + 1 : words.first().toInt(&isNumber);
    if (!isNumber)
        return 1;
    words.drop();
    return number >= 1 && number <= Repeat::longestInterval ? number : 0;
}

bool takeRule(Repeat &repeat, Words &words, QDate start)
{
    const auto whole = std::ranges::find_if(
        wholeWords, [&words](const WholeWord &whole) { return whole.word == words.first(); });
    if (whole != std::end(wholeWords)) {
        words.drop();
        repeat.unit = whole->unit;
        repeat.interval = whole->interval;
        return takeDay(repeat, words, start);
    }
    const bool isEvery = words.take({"every"_L1, "each"_L1});
    if (Words days = words; takeWeekdays(repeat, days))
        return true;
    repeat = Repeat{.isAfter = repeat.isAfter};
    Words monthDay = words;
    repeat.unit = Repeat::Month;
    if (isEvery && takeMonthDay(repeat, monthDay))
        return true;
    repeat.interval = takeInterval(words);
    const auto unit = std::ranges::find_if(
        unitWords, [&words](const UnitWord &unit) { return unit.word == words.first(); });
    if (unit == std::end(unitWords) || repeat.interval == 0)
        return false;
    words.drop();
    repeat.unit = unit->unit;
    return takeDay(repeat, words, start);
}

QString ordinal(int number)
{
    const int last = number % 100 / 10 == 1 ? 0 : number % 10;
    return QString::number(number) + (last == 1   ? u"st"_s
                                      : last == 2 ? u"nd"_s
                                      : last == 3 ? u"rd"_s
                                                  : u"th"_s);
}

/// "every 2 weeks".
QString everyUnit(const Repeat &repeat)
{
    static constexpr std::array names{"day"_L1, "week"_L1, "month"_L1, "year"_L1};
    return repeat.interval == 1 ? u"every "_s + names[repeat.unit]
                                : u"every %1 %2s"_s.arg(repeat.interval).arg(names[repeat.unit]);
}

/// "Mon, Tue and Thu".
QString weekdayNames(const Repeat &repeat)
{
    QStringList names;
    for (std::size_t day = 0; day < repeat.weekdays.size(); ++day) {
        if (repeat.weekdays[day])
            names += QLocale::c().dayName(int(day) + 1, QLocale::ShortFormat);
    }
    const QString last = names.isEmpty() ? QString() : names.takeLast();
    return names.isEmpty() ? last : names.join(u", "_s) + u" and "_s + last;
}

QString dayWords(const Repeat &repeat, DateStyle style)
{
    switch (repeat.unit) {
    case Repeat::Week:
        return u" on "_s + weekdayNames(repeat);
    case Repeat::Month:
        return u" on the "_s + (repeat.day == mostDays ? u"last day"_s : ordinal(repeat.day));
    case Repeat::Year:
        return u" on "_s + QLocale::c().toString(QDate(leapYear, repeat.month, repeat.day),
                                                 style == DateStyle::Usa ? u"MMMM d" : u"d MMMM");
    case Repeat::Day:
        break;
    }
    return {};
}

} // namespace

std::optional<Repeat> RepeatWords::read(QStringView text, QDate start)
{
    Words words(text);
    Repeat repeat;
    repeat.isAfter = words.takeAfter();
    if (words.isAtEnd() || !start.isValid() || !takeRule(repeat, words, start))
        return {};
    // What a rule does not use is not told apart.
    return Repeat::ofFile(repeat.toFile());
}

QString RepeatWords::of(const Repeat &repeat, DateStyle style)
{
    static constexpr std::array<bool, 7> workdays{true, true, true, true, true, false, false};
    const bool isWorkdays =
        repeat.unit == Repeat::Week && repeat.interval == 1 && repeat.weekdays == workdays;
    const QString words = isWorkdays ? u"every weekday"_s : everyUnit(repeat) + dayWords(repeat, style);
    return repeat.isAfter ? words + u" after it is done"_s : words;
}

QString RepeatWords::beforeDate(const Repeat &repeat, DateStyle style)
{
    const bool isTold = repeat.isAfter || repeat.unit == Repeat::Day || repeat.unit == Repeat::Week;
    return isTold ? of(repeat, style) : everyUnit(repeat);
}
