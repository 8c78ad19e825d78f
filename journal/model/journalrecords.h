// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "journal/model/journalblock.h"
#include "shell/core/functionrecords.h"
#include "shell/core/programstate.h"
#include "shell/core/recordlines.h"
#include "storage/datafolder.h"

#include <QDate>

#include <optional>

/// The days of a journal that is not sealed, to be compared with another version of it and brought back from
/// there. A day is known by its date. Of a sealed year nothing is told, and nothing is written to it.
class JournalRecords final : public FunctionRecords, public RecordLines
{
public:
    JournalRecords(const DataFolder &folder, DateStyle style);

    QString counted(int count) const override;
    std::vector<FunctionRecord> all() const override;
    QStringList lines(const QString &key) const override;
    void visitLines(const std::function<bool(const FunctionRecord &record, const QStringList &lines)> &visit)
        const override;
    /// What was written for a day, byte for byte; what it has now becomes its earlier version.
    RecordsBack bringBack(const FunctionRecords &from, const QStringList &keys) override;

private:
    /// The blocks of a year; nothing where they cannot be read.
    std::optional<JournalBlocks> blocksOf(int year) const;
    bool mayBeWritten(int year) const;

    DataFolder m_folder;
    DateStyle m_style;
};
