// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>

#include <optional>

class QMimeData;

/// A line of a day on its way to another one, with the mouse.
namespace LineDrag {

struct Line {
    QDate date;
    int line = 0; ///< as the calendar counts them
};

QMimeData *mimeData(const Line &line);
/// Nothing where something else is drawn.
std::optional<Line> read(const QMimeData *data);

} // namespace LineDrag
