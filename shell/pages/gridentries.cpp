// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pages/gridentries.h"

#include <algorithm>
#include <utility>

namespace {

constexpr double hanging = 0.6; ///< sizes of the letters
constexpr double square = 0.95; ///< with the gap behind it
constexpr double tolerance = 0.05;
constexpr double beside = 1.3;       ///< sizes of the letters, between two entries side by side
constexpr double narrowLetter = 0.2; ///< sizes of the letters

/// Whether a text is surely too long, told without wrapping it.
bool isTallerThan(double height, const GridFrame &frame, const GridLine &line, double width)
{
    const double leastLines = double(line.text.size()) * narrowLetter * frame.points() / std::max(1.0, width);
    return leastLines * frame.pitch() > height + frame.pitch();
}

/// Whether a word of `text` is wider than that and would be torn.
bool tearsWords(const PageType &type, const QString &text, double width)
{
    const QStringList words = text.split(u' ');
    return std::ranges::any_of(words,
                               [&](const QString &word) { return type.wrappedFast(word, width).size() > 1; });
}

/// Wraps anew behind the first line, for lines that hang. Where a word has no room beside that, they do not.
void indent(LaidLine &laid, const PageType &type, double indent, double room)
{
    const QString &text = laid.line->text;
    const QString first = laid.words.constFirst();
    const QString rest = text.mid(first.size()).trimmed();
    const bool isHidden = !text.startsWith(first) || rest.isEmpty(); // by what cannot be printed as it is
    if (isHidden || (tearsWords(type, rest, room - indent) && !tearsWords(type, rest, room)))
        return;
    laid.indent = indent;
    laid.words = QStringList(first) + type.wrappedFast(rest, room - indent);
}

} // namespace

GridEntries::GridEntries(const GridFrame &frame, const QList<GridLine> &lines, qsizetype first, double width)
    : m_first(first)
{
    const double most = frame.body().height();
    for (qsizetype i = first; i < lines.size(); ++i) {
        if (m_height > most || isTallerThan(most, frame, lines[i], width)) {
            m_height = most * 2; // what follows has no room however the rows are shared out
            break;
        }
        add(frame, wrapped(frame, lines[i], width), width);
    }
}

/// Below the entries before it, or beside the last one where lines run and there is room.
void GridEntries::add(const GridFrame &frame, LaidLine line, double width)
{
    const double height = heightOf(frame, line);
    double left = 0;
    double top = m_lines.empty() ? 0 : m_height + gap;
    double taken = width;
    if (frame.isRunning() && line.words.size() == 1) {
        taken = std::min(width, line.lead + widthOf(frame, line));
        const bool isOneLevel = !m_lines.empty() && m_lines.back().words.size() == 1;
        const double behind = isOneLevel ? m_lines.back().rect.right() + beside * frame.points() : width;
        if (isOneLevel && behind + taken <= width) {
            left = behind;
            top = m_lines.back().rect.top();
            line.isBesideLast = true;
        }
    }
    line.rect = QRectF(left, top, taken, height);
    m_height = line.rect.bottom();
    m_lines.push_back(std::move(line));
}

qsizetype GridEntries::place(const QRectF &place, std::vector<LaidLine> &laid) const
{
    for (std::size_t i = 0; i < m_lines.size(); ++i) {
        const QRectF rect = m_lines[i].rect.translated(place.topLeft());
        if (rect.bottom() > place.bottom() + tolerance)
            return m_first + qsizetype(i);
        laid.push_back(m_lines[i]);
        laid.back().rect = rect;
    }
    return m_first + qsizetype(m_lines.size());
}

double GridEntries::widthOf(const GridFrame &frame, const LaidLine &line)
{
    const GridTypes::Weight weight = line.line->isStrong ? GridTypes::Strong : GridTypes::Normal;
    return frame.types().line(frame.points(), weight).width(line.words.constFirst());
}

LaidLine GridEntries::wrapped(const GridFrame &frame, const GridLine &line, double width, Further further)
{
    const PageType &type =
        frame.types().line(frame.points(), line.isStrong ? GridTypes::Strong : GridTypes::Normal);
    LaidLine laid{.line = &line};
    laid.lead = line.tone > 0 ? square * frame.points() : 0;
    const double room = width - laid.lead;
    laid.words = type.wrappedFast(line.text, room);
    if (laid.words.size() > 1 && further == Further::Indented)
        indent(laid, type, hanging * frame.points(), room);
    return laid;
}

double GridEntries::heightOf(const GridFrame &frame, const LaidLine &line)
{
    return double(line.words.size()) * frame.pitch();
}
