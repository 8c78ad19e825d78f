// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/pages/gridframe.h"
#include "shell/pages/laidgrid.h"

#include <vector>

/// The lines of a cell, wrapped.
class GridEntries
{
public:
    /// `lines` in a column as wide as told.
    GridEntries(const GridFrame &frame, const QList<GridLine> &lines, qsizetype first, double width);

    /// Of all of them.
    double height() const { return m_height; }

    /// Puts them into `place`, as many as have room there. Gives the first that has none.
    qsizetype place(const QRectF &place, std::vector<LaidLine> &laid) const;

    /// How the further lines of an entry stand below its first.
    enum class Further { Indented, Level };
    static LaidLine wrapped(const GridFrame &frame, const GridLine &line, double width,
                            Further further = Further::Indented);
    /// Of one line with the gap to the next entry.
    static double lineHeight(const GridFrame &frame) { return frame.pitch() + gap; }
    static double heightOf(const GridFrame &frame, const LaidLine &line);
    /// Of the words of an entry of one line.
    static double widthOf(const GridFrame &frame, const LaidLine &line);

private:
    static constexpr double gap = 1; ///< between two entries

    void add(const GridFrame &frame, LaidLine line, double width);

    qsizetype m_first;
    std::vector<LaidLine> m_lines;
    double m_height = 0;
};
