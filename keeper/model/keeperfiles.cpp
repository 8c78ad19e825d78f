// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/model/keeperfiles.h"

#include "keeper/model/keeperfile.h"
#include "storage/disk.h"
#include "storage/log.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

enum class Look { Missing, Sealed, Foreign };

/// A record by itself may be damaged: one of the first that looks sealed is enough.
Look lookOfEntries(const DataFolder &folder)
{
    const QByteArray bytes =
        RecordFile(folder, KeeperFiles::entries, KeeperRecord::sealedLength).read(1, KeeperFile::growth);
    if (bytes.isEmpty())
        return Look::Missing;
    for (qsizetype at = 0; at < bytes.size(); at += KeeperRecord::sealedLength) {
        if (KeeperFile::looksSealed(QByteArrayView(bytes).sliced(at)))
            return Look::Sealed;
    }
    return Look::Foreign;
}

/// Beside sealed entries a key file without its beginning is a damaged one.
KeySlots::State stateOfKeys(const DataFolder &folder, Look entries)
{
    const KeySlots::State state = KeeperFiles::keySlots(folder).state();
    return state == KeySlots::State::Foreign && entries == Look::Sealed ? KeySlots::State::Damaged : state;
}

/// "Secfile1 (set aside).Fil", or the next such name that no file has.
QString asideName(const DataFolder &folder, const QString &name)
{
    const QFileInfo file(name);
    for (int count = 1;; ++count) {
        const QString mark = count == 1 ? u" (set aside)."_s : u" (set aside %1)."_s.arg(count);
        if (const QString aside = file.completeBaseName() + mark + file.suffix(); !folder.exists(aside))
            return aside;
    }
}

} // namespace

KeySlots KeeperFiles::keySlots(const DataFolder &folder)
{
    return {folder, keys, "QKEEPER"};
}

KeeperFiles::State KeeperFiles::state(const DataFolder &folder)
{
    const Look look = lookOfEntries(folder);
    const KeySlots::State keyState = stateOfKeys(folder, look);
    if (look == Look::Foreign || keyState == KeySlots::State::Foreign)
        return State::Foreign;
    switch (keyState) {
    case KeySlots::State::Missing:
        return look == Look::Missing ? State::None : State::FileMissing;
    case KeySlots::State::Newer:
        return State::Newer;
    case KeySlots::State::Damaged:
        return State::KeyFileDamaged;
    default:
        return look == Look::Missing ? State::FileMissing : State::Locked;
    }
}

QString KeeperFiles::missing(const DataFolder &folder)
{
    if (state(folder) != State::FileMissing)
        return {};
    return lookOfEntries(folder) == Look::Missing ? entries : keys;
}

QStringList KeeperFiles::foreign(const DataFolder &folder)
{
    const Look look = lookOfEntries(folder);
    QStringList names;
    if (look == Look::Foreign)
        names += entries;
    if (stateOfKeys(folder, look) == KeySlots::State::Foreign)
        names += keys;
    return names;
}

bool KeeperFiles::setAside(const DataFolder &folder)
{
    if (folder.isReadOnly())
        return false;
    const bool isDone = std::ranges::all_of(foreign(folder), [&folder](const QString &name) {
        QFile file(folder.filePath(name));
        const QString aside = folder.path() + u'/' + asideName(folder, QFileInfo(file.fileName()).fileName());
        if (file.rename(aside)) // never over another file
            return true;
        qCWarning(storageLog).noquote() << "Cannot rename" << file.fileName() << '-' << file.errorString();
        return false;
    });
    Disk::flushNames(folder.path());
    return isDone;
}

QStringList KeeperFiles::existing(const DataFolder &folder)
{
    QStringList names{entries, keys};
    names.removeIf([&folder](const QString &name) { return folder.existingFile({}, name).isEmpty(); });
    return names;
}
