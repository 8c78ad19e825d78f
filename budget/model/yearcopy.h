// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/datafolder.h"
#include "storage/recordchange.h"

#include <QByteArray>

#include <optional>

/// A budget's file copied over that of the year after it, byte for byte; what that file held comes back.
class YearCopy
{
public:
    /// What copying `year` would do; nothing without a file of that year that holds anything.
    static std::optional<YearCopy> of(const DataFolder &folder, int year);

    int target() const { return m_target; }

    /// False, with the other file untouched, when the disk refuses.
    [[nodiscard]] bool commit(const DataFolder &folder) const;
    [[nodiscard]] ChangeResult undo(const DataFolder &folder) const;
    [[nodiscard]] ChangeResult redo(const DataFolder &folder) const;

private:
    ChangeResult exchange(const DataFolder &folder, const std::optional<QByteArray> &held,
                          const std::optional<QByteArray> &wanted) const;

    int m_target = 0;
    std::optional<QByteArray> m_before; ///< nothing where there was no file
    std::optional<QByteArray> m_after;
};
