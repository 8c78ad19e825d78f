// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/model/yearcopy.h"

#include "budget/model/budgetfiles.h"
#include "storage/saving.h"

#include <QFile>

namespace {

/// The bytes of a year's file; nothing where there is none, or where it cannot be read.
std::optional<QByteArray> bytesOf(const DataFolder &folder, int year)
{
    QFile file(folder.filePath(BudgetFiles::fileName(year)));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return file.readAll();
}

} // namespace

std::optional<YearCopy> YearCopy::of(const DataFolder &folder, int year)
{
    YearCopy copy;
    copy.m_target = year + 1;
    copy.m_after = bytesOf(folder, year);
    copy.m_before = bytesOf(folder, copy.m_target);
    return copy.m_after && !copy.m_after->isEmpty() ? std::optional(copy) : std::nullopt;
}

bool YearCopy::commit(const DataFolder &folder) const
{
    return Saving::replaceFile(folder, BudgetFiles::fileName(m_target), *m_after);
}

ChangeResult YearCopy::undo(const DataFolder &folder) const
{
    return exchange(folder, m_after, m_before);
}

ChangeResult YearCopy::redo(const DataFolder &folder) const
{
    return exchange(folder, m_before, m_after);
}

ChangeResult YearCopy::exchange(const DataFolder &folder, const std::optional<QByteArray> &held,
                                const std::optional<QByteArray> &wanted) const
{
    if (bytesOf(folder, m_target) != held)
        return ChangeResult::Outdated;
    const QString name = BudgetFiles::fileName(m_target);
    const bool isDone = wanted ? Saving::replaceFile(folder, name, *wanted)
                               : !folder.isReadOnly() && QFile::remove(folder.filePath(name));
    return isDone ? ChangeResult::Done : ChangeResult::Refused;
}
