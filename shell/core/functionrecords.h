// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/undostep.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

/// One record of a function as a person knows it: an entry, a day, a budget, a car, a person.
struct FunctionRecord {
    QString key;        ///< what stays the same from one version to the next: a number, a date, a name
    QString title;      ///< "Josephine Holm", "Tuesday, 3 November 2026"
    QByteArray content; ///< its bytes, or a hash of them: two versions with equal ones do not differ

    bool operator==(const FunctionRecord &) const = default;
};

/// What came of bringing records back.
struct RecordsBack {
    QStringList keys;             ///< of the records that are back now
    QString refusal;              ///< a sentence for the user where not all of them are; empty otherwise
    std::optional<UndoStep> step; ///< takes it back; none where nothing was written
};

/// The records of one function in one folder: the household's, or a copy of it that lies elsewhere. It knows
/// its folder and values only, so that it can be made in one thread and read in another. Nothing is made or
/// changed by reading, and damaged files have the records that can be read.
class FunctionRecords
{
public:
    virtual ~FunctionRecords() = default;

    /// "1 address", "40 addresses".
    virtual QString counted(int count) const = 0;
    /// All records in the function's own order, read in one pass over its files.
    virtual std::vector<FunctionRecord> all() const = 0;
    /// The same one after another, where there are many: what a record holds is good during its visit only.
    virtual void visitAll(const std::function<void(const FunctionRecord &record)> &visit) const
    {
        for (const FunctionRecord &record : all())
            visit(record);
    }
    /// What the record `key` says, a line for each field that has something, to be compared with another
    /// version: "Telephone: 555-0142". Empty where there is no such record.
    virtual QStringList lines(const QString &key) const = 0;
    /// Writes the records `keys` of `from`, of the same function, into this folder, as the function's own
    /// window would: all of them, or none where the disk refuses.
    virtual RecordsBack bringBack(const FunctionRecords &from, const QStringList &keys) = 0;

protected:
    FunctionRecords() = default;
    FunctionRecords(const FunctionRecords &) = default;
    FunctionRecords &operator=(const FunctionRecords &) = default;
};
