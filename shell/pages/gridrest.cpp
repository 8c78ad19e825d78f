// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pages/gridrest.h"

#include "shell/pages/sharpline.h"

#include <QPainter>

#include <algorithm>
#include <numeric>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double points = GridTypes::smallestPoints;
constexpr double titlePoints = 9;
constexpr double titleHeight = 14;
constexpr double above = 7;
constexpr double narrowest = 165; ///< column
constexpr double columnGap = 14;
constexpr double leadGap = 5;
constexpr double gap = 1;
constexpr double hanging = 6;

} // namespace

GridRest::GridRest(const GridTypes &types, const QString &title, std::vector<Entry> entries, double width,
                   double most)
    : m_title(title)
    , m_entries(std::move(entries))
    , m_width(width)
{
    if (m_entries.empty())
        return;
    m_across = std::max(1, int((width + columnGap) / (narrowest + columnGap)));
    m_column = (width - (m_across - 1) * columnGap) / m_across;
    const PageType &strong = types.line(points, GridTypes::Strong);
    for (const Entry &entry : m_entries)
        m_lead = std::max(m_lead, strong.width(entry.name) + leadGap);
    const PageType &type = types.line(points);
    const double pitch = GridTypes::pitch(points);
    m_heights.reserve(m_entries.size());
    for (Entry &entry : m_entries) {
        entry.words = type.wrapped(entry.text, m_column - m_lead - hanging);
        m_heights.push_back(double(entry.words.size()) * pitch + gap);
    }
    const double all = std::accumulate(m_heights.begin(), m_heights.end(), 0.0);
    const double room = std::max(pitch, most - above - titleHeight);
    double column = std::min(room, std::max(all / m_across, pitch + gap));
    while (!fill(column) && column < room)
        column = std::min(room, column + pitch);
    m_height = above + titleHeight + column;
}

/// Fills the columns, each so high; false where some entry found no room.
bool GridRest::fill(double columnHeight)
{
    double y = 0;
    int column = 0;
    m_leftOut = 0;
    for (std::size_t i = 0; i < m_entries.size(); ++i) {
        if (y > 0 && y + m_heights[i] > columnHeight + 0.05) {
            y = 0;
            ++column;
        }
        const bool hasRoom = column < m_across && y + m_heights[i] <= columnHeight + 0.05;
        const QPointF corner(column * (m_column + columnGap), above + titleHeight + y);
        m_entries[i].rect = hasRoom ? QRectF(corner, QSizeF(m_column, m_heights[i] - gap)) : QRectF();
        m_leftOut += hasRoom ? 0 : 1;
        y += m_heights[i];
    }
    return m_leftOut == 0;
}

void GridRest::moveTo(QPointF corner)
{
    for (Entry &entry : m_entries) {
        if (entry.rect.isValid())
            entry.rect.translate(corner - m_corner);
    }
    m_corner = corner;
}

void GridRest::paint(QPainter &painter, const GridTypes &types) const
{
    if (m_entries.empty())
        return;
    const QPointF top = m_corner + QPointF(0, above - 2);
    fillSharpLine(painter, {top.x(), top.y(), m_width, 0.5}, GridColors::line);
    QString title = m_title;
    if (m_leftOut > 0)
        title += u", and "_s + QString::number(m_leftOut) + u" more that have no room"_s;
    types.of(titlePoints, GridTypes::Strong).draw(painter, top + QPointF(0, 2), title);
    const PageType &type = types.line(points);
    const PageType &strong = types.line(points, GridTypes::Strong);
    const double lift = GridTypes::lift(type, points);
    for (const Entry &entry : m_entries) {
        if (!entry.rect.isValid())
            continue;
        QPointF at = entry.rect.topLeft() + QPointF(0, lift);
        strong.draw(painter, at, entry.name);
        for (qsizetype i = 0; i < entry.words.size(); ++i) {
            type.draw(painter, at + QPointF(m_lead + (i > 0 ? hanging : 0), 0), entry.words[i]);
            at.ry() += GridTypes::pitch(points);
        }
    }
}
