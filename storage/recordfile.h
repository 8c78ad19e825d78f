// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/datafolder.h"

#include <QByteArray>
#include <QString>

#include <functional>

/// A random-access file of records of one length, numbered from 1. Each call opens the file, does its work in
/// one contiguous read or write, and closes it again. Nothing is ever padded or rewritten: the last record
/// may be short.
class RecordFile
{
public:
    /// The file `name` of `folder`. Where that is for reading only, the file is never made and no write is
    /// done.
    RecordFile(const DataFolder &folder, const QString &name, qsizetype recordLength);

    /// The bytes of record `number`: at most a record's length, fewer at the end of the file, none when the
    /// record, the file or its folder is missing or cannot be read, or when `number` is below 1.
    QByteArray read(int number) const;

    /// The bytes of the records `first` to `last` in one contiguous read: fewer at the end of the file or
    /// when reading fails on the way, none as with `read`.
    QByteArray read(int first, int last) const;

    /// Writes `value` at the start of record `number`; bytes of the record behind it keep what they held.
    /// True once it is on the disk itself. False, with a line in the log and the record as it was, when the
    /// value is longer than a record, `number` is below 1, or the disk refuses.
    [[nodiscard]] bool write(int number, QByteArrayView value);

    /// Creates the file, empty, when it is missing. Where that fails, the log says so.
    void create();

    /// Records of the file, a short last one included; 0 when it is missing.
    int recordCount() const;

    /// Visits the records from `first` to the end of the file in one sequential pass with a buffer of fixed
    /// size. The visitor gets the number and the bytes (the last may be short) and returns false to stop.
    void forEach(int first, const std::function<bool(int number, QByteArrayView bytes)> &visit) const;

    qsizetype recordLength() const { return m_recordLength; }
    const QString &path() const { return m_path; }
    bool isReadOnly() const { return m_isReadOnly; }

private:
    QString m_path;
    qsizetype m_recordLength;
    bool m_isReadOnly;
};
