// SPDX-License-Identifier: GPL-3.0-or-later
#include "todo/model/tododifference.h"

#include <QHash>

#include <algorithm>

namespace {

/// The lines from `front` to those that stand alike at the end of both sheets.
struct Middle {
    int front = 0;
    int beforeEnd = 0;
    int afterEnd = 0;
};

Middle middleOf(const ToDoSheet &before, const ToDoSheet &after)
{
    Middle middle{0, before.lineCount(), after.lineCount()};
    const int shorter = std::min(middle.beforeEnd, middle.afterEnd);
    while (middle.front < shorter && before.lineBytes(middle.front) == after.lineBytes(middle.front))
        ++middle.front;
    while (middle.beforeEnd > middle.front && middle.afterEnd > middle.front &&
           before.lineBytes(middle.beforeEnd - 1) == after.lineBytes(middle.afterEnd - 1)) {
        --middle.beforeEnd;
        --middle.afterEnd;
    }
    return middle;
}

/// For each line of the later sheet's middle, the same line of the former one; -1 where there is none.
std::vector<int> twinsOf(const ToDoSheet &before, const ToDoSheet &after, const Middle &middle)
{
    QMultiHash<QByteArrayView, int> places;
    for (int line = middle.beforeEnd - 1; line >= middle.front; --line)
        places.insert(before.lineBytes(line), line);
    std::vector<int> twins;
    for (int line = middle.front; line < middle.afterEnd; ++line) {
        const auto place = places.find(after.lineBytes(line));
        twins.push_back(place == places.end() ? -1 : *place);
        if (place != places.end())
            places.erase(place);
    }
    return twins;
}

/// The most of `twins` that stand in ascending order, as their indices: what need not be moved.
std::vector<int> ascending(const std::vector<int> &twins)
{
    std::vector<int> ends; // of the best run of each length
    std::vector<int> links(twins.size(), -1);
    for (int i = 0; i < int(twins.size()); ++i) {
        const int twin = twins[std::size_t(i)];
        if (twin < 0)
            continue;
        const auto place =
            std::ranges::lower_bound(ends, twin, {}, [&twins](int end) { return twins[std::size_t(end)]; });
        if (place != ends.begin())
            links[std::size_t(i)] = *(place - 1);
        if (place == ends.end())
            ends.push_back(i);
        else
            *place = i;
    }
    std::vector<int> run;
    for (int i = ends.empty() ? -1 : ends.back(); i >= 0; i = links[std::size_t(i)])
        run.push_back(i);
    std::ranges::reverse(run);
    return run;
}

} // namespace

ToDoDifference ToDoDifference::between(const ToDoSheet &before, const ToDoSheet &after)
{
    const Middle middle = middleOf(before, after);
    const std::vector<int> twins = twinsOf(before, after, middle);
    ToDoDifference difference;
    difference.m_before = before.lineCount();
    difference.m_after = after.lineCount();
    difference.m_lastBefore = before.lastIds();
    difference.m_lastAfter = after.lastIds();
    int nextBefore = middle.front;
    int nextAfter = middle.front;
    const auto changedUpTo = [&](int beforeEnd, int afterEnd) {
        for (; nextBefore < beforeEnd; ++nextBefore)
            difference.m_gone.emplace_back(nextBefore, before.lineBytes(nextBefore).toByteArray());
        for (; nextAfter < afterEnd; ++nextAfter)
            difference.m_come.emplace_back(nextAfter, after.lineBytes(nextAfter).toByteArray());
    };
    for (const int kept : ascending(twins)) {
        changedUpTo(twins[std::size_t(kept)], middle.front + kept);
        ++nextBefore;
        ++nextAfter;
    }
    changedUpTo(middle.beforeEnd, middle.afterEnd);
    return difference;
}

bool ToDoDifference::exchange(ToDoSheet &sheet, const Lines &gone, const Lines &come,
                              std::pair<int, int> lastIds)
{
    std::vector<int> places;
    for (const auto &[place, bytes] : gone) {
        if (place >= sheet.lineCount() || sheet.lineBytes(place) != bytes)
            return false;
        places.push_back(place);
    }
    if (!places.empty())
        sheet.removeLines(places);
    if (!come.empty())
        sheet.insertLines(come);
    sheet.setLastIds(lastIds);
    return true;
}
