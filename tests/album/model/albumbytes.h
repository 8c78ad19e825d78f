// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

#include <initializer_list>
#include <utility>

/// A record of `length` bytes: zeros, and these bytes at their places.
inline QByteArray recordBytes(qsizetype length,
                              std::initializer_list<std::pair<qsizetype, QByteArray>> fields)
{
    QByteArray record(length, '\0');
    for (const auto &[at, bytes] : fields)
        record.replace(at, bytes.size(), bytes);
    return record;
}

/// A record of the pictures.
inline QByteArray pictureBytes(std::initializer_list<std::pair<qsizetype, QByteArray>> fields)
{
    return recordBytes(2560, fields);
}

/// A record of albums and places.
inline QByteArray albumBytes(std::initializer_list<std::pair<qsizetype, QByteArray>> fields)
{
    return recordBytes(640, fields);
}
