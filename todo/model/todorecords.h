// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/functionrecords.h"
#include "shell/core/programstate.h"
#include "storage/datafolder.h"
#include "todo/model/todosheet.h"

#include <QDate>

/// The lists of the household with their items, to be compared with another version of them and brought back
/// from there. A list is known by its name, upper and lower case alike.
class ToDoRecords final : public FunctionRecords
{
public:
    ToDoRecords(const DataFolder &folder, DateStyle style, QDate today);

    QString counted(int count) const override;
    std::vector<FunctionRecord> all() const override;
    QStringList lines(const QString &key) const override;
    /// A list with its items as they were, in place of the one of that name.
    RecordsBack bringBack(const FunctionRecords &from, const QStringList &keys) override;

private:
    ToDoSheet sheet() const;
    QString lineOf(const ToDoItem &item) const;

    DataFolder m_folder;
    DateStyle m_style;
    QDate m_today;
};
