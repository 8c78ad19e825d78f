// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "album/model/photodate.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <array>

/// Somebody in a picture.
struct PhotoPerson {
    QString name;
    int record = 0; ///< of the address book; 0: a name only

    bool operator==(const PhotoPerson &) const = default;
};

/// One picture: a record of `Photobk3.Fil`.
struct Photo {
    enum class DateFrom : quint8 { Nowhere, Picture, File, Typed };
    enum Bit : quint8 {
        TextsInFile = 1,
        LeftOutOfShows = 2,
        NotThere = 4 ///< when it was last looked for
    };
    using Hash = std::array<quint8, 32>;  ///< BLAKE2b-256 of the file
    static constexpr Hash notHashed{};    ///< where it is not known yet
    static constexpr int mostPeople = 16; ///< that lead to the address book
    static constexpr int mostRating = 5;

    int record = 0;
    QString path; ///< as the system gives it; relative to the data folder where it lies inside
    QString caption;
    QString story;
    QString place;
    QString tags;   ///< "garden; summer"
    QString people; ///< "Anne Lind; Karin"
    std::array<int, mostPeople> personRecords{};
    PhotoDate date{};
    DateFrom dateFrom = DateFrom::Nowhere;
    quint8 turns = 0; ///< to the right, 0 to 3, on top of the picture's own
    quint8 rating = 0;
    quint8 bits = 0;
    quint32 width = 0;
    quint32 height = 0;
    qint64 size = 0;
    qint64 fileTime = 0; ///< seconds since 1970, UTC
    Hash hash{};

    bool has(Bit bit) const { return (bits & bit) != 0; }
    void set(Bit bit, bool isSet) { bits = quint8(isSet ? bits | bit : bits & ~bit); }
    bool isHashed() const { return hash != notHashed; }

    /// "IMG_0001.jpg"
    QString fileName() const;

    QStringList tagList() const;
    void setTags(const QStringList &list);
    QList<PhotoPerson> persons() const;
    /// Those beyond the sixteenth are names only.
    void setPersons(const QList<PhotoPerson> &list);

    bool operator==(const Photo &) const = default;
};
