// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "keeper/model/keeperrecord.h"
#include "storage/datafolder.h"
#include "storage/recordfile.h"
#include "storage/sealing/sealedrecords.h"

#include <QList>

#include <array>
#include <functional>
#include <optional>
#include <vector>

class OpenRecordFile;

/// `Secfile1.Fil` while its key is known: which version of which entry lies in which records. Free records
/// are sealed like all others and the file grows by 16 of them, so that nobody sees how many entries it has.
///
/// A version goes into free records only, and is read back before an older one makes room. What does not
/// open is never written over until it is given up.
class KeeperFile
{
public:
    static constexpr int growth = 16;

    /// What a version is of. Each counts its versions by itself.
    enum class Sort : quint8 { Entry, Draft, Settings };

    /// A version all of whose parts open, or one of which some are missing.
    struct Version {
        quint32 number = 0;
        quint8 state = KeeperRecord::Entry;
        qint64 time = 0;
        std::vector<int> records; ///< in the order of their parts
        bool isWhole = false;
    };

    /// What is to be written.
    struct Writing {
        QByteArray id;
        quint8 state = KeeperRecord::Entry;
        qint64 time = 0;
        SecretBytes payload;
    };

    KeeperFile(const DataFolder &folder, SecretBytes key, const QByteArray &keeperId);

    /// A new file's bytes: free records alone.
    static QByteArray made(SecretBytes key, const QByteArray &keeperId);
    /// Whether `bytes`, the beginning of a file, can be sealed records: those look like noise.
    static bool looksSealed(QByteArrayView bytes);

    /// Opens every record once and notes what it holds. False when the file cannot be read.
    bool load();

    const SecretBytes &key() const { return m_records.key(); }

    /// Visits each entry, draft and so on once, with its versions, the oldest first.
    void forEach(Sort sort,
                 const std::function<void(const QByteArray &id, const std::vector<Version> &)> &visit) const;
    /// The versions of one, the oldest first.
    std::vector<Version> versions(Sort sort, const QByteArray &id) const;

    /// What a version is of.
    QByteArray idOf(const Version &version) const;

    /// The open payload of a whole version; nothing when it does not open any more.
    std::optional<SecretBytes> payload(const Version &version) const;
    /// The same for many versions of one record each, in the order of the file and with one buffer.
    void forEachPayload(const std::vector<std::pair<int, qsizetype>> &records,
                        const std::function<void(qsizetype tag, QByteArrayView payload)> &visit) const;

    /// Writes a new version of each into free records, flushes, reads them back and opens them. All are of
    /// one sort. False, with all as it was, when the disk refuses.
    [[nodiscard]] bool write(const std::vector<Writing> &writings);
    /// Overwrites these records as free ones, and flushes. False when the disk refuses; some may be free
    /// then.
    [[nodiscard]] bool release(const std::vector<int> &records);

    /// The records that do not open.
    QList<int> damagedPlaces() const;
    /// Makes them free, with the parts that they leave useless.
    [[nodiscard]] bool giveUpDamaged();

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
        quint32 version = 0;
        qint64 time = 0;
    };
    struct Written {
        int record = 0;
        QByteArray former;
        Place place;
    };

    static Sort sortOf(quint8 state);
    static bool isFree(const Place &place);
    bool isOf(const Place &place, Sort sort) const;
    Place &placeOf(int record) { return m_places[std::size_t(record - 1)]; }
    const Place &placeOf(int record) const { return m_places[std::size_t(record - 1)]; }
    std::vector<qint32>::const_iterator orderOf(QByteArrayView id) const;
    qint32 knownOwner(QByteArrayView id) const;
    qint32 ownerOf(QByteArrayView id);
    QByteArray idOf(qint32 owner) const;
    void note(int record, QByteArrayView open);
    void findLeftOvers();
    std::vector<Version> gathered(std::vector<int> records) const;
    std::vector<quint32> highestVersions(Sort sort) const;
    std::vector<int> takeFree(std::size_t count);
    [[nodiscard]] bool grow(std::size_t missing);
    QByteArray sealedFree(int record) const;
    bool writeParts(OpenRecordFile &file, const Writing &writing, quint32 version, std::vector<int> &free,
                    std::vector<Written> &written);
    bool readsBack(OpenRecordFile &file, const Written &written, QByteArrayView plain) const;
    static void takeBack(OpenRecordFile &file, const std::vector<Written> &written);

    DataFolder m_folder;
    RecordFile m_file;
    SealedRecords m_records;
    std::vector<Place> m_places;
    std::vector<std::array<char, KeeperRecord::idLength>> m_ids;
    std::vector<qint32> m_order; ///< places in `m_ids`, in the order of the ids
};
