// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/openedbackup.h"

#include "backup/model/diskrecords.h"
#include "backup/model/sealedsource.h"
#include "backup/model/setfolder.h"
#include "backup/model/snapshotsource.h"

#include <QFileInfo>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

bool isKeyDamaged(const QByteArray &record)
{
    return !SealedKey::opening(record, SecretBytes::ofText(u"any"_s));
}

/// The key of a sealed set; null where that was not its password.
std::shared_ptr<const SealedKey> openedKey(const QByteArray &record, const QString &password)
{
    std::optional<KeyDerivation> derivation = SealedKey::opening(record, SecretBytes::ofText(password));
    if (!derivation || !derivation->run())
        return {};
    std::optional<SealedKey> key = SealedKey::open(record, *derivation);
    return key ? std::make_shared<const SealedKey>(*std::move(key)) : nullptr;
}

} // namespace

OpenedBackup OpenedBackup::ofSet(const BackupSet &place, const QString &password, const GoOn &goOn)
{
    OpenedBackup opened;
    opened.place = place;
    std::optional<SetRecord> record = DiskRecords::readSet(place.folder);
    if (record && place.isSealed()) {
        const QByteArray keyRecord = SealedSource::keyRecord(place.folder);
        const auto key = openedKey(keyRecord, password);
        if (!key) {
            opened.refusal = isKeyDamaged(keyRecord)
                                 ? u"What is in this backup cannot be read: its key is damaged."_s
                                 : u"That is not the password of this backup."_s;
            return opened;
        }
        auto source = std::make_shared<SealedSource>(key, record->set, record->begun, goOn);
        record = source->setRecord(place.drive, record->disks);
        opened.source = source;
    } else if (record) {
        opened.source = std::make_shared<SetSource>(record->set, record->begun);
    }
    if (record)
        opened.set = *record;
    else
        opened.refusal = u"What is in this backup cannot be read: its last disk is damaged."_s;
    return opened;
}

bool OpenedBackup::isPassword(const QString &folder, const QString &password)
{
    const QByteArray record = SealedSource::keyRecord(folder);
    return isKeyDamaged(record) || openedKey(record, password);
}

OpenedBackup OpenedBackup::ofSnapshot(const Snapshot &snapshot, const std::atomic_bool &isStopped)
{
    OpenedBackup opened;
    opened.isSnapshot = true;
    auto source = std::make_shared<SnapshotSource>(snapshot, isStopped);
    opened.refusal = source->refusal();
    opened.set = source->setRecord();
    opened.place.drive = source->folder();
    opened.place.folder = source->folder();
    opened.source = std::move(source);
    return opened;
}

qint64 OpenedBackup::sealedBytes(const BackupSet &place)
{
    return place.isSealed() ? QFileInfo(place.folder + u'/' + SetFolder::sealed).size() : 0;
}
