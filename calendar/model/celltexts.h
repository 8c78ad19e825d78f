// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/model/wallcalendar.h"

#include <vector>

/// Finds out which lines of a cell are meant by the texts that it is to have.
class CellTexts
{
public:
    CellTexts(const QList<DayLine> &lines, const QStringList &texts);

    /// The lines with these texts.
    QList<DayLine> lines() const;

private:
    static constexpr int none = -1;

    /// Between which lines, of those that say the same as before, something stands.
    struct Gap {
        int above = none;
        int below = none;
    };

    void matchEqual();
    void matchInPlace();
    void match(std::size_t text, int line);
    int lineFor(const Gap &gap) const;
    Gap gapOfLine(int line) const;
    Gap gapOfText(std::size_t text) const;

    const QList<DayLine> &m_lines;
    const QStringList &m_texts;
    std::vector<int> m_meant;    ///< of each text the line that it is; `none` for a new one
    std::vector<bool> m_isMeant; ///< of each line
    std::vector<int> m_equal;    ///< as `m_meant`, of those that say the same
    std::vector<bool> m_isEqual;
};
