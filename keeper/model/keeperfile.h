// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "keeper/model/keeperplaces.h"
#include "keeper/model/keeperrecord.h"
#include "storage/datafolder.h"
#include "storage/recordfile.h"
#include "storage/sealing/sealedrecords.h"

#include <QList>

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

    using Sort = KeeperPlaces::Sort;
    using Version = KeeperPlaces::Version;

    /// What is to be written.
    struct Writing {
        QByteArray id;
        quint8 state = KeeperRecord::Entry;
        qint64 time = 0;
        SecretBytes payload;
    };

    KeeperFile(const DataFolder &folder, SecretBytes key, const QByteArray &keeperId);
    /// Flushes what waits for it.
    ~KeeperFile();
    Q_DISABLE_COPY_MOVE(KeeperFile)

    /// A new file's bytes: free records alone.
    static QByteArray made(SecretBytes key, const QByteArray &keeperId);
    /// Whether `bytes`, the beginning of a file, can be sealed records: those look like noise.
    static bool looksSealed(QByteArrayView bytes);

    /// Opens every record once and notes what it holds. False when the file cannot be read.
    bool load();

    const SecretBytes &key() const { return m_records.key(); }

    /// Which versions there are, and in which records.
    const KeeperPlaces &places() const { return m_places; }

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
    /// The same without a flush of its own, for what does no harm where it comes back: it reaches the disk
    /// with the next write, or when the keeper is locked. What was written before is on the disk already.
    [[nodiscard]] bool releaseWithTheNext(const std::vector<int> &records);

    /// Makes the records free that do not open, with the parts that they leave useless.
    [[nodiscard]] bool giveUpDamaged();

private:
    struct Written {
        int record = 0;
        QByteArray former;
        KeeperRecord head;
    };

    [[nodiscard]] bool flush();
    std::vector<int> takeFree(std::size_t count);
    [[nodiscard]] bool grow(std::size_t missing);
    QByteArray sealedFree(int record) const;
    bool writeParts(OpenRecordFile &file, const Writing &writing, quint32 version, std::vector<int> &free,
                    std::vector<Written> &written);
    bool readsBack(OpenRecordFile &file, const Written &written, QByteArrayView plain) const;
    static void takeBack(OpenRecordFile &file, const std::vector<Written> &written);
    bool overwrite(OpenRecordFile &file, const std::vector<int> &records);

    DataFolder m_folder;
    RecordFile m_file;
    SealedRecords m_records;
    KeeperPlaces m_places;
    mutable SecretBytes m_open{KeeperRecord::openLength}; ///< a record while it is worked on, zeros else
    bool m_hasUnflushed = false;                          ///< free records that wait for the next flush
};
