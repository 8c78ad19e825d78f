// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/model/plannerpages.h"

#include "planner/model/daylines.h"
#include "shell/core/dates.h"

#include <QLocale>

#include <algorithm>
#include <array>
#include <numeric>
#include <set>
#include <vector>

using namespace Qt::Literals::StringLiterals;
using PlannerPages::Days;
using PlannerPages::Notes;

namespace {

// Inches. Placed items stand between the title and the closing lines.
constexpr double margin = 0.5;
constexpr double placedTop = 1.12;
constexpr double closingHeight = 0.55;
constexpr double inset = 0.06;
constexpr double bodyLine = PageMetrics::lineHeight(TextRole::Body);

constexpr int daysPerWeek = 7;
/// Rows that the days of a listed week share on one sheet.
constexpr int weekRows = 28;

QRectF placedArea(const PageSetup &setup)
{
    const QSizeF sheet = setup.sheet();
    return {margin, placedTop, sheet.width() - 2 * margin,
            sheet.height() - placedTop - margin - closingHeight};
}

QString headRight(const PageContext &context)
{
    return context.family.isEmpty() ? u"Personal Planner"_s : context.family + u" Personal Planner"_s;
}

PlannerDay entriesOf(const Days &days, QDate date)
{
    const auto found = days.find(date);
    return found == days.end() ? PlannerDay{} : found->second;
}

QStringList notesOf(const Notes &notes, QDate date)
{
    const auto found = notes.find(date);
    return found == notes.end() ? QStringList() : found->second;
}

DayLines linesOf(const Days &days, const Notes &notes, QDate date)
{
    return DayLines(entriesOf(days, date), notesOf(notes, date));
}

std::set<QDate> datesOf(const Days &days, const Notes &notes)
{
    std::set<QDate> dates;
    for (const auto &[date, entries] : days)
        dates.insert(date);
    for (const auto &[date, texts] : notes)
        dates.insert(date);
    return dates;
}

QString dayName(QDate date)
{
    return QLocale::c().dayName(date.dayOfWeek());
}

/// How many rows each day of a listed week gets: its lines, and what is left over where there are fewest.
std::array<int, daysPerWeek> sharedRows(QDate start, const Days &days, const Notes &notes)
{
    std::array<int, daysPerWeek> rows{};
    int free = weekRows;
    for (int i = 0; i < daysPerWeek; ++i) {
        rows[std::size_t(i)] = std::max(1, linesOf(days, notes, start.addDays(i)).count());
        free -= rows[std::size_t(i)];
    }
    for (; free > 0; --free)
        ++*std::min_element(rows.begin(), rows.end());
    return rows;
}

QString weekTitle(QDate start, const PageContext &context)
{
    return u"Week of "_s + Dates::range(start, start.addDays(daysPerWeek - 1), context.style);
}

Page listedWeek(QDate start, const Days &days, const PageContext &context, const Notes &notes)
{
    Page page(weekTitle(start, context), headRight(context));
    const auto rows = sharedRows(start, days, notes);
    page.columns({1.85, 0.85, 4.8}, {}, {Qt::AlignLeft, Qt::AlignRight, Qt::AlignLeft});
    for (int i = 0; i < daysPerWeek; ++i) {
        const QDate date = start.addDays(i);
        const DayLines lines = linesOf(days, notes, date);
        if (i > 0)
            page.rule();
        for (int row = 0; row < rows[std::size_t(i)]; ++row) {
            const QString head =
                row == 0 ? dayName(date) + u", "_s + Dates::shortText(date, context.style) : QString();
            const bool isFilled = row < lines.count();
            page.row({head, isFilled ? lines.time(row) : QString(), isFilled ? lines.text(row) : QString()});
        }
    }
    return page.close(context.today, context.style);
}

/// The fonts and line heights that entries are set in.
struct Setting {
    TextRole role;
    double line = PageMetrics::lineHeight(role);
    double characters = PageMetrics::charactersPerInch(role); ///< on an inch
};
constexpr Setting roomy{TextRole::Body};
constexpr Setting dense{TextRole::Small};

/// The block of a day in a wide week: the time before the text.
constexpr double blockTime = 0.92;
constexpr double blockHead = 0.3;
constexpr int blocksAcross = 4;

QSizeF blockSize(const PageContext &context)
{
    const QRectF area = placedArea(context.setup);
    return {area.width() / blocksAcross, area.height() / 2};
}

/// The place for the entries of a block.
QRectF entriesPlace(const QRectF &block)
{
    return block.adjusted(inset, blockHead + inset, -inset, -inset);
}

/// Whether the entries fit into a block without a text being cut.
bool fitsBlock(const DayLines &lines, const QRectF &place, const Setting &setting)
{
    const double textWidth = place.width() - blockTime;
    return lines.lineCount(int(textWidth * setting.characters)) <= int(place.height() / setting.line);
}

void placeBlockEntries(Page &page, const QRectF &place, const DayLines &lines)
{
    const Setting &setting = fitsBlock(lines, place, roomy) ? roomy : dense;
    const double textWidth = place.width() - blockTime;
    const auto shares = lines.share(int(textWidth * setting.characters), int(place.height() / setting.line));
    double y = place.top();
    for (int i = 0; i < int(shares.size()); ++i) {
        const double height = shares[std::size_t(i)] * setting.line;
        page.placeText({place.left(), y, blockTime - 2 * inset, setting.line}, lines.time(i), setting.role,
                       Qt::AlignRight | Qt::AlignTop);
        page.placeText({place.left() + blockTime, y, textWidth, height}, lines.text(i), setting.role);
        y += height;
    }
}

bool fitsBlocks(QDate start, const Days &days, const PageContext &context, const Notes &notes)
{
    const QRectF place = entriesPlace({{0, 0}, blockSize(context)});
    for (int i = 0; i < daysPerWeek; ++i) {
        if (!fitsBlock(linesOf(days, notes, start.addDays(i)), place, dense))
            return false;
    }
    return true;
}

Page wideWeek(QDate start, const Days &days, const PageContext &context, const Notes &notes)
{
    Page page(weekTitle(start, context), headRight(context));
    const QPointF origin = placedArea(context.setup).topLeft();
    const QSizeF size = blockSize(context);
    for (int i = 0; i <= daysPerWeek; ++i) {
        const QPointF corner =
            origin + QPointF((i % blocksAcross) * size.width(), (i / blocksAcross) * size.height());
        const QRectF block(corner, size);
        page.placeRule(block);
        page.placeRule({block.left(), block.top() + blockHead, size.width(), 0});
        const QRectF head(block.left() + inset, block.top() + inset, size.width() - 2 * inset, bodyLine);
        if (i == daysPerWeek) {
            page.placeText(head, u"Notes"_s, TextRole::Strong);
            break;
        }
        const QDate date = start.addDays(i);
        page.placeText(head, dayName(date), TextRole::Strong);
        page.placeText(head, Dates::shortText(date, context.style), TextRole::Body,
                       Qt::AlignRight | Qt::AlignTop);
        placeBlockEntries(page, entriesPlace(block), linesOf(days, notes, date));
    }
    return page.close(context.today, context.style);
}

/// How many entries stand in the list behind the calendar, in words that are not cut.
QString inTheList(int entries, int characters)
{
    const QString words = u"+ %1 in the list"_s.arg(entries);
    return words.size() <= characters ? words : u"+ %1 listed"_s.arg(entries);
}

/// Gives the number of entries that the place holds, none of them cut.
int placeMonthDay(Page &page, const QRectF &cell, QDate date, const DayLines &lines)
{
    const QRectF place = cell.adjusted(inset, inset / 2, -inset, 0);
    page.placeText({place.topLeft(), QSizeF(place.width(), bodyLine)}, QString::number(date.day()),
                   TextRole::Strong);
    const QRectF rest = place.adjusted(0, bodyLine, 0, 0);
    const auto uncut =
        lines.uncut(int(rest.width() * dense.characters), int(rest.height() / dense.line), DayLines::Joined);
    // One text, so that entries follow one another whatever their lines take.
    QStringList texts;
    for (int i = 0; i < int(uncut.size()); ++i)
        texts << lines.joined(i);
    if (const int missing = lines.count() - int(uncut.size()); missing > 0)
        texts << inTheList(missing, int(rest.width() * dense.characters));
    if (!texts.isEmpty())
        page.placeText(rest, texts.join(u'\n'), dense.role);
    return int(uncut.size());
}

/// The names of the days over the calendar, short ones where columns are narrow.
void placeDayNames(Page &page, QPointF corner, double width, QDate start)
{
    for (int column = 0; column < daysPerWeek; ++column) {
        const QRectF head(corner.x() + column * width + inset, corner.y(), width - 2 * inset, bodyLine);
        const QDate day = start.addDays(column);
        const QString name =
            width < 1.3 ? QLocale::c().dayName(day.dayOfWeek(), QLocale::ShortFormat) : dayName(day);
        page.placeText(head, name, TextRole::Strong);
    }
}

/// Brings the heights to `sum`: raises the lowest to one level, or lowers the highest to one.
void level(std::vector<double> &heights, double sum)
{
    const bool isRaised = std::accumulate(heights.begin(), heights.end(), 0.0) < sum;
    double level = sum / double(heights.size());
    for (std::size_t round = 0; round < heights.size(); ++round) {
        double rest = sum;
        int moved = 0;
        for (const double height : heights) {
            const bool isMoved = (height < level) == isRaised;
            moved += isMoved ? 1 : 0;
            rest -= isMoved ? 0 : height;
        }
        level = moved > 0 ? rest / moved : level;
    }
    for (double &height : heights)
        height = isRaised ? std::max(height, level) : std::min(height, level);
}

/// The height of each week from `start` on: what its fullest day needs, as far as it goes, and no less than
/// those whose days need little.
std::vector<double> weekHeights(QDate start, int weeks, QSizeF room, const Days &days, const Notes &notes,
                                int month)
{
    constexpr double least = 0.5; // of an equal share
    const double floor = least * room.height() / weeks;
    const int characters = int((room.width() / daysPerWeek - 2 * inset) * dense.characters);
    std::vector<double> heights(std::size_t(weeks), floor);
    for (int week = 0; week < weeks; ++week) {
        double &height = heights[std::size_t(week)];
        for (int i = 0; i < daysPerWeek; ++i) {
            const QDate day = start.addDays(week * daysPerWeek + i);
            const int lines =
                day.month() == month ? linesOf(days, notes, day).lineCount(characters, DayLines::Joined) : 0;
            height = std::max(height, bodyLine + inset + lines * dense.line);
        }
    }
    level(heights, room.height());
    return heights;
}

/// The table of dates with their entries.
void startDateList(Page &page)
{
    page.columns({1.7, 0.9, 4.9}, {u"Date"_s, u"Time"_s, u"Appointment or activity"_s},
                 {Qt::AlignLeft, Qt::AlignRight, Qt::AlignLeft});
}

/// The entries of a day from `first` on; false when there are none.
bool listDate(Page &page, QDate date, const DayLines &lines, int first, DateStyle style)
{
    for (int row = first; row < lines.count(); ++row)
        page.row(
            {row == first ? Dates::statusText(date, style) : QString(), lines.time(row), lines.text(row)});
    return first < lines.count();
}

} // namespace

Page PlannerPages::day(QDate date, const PlannerDay &entries, const PageContext &context, const Notes &notes)
{
    Page page(Dates::longText(date, context.style), headRight(context));
    for (const QString &note : notesOf(notes, date))
        page.line(note);
    page.columns({1.0, 6.5}, {u"Time"_s, u"Appointment or activity"_s}, {Qt::AlignRight, Qt::AlignLeft});
    const DayLines lines(entries);
    for (int row = 0; row < int(PlannerDay::rowCount); ++row) {
        const bool isFilled = row < lines.count();
        page.row({isFilled ? lines.time(row) : QString(), isFilled ? lines.text(row) : QString()});
    }
    return page.close(context.today, context.style);
}

Page PlannerPages::week(QDate start, const Days &days, const PageContext &context, const Notes &notes)
{
    const bool isWide =
        context.setup.orientation == PageSetup::Landscape && fitsBlocks(start, days, context, notes);
    return isWide ? wideWeek(start, days, context, notes) : listedWeek(start, days, context, notes);
}

Page PlannerPages::month(QDate date, const Days &days, Qt::DayOfWeek firstDay, const PageContext &context,
                         const Notes &notes)
{
    constexpr double headHeight = 0.26;
    const QDate first(date.year(), date.month(), 1);
    const auto [start, weeks] = Dates::weeksOfMonth(date, firstDay);
    Page page(Dates::monthYear(first), headRight(context));
    std::map<QDate, int> crowded; // with the number of entries that the calendar has
    const QRectF area = placedArea(context.setup);
    const double width = area.width() / daysPerWeek;
    const auto heights =
        weekHeights(start, weeks, {area.width(), area.height() - headHeight}, days, notes, first.month());
    placeDayNames(page, area.topLeft(), width, start);
    double top = area.top() + headHeight;
    for (int i = 0; i < weeks * daysPerWeek; ++i) {
        const double height = heights[std::size_t(i / daysPerWeek)];
        const QRectF cell(area.left() + (i % daysPerWeek) * width, top, width, height);
        top += i % daysPerWeek + 1 == daysPerWeek ? height : 0;
        const QDate shown = start.addDays(i);
        page.placeRule(cell);
        if (shown.month() != first.month())
            continue;
        const DayLines lines = linesOf(days, notes, shown);
        if (const int held = placeMonthDay(page, cell, shown, lines); held < lines.count())
            crowded.emplace(shown, held);
    }
    if (!crowded.empty()) {
        page.breakPage();
        startDateList(page);
    }
    for (const auto &[day, held] : crowded)
        listDate(page, day, linesOf(days, notes, day), held, context.style);
    return page.close(context.today, context.style);
}

Page PlannerPages::range(QDate from, QDate to, const Days &days, const PageContext &context,
                         const Notes &notes)
{
    Page page(Dates::range(from, to, context.style), headRight(context));
    startDateList(page);
    bool isEmpty = true;
    for (const QDate date : datesOf(days, notes)) {
        if (date >= from && date <= to)
            isEmpty = !listDate(page, date, linesOf(days, notes, date), 0, context.style) && isEmpty;
    }
    if (isEmpty)
        page.line(u"Nothing is planned for these days."_s);
    return page.close(context.today, context.style);
}

Page PlannerPages::weekOf(const PlannerFiles &files, QDate date, const CalendarOptions &options,
                          const PageContext &context, const Notes &notes)
{
    const QDate start = Dates::startOfWeek(date, options.firstDay());
    return week(start, files.days(start, start.addDays(daysPerWeek - 1)), context, notes);
}

Page PlannerPages::monthOf(const PlannerFiles &files, QDate date, const CalendarOptions &options,
                           const PageContext &context, const Notes &notes)
{
    const QDate first(date.year(), date.month(), 1);
    const QDate last = first.addMonths(1).addDays(-1);
    return month(date, files.days(first, last), options.firstDay(), context, notes);
}

Page PlannerPages::rangeOf(const PlannerFiles &files, QDate from, QDate to, const PageContext &context,
                           const Notes &notes)
{
    return range(from, to, files.days(from, to), context, notes);
}
