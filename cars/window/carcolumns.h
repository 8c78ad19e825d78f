// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <vector>

class QAbstractItemModel;

/// How the columns of a car's grid share its width.
namespace CarColumns {

enum class Room {
    Fixed,   ///< for the text
    Growing, ///< takes some of what is left, where that is much
    Words    ///< grows too; where there is little room, it gives way first, as words are known when cut
};

struct Width {
    QString longest; ///< of the usual texts
    Room room = Room::Fixed;

    bool grows() const { return room != Room::Fixed; }
};

/// The widths of the columns of `model` that share `room`. Where there is too little, numbers, dates and the
/// words of headings keep what they need: the columns are wider than the room then, and are scrolled.
std::vector<int> fitting(const QAbstractItemModel &model, const std::vector<Width> &widths, int room);

} // namespace CarColumns
