// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/functionrecords.h"
#include "storage/datafolder.h"

/// The persons of the weight tracker, to be compared with another version of it and brought back from there.
/// A person is known by name, upper and lower case alike.
class WeightRecords final : public FunctionRecords
{
public:
    explicit WeightRecords(const DataFolder &folder);

    QString counted(int count) const override;
    std::vector<FunctionRecord> all() const override;
    QStringList lines(const QString &key) const override;
    /// The file of a person as it was, byte for byte. Who is not in the list comes to the place that was
    /// theirs, beside a file of that name that is somebody else's.
    RecordsBack bringBack(const FunctionRecords &from, const QStringList &keys) override;

private:
    QStringList names() const;

    DataFolder m_folder;
};
