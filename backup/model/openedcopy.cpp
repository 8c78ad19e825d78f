// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/openedcopy.h"

#include "backup/model/diskrecords.h"
#include "backup/model/recordfiles.h"
#include "backup/model/setsource.h"
#include "backup/model/snapshotreader.h"
#include "shell/core/settingskeys.h"

#include <QFile>
#include <QStringList>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QLatin1StringView passwordFile(SettingsKeys::passwordFile.name);

/// Without the file of the password nothing would be guarded, with a damaged one everything is.
void leaveDamaged(const QString &path)
{
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write("damaged");
}

} // namespace

OpenedCopy OpenedCopy::ofSnapshot(const QString &path, const QString &into, const std::atomic_bool &isStopped)
{
    OpenedCopy opened;
    SnapshotReader reader(path);
    const auto note = [&opened](const SnapshotFile &file) {
        opened.functions.insert(file.function);
        return true;
    };
    if (!reader.unpack(into, note, isStopped) && reader.state() != SnapshotReader::State::Damaged)
        opened.functions.clear();
    opened.isOpen = !opened.functions.isEmpty();
    opened.refusal = reader.refusal();
    return opened;
}

bool OpenedCopy::isAtOnce(const BackupSet &set)
{
    return set.isComplete() && !set.isSealed() && set.record->disks == 1;
}

OpenedCopy OpenedCopy::ofSet(const BackupSet &set, const QString &into, const std::atomic_bool &isStopped)
{
    OpenedCopy opened;
    const std::optional<SetRecord> record = DiskRecords::readSet(set.folder);
    if (record && isAtOnce(set)) {
        RecordFiles files(*record, isStopped);
        files.setFolder(into);
        files.beginDisk(1);
        SetSource source(set.disk.set, set.begun());
        if (source.read(set.drive, 1, files) == RestoreSource::Reading::Done || files.isDiskDone())
            return ofFiles(*record, files, into);
    }
    opened.refusal = u"The backup is not there any more, or cannot be read"_s;
    return opened;
}

OpenedCopy OpenedCopy::ofFiles(const SetRecord &set, RecordFiles &files, const QString &into)
{
    OpenedCopy opened;
    opened.isOpen = true;
    for (const BackupCount &count : set.counts)
        opened.functions.insert(count.function);
    const QStringList damaged = files.finish();
    for (const QString &name : damaged) {
        if (name.compare(passwordFile, Qt::CaseInsensitive) == 0)
            leaveDamaged(into + u'/' + name);
    }
    if (!damaged.isEmpty())
        opened.refusal = u"Damaged there, and left out: "_s + damaged.join(u", "_s);
    return opened;
}
