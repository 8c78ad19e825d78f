// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/model/calendargrids.h"

#include "calendar/model/monthspans.h"
#include "calendar/model/personcolumns.h"
#include "shell/core/dates.h"

#include <QLocale>

using namespace Qt::Literals::StringLiterals;
using Dates::Weeks;

namespace {

constexpr int daysPerWeek = 7;

bool isWeekend(QDate date)
{
    return date.dayOfWeek() >= Qt::Saturday;
}

QString shortDay(QDate date)
{
    return QLocale::c().dayName(date.dayOfWeek(), QLocale::ShortFormat);
}

/// "14" of its own month, "1 Mar" of another.
QString nameOf(QDate date)
{
    return shortDay(date) + u' ' + QString::number(date.day());
}

QString monthName(QDate first, bool hasYear)
{
    return hasYear ? Dates::monthYear(first) : QLocale::c().standaloneMonthName(first.month());
}

bool isHoliday(const WallCalendar &calendar, QDate date)
{
    const auto found = calendar.days.constFind(date);
    return found != calendar.days.cend() && std::ranges::any_of(*found, [](const DayLine &line) {
               return line.source == LineSource::Holiday && !line.shown.isEmpty();
           });
}

QList<GridLine> linesOf(const WallCalendar &calendar, QDate date)
{
    QList<GridLine> lines;
    const QList<DayLine> day = calendar.days.value(date);
    lines.reserve(day.size());
    for (int i = 0; i < int(day.size()); ++i) {
        if (!day[i].shown.isEmpty())
            lines.append(
                {.text = day[i].shown, .index = i, .isStrong = day[i].source == LineSource::Holiday});
    }
    return lines;
}

/// Without its lines.
GridCell cellOf(const WallCalendar &calendar, QDate date)
{
    const bool isFree = isWeekend(date) || isHoliday(calendar, date);
    return {.date = date,
            .number = QString::number(date.day()),
            .name = nameOf(date),
            .isStrong = isFree,
            .isTinted = isFree};
}

/// Over the days of a week: their names, or only their first letters.
QList<GridHead> dayHeads(QDate start, bool isWhole)
{
    QList<GridHead> heads;
    for (int i = 0; i < daysPerWeek; ++i) {
        const QDate date = start.addDays(i);
        const QString name = QLocale::c().dayName(date.dayOfWeek());
        heads.append({.text = isWhole ? name : name.left(1),
                      .note = isWhole ? shortDay(date) : QString(),
                      .isTinted = isWeekend(date)});
    }
    return heads;
}

void addWeekNumbers(const WallCalendar &calendar, const Weeks &weeks, GridBlock &block)
{
    for (int row = 0; row < weeks.count && calendar.look.hasWeekNumbers; ++row) {
        const QDate start = weeks.start.addDays(qint64(row) * daysPerWeek);
        block.rows.append({.week = QString::number(Dates::weekNumber(start))});
    }
}

/// Before the row of a day.
GridHead headOf(const WallCalendar &calendar, QDate date)
{
    const bool isFree = isWeekend(date) || isHoliday(calendar, date);
    GridHead head{.text = QString::number(date.day()),
                  .note = shortDay(date).left(2),
                  .isStrong = isFree,
                  .isTinted = isFree,
                  .beginsWeek = date.dayOfWeek() == calendar.look.firstDay};
    if (calendar.look.hasWeekNumbers && (head.beginsWeek || date.day() == 1))
        head.week = QString::number(Dates::weekNumber(Dates::startOfWeek(date, calendar.look.firstDay)));
    return head;
}

/// The words of a span that runs down stand with its first day.
void addSpanWords(const MonthSpans &spans, GridBlock &block, const auto &columnOf)
{
    for (const GridSpan &span : spans.downDays(columnOf)) {
        block.spans.append(span);
        GridCell &cell = block.cells[qsizetype(span.row) * block.columns.size() + span.column];
        cell.lines.prepend({.text = span.text, .tone = span.tone});
    }
}

} // namespace

GridBlock CalendarGrids::month(const WallCalendar &calendar, QDate first)
{
    const Weeks weeks = Dates::weeksOfMonth(first, calendar.look.firstDay);
    GridBlock block{.form = GridForm::Weeks};
    block.columns = dayHeads(weeks.start, true);
    addWeekNumbers(calendar, weeks, block);
    block.cells.reserve(qsizetype(weeks.count) * daysPerWeek);
    for (QDate date = weeks.start; date <= weeks.end(); date = date.addDays(1)) {
        GridCell cell = cellOf(calendar, date);
        if (date.month() != first.month()) {
            cell.isQuiet = true;
            cell.isStrong = cell.isTinted = false;
        }
        if (!cell.isQuiet || calendar.look.hasNeighbourLines)
            cell.lines = linesOf(calendar, date);
        while (cell.beside < cell.lines.size() && cell.lines[cell.beside].isStrong)
            ++cell.beside;
        block.cells.append(cell);
    }
    const bool hasNeighbours = calendar.look.hasNeighbourLines;
    const QDate from = hasNeighbours ? weeks.start : first;
    const QDate to = hasNeighbours ? weeks.end() : first.addMonths(1).addDays(-1);
    block.spans = MonthSpans(calendar, from, to).alongWeeks(weeks.start);
    return block;
}

GridBlock CalendarGrids::persons(const WallCalendar &calendar, QDate first)
{
    const QStringList persons = calendar.persons.mid(0, WallCalendar::mostPersons);
    GridBlock block{.form = GridForm::Days};
    block.columns.append({.text = u"Everyone"_s});
    for (const QString &person : persons)
        block.columns.append({.text = person});
    const QDate last = first.addMonths(1).addDays(-1);
    for (QDate date = first; date <= last; date = date.addDays(1)) {
        block.rows.append(headOf(calendar, date));
        GridCell empty = cellOf(calendar, date);
        empty.number.clear();
        QList<GridCell> cells(block.columns.size(), empty);
        for (GridLine line : linesOf(calendar, date)) {
            const int column = line.isStrong ? 0 : PersonColumns::columnOf(line.text, persons);
            line.text = PersonColumns::inColumn(line.text, persons, column);
            cells[column].lines.append(line);
        }
        block.cells += cells;
    }
    addSpanWords(MonthSpans(calendar, first, last), block,
                 [&persons](const QString &text) { return PersonColumns::columnOf(text, persons); });
    return block;
}

GridBlock CalendarGrids::days(const WallCalendar &calendar, QDate first, bool hasYear, DateStyle style)
{
    GridBlock block{.form = GridForm::Days, .title = monthName(first, hasYear)};
    block.columns.append(GridHead{});
    const QDate last = first.addMonths(1).addDays(-1);
    for (QDate date = first; date <= last; date = date.addDays(1)) {
        block.rows.append(headOf(calendar, date));
        GridCell cell = cellOf(calendar, date);
        cell.number.clear();
        cell.name = Dates::shortText(date, style);
        cell.lines = linesOf(calendar, date);
        block.cells.append(cell);
    }
    addSpanWords(MonthSpans(calendar, first, last), block, [](const QString &) { return 0; });
    return block;
}

GridBlock CalendarGrids::numbers(const WallCalendar &calendar, QDate first, bool hasYear, Notes notes,
                                 DateStyle style)
{
    const Weeks weeks = Dates::weeksOfMonth(first, calendar.look.firstDay);
    const MonthSpans spans(calendar, first, first.addMonths(1).addDays(-1));
    GridBlock block{.form = GridForm::Numbers, .title = monthName(first, hasYear)};
    block.columns = dayHeads(weeks.start, false);
    if (notes != Notes::None)
        addWeekNumbers(calendar, weeks, block);
    for (QDate date = weeks.start; date <= weeks.end(); date = date.addDays(1)) {
        if (date.month() != first.month()) {
            block.cells.append(GridCell{});
            continue;
        }
        GridCell cell = cellOf(calendar, date);
        if (notes != Notes::None)
            block.notes += spans.notesFrom(date, style);
        for (GridLine line : linesOf(calendar, date)) {
            if (notes == Notes::None || (notes == Notes::Holidays && !line.isStrong))
                continue;
            cell.hasDot = cell.hasDot || !line.isStrong;
            line.lead = cell.number;
            line.name = Dates::shortText(date, style);
            line.isStrong = false;
            block.notes.append(line);
        }
        block.cells.append(cell);
    }
    if (notes != Notes::None)
        block.spans = spans.alongWeeks(weeks.start);
    return block;
}
