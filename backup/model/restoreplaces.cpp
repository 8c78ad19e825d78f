// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/restoreplaces.h"

#include "backup/model/diskrecords.h"
#include "backup/model/filehash.h"
#include "backup/model/holdings.h"
#include "backup/model/setfolder.h"
#include "backup/model/setrecords.h"
#include "storage/changeset.h"
#include "storage/saving.h"

#include <QDir>
#include <QFileInfo>
#include <QMap>

#include <algorithm>
#include <array>
#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A disk may keep times to two seconds only.
constexpr qint64 timeGrain = 2;

/// What a household's folder has beside its files: no backup of ours holds it.
bool isOfTheFolderItself(const QString &name)
{
    const QString first = name.section(u'/', 0, 0);
    const std::array names{u"Quillery.lock"_s, ChangeSet::journalName, u"Snapshots"_s,
                           QString(DiskRecord::fileName), QString(SetRecord::fileName)};
    const std::array endings{Saving::partSuffix, Saving::stagedSuffix, ChangeSet::waitingSuffix};
    return std::ranges::any_of(
               names, [&first](const QString &own) { return !first.compare(own, Qt::CaseInsensitive); }) ||
           std::ranges::any_of(endings, [&first](QLatin1StringView ending) {
               return first.endsWith(ending, Qt::CaseInsensitive);
           });
}

bool isPictureName(const QString &name)
{
    return SetFolder::isPicture(name) ||
           name.startsWith(RestorePlaces::picturesFolder() + u'/', Qt::CaseInsensitive);
}

} // namespace

RestorePlaces::RestorePlaces(const RestorePlan::Aim &aim, const QList<BackupFile> &files,
                             const std::atomic<bool> &isStopped)
    : m_aim(aim)
    , m_copier([&isStopped](qint64) { return !isStopped; })
{
    QMap<QString, QStringList> names; // by their folders
    for (const BackupFile &file : files) {
        const qsizetype end = file.name.lastIndexOf(u'/');
        if (DiskRecords::isSafe(file.name) && SetFolder::elsewherePath(file.name).isEmpty())
            names[file.name.left(std::max<qsizetype>(end, 0))].append(file.name.sliced(end + 1));
    }
    for (auto folder = names.cbegin(); folder != names.cend(); ++folder)
        look(folder.key(), folder.value());
}

/// Every folder on the way may be there in another spelling.
void RestorePlaces::look(const QString &folder, const QStringList &names)
{
    QString path = m_aim.folder.path();
    for (const QString &step : folder.split(u'/', Qt::SkipEmptyParts))
        path = DataFolder(path).filePath(step);
    const QStringList paths = DataFolder(path).filePaths(names);
    for (qsizetype i = 0; i < names.size(); ++i)
        m_paths.insert(folder.isEmpty() ? names[i] : folder + u'/' + names[i], paths[i]);
}

QString RestorePlaces::pathOf(const QString &name) const
{
    return m_paths.value(name, m_aim.folder.path() + u'/' + name);
}

/// Where it was, when its folder is there and it is a picture by its name: a set that came from elsewhere
/// puts nothing else outside the household's folder. Otherwise among the pictures of the household.
QString RestorePlaces::pathElsewhere(const BackupFile &file)
{
    QString path = SetFolder::elsewherePath(file.name);
    const QFileInfo place(path);
    const bool mayReturn = m_aim.isHousehold && SetFolder::isPicture(path) && QFileInfo(place.path()).isDir();
    if (mayReturn && (!QFileInfo::exists(path) || isSame(file, path, true)))
        return path;
    return m_aim.folder.filePath(picturesFolder()) + u'/' + place.fileName();
}

QString RestorePlaces::numbered(const QString &path, int number)
{
    const QFileInfo whole(path);
    const QString ending = whole.suffix().isEmpty() ? QString() : QString(u'.' + whole.suffix());
    return whole.path() + u'/' + whole.completeBaseName() + u' ' + QString::number(number) + ending;
}

RestoreItem RestorePlaces::placed(const BackupFile &file)
{
    RestoreItem item;
    item.file = file;
    if (!DiskRecords::isSafe(file.name) || isOfTheFolderItself(file.name)) {
        item.effect = RestoreEffect::Refused;
        return item;
    }
    const bool isElsewhere = !SetFolder::elsewherePath(file.name).isEmpty();
    item.isPicture = isElsewhere || isPictureName(file.name);
    if (!item.isPicture)
        return placedRecord(file, item);
    return placedPicture(file, isElsewhere ? pathElsewhere(file) : pathOf(file.name), item);
}

bool RestorePlaces::isSame(const BackupFile &file, const QString &path, bool trustsTime)
{
    const QFileInfo here(path);
    if (!here.isFile() || here.size() != file.size)
        return false;
    if (trustsTime && std::abs(here.lastModified().secsTo(file.changed)) <= timeGrain)
        return true;
    QByteArray hash;
    return m_copier.hash({path, {}, 0, file.size}, hash) == FileCopier::Result::Done && hash == file.hash;
}

RestoreItem RestorePlaces::placedRecord(const BackupFile &file, RestoreItem item)
{
    item.path = pathOf(file.name);
    // Two names of the set that differ in case alone, of which one is here: each is a file of its own.
    if (m_taken.contains(item.path))
        item.path = m_aim.folder.path() + u'/' + file.name;
    if (m_taken.contains(item.path)) {
        item.effect = RestoreEffect::Refused;
        return item;
    }
    m_taken.insert(item.path, file.hash);
    const QFileInfo here(item.path);
    if (!here.exists())
        return file.name == Holdings::deskName ? placedDesk(item) : item;
    item.sizeHere = here.size();
    item.changedHere = here.lastModified().toUTC();
    if (here.isDir())
        item.effect = RestoreEffect::Refused;
    else if (isSame(file, item.path, false))
        item.effect = RestoreEffect::Same;
    else
        item.effect = file.changed < item.changedHere ? RestoreEffect::ByOlder : RestoreEffect::ByNewer;
    return item;
}

/// The settings are no file here until the next start takes them up, but they are as old as the program runs.
RestoreItem RestorePlaces::placedDesk(RestoreItem item) const
{
    if (m_aim.desk.isEmpty())
        return item;
    item.sizeHere = m_aim.desk.size();
    item.effect = item.file.hash == FileHash::of(m_aim.desk) ? RestoreEffect::Same : RestoreEffect::ByOlder;
    return item;
}

/// Where another one is, it goes among the pictures of the household, where it is looked for.
QString RestorePlaces::placeBeside(const QString &path, int number) const
{
    const QString pictures = m_aim.folder.filePath(picturesFolder()) + u'/';
    if (path.startsWith(pictures))
        return numbered(path, number + 1);
    const QString place = pictures + QFileInfo(path).fileName();
    return number == 1 ? place : numbered(place, number);
}

RestoreItem RestorePlaces::placedPicture(const BackupFile &file, const QString &path, RestoreItem item)
{
    item.path = path;
    for (int number = 0;; item.path = placeBeside(path, ++number)) {
        const auto other = m_taken.constFind(item.path);
        const bool isTaken = other != m_taken.cend();
        if ((isTaken && *other == file.hash) || (!isTaken && isSame(file, item.path, true))) {
            item.effect = RestoreEffect::Same;
            break;
        }
        if (!isTaken && !QFileInfo::exists(item.path)) {
            item.effect = number == 0 ? RestoreEffect::New : RestoreEffect::Beside;
            break;
        }
    }
    m_taken.insert(item.path, file.hash);
    if (const QFileInfo here(path); here.exists()) {
        item.sizeHere = here.size();
        item.changedHere = here.lastModified().toUTC();
    }
    return item;
}
