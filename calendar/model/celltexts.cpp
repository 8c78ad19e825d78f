// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/model/celltexts.h"

#include <QHash>

#include <map>

CellTexts::CellTexts(const QList<DayLine> &lines, const QStringList &texts)
    : m_lines(lines)
    , m_texts(texts)
    , m_meant(std::size_t(texts.size()), none)
    , m_isMeant(std::size_t(lines.size()), false)
{
    matchEqual();
    m_equal = m_meant;
    m_isEqual = m_isMeant;
    matchInPlace();
}

QList<DayLine> CellTexts::lines() const
{
    // A line that is not shown stands behind the one that it stood behind.
    std::map<int, QList<DayLine>> hidden;
    int above = none;
    for (int line = 0; line < m_lines.size(); ++line) {
        if (m_isMeant[std::size_t(line)]) {
            above = line;
        } else if (!m_lines.at(line).isTyped()) {
            hidden[above].append(m_lines.at(line));
            hidden[above].last().shown.clear();
        }
    }
    QList<DayLine> lines = hidden[none];
    for (std::size_t text = 0; text < m_meant.size(); ++text) {
        const int line = m_meant[text];
        lines.append(line == none ? DayLine() : m_lines.at(line));
        lines.last().shown = m_texts.at(qsizetype(text));
        if (const auto behind = hidden.find(line); line != none && behind != hidden.end())
            lines += behind->second;
    }
    return lines;
}

void CellTexts::match(std::size_t text, int line)
{
    m_meant[text] = line;
    m_isMeant[std::size_t(line)] = true;
}

void CellTexts::matchEqual()
{
    QHash<QString, QList<int>> linesOf;
    for (int line = int(m_lines.size()) - 1; line >= 0; --line)
        linesOf[m_lines.at(line).shown].append(line);
    for (std::size_t text = 0; text < m_meant.size(); ++text) {
        const auto lines = linesOf.find(m_texts.at(qsizetype(text)));
        if (lines != linesOf.end() && !lines->isEmpty())
            match(text, lines->takeLast());
    }
}

void CellTexts::matchInPlace()
{
    for (std::size_t text = 0; text < m_meant.size(); ++text) {
        if (m_meant[text] != none)
            continue;
        if (const int line = lineFor(gapOfText(text)); line != none)
            match(text, line);
    }
}

/// The first that stood there and is not meant yet.
int CellTexts::lineFor(const Gap &gap) const
{
    for (int line = 0; line < m_lines.size(); ++line) {
        if (m_isMeant[std::size_t(line)] || m_lines.at(line).shown.isEmpty())
            continue;
        const Gap former = gapOfLine(line);
        if (former.above == gap.above || former.below == gap.below)
            return line;
    }
    return none;
}

CellTexts::Gap CellTexts::gapOfLine(int line) const
{
    const auto find = [this](int at, int step) {
        while (at >= 0 && at < m_lines.size() && !m_isEqual[std::size_t(at)])
            at += step;
        return at < m_lines.size() ? at : none;
    };
    return {find(line - 1, -1), find(line + 1, 1)};
}

CellTexts::Gap CellTexts::gapOfText(std::size_t text) const
{
    Gap gap;
    for (std::size_t above = text; above > 0 && gap.above == none; --above)
        gap.above = m_equal[above - 1];
    for (std::size_t below = text + 1; below < m_equal.size() && gap.below == none; ++below)
        gap.below = m_equal[below];
    return gap;
}
