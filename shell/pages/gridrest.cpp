// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pages/gridrest.h"

#include "shell/pages/sharpline.h"

#include <QPainter>

#include <algorithm>
#include <iterator>
#include <numeric>
#include <utility>

namespace {

constexpr double points = GridTypes::smallestPoints;
constexpr double titlePoints = 9;
constexpr double titleHeight = 14;
constexpr double above = 7;
constexpr double narrowest = 165; ///< column
constexpr double narrow = 125;    ///< where all has little room
constexpr double columnGap = 14;
constexpr double leadGap = 5;
constexpr double gap = 1;
constexpr double hanging = 6;
constexpr double besideGap = 10; ///< between two of a day that stand side by side
constexpr double dayGap = 16;    ///< before another day
constexpr double dot = 1.4;
constexpr double square = 7.5; ///< of a tone, with the gap behind it
constexpr double pitch = GridTypes::pitch(points);
constexpr qsizetype mostTogether = 15; ///< lines of an entry

} // namespace

GridRest::GridRest(const GridTypes &types, const QString &title, std::vector<Entry> entries, double width,
                   double most, Form form)
    : m_title(title)
    , m_entries(std::move(entries))
    , m_width(width)
{
    if (m_entries.empty())
        return;
    const double room = std::max(0.0, most - above - titleHeight);
    if (form == Form::Running && run(types, room))
        return;
    const double lead = leadOf(types);
    for (Entry &entry : m_entries)
        entry.lead = lead;
    layOut(types.line(points), width < 2 * narrowest ? narrow : narrowest, room);
    if (leftOut() > 0)
        layOut(types.line(points), narrow, room);
}

/// In columns of at least this width, each as high as `room` at most.
void GridRest::layOut(const PageType &type, double least, double room)
{
    m_across = std::max(1, int((m_width + columnGap) / (least + columnGap)));
    m_column = (m_width - (m_across - 1) * columnGap) / m_across;
    m_heights.clear();
    wrapEntries(type, room * m_across);
    const double all = std::accumulate(m_heights.begin(), m_heights.end(), 0.0);
    double column = std::min(room, std::max(all / m_across, pitch + gap));
    while (!fill(column) && column < room)
        column = std::min(room, column + pitch);
    m_height = m_placed > 0 ? above + titleHeight + column : 0;
}

double GridRest::leadOf(const GridTypes &types) const
{
    const PageType &strong = types.line(points, GridTypes::Strong);
    double lead = 0;
    const QString *last = nullptr;
    for (const Entry &entry : m_entries) {
        if (!last || *last != entry.name)
            lead = std::max(lead, strong.width(entry.name) + leadGap);
        last = &entry.name;
    }
    return lead;
}

/// Wraps as many of the entries as may find room. One that is longer than any that is meant for a cell is cut
/// up, to go on in the next column.
void GridRest::wrapEntries(const PageType &type, double room)
{
    std::vector<Entry> parts;
    parts.reserve(m_entries.size());
    double height = 0;
    for (Entry &entry : m_entries) {
        if (height > room) {
            parts.push_back(std::move(entry));
            continue;
        }
        const double lead = entry.lead + (entry.tone > 0 ? square : 0);
        const QStringList words = type.wrappedFast(entry.text, m_column - lead - hanging);
        for (qsizetype from = 0; from < words.size(); from += mostTogether) {
            Entry &part = parts.emplace_back(entry);
            part.words = words.mid(from, mostTogether);
            if (words.size() > mostTogether)
                part.text = part.words.join(u' ');
            part.hasName = entry.hasName && from == 0;
            m_heights.push_back(double(part.words.size()) * pitch + gap);
            height += m_heights.back();
        }
    }
    m_entries = std::move(parts);
}

/// Fills the columns, each so high; false where some entry found no room.
bool GridRest::fill(double columnHeight)
{
    double y = 0;
    int column = 0;
    for (m_placed = 0; m_placed < m_heights.size(); ++m_placed) {
        const double height = m_heights[m_placed];
        if (y > 0 && y + height > columnHeight + 0.05) {
            y = 0;
            ++column;
        }
        if (column >= m_across || y + height > columnHeight + 0.05)
            return false;
        const QPointF corner(column * (m_column + columnGap), above + titleHeight + y);
        m_entries[m_placed].rect = QRectF(corner, QSizeF(m_column, height - gap));
        y += height;
    }
    return m_placed == m_entries.size();
}

/// Side by side in the whole width. A day begins with its name. False where not even the first has room.
bool GridRest::run(const GridTypes &types, double room)
{
    std::vector<Entry> running = m_entries;
    QPointF next(0, above + titleHeight);
    std::size_t placed = 0;
    for (; placed < running.size(); ++placed) {
        const bool isNewDay = placed == 0 || running[placed].name != running[placed - 1].name;
        if (!placeRunning(types, running[placed], isNewDay, next, above + titleHeight + room))
            break;
    }
    if (placed == 0)
        return false;
    m_entries = std::move(running);
    m_placed = placed;
    m_height = m_entries[placed - 1].rect.bottom() + gap;
    return true;
}

/// Where the one before it ends, or on a level of its own. False where it has no room.
bool GridRest::placeRunning(const GridTypes &types, Entry &entry, bool isNewDay, QPointF &next,
                            double bottom) const
{
    const PageType &type = types.line(points);
    entry.hasName = isNewDay;
    entry.lead = isNewDay ? types.line(points, GridTypes::Strong).width(entry.name) + leadGap : 0;
    const double lead = entry.lead + (entry.tone > 0 ? square : 0);
    double width = lead + type.width(entry.text);
    const double before = next.x() > 0 ? (isNewDay ? dayGap : besideGap) : 0;
    entry.isBesideLast = before > 0 && !isNewDay && next.x() + before + width <= m_width;
    if (before > 0 && next.x() + before + width > m_width)
        next = {0, next.y() + pitch + gap};
    else
        next.rx() += before;
    if (next.x() == 0 && !isNewDay)
        next.rx() = hanging;
    entry.words = {entry.text};
    if (next.x() + width > m_width) {
        entry.words = type.wrappedFast(entry.text, m_width - next.x() - lead - hanging);
        width = m_width - next.x();
    }
    const double height = double(entry.words.size()) * pitch;
    if (next.y() + height > bottom + 0.05) {
        entry.hasName = true; // where it stands then
        return false;
    }
    entry.rect = QRectF(next, QSizeF(width, height));
    if (entry.words.size() > 1)
        next = {0, entry.rect.bottom() + gap};
    else
        next.rx() += width;
    return true;
}

std::vector<GridRest::Entry> GridRest::takeLeftOut()
{
    std::vector<Entry> left(std::make_move_iterator(m_entries.begin() + std::ptrdiff_t(m_placed)),
                            std::make_move_iterator(m_entries.end()));
    m_entries.resize(m_placed);
    return left;
}

void GridRest::moveTo(QPointF corner)
{
    for (Entry &entry : m_entries)
        entry.rect.translate(corner - m_corner);
    m_corner = corner;
}

void GridRest::paint(QPainter &painter, const GridTypes &types) const
{
    if (m_entries.empty())
        return;
    const QPointF top = m_corner + QPointF(0, above - 2);
    fillSharpLine(painter, {top.x(), top.y(), m_width, 0.5}, GridColors::line);
    types.of(titlePoints, GridTypes::Strong).draw(painter, top + QPointF(0, 2), m_title);
    const PageType &type = types.line(points);
    const PageType &strong = types.line(points, GridTypes::Strong);
    const double lift = GridTypes::lift(type, points);
    for (const Entry &entry : m_entries) {
        QPointF at = entry.rect.topLeft() + QPointF(0, lift);
        if (entry.hasName)
            strong.draw(painter, at, entry.name);
        if (entry.isBesideLast)
            painter.fillRect(QRectF(at.x() - besideGap / 2 - dot / 2,
                                    at.y() + type.baseline() - points * 0.3 - dot / 2, dot, dot),
                             GridColors::quiet);
        at.rx() += entry.lead;
        if (entry.tone > 0) {
            const double side = square * 0.65;
            painter.fillRect(QRectF(at.x(), at.y() + type.baseline() - side + 0.3, side, side),
                             GridColors::toneEdge(entry.tone));
            at.rx() += square;
        }
        for (qsizetype i = 0; i < entry.words.size(); ++i) {
            type.draw(painter, at + QPointF(i > 0 ? hanging : 0, 0), entry.words[i]);
            at.ry() += pitch;
        }
    }
}
