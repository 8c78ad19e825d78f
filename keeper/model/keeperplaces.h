// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "keeper/model/keeperrecord.h"

#include <QList>

#include <array>
#include <functional>
#include <map>
#include <vector>

/// What is known of the records of `Secfile1.Fil` while they are open: which version of which entry lies in
/// which of them, and which are free. It reads and writes nothing itself.
class KeeperPlaces
{
public:
    /// What a version is of. Each counts its versions by itself.
    enum class Sort : quint8 { Entry, Draft, Settings };

    /// A version all of whose parts open, or one of which some do not.
    struct Version {
        quint32 number = 0;
        quint8 state = KeeperRecord::Entry;
        qint64 time = 0;
        std::vector<int> records{}; ///< that open, in the order of their parts
        bool isWhole = false;
        int lostPlace = 0; ///< a record of it that does not open, where that is known
    };

    static Sort sortOf(quint8 state);

    void clear();
    void reserve(int records) { m_places.reserve(std::size_t(records)); }
    /// The next record of the file, as it is when it is open.
    void add(QByteArrayView open);
    /// The next record, which does not open. `guess` is what its head seems to be: where it names an entry
    /// that is there, it counts as a version of that one.
    void addDamaged(QByteArrayView guess);
    void addFree(int count) { m_places.resize(m_places.size() + std::size_t(count)); }
    /// Behind the last of the file.
    void settle();

    int count() const { return int(m_places.size()); }
    /// Bytes that a record has of its version.
    qsizetype used(int record) const { return placeOf(record).used; }
    /// Up to `count` records that may be written over, the first of the file.
    std::vector<int> free(std::size_t count) const;

    /// Visits each entry, draft and so on once, with its versions, the oldest first.
    void forEach(Sort sort,
                 const std::function<void(const QByteArray &id, const std::vector<Version> &)> &visit) const;
    /// The versions of one, the oldest first.
    std::vector<Version> versions(Sort sort, const QByteArray &id) const;
    /// What a version is of.
    QByteArray idOf(const Version &version) const { return idOf(placeOf(version.records.front()).owner); }

    /// The highest version of one, also one that an interrupted write left; 0: there is none.
    quint32 highestVersion(Sort sort, QByteArrayView id) const;

    /// The record is a part of a version now, or free.
    void hold(int record, const KeeperRecord &head);
    void release(int record);

    QList<int> damaged() const;
    /// What damaged records left useless may be written over once these are free.
    void forgetDamaged();

private:
    static constexpr quint8 damagedState = 255;

    /// What is known of a record.
    struct Place {
        quint8 state = KeeperRecord::Free;
        bool isLeftOver =
            false; ///< of a version that was never whole, or is not any more: may be written over
        quint16 part = 0;
        quint16 parts = 0;
        quint16 used = 0;
        qint32 owner = -1; ///< place in `m_ids`
        int next = 0;      ///< another record of the same owner; 0: no more
        quint32 version = 0;
        qint64 time = 0;
    };
    /// A version that does not open.
    struct Lost {
        int record = 0;
        quint32 version = 0;
    };

    static bool isFree(const Place &place);
    static bool isOf(const Place &place, Sort sort);
    Place &placeOf(int record) { return m_places[std::size_t(record - 1)]; }
    const Place &placeOf(int record) const { return m_places[std::size_t(record - 1)]; }
    std::vector<qint32>::const_iterator orderOf(QByteArrayView id) const;
    qint32 knownOwner(QByteArrayView id) const;
    qint32 ownerOf(QByteArrayView id);
    std::vector<int> recordsOf(qint32 owner, Sort sort) const;
    QByteArray idOf(qint32 owner) const;
    void findLost();
    void findLeftOvers();
    std::vector<Version> gathered(std::vector<int> records, Sort sort) const;
    void addLost(std::vector<Version> &versions, qint32 owner) const;

    std::vector<Place> m_places;
    std::vector<std::array<char, KeeperRecord::idLength>> m_ids;
    std::vector<qint32> m_order;                         ///< places in `m_ids`, in the order of the ids
    std::vector<int> m_first;                            ///< by owner: where the chain of its records begins
    std::vector<std::pair<int, KeeperRecord>> m_guesses; ///< heads of damaged records, while they are read
    std::map<qint32, Lost> m_lost;                       ///< by owner, the highest
};
