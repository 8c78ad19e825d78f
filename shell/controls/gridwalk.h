// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include <algorithm>
#include <functional>
#include <optional>
#include <span>

/// Walking through a grid with the arrow keys, from left to right and from top to bottom.
namespace GridWalk {

/// Places in rows of `columns`, numbered from 0.
struct Grid {
    int count;
    int columns;
    std::function<bool(int)> isUsable;
};

/// The usable place that `key` leads to from place `at`. Nothing when the key is no arrow, Home or End, or
/// nothing lies that way.
std::optional<int> placeFrom(int at, int key, const Grid &grid);

/// The widget that `key` leads to from `current` in a grid of `columns`; disabled ones are passed over. Null
/// when there is none.
template <typename Widget>
Widget *next(std::span<Widget *const> widgets, const QWidget *current, int columns, int key)
{
    const auto at = std::ranges::find(widgets, current);
    if (at == widgets.end() || columns < 1)
        return nullptr;
    const auto isUsable = [&](int place) { return widgets[std::size_t(place)]->isEnabled(); };
    const auto place = placeFrom(int(at - widgets.begin()), key, {int(widgets.size()), columns, isUsable});
    return place ? widgets[std::size_t(*place)] : nullptr;
}

} // namespace GridWalk
