// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budget/model/spending.h"
#include "shell/core/functionrecords.h"
#include "shell/core/programstate.h"
#include "storage/datafolder.h"

#include <QList>

/// The years of the budget with what was spent in them, to be compared with another version and brought back
/// from there. A budget is known by its year.
class BudgetRecords final : public FunctionRecords
{
public:
    BudgetRecords(const DataFolder &folder, DateStyle style);

    QString counted(int count) const override;
    std::vector<FunctionRecord> all() const override;
    QStringList lines(const QString &key) const override;
    /// The files of a year as they were, byte for byte. One that the other version does not have stays.
    RecordsBack bringBack(const FunctionRecords &from, const QStringList &keys) override;

private:
    QList<int> years() const;
    void addSpent(QStringList &lines, const Spending &spending) const;

    DataFolder m_folder;
    DateStyle m_style;
};
