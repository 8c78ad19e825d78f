// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/support/testfiles.h"

#include <initializer_list>

/// A record of Addbk1.Fil: the first texts given, the rest blank.
inline QByteArray entryBytes(std::initializer_list<QByteArray> texts, const QByteArray &picture = "**")
{
    QByteArray bytes;
    for (const QByteArray &text : texts)
        bytes += padded(text, 40);
    return padded(bytes, 13 * 40) + padded(picture, 200) + "    ";
}

/// A record of Addbk2.Fil; what stands behind the text means nothing.
inline QByteArray lineBytes(const QByteArray &line)
{
    QByteArray bytes(1, char(line.size()));
    bytes += '\0';
    bytes += line;
    return bytes + QByteArray(60 - bytes.size(), 'x');
}

/// The line of a short name.
inline QByteArray lineOf(const QByteArray &names, int record)
{
    return padded(names, 47) + QByteArray::number(record);
}

inline QByteArray neverWritten(int length)
{
    return QByteArray(length, '\0');
}
