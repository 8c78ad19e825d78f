// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/model/daylines.h"

#include <QList>
#include <QTextBoundaryFinder>

#include <algorithm>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

/// How wide a text is, measured in letters of the common width: near enough to tell where its lines break in
/// a proportional font.
double letters(QStringView text)
{
    double width = 0;
    for (const QChar c : text) {
        if (u"ijlI|!'.,:; "_s.contains(c))
            width += 0.5;
        else if (u"frt-()"_s.contains(c))
            width += 0.65;
        else if (u"mwMW@%"_s.contains(c))
            width += 1.5;
        else
            width += c.isUpper() ? 1.15 : 1.0;
    }
    return width;
}

enum class Breaks { AtBlanks, WithinWords };

/// No painter of pages breaks within a number of several parts ("555 0100").
bool isBreak(const QString &text, qsizetype at, Breaks breaks)
{
    if (text[at - 1] != u' ')
        return breaks == Breaks::WithinWords;
    const bool isBehindNumber = at > 1 && (text[at - 2].isDigit() || text[at - 2] == u')');
    return !isBehindNumber || !text[at].isDigit();
}

/// Lines that the text takes when it is broken between its words, or also within them where a painter may
/// break ("Lindqvist-"), and anywhere in what is longer than a line.
int brokenLines(const QString &text, double perLine, Breaks breaks)
{
    QTextBoundaryFinder ends(QTextBoundaryFinder::Line, text);
    int lines = 1;
    double used = 0;
    for (qsizetype from = 0; from < text.size();) {
        const qsizetype next = ends.toNextBoundary();
        const qsizetype end = next < 0 ? text.size() : next;
        if (end < text.size() && !isBreak(text, end, breaks))
            continue;
        const QStringView piece = QStringView(text).sliced(from, end - from);
        const double width = letters(AnsiText::trimmedBlanks(piece));
        const double blanks = letters(piece) - width; // they may hang over the end of the line
        if (used > 0 && used + width > perLine) {
            ++lines;
            used = 0;
        }
        const int more = std::max(0, int(std::ceil((used + width) / perLine)) - 1);
        lines += more;
        used += width - more * perLine + blanks;
        from = end;
    }
    return lines;
}

} // namespace

DayLines::DayLines(const PlannerDay &day, const QStringList &notes)
{
    for (const QString &note : notes)
        m_lines.push_back({{}, note});
    for (std::size_t row = 0; row < PlannerDay::rowCount; ++row) {
        if (!day.isRowEmpty(row))
            m_lines.push_back({AnsiText::trimmedBlanks(day.times[row]).toString(),
                               AnsiText::trimmedBlanks(day.texts[row]).toString()});
    }
}

QString DayLines::joined(int entry) const
{
    const Line &line = m_lines[std::size_t(entry)];
    if (line.time.isEmpty() || line.text.isEmpty())
        return line.time + line.text;
    return line.time + u' ' + line.text;
}

/// A painter breaks within words or not, as the widths of its font have it: the larger of the two holds both.
int DayLines::wanted(int entry, int characters, Style style) const
{
    const double perLine = std::max(1, characters);
    const QString whole = style == Joined ? joined(entry) : text(entry);
    return std::max(brokenLines(whole, perLine, Breaks::AtBlanks),
                    brokenLines(whole, perLine, Breaks::WithinWords));
}

int DayLines::lineCount(int characters, Style style) const
{
    int lines = 0;
    for (int entry = 0; entry < count(); ++entry)
        lines += wanted(entry, characters, style);
    return lines;
}

std::vector<int> DayLines::share(int characters, int capacity, Style style) const
{
    const int shown = count() <= capacity ? count() : std::max(0, capacity - 1);
    std::vector<int> lines(std::size_t(shown), 1);
    int free = count() <= capacity ? capacity - shown : 0;
    for (int entry = 0; entry < shown; ++entry) {
        const int more = std::min(free, wanted(entry, characters, style) - 1);
        lines[std::size_t(entry)] += more;
        free -= more;
    }
    return lines;
}

std::vector<int> DayLines::uncut(int characters, int capacity, Style style) const
{
    int free = lineCount(characters, style) <= capacity ? capacity : capacity - 1;
    std::vector<int> lines;
    for (int entry = 0; entry < count(); ++entry) {
        const int own = wanted(entry, characters, style);
        free -= own;
        if (free < 0)
            break;
        lines.push_back(own);
    }
    return lines;
}
