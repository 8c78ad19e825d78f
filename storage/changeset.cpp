// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/changeset.h"

#include "storage/disk.h"
#include "storage/log.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <tuple>

namespace {

constexpr quint32 magic = 0x51434831; // "QCH1"
constexpr auto streamVersion = QDataStream::Qt_6_4;
constexpr qsizetype checksumLength = 32;

QByteArray checksum(QByteArrayView bytes)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(bytes);
    return hash.result();
}

QString journalPath(const DataFolder &folder)
{
    return folder.path() + u'/' + ChangeSet::journalName;
}

QString layingPath(const DataFolder &folder)
{
    return folder.path() + u'/' + ChangeSet::layingFolder;
}

/// A bare name of the folder; a journal that came from elsewhere reaches nothing outside it.
bool isOwnName(const QString &name)
{
    return !name.isEmpty() && QFileInfo(name).fileName() == name && name != QLatin1StringView("..");
}

/// The same, in a folder of the folder.
bool isOwnPath(const QString &path)
{
    return QDir::isRelativePath(path) && std::ranges::all_of(path.split(u'/'), [](const QString &name) {
               return isOwnName(name) && name != QLatin1StringView(".");
           });
}

bool isReplaceable(const QString &path)
{
    const QFileInfo original(path);
    const bool isFree = !original.exists() || (original.isFile() && original.isWritable());
    if (!isFree)
        qCWarning(storageLog).noquote() << "Cannot replace" << path;
    return isFree;
}

} // namespace

ChangeSet::ChangeSet(const DataFolder &folder)
    : m_folder(folder)
{}

void ChangeSet::write(const RecordFile &file, int number, QByteArrayView value, qsizetype at)
{
    if (number < 1 || at < 0 || at + value.size() > file.recordLength()) {
        qCWarning(storageLog).noquote()
            << "Refused to write" << value.size() << "bytes to record" << number << "of" << file.path();
        m_isRefused = true;
        return;
    }
    m_changes.push_back({QFileInfo(file.path()).fileName(),
                         (qint64(number) - 1) * file.recordLength() + at,
                         value.toByteArray(),
                         {}});
}

void ChangeSet::replace(const QString &name, const QByteArray &content, const QByteArray &inBetween)
{
    m_changes.push_back({QFileInfo(m_folder.filePath(name)).fileName(), wholeFile, content, inBetween});
}

void ChangeSet::takeLaid(const QString &laid, const QString &name)
{
    if (!isOwnName(laid) || !isOwnPath(name)) {
        qCWarning(storageLog).noquote() << "Refused to write to" << name;
        m_isRefused = true;
        return;
    }
    m_changes.push_back({name, ChangeSet::laid, laid.toUtf8(), {}});
}

void ChangeSet::remove(const QString &name)
{
    const QFileInfo file(m_folder.filePath(name));
    if (file.exists())
        m_changes.push_back({file.fileName(), going, {}, {}});
}

bool ChangeSet::isReady() const
{
    if (m_folder.isReadOnly()) {
        qCWarning(storageLog).noquote() << "Refused to write to" << m_folder.path();
        return false;
    }
    // What could not be finished before must not overtake what comes now.
    return !m_isRefused && finish(m_folder);
}

bool ChangeSet::writeJournal() const
{
    if (!stage() || !Disk::writeWhole(journalPath(m_folder), encode(m_changes))) {
        std::ignore = Disk::remove(journalPath(m_folder)); // torn, so it counts for nothing where it stays
        dropStaged();
        return false;
    }
    Disk::flushNames(m_folder.path());
    return true;
}

bool ChangeSet::leaveToNextStart()
{
    return m_changes.empty() ? !m_isRefused : isReady() && writeJournal();
}

bool ChangeSet::commit()
{
    if (m_changes.empty())
        return !m_isRefused;
    if (!isReady() || !writeJournal())
        return false;

    std::vector<Former> formers;
    const bool areWritten = writePlaces(m_folder, m_changes, formers);
    if (!areWritten || !takeNames(m_folder, m_changes) || !removeFiles(m_folder, m_changes)) {
        // Where the old bytes are gone or cannot be put back, the journal stays, to be finished later.
        const bool areGone = hasTakenNames() || (areWritten && isInBetween());
        if (!areGone && restore(formers) && removeJournal(m_folder))
            dropStaged();
        return false;
    }
    Disk::flushNames(m_folder.path());
    // A journal that cannot be removed now says again what the files hold already.
    std::ignore = removeJournal(m_folder);
    return true;
}

bool ChangeSet::finish(const DataFolder &folder)
{
    QFile file(journalPath(folder));
    if (!file.exists())
        return true;
    Changes changes;
    const bool isRead = file.open(QIODevice::ReadOnly);
    const bool isWhole = isRead && decode(file.readAll(), changes);
    file.close();
    std::vector<Former> formers;
    if (!isRead || (isWhole && (!writePlaces(folder, changes, formers) || !takeNames(folder, changes) ||
                                !removeFiles(folder, changes)))) {
        qCWarning(storageLog).noquote() << "Cannot finish" << file.fileName();
        return false;
    }
    Disk::flushNames(folder.path());
    return removeJournal(folder);
}

bool ChangeSet::recover(const DataFolder &folder)
{
    if (folder.isReadOnly())
        return true;
    if (!finish(folder))
        return false;
    QDir(layingPath(folder)).removeRecursively();
    QDir dir(folder.path());
    for (const QString &name : dir.entryList({u'*' + waitingSuffix}, QDir::Files | QDir::Hidden))
        dir.remove(name);
    return true;
}

bool ChangeSet::isPending(const DataFolder &folder)
{
    return QFileInfo(journalPath(folder)).size() > 0;
}

QByteArray ChangeSet::encode(const Changes &changes)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(streamVersion);
    stream << magic << quint32(changes.size());
    for (const Change &change : changes)
        stream << change.name << change.offset << (change.isWholeFile() ? QByteArray() : change.bytes);
    return bytes + checksum(bytes);
}

bool ChangeSet::decode(const QByteArray &journal, Changes &changes)
{
    const QByteArray bytes = journal.chopped(std::min(checksumLength, journal.size()));
    if (journal.last(journal.size() - bytes.size()) != checksum(bytes))
        return false;
    QDataStream stream(bytes);
    stream.setVersion(streamVersion);
    quint32 start = 0;
    quint32 count = 0;
    stream >> start >> count;
    if (start != magic)
        return false;
    for (; count > 0 && stream.status() == QDataStream::Ok; --count) {
        Change change;
        stream >> change.name >> change.offset >> change.bytes;
        const bool isOurs = change.isLaid()
                                ? isOwnPath(change.name) && isOwnName(QString::fromUtf8(change.bytes))
                                : isOwnName(change.name);
        if (!isOurs)
            return false;
        changes.push_back(change);
    }
    return stream.status() == QDataStream::Ok;
}

bool ChangeSet::writeFile(const DataFolder &folder, const Changes &changes, const QString &name,
                          std::vector<Former> &formers)
{
    QFile file(folder.filePath(name));
    formers.push_back({file.fileName(), file.exists() ? file.size() : -1, {}});
    bool isWritten = file.open(QIODevice::ReadWrite | QIODevice::Unbuffered);
    if (!isWritten)
        qCWarning(storageLog).noquote() << "Cannot write" << file.fileName() << '-' << file.errorString();
    for (const Change &change : changes) {
        if (!isWritten)
            break;
        if (!change.isInPlace() || change.name != name)
            continue;
        isWritten = file.seek(change.offset);
        formers.back().places.emplace_back(change.offset, file.read(change.bytes.size()));
        isWritten = isWritten && Disk::writeAt(file, change.offset, change.bytes);
    }
    return isWritten && Disk::flush(file);
}

bool ChangeSet::writePlaces(const DataFolder &folder, const Changes &changes, std::vector<Former> &formers)
{
    QStringList names;
    for (const Change &change : changes) {
        if (change.isInPlace() && !names.contains(change.name))
            names += change.name;
    }
    return std::ranges::all_of(
        names, [&](const QString &name) { return writeFile(folder, changes, name, formers); });
}

QString ChangeSet::waitingPath(const DataFolder &folder, const Change &change)
{
    if (change.isLaid())
        return layingPath(folder) + u'/' + QString::fromUtf8(change.bytes);
    return folder.filePath(change.name) + waitingSuffix;
}

/// A laid file's name was looked up when it was added: there may be thousands of them.
QString ChangeSet::targetPath(const DataFolder &folder, const Change &change)
{
    return change.isLaid() ? folder.path() + u'/' + change.name : folder.filePath(change.name);
}

bool ChangeSet::takeName(const DataFolder &folder, const Change &change)
{
    const QString waiting = waitingPath(folder, change);
    // One that does not wait any more has its name already.
    if (!QFile::exists(waiting))
        return true;
    const QString path = targetPath(folder, change);
    if (change.isLaid() && !QDir().mkpath(QFileInfo(path).path()))
        return false;
    // Its new content is complete on the disk: it does not matter whether this gets there.
    if (!change.inBetween.isEmpty() && QFile::exists(path))
        std::ignore = Disk::writeWhole(path, change.inBetween);
    // Once more where another program had the file open for a moment: the other files may be new already.
    return Disk::renameOver(waiting, path) || Disk::renameOver(waiting, path);
}

bool ChangeSet::takeNames(const DataFolder &folder, const Changes &changes)
{
    QSet<QString> inside;
    for (const Change &change : changes) {
        if ((change.isWholeFile() || change.isLaid()) && !takeName(folder, change))
            return false;
        if (change.isLaid() && change.name.contains(u'/'))
            inside.insert(QFileInfo(targetPath(folder, change)).path());
    }
    for (const QString &path : inside)
        Disk::flushNames(path);
    if (std::ranges::any_of(changes, &Change::isLaid))
        QDir().rmdir(layingPath(folder));
    return true;
}

/// Tries twice, as `takeNames` does.
bool ChangeSet::removeFiles(const DataFolder &folder, const Changes &changes)
{
    return std::ranges::all_of(changes, [&folder](const Change &change) {
        const QString path = folder.filePath(change.name);
        return !change.isGoing() || !QFileInfo::exists(path) || Disk::remove(path) || Disk::remove(path);
    });
}

bool ChangeSet::restore(const std::vector<Former> &formers)
{
    bool isRestored = true;
    for (auto it = formers.rbegin(); it != formers.rend(); ++it) {
        const Former &former = *it;
        if (former.size < 0) {
            isRestored = Disk::remove(former.path) && isRestored;
            continue;
        }
        if (!former.places.empty())
            isRestored = restoreFile(former) && isRestored;
    }
    return isRestored;
}

/// A disk that takes nothing any more may have taken nothing from the start: what stands as it was is not
/// written again.
bool ChangeSet::restoreFile(const Former &former)
{
    QFile file(former.path);
    if (!file.open(QIODevice::ReadWrite | QIODevice::Unbuffered))
        return false;
    bool isTouched = false;
    for (auto place = former.places.rbegin(); place != former.places.rend(); ++place) {
        if (file.seek(place->first) && file.read(place->second.size()) == place->second)
            continue;
        if (!Disk::writeAt(file, place->first, place->second))
            return false;
        isTouched = true;
    }
    if (file.size() == former.size && !isTouched)
        return true;
    return (file.size() == former.size || file.resize(former.size)) && Disk::flush(file);
}

bool ChangeSet::removeJournal(const DataFolder &folder)
{
    // Emptied it counts for nothing: left whole, it would undo what is written to the same places later.
    if (!Disk::remove(journalPath(folder)) && !Disk::writeWhole(journalPath(folder), {}))
        return false;
    Disk::flushNames(folder.path());
    return true;
}

bool ChangeSet::stage() const
{
    std::vector<std::pair<QString, QByteArray>> waiting;
    for (const Change &change : m_changes) {
        if (change.isInPlace())
            continue;
        if (!isReplaceable(targetPath(m_folder, change)))
            return false;
        if (change.isWholeFile())
            waiting.emplace_back(waitingPath(m_folder, change), change.bytes);
        if (change.isLaid() && !QFile::exists(waitingPath(m_folder, change)))
            return false;
    }
    return Disk::writeAllWhole(waiting);
}

bool ChangeSet::hasTakenNames() const
{
    return std::ranges::any_of(m_changes, [this](const Change &change) {
        const bool isWaiting = change.isWholeFile() || change.isLaid();
        return (isWaiting && !QFile::exists(waitingPath(m_folder, change))) ||
               (change.isGoing() && !m_folder.exists(change.name));
    });
}

bool ChangeSet::isInBetween() const
{
    return std::ranges::any_of(m_changes, [](const Change &change) { return !change.inBetween.isEmpty(); });
}

void ChangeSet::dropStaged() const
{
    for (const Change &change : m_changes) {
        if (change.isWholeFile())
            std::ignore = Disk::remove(waitingPath(m_folder, change));
    }
}
