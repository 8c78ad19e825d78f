// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pages/gridentries.h"

#include <algorithm>

namespace {

constexpr double gap = 1;       ///< between two entries
constexpr double hanging = 0.6; ///< sizes of the letters
constexpr double square = 0.95; ///< with the gap behind it
constexpr double tolerance = 0.05;
constexpr double narrowLetter = 0.2; ///< sizes of the letters

/// Whether a text is surely too long, told without wrapping it.
bool isTallerThan(double height, const GridFrame &frame, const GridLine &line, double width)
{
    const double leastLines = double(line.text.size()) * narrowLetter * frame.points() / std::max(1.0, width);
    return leastLines * frame.pitch() > height + frame.pitch();
}

} // namespace

GridEntries::GridEntries(const GridFrame &frame, const QList<GridLine> &lines, qsizetype first, double width)
    : m_frame(frame)
    , m_first(first)
{
    const double most = frame.body().height();
    for (qsizetype i = first; i < lines.size(); ++i) {
        if (m_height > most || isTallerThan(most, frame, lines[i], width)) {
            m_height = most * 2; // what follows has no room however the rows are shared out
            break;
        }
        m_lines.push_back(wrapped(frame, lines[i], width));
        m_height += heightOf(frame, m_lines.back()) + (i > first ? gap : 0);
    }
}

qsizetype GridEntries::place(const QRectF &place, std::vector<LaidLine> &laid) const
{
    double y = place.top();
    for (std::size_t i = 0; i < m_lines.size(); ++i) {
        const double height = heightOf(m_frame, m_lines[i]);
        if (y + height > place.bottom() + tolerance)
            return m_first + qsizetype(i);
        laid.push_back(m_lines[i]);
        laid.back().rect = QRectF(place.left(), y, place.width(), height);
        y += height + gap;
    }
    return m_first + qsizetype(m_lines.size());
}

LaidLine GridEntries::wrapped(const GridFrame &frame, const GridLine &line, double width, Further further)
{
    const PageType &type =
        frame.types().line(frame.points(), line.isStrong ? GridTypes::Strong : GridTypes::Normal);
    LaidLine laid{.line = &line};
    laid.lead = line.tone > 0 ? square * frame.points() : 0;
    const double room = width - laid.lead;
    laid.words = type.wrappedFast(line.text, room);
    if (laid.words.size() > 1 && further == Further::Indented) {
        laid.indent = hanging * frame.points();
        laid.words = type.wrappedFast(line.text, room - laid.indent);
    }
    return laid;
}

double GridEntries::heightOf(const GridFrame &frame, const LaidLine &line)
{
    return double(line.words.size()) * frame.pitch();
}
