// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>

/// What a record of `Secfile1.Fil` holds once it is open: a head, and a part of an entry.
struct KeeperRecord {
    enum State : quint8 {
        Free = 0,
        Entry = 1,
        Trash = 2,
        Draft = 3,
        Settings = 4
    }; ///< others are nobody's: kept as they are

    static constexpr qsizetype sealedLength = 2048;
    static constexpr qsizetype openLength = 2008;
    static constexpr qsizetype headLength = 36;
    static constexpr qsizetype partLength = openLength - headLength; ///< 1,972
    static constexpr int mostParts = 32;
    static constexpr qsizetype longestPayload = mostParts * partLength;
    static constexpr qsizetype idLength = 16;

    quint8 state = Free;
    quint16 part = 0; ///< from 1 on
    quint16 parts = 0;
    quint16 used = 0; ///< bytes of the part
    QByteArray id;
    quint32 version = 0;
    qint64 time = 0; ///< seconds since 1970, UTC

    /// The head of an open record.
    static KeeperRecord decoded(QByteArrayView bytes);
    /// Whether head and length fit together: what we wrote does.
    bool isSound() const;

    /// Puts the head and `payload`, a part, into `bytes`, which are `openLength` zeros.
    void encode(QByteArrayView payload, char *bytes) const;
};
