// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include <span>

/// Walking through a grid of widgets with the arrow keys, from left to right and from top to bottom.
namespace GridWalk {

/// The widget that `key` leads to from `current` in a grid of `columns`; disabled ones are passed over. Null
/// when the key is no arrow, Home or End, or nothing lies that way.
template <typename Widget>
Widget *next(std::span<Widget *const> widgets, const QWidget *current, int columns, int key)
{
    const int count = int(widgets.size());
    int at = 0;
    while (at < count && widgets[std::size_t(at)] != current)
        ++at;
    if (at == count || columns < 1)
        return nullptr;
    const auto usable = [&](int i) {
        return i >= 0 && i < count && widgets[std::size_t(i)]->isEnabled() ? widgets[std::size_t(i)]
                                                                           : nullptr;
    };
    const auto along = [&](int from, int step) -> Widget * {
        for (int i = from; i >= 0 && i < count; i += step)
            if (Widget *found = usable(i))
                return found;
        return nullptr;
    };
    // Row by row; in each the nearest one to the column that we come from.
    const auto across = [&](int step) -> Widget * {
        for (int row = at / columns + step; row >= 0 && row * columns < count; row += step) {
            for (int away = 0; away < columns; ++away) {
                for (const int column : {at % columns - away, at % columns + away})
                    if (column >= 0 && column < columns)
                        if (Widget *found = usable(row * columns + column))
                            return found;
            }
        }
        return nullptr;
    };
    switch (key) {
    case Qt::Key_Left:
        return along(at - 1, -1);
    case Qt::Key_Right:
        return along(at + 1, 1);
    case Qt::Key_Up:
        return across(-1);
    case Qt::Key_Down:
        return across(1);
    case Qt::Key_Home:
        return along(0, 1);
    case Qt::Key_End:
        return along(count - 1, -1);
    default:
        return nullptr;
    }
}

} // namespace GridWalk
