// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "todo/model/todosheet.h"

#include <utility>
#include <vector>

/// What one action changed in the lists: the lines that went and those that came. It can be taken back and
/// made again as long as those lines stand where it left them.
class ToDoDifference
{
public:
    static ToDoDifference between(const ToDoSheet &before, const ToDoSheet &after);

    bool isEmpty() const { return m_gone.empty() && m_come.empty(); }

    /// Makes the change in `sheet`; false, with nothing changed, where it is not what it was before.
    [[nodiscard]] bool apply(ToDoSheet &sheet) const
    {
        return sheet.lineCount() == m_before && exchange(sheet, m_gone, m_come, m_lastAfter);
    }
    /// Takes it back in the same way.
    [[nodiscard]] bool revert(ToDoSheet &sheet) const
    {
        return sheet.lineCount() == m_after && exchange(sheet, m_come, m_gone, m_lastBefore);
    }

private:
    using Lines = std::vector<std::pair<int, QByteArray>>; ///< with their places

    static bool exchange(ToDoSheet &sheet, const Lines &gone, const Lines &come, std::pair<int, int> lastIds);

    Lines m_gone;
    Lines m_come;
    int m_before = 0; ///< lines of both sheets
    int m_after = 0;
    std::pair<int, int> m_lastBefore; ///< ids of both: what is taken back was never there
    std::pair<int, int> m_lastAfter;
};
