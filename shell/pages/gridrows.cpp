// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pages/gridrows.h"

#include <algorithm>
#include <numeric>

namespace {

constexpr int halvings = 40; ///< until a level is found to the hair

struct Bounds {
    double low;
    double high;
};

double within(const Bounds &bounds, double level)
{
    return std::clamp(level, bounds.low, bounds.high);
}

/// The heights at the level at which they add up to `height`.
std::vector<double> levelled(const std::vector<Bounds> &bounds, double height)
{
    double low = 0;
    double high = height;
    for (int i = 0; i < halvings; ++i) {
        const double level = (low + high) / 2;
        const auto add = [level](double sum, const Bounds &one) { return sum + within(one, level); };
        const bool isTooHigh = std::accumulate(bounds.begin(), bounds.end(), 0.0, add) > height;
        (isTooHigh ? high : low) = level;
    }
    std::vector<double> heights;
    heights.reserve(bounds.size());
    for (const Bounds &one : bounds)
        heights.push_back(within(one, low));
    return heights;
}

/// A line more for the lowest row that needs one, until there is no room for any.
std::vector<double> filledUp(const std::vector<RowNeed> &needs, double height, double line)
{
    std::vector<double> heights;
    heights.reserve(needs.size());
    for (const RowNeed &need : needs)
        heights.push_back(need.least);
    double free = height - std::accumulate(heights.begin(), heights.end(), 0.0);
    for (;;) {
        std::size_t lowest = needs.size();
        for (std::size_t i = 0; i < needs.size(); ++i) {
            const bool wantsMore =
                heights[i] < needs[i].whole && std::min(line, needs[i].whole - heights[i]) <= free;
            if (wantsMore && (lowest == needs.size() || heights[i] < heights[lowest]))
                lowest = i;
        }
        if (lowest == needs.size())
            break;
        const double more = std::min(line, needs[lowest].whole - heights[lowest]);
        heights[lowest] += more;
        free -= more;
    }
    for (double &one : heights)
        one += free / double(heights.size());
    return heights;
}

} // namespace

RowHeights sharedOut(const std::vector<RowNeed> &needs, double height, double line)
{
    double whole = 0;
    double least = 0;
    double scant = 0;
    for (const RowNeed &need : needs) {
        whole += std::max(need.whole, need.least);
        least += need.least;
        scant += need.scant();
    }
    const bool isEnough = whole <= height + 0.01;
    if (!isEnough && least <= height)
        return {filledUp(needs, height, std::max(1.0, line)), false};
    const double given = scant > height ? height / scant : 1; // a sheet too small for even that
    std::vector<Bounds> bounds;
    bounds.reserve(needs.size());
    for (const RowNeed &need : needs) {
        const double most = std::max(need.whole, need.least);
        bounds.push_back(isEnough ? Bounds{most, std::max(most, height)}
                                  : Bounds{need.scant() * given, most});
    }
    return {levelled(bounds, height), isEnough};
}
