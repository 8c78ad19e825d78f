// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/window/carcolumns.h"

#include "cars/window/cargrid.h"
#include "shell/controls/gridcell.h"
#include "shell/controls/groupheadings.h"
#include "shell/look/theme.h"

#include <QAbstractItemModel>

#include <algorithm>
#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int around = 2 * CarGrid::inset + 2; ///< a text, with the line beside its cell
constexpr int signRoom = 20;
constexpr int easyRoom = 4;         ///< beside a usual text, where there is enough
constexpr double leastShare = 0.85; ///< of words: cut shorter they would not be known

/// What the texts of a column need. Of texts as long as one another, the first is taken for the widest: those
/// that have to be seen whole are of digits.
int contentWidth(const QAbstractItemModel &model, int column)
{
    QString longest;
    int sign = 0;
    for (int row = 0; row < model.rowCount(); ++row) {
        const QModelIndex cell = model.index(row, column);
        if (QString text = cell.data().toString(); text.size() > longest.size())
            longest = std::move(text);
        if (sign == 0 && !cell.data(GridCell::signRole).toString().isEmpty())
            sign = signRoom;
    }
    return QFontMetrics(TypeScale::body()).horizontalAdvance(longest) + sign + around;
}

int sum(const std::vector<int> &widths)
{
    return std::accumulate(widths.begin(), widths.end(), 0);
}

/// Gives the columns of which `takes` is true equal shares of `room`.
template <typename Takes>
void share(std::vector<int> &widths, int room, Takes takes)
{
    int count = 0;
    for (std::size_t i = 0; i < widths.size(); ++i)
        count += takes(i) ? 1 : 0;
    for (std::size_t i = 0; i < widths.size() && room > 0; ++i) {
        if (!takes(i))
            continue;
        const int part = room / count--;
        widths[i] += part;
        room -= part;
    }
}

/// Takes the widths up to what is wanted, as far as `room` goes: words first.
void fillUp(std::vector<int> &widths, const std::vector<int> &wanted,
            const std::vector<CarColumns::Width> &columns, int room)
{
    for (const bool isWords : {true, false}) {
        for (std::size_t i = 0; i < widths.size(); ++i) {
            if ((columns[i].room == CarColumns::Room::Words) != isWords)
                continue;
            const int part = std::clamp(wanted[i] - widths[i], 0, room);
            widths[i] += part;
            room -= part;
        }
    }
}

} // namespace

std::vector<int> CarColumns::fitting(const QAbstractItemModel &model, const std::vector<Width> &widths,
                                     int room)
{
    const QFontMetrics body(TypeScale::body());
    std::vector<int> wanted;
    std::vector<int> least;
    for (const Width &width : widths) {
        const auto column = int(wanted.size());
        const bool isWords = width.room == Room::Words;
        const int usual = body.horizontalAdvance(width.longest) + around;
        const int needed = std::max(isWords ? int(usual * leastShare) : contentWidth(model, column),
                                    GroupHeadings::leastWidth(model, column));
        least.push_back(needed);
        wanted.push_back(std::max(usual + easyRoom, needed));
    }
    if (const int left = room - sum(wanted); left >= 0) {
        const bool grows = std::ranges::any_of(widths, &Width::grows);
        share(wanted, left, [&](std::size_t i) { return !grows || widths[i].grows(); });
        return wanted;
    }
    if (const int left = room - sum(least); left >= 0) {
        fillUp(least, wanted, widths, left);
        return least;
    }
    for (std::size_t i = 0; i < widths.size(); ++i) {
        if (widths[i].room == Room::Words) // as it is scrolled anyway
            least[i] = wanted[i];
    }
    return least;
}
