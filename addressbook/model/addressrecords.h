// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "addressbook/model/addressbook.h"
#include "shell/core/recordlines.h"

#include <QHash>

#include <functional>
#include <vector>

/// The entries of the address book, to be compared with another version of it and brought back from there. An
/// entry is known by its name, a further one of that name by its record too: one that was brought back into
/// another record is still found. Where the index is cut short, entries count without their line.
class AddressRecords final : public FunctionRecords, public RecordLines
{
public:
    explicit AddressRecords(const DataFolder &folder);

    QString counted(int count) const override;
    std::vector<FunctionRecord> all() const override;
    void visitAll(const std::function<void(const FunctionRecord &record)> &visit) const override;
    QStringList lines(const QString &key) const override;
    void visitLines(const std::function<bool(const FunctionRecord &record, const QStringList &lines)> &visit)
        const override;
    /// Where the same record still has an entry of that name, it is replaced; any other comes into a free
    /// record.
    RecordsBack bringBack(const FunctionRecords &from, const QStringList &keys) override;

private:
    struct Found {
        int record = 0;
        QString key;
        QString name;
        QByteArrayView bytes; ///< of a whole record; good during the visit
    };
    struct Wanted {
        int record = 0;
        QString key;
        QString name;
        QByteArray bytes;
    };

    struct Here {
        QHash<int, QString> names;        ///< by record
        QHash<QString, QByteArray> marks; ///< by key
    };

    static QString titleOf(const Found &found);
    static QStringList linesOf(const Found &found);
    /// The visitor returns false to stop.
    void forEach(const std::function<bool(const Found &found)> &visit) const;
    Here here() const;
    std::vector<Wanted> wanted(const QStringList &keys) const;

    DataFolder m_folder;
};
