// SPDX-License-Identifier: GPL-3.0-or-later
// How a rule stands in a file: its words, separated by blanks.
#include "calendar/model/daterule.h"

#include <QStringList>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::array<QStringView, 7> weekdays{u"mon", u"tue", u"wed", u"thu", u"fri", u"sat", u"sun"};
constexpr int mostInMonth = 5; ///< of a weekday
constexpr int leapYear = 2024; ///< has every date

/// A number of `least` to `most` digits; nothing where there is anything else.
std::optional<int> digits(QStringView word, qsizetype least, qsizetype most)
{
    const bool isNumber = std::ranges::all_of(word, [](QChar c) { return c >= u'0' && c <= u'9'; });
    if (!isNumber || word.size() < least || word.size() > most)
        return {};
    return word.toInt();
}

/// The words of a rule, taken one after another. What is asked for and is not there makes it unreadable.
class Words
{
public:
    explicit Words(QStringView text)
        : m_words(text.toString().simplified().toLower().split(u' ', Qt::SkipEmptyParts))
    {}

    bool isOver() const { return m_next >= m_words.size(); }
    bool isReadable() const { return m_isReadable; }
    void refuse() { m_isReadable = false; }

    QString take()
    {
        if (isOver()) {
            refuse();
            return {};
        }
        return m_words.at(m_next++);
    }

    QString peek() const { return m_words.value(m_next); }

    int number(int least, int most)
    {
        const QString word = take();
        const bool isSigned = word.startsWith(u'-') || word.startsWith(u'+');
        const auto value = digits(QStringView(word).sliced(isSigned ? 1 : 0), 1, 4);
        return within(value ? std::optional(word.startsWith(u'-') ? -*value : *value) : value, least, most);
    }

    Qt::DayOfWeek weekday()
    {
        const auto name = std::ranges::find(weekdays, take());
        if (name != weekdays.end())
            return Qt::DayOfWeek(name - weekdays.begin() + 1);
        refuse();
        return Qt::Monday;
    }

    /// 0, for every month, where none follows.
    int month()
    {
        const bool isThere = !peek().isEmpty() && peek().front().isDigit();
        return isThere ? within(digits(take(), 2, 2), 1, 12) : 0;
    }

    /// "12-25"
    void monthAndDay(DateRule &rule)
    {
        const QString word = take();
        rule.month = within(digits(word.section(u'-', 0, 0), 2, 2), 1, 12);
        rule.day =
            within(digits(word.section(u'-', 1), 2, 2), 1, QDate(leapYear, rule.month, 1).daysInMonth());
    }

    QDate date()
    {
        const QString word = take();
        const auto year = digits(word.section(u'-', 0, 0), 4, 4),
                   month = digits(word.section(u'-', 1, 1), 2, 2), day = digits(word.section(u'-', 2), 2, 2);
        const QDate date = year && month && day ? QDate(*year, *month, *day) : QDate();
        if (!date.isValid())
            refuse();
        return date;
    }

    /// "2021-2030", "2021-", "-2030" or "2021"
    void years(DateRule &rule)
    {
        const QString word = take();
        const qsizetype hyphen = word.indexOf(u'-');
        const QString first = word.left(hyphen < 0 ? word.size() : hyphen);
        const QString last = hyphen < 0 ? first : word.sliced(hyphen + 1);
        rule.firstYear = first.isEmpty() ? 0 : within(digits(first, 4, 4), 1, 9999);
        rule.lastYear = last.isEmpty() ? 0 : within(digits(last, 4, 4), 1, 9999);
        if ((first.isEmpty() && last.isEmpty()) || (!last.isEmpty() && rule.lastYear < rule.firstYear))
            refuse();
    }

    /// "sat-1 sun+1"
    QList<DateRule::Shift> shifts()
    {
        QList<DateRule::Shift> shifts;
        while (peek().size() > 3 && (peek().at(3) == u'+' || peek().at(3) == u'-')) {
            const QString word = m_words.at(m_next);
            m_words[m_next] = word.left(3);
            const Qt::DayOfWeek weekday = this->weekday();
            const int days = within(digits(QStringView(word).sliced(4), 1, 2), 1, DateRule::mostShift);
            if (std::ranges::find(shifts, weekday, &DateRule::Shift::weekday) != shifts.end())
                refuse();
            shifts.append({weekday, word.at(3) == u'-' ? -days : days});
        }
        if (shifts.isEmpty())
            refuse();
        return shifts;
    }

private:
    int within(std::optional<int> value, int least, int most)
    {
        if (!value || *value < least || *value > most)
            refuse();
        return std::clamp(value.value_or(least), least, most);
    }

    QStringList m_words;
    qsizetype m_next = 0;
    bool m_isReadable = true;
};

void readEvery(Words &words, DateRule &rule)
{
    rule.number = words.number(1, DateRule::mostInterval);
    const QString unit = words.take();
    rule.kind = unit == u"weeks" ? DateRule::EveryWeeks : DateRule::EveryDays;
    if (unit != u"weeks" && unit != u"days")
        words.refuse();
    rule.start = words.date();
}

/// What the days are, which comes first.
void readDays(Words &words, DateRule &rule)
{
    const QString kind = words.peek();
    const auto is = [&](QStringView name, DateRule::Kind named) {
        if (kind != name)
            return false;
        words.take();
        rule.kind = named;
        return true;
    };
    if (is(u"nth", DateRule::Nth)) {
        rule.number = words.number(1, mostInMonth);
        rule.weekday = words.weekday();
        rule.month = words.month();
    } else if (is(u"last", DateRule::Last)) {
        rule.weekday = words.weekday();
        rule.month = words.month();
    } else if (is(u"before", DateRule::Before) || is(u"from", DateRule::From)) {
        rule.weekday = words.weekday();
        words.monthAndDay(rule);
    } else if (is(u"easter", DateRule::Easter) || is(u"orthodox", DateRule::Orthodox)) {
        rule.number = words.number(-DateRule::mostFromEaster, DateRule::mostFromEaster);
    } else if (is(u"every", DateRule::EveryDays)) {
        readEvery(words, rule);
    } else {
        words.monthAndDay(rule);
    }
}

/// What stands behind: `years`, and what becomes of the days; each of the two once at most.
void readRest(Words &words, DateRule &rule)
{
    bool hasYears = false;
    while (words.isReadable() && !words.isOver()) {
        const QString word = words.take();
        if (word == u"years" && !hasYears) {
            hasYears = true;
            words.years(rule);
        } else if (word == u"observed" && rule.moving == DateRule::Moving::None && words.peek() == u"next") {
            words.take();
            rule.moving = DateRule::Moving::Next;
        } else if ((word == u"observed" || word == u"moved") && rule.moving == DateRule::Moving::None) {
            rule.moving = word == u"moved" ? DateRule::Moving::Moved : DateRule::Moving::Observed;
            rule.shifts = words.shifts();
        } else {
            words.refuse();
        }
    }
}

QString padded(int number, int width)
{
    return QString::number(number).rightJustified(width, u'0');
}

QString nameOf(Qt::DayOfWeek weekday)
{
    return weekdays[std::size_t(weekday - 1)].toString();
}

QString daysOf(const DateRule &rule)
{
    const QString number = QString::number(rule.number), month = padded(rule.month, 2);
    const QString weekday = nameOf(rule.weekday);
    QString date = month + u'-' + padded(rule.day, 2);
    QString ofMonth = weekday;
    if (rule.month != 0)
        ofMonth += u' ' + month;
    switch (rule.kind) {
    case DateRule::OnDate:
        return date;
    case DateRule::Nth:
        return u"nth "_s + number + u' ' + ofMonth;
    case DateRule::Last:
        return u"last "_s + ofMonth;
    case DateRule::Before:
        return u"before "_s + weekday + u' ' + date;
    case DateRule::From:
        return u"from "_s + weekday + u' ' + date;
    case DateRule::Easter:
        return u"easter "_s + number;
    case DateRule::Orthodox:
        return u"orthodox "_s + number;
    case DateRule::EveryWeeks:
        return u"every "_s + number + u" weeks "_s + rule.start.toString(Qt::ISODate);
    case DateRule::EveryDays:
        return u"every "_s + number + u" days "_s + rule.start.toString(Qt::ISODate);
    }
    return {};
}

} // namespace

std::optional<DateRule> DateRule::parse(QStringView text)
{
    Words words(text);
    DateRule rule;
    readDays(words, rule);
    readRest(words, rule);
    return words.isReadable() ? std::optional(rule) : std::nullopt;
}

QString DateRule::text() const
{
    const auto year = [](int number) { return number == 0 ? QString() : padded(number, 4); };
    QString text = daysOf(*this);
    if (firstYear != 0 || lastYear != 0)
        text += u" years "_s + year(firstYear) + u'-' + year(lastYear);
    if (moving == Moving::Next)
        text += u" observed next"_s;
    if (!shifts.isEmpty())
        text += moving == Moving::Moved ? u" moved"_s : u" observed"_s;
    for (const Shift &shift : shifts)
        text +=
            u' ' + nameOf(shift.weekday) + (shift.days < 0 ? u'-' : u'+') + QString::number(qAbs(shift.days));
    return text;
}
