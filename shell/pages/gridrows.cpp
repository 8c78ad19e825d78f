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

} // namespace

RowHeights sharedOut(const std::vector<RowNeed> &needs, double height)
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
    const double given = scant > height ? height / scant : 1; // a sheet too small for even that
    std::vector<Bounds> bounds;
    bounds.reserve(needs.size());
    for (const RowNeed &need : needs) {
        const double most = std::max(need.whole, need.least);
        if (isEnough)
            bounds.push_back({most, std::max(most, height)});
        else
            bounds.push_back({least <= height ? need.least : need.scant() * given, most});
    }
    return {levelled(bounds, height), isEnough};
}
