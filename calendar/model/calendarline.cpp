// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/model/calendarline.h"

#include "storage/tabline.h"

#include <QLocale>

#include <algorithm>
#include <array>
#include <optional>

namespace {

using Columns = TabLine::Columns;

// The words of the file, in the order of what they mean.

constexpr std::array<QByteArrayView, 8> sourceWords{"typed",       "planner", "todo",    "birthday",
                                                    "anniversary", "due",     "holiday", "rule"};
constexpr std::array<QByteArrayView, 6> layoutWords{"month", "photo", "quarter", "year", "columns", "pocket"};
constexpr std::array<QByteArrayView, 3> styleWords{"classic", "open", "bars"};
constexpr std::array<QByteArrayView, 7> weekWords{"monday", "tuesday",  "wednesday", "thursday",
                                                  "friday", "saturday", "sunday"};
constexpr QByteArrayView dayWord = "day";
constexpr QByteArrayView landscapeWord = "landscape";
constexpr QByteArrayView uprightWord = "upright";
constexpr QByteArrayView numbersWord = "numbers";
constexpr QByteArrayView smallMonthsWord = "small months";
constexpr QByteArrayView neighboursWord = "neighbouring days";
constexpr QByteArrayView yearlyWord = "yearly";
constexpr double largestFont = 72;

template <std::size_t count>
std::optional<int> placeOf(const std::array<QByteArrayView, count> &words, QByteArrayView word)
{
    const auto *const place = std::ranges::find(words, word);
    return place == words.end() ? std::nullopt : std::optional(int(place - words.begin()));
}

template <std::size_t count, typename Value>
bool takeWord(Value &value, const std::array<QByteArrayView, count> &words, QByteArrayView column)
{
    const std::optional<int> place = placeOf(words, column);
    if (place)
        value = Value(*place);
    return place.has_value();
}

template <std::size_t count, typename Value>
QByteArrayView wordOf(const std::array<QByteArrayView, count> &words, Value value)
{
    return words[std::size_t(value)];
}

/// The first of a month: "2027-01".
QDate monthOf(QByteArrayView column)
{
    const QDate month = TabLine::date(QByteArray(column.toByteArray() + "-01"));
    const bool isThere = month.year() >= WallCalendar::firstYear && month.year() <= WallCalendar::lastYear;
    return isThere ? month : QDate();
}

QByteArray monthColumn(QDate month)
{
    return month.toString(u"yyyy-MM").toLatin1();
}

QStringList textsOf(QByteArrayView columns)
{
    QStringList texts;
    for (Columns rest(columns); !rest.isAtEnd();) {
        if (const QString text = TabLine::text(rest.take()); !text.isEmpty())
            texts.append(text);
    }
    return texts;
}

QByteArray columnsOf(const QStringList &texts)
{
    QByteArray columns;
    for (const QString &text : texts)
        columns.append('\t').append(TabLine::column(text));
    return columns;
}

/// Nothing where it cannot be read; a typed line without a text is none.
std::optional<DayLine> dayLineOf(Columns &rest)
{
    DayLine line;
    if (!takeWord(line.source, sourceWords, rest.take()))
        return {};
    const QByteArrayView origin = rest.take();
    if (line.isTyped())
        line.isYearly = origin == yearlyWord;
    else if (line.origin = TabLine::date(origin); !line.origin.isValid())
        return {};
    const QByteArrayView original = rest.take();
    const QByteArrayView shown = rest.take();
    line.original = line.isTyped() ? QString() : TabLine::text(original);
    line.shown = !line.isTyped() && shown == original ? line.original : TabLine::text(shown);
    const bool isEmpty = line.isTyped() ? line.shown.isEmpty() : line.original.isEmpty();
    return isEmpty ? std::nullopt : std::optional(line);
}

void appendColumns(QByteArray &text, const DayLine &line)
{
    text.append(wordOf(sourceWords, line.source)).append('\t');
    const QByteArray shown = TabLine::column(line.shown);
    if (line.isTyped())
        text.append(line.isYearly ? yearlyWord : QByteArrayView()).append('\t');
    else
        text.append(TabLine::column(line.origin))
            .append('\t')
            .append(line.isEdited() ? TabLine::column(line.original) : shown);
    text.append('\t').append(shown);
}

/// A line of one word behind `kind`, and a second one where it is not empty.
QByteArray lineOfWords(QByteArrayView kind, QByteArrayView word, QByteArrayView second = {})
{
    QByteArray line = kind.toByteArray();
    line.append('\t').append(word);
    if (!second.isEmpty())
        line.append('\t').append(second);
    return line;
}

void appendLook(QList<QByteArray> &lines, const CalendarLook &look)
{
    lines.append(lineOfWords("layout", wordOf(layoutWords, look.layout)));
    lines.append(lineOfWords("style", wordOf(styleWords, look.style)));
    lines.append(
        lineOfWords("paper", TabLine::column(look.paper), look.isLandscape ? landscapeWord : uprightWord));
    lines.append(lineOfWords("week", wordOf(weekWords, int(look.firstDay) - 1),
                             look.hasWeekNumbers ? numbersWord : QByteArrayView()));
    const QByteArrayView neighbours = look.hasNeighbourLines ? neighboursWord : QByteArrayView();
    if (look.hasSmallMonths)
        lines.append(lineOfWords("shows", smallMonthsWord, neighbours));
    else if (look.hasNeighbourLines)
        lines.append(lineOfWords("shows", neighbours));
    if (!look.fontFamily.isEmpty() || look.fontPoints > 0)
        lines.append(lineOfWords("font", TabLine::column(look.fontFamily),
                                 QByteArray::number(look.fontPoints, 'g', QLocale::FloatingPointShortest)));
}

void appendDays(QList<QByteArray> &lines, const QMap<QDate, QList<DayLine>> &days)
{
    for (const auto &[date, day] : days.asKeyValueRange()) {
        const QByteArray head = lineOfWords(dayWord, TabLine::column(date)) + '\t';
        for (const DayLine &line : day) {
            QByteArray whole = head;
            appendColumns(whole, line);
            lines.append(whole);
        }
    }
}

// What each kind of line puts into a calendar; false, with nothing put there, where it cannot be read.

bool takeTitle(WallCalendar &calendar, QByteArrayView columns)
{
    calendar.title = TabLine::text(Columns(columns).take());
    return true;
}

bool takeFrom(WallCalendar &calendar, QByteArrayView columns)
{
    const QDate from = monthOf(Columns(columns).take());
    if (from.isValid())
        calendar.from = from;
    return from.isValid();
}

bool takeMonths(WallCalendar &calendar, QByteArrayView columns)
{
    const int months = TabLine::number(Columns(columns).take());
    const bool isRead = months >= 1 && months <= WallCalendar::mostMonths;
    if (isRead)
        calendar.months = months;
    return isRead;
}

bool takeLayout(WallCalendar &calendar, QByteArrayView columns)
{
    return takeWord(calendar.look.layout, layoutWords, Columns(columns).take());
}

bool takeStyle(WallCalendar &calendar, QByteArrayView columns)
{
    return takeWord(calendar.look.style, styleWords, Columns(columns).take());
}

bool takePaper(WallCalendar &calendar, QByteArrayView columns)
{
    Columns rest(columns);
    const QString paper = TabLine::text(rest.take());
    if (paper.isEmpty())
        return false;
    calendar.look.paper = paper;
    calendar.look.isLandscape = rest.take() == landscapeWord;
    return true;
}

bool takeWeek(WallCalendar &calendar, QByteArrayView columns)
{
    Columns rest(columns);
    const std::optional<int> day = placeOf(weekWords, rest.take());
    if (!day)
        return false;
    calendar.look.firstDay = Qt::DayOfWeek(*day + 1);
    calendar.look.hasWeekNumbers = rest.take() == numbersWord;
    return true;
}

bool takeShows(WallCalendar &calendar, QByteArrayView columns)
{
    CalendarLook &look = calendar.look;
    for (Columns rest(columns); !rest.isAtEnd();) {
        const QByteArrayView what = rest.take();
        look.hasSmallMonths = look.hasSmallMonths || what == smallMonthsWord;
        look.hasNeighbourLines = look.hasNeighbourLines || what == neighboursWord;
    }
    return look.hasSmallMonths || look.hasNeighbourLines;
}

bool takeFont(WallCalendar &calendar, QByteArrayView columns)
{
    Columns rest(columns);
    const QString family = TabLine::text(rest.take());
    bool isNumber = false;
    const double points = rest.take().toByteArray().toDouble(&isNumber);
    if (!isNumber || !(points >= 0 && points <= largestFont) || (family.isEmpty() && points == 0))
        return false;
    calendar.look.fontFamily = family;
    calendar.look.fontPoints = points;
    return true;
}

bool takeHolidays(WallCalendar &calendar, QByteArrayView columns)
{
    calendar.holidaySets = textsOf(columns);
    return !calendar.holidaySets.isEmpty();
}

bool takePersons(WallCalendar &calendar, QByteArrayView columns)
{
    calendar.persons = textsOf(columns);
    return !calendar.persons.isEmpty();
}

bool takeFilled(WallCalendar &calendar, QByteArrayView columns)
{
    Columns rest(columns);
    LineSource source = LineSource::Typed;
    const bool isKnown = takeWord(source, sourceWords, rest.take());
    const QDate date = TabLine::date(rest.take());
    if (!isKnown || source == LineSource::Typed || !date.isValid() || calendar.filled.contains(source))
        return false;
    calendar.filled.insert(source, date);
    return true;
}

bool takePhoto(WallCalendar &calendar, QByteArrayView columns)
{
    Columns rest(columns);
    const QDate month = monthOf(rest.take());
    const QString path = TabLine::text(rest.take());
    if (!month.isValid() || path.isEmpty() || calendar.photos.contains(month))
        return false;
    calendar.photos.insert(month, {path, TabLine::text(rest.take())});
    return true;
}

bool takeSpan(WallCalendar &calendar, QByteArrayView columns)
{
    Columns rest(columns);
    CalendarSpan span;
    span.from = TabLine::date(rest.take());
    span.to = TabLine::date(rest.take());
    span.tone = TabLine::number(rest.take());
    span.text = TabLine::text(rest.take());
    if (!span.from.isValid() || !span.to.isValid() || span.tone < 1 || span.tone > CalendarSpan::tones)
        return false;
    calendar.spans.append(span);
    return true;
}

bool takeRule(WallCalendar &calendar, QByteArrayView columns)
{
    Columns rest(columns);
    CalendarRule rule;
    rule.rule = TabLine::text(rest.take());
    rule.sign = TabLine::text(rest.take());
    rule.text = TabLine::text(rest.take());
    calendar.rules.append(rule);
    return true;
}

/// A kind of line that there are few of.
struct Kind {
    QByteArrayView word;
    bool (*take)(WallCalendar &calendar, QByteArrayView columns);
    bool isOnce = true;
};

constexpr std::array<Kind, 15> kinds{{{"title", takeTitle},
                                      {"from", takeFrom},
                                      {"months", takeMonths},
                                      {"layout", takeLayout},
                                      {"style", takeStyle},
                                      {"paper", takePaper},
                                      {"week", takeWeek},
                                      {"shows", takeShows},
                                      {"font", takeFont},
                                      {"holidays", takeHolidays},
                                      {"persons", takePersons},
                                      {"filled", takeFilled, false},
                                      {"photo", takePhoto, false},
                                      {"span", takeSpan, false},
                                      {"rule", takeRule, false}}};

} // namespace

bool CalendarLine::Taker::take(QByteArrayView line)
{
    const qsizetype end = line.indexOf('\t');
    if (end < 0)
        return false;
    const QByteArrayView word = line.first(end);
    const QByteArrayView columns = line.sliced(end + 1);
    if (word == dayWord)
        return takeDay(columns);
    const auto *const kind = std::ranges::find(kinds, word, &Kind::word);
    if (kind == kinds.end() || (kind->isOnce && m_taken.contains(kind->word)) ||
        !kind->take(m_calendar, columns))
        return false;
    if (kind->isOnce)
        m_taken.append(kind->word);
    return true;
}

bool CalendarLine::Taker::takeDay(QByteArrayView columns)
{
    Columns rest(columns);
    const QDate date = TabLine::date(rest.take());
    const std::optional<DayLine> line = date.isValid() ? dayLineOf(rest) : std::nullopt;
    if (!line)
        return false;
    if (!m_day || date != m_date)
        m_day = &m_calendar.days[date];
    m_date = date;
    m_day->append(*line);
    return true;
}

QList<QByteArray> CalendarLine::of(const WallCalendar &calendar)
{
    QList<QByteArray> lines{lineOfWords("title", TabLine::column(calendar.title))};
    if (calendar.from.isValid())
        lines.append(lineOfWords("from", monthColumn(calendar.from)));
    lines.append(lineOfWords("months", QByteArray::number(calendar.months)));
    appendLook(lines, calendar.look);
    if (!calendar.holidaySets.isEmpty())
        lines.append("holidays" + columnsOf(calendar.holidaySets));
    if (!calendar.persons.isEmpty())
        lines.append("persons" + columnsOf(calendar.persons));
    for (const auto &[source, date] : calendar.filled.asKeyValueRange())
        lines.append(lineOfWords("filled", wordOf(sourceWords, source), TabLine::column(date)));
    for (const auto &[month, photo] : calendar.photos.asKeyValueRange())
        lines.append(lineOfWords("photo", monthColumn(month)) + columnsOf({photo.path, photo.caption}));
    for (const CalendarSpan &span : calendar.spans) {
        QByteArray line = lineOfWords("span", TabLine::column(span.from), TabLine::column(span.to));
        line.append('\t').append(QByteArray::number(span.tone)).append(columnsOf({span.text}));
        lines.append(line);
    }
    for (const CalendarRule &rule : calendar.rules)
        lines.append("rule" + columnsOf({rule.rule, rule.sign, rule.text}));
    appendDays(lines, calendar.days);
    return lines;
}

QByteArray CalendarLine::rewritten(QByteArrayView line)
{
    Taker taker;
    if (!taker.take(line))
        return {};
    const QByteArrayView word = line.first(line.indexOf('\t') + 1);
    for (const QByteArray &written : of(taker.calendar())) {
        if (written.startsWith(word))
            return written;
    }
    return {};
}
