// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/window/sheetplan.h"

#include <algorithm>

int SheetPlan::find(QDate date, int person) const
{
    int found = -1;
    for (int i = 0; i < int(cells.size()); ++i) {
        const Cell &cell = cells[std::size_t(i)];
        if (cell.date != date || (isByPerson && cell.person != person))
            continue;
        if (!cell.isOutside)
            return i;
        found = i;
    }
    return found;
}

int SheetPlan::cellAt(QPointF point) const
{
    const auto found =
        std::ranges::find_if(cells, [point](const Cell &cell) { return cell.place.contains(point); });
    return found == cells.end() || !found->date.isValid() ? -1 : int(found - cells.begin());
}

int SheetPlan::lineAt(int cell, QPointF point) const
{
    const std::vector<Line> &lines = cells[std::size_t(cell)].lines;
    const auto found =
        std::ranges::find_if(lines, [point](const Line &line) { return line.place.contains(point); });
    return found == lines.end() ? -1 : found->line;
}

int SheetPlan::spanAt(QPointF point) const
{
    const auto found =
        std::ranges::find_if(bars, [point](const Bar &bar) { return bar.place.contains(point); });
    return found == bars.end() ? -1 : found->span;
}

const SheetPlan::Listed *SheetPlan::listedAt(QPointF point) const
{
    const auto found =
        std::ranges::find_if(listed, [point](const Listed &each) { return each.place.contains(point); });
    return found == listed.end() ? nullptr : &*found;
}

QRectF SheetPlan::listedPlace(QDate date, int line) const
{
    const auto found = std::ranges::find_if(
        listed, [&](const Listed &each) { return each.date == date && each.line == line; });
    return found == listed.end() ? QRectF() : found->place;
}

int SheetPlan::personOf(QDate date, int line) const
{
    const auto found = std::ranges::find_if(
        cells, [&](const Cell &cell) { return cell.date == date && cell.all.contains(line); });
    return found == cells.end() ? 0 : found->person;
}

QDate SheetPlan::smallDayAt(QPointF point) const
{
    const auto found =
        std::ranges::find_if(smallDays, [point](const SmallDay &day) { return day.place.contains(point); });
    return found == smallDays.end() ? QDate() : found->date;
}

bool SheetPlan::hasSameDays(const SheetPlan &other) const
{
    return rows == other.rows && columns == other.columns &&
           std::ranges::equal(cells, other.cells, [](const Cell &one, const Cell &two) {
               return one.date == two.date && one.row == two.row && one.column == two.column &&
                      one.person == two.person;
           });
}
