// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/diskrecords.h"
#include "backup/model/snapshotmanifest.h"
#include "fuzztarget.h"

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes = asBytes(data, size).toByteArray();
    const auto disk = DiskRecords::diskRecord(bytes);
    require(!disk || DiskRecords::diskRecord(DiskRecords::encoded(*disk)) == disk,
            "a disk is written as it is read");
    for (qsizetype i = 0; disk && i < disk->parts.size(); ++i) {
        const BackupPart &part = disk->parts[i];
        require(DiskRecords::isSafe(part.name), "a part leads nowhere else");
        require(part.offset >= 0 && part.bytes >= 0 && part.offset <= part.size - part.bytes,
                "a part lies in its file");
    }
    const auto set = DiskRecords::setRecord(bytes);
    require(!set || DiskRecords::setRecord(DiskRecords::encoded(*set)) == set,
            "a set is written as it is read");
    for (qsizetype i = 0; set && i < set->files.size(); ++i) {
        const BackupFile &file = set->files[i];
        require(DiskRecords::isSafe(file.name), "a file leads nowhere else");
        require(file.firstDisk >= 1 && file.firstDisk <= file.lastDisk && file.lastDisk <= set->disks,
                "a file lies on disks of its set");
    }
    const auto files = SnapshotManifest::decoded(bytes);
    require(!files || SnapshotManifest::decoded(SnapshotManifest::encoded(*files)) == files,
            "a list is written as it is read");
    return 0;
}
