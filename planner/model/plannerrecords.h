// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "planner/model/plannerfiles.h"
#include "shell/core/functionrecords.h"
#include "shell/core/programstate.h"

/// The days of the planner that have entries, to be compared with another version of it and brought back from
/// there. A day is known by its date.
class PlannerRecords final : public FunctionRecords
{
public:
    PlannerRecords(const DataFolder &folder, DateStyle style);

    QString counted(int count) const override;
    std::vector<FunctionRecord> all() const override;
    QStringList lines(const QString &key) const override;
    /// A day as it was, in place of what the date has now.
    RecordsBack bringBack(const FunctionRecords &from, const QStringList &keys) override;

private:
    DataFolder m_folder;
    DateStyle m_style;
};
