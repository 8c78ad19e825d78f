// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/window/shelfcare.h"

#include "album/model/photoshelf.h"
#include "album/window/windowlines.h"
#include "shell/controls/activitybar.h"
#include "shell/program/program.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

#include <algorithm>
#include <chrono>
#include <utility>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto quietTime = 1500ms; ///< a camera's program writes one file after the other
constexpr int mostWatched = 500;   ///< folders in folders; the system has no watches without end

QSet<int> recordsOf(const std::vector<TextsConflict> &conflicts)
{
    QSet<int> records;
    for (const TextsConflict &conflict : conflicts)
        records.insert(conflict.record);
    return records;
}

} // namespace

ShelfCare::ShelfCare(const AlbumDesk &desk, ActivityBar &activity, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
    , m_activity(activity)
    , m_takeIn(desk.shelf)
    , m_look(desk.shelf)
    , m_keeper(desk.shelf, desk.program.clock.today())
{
    m_settled.setSingleShot(true);
    m_settled.setInterval(quietTime);
    connect(&m_settled, &QTimer::timeout, this, &ShelfCare::readFolders);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, &m_settled, qOverload<>(&QTimer::start));
    connect(&m_takeIn, &TakeIn::progressed, this,
            [this](int done, int total) { m_activity.showProgress(done, total, true); });
    connect(&m_takeIn, &TakeIn::finished, this, &ShelfCare::finish);
    connect(&activity, &ActivityBar::stopRequested, this, &ShelfCare::stop);
    connect(&m_keeper, &TextsKeeper::said, this, &ShelfCare::said);
    connect(&m_look, &ShelfLook::looked, this, [this] {
        catchUp();
        if (!std::exchange(m_hasLooked, true))
            emit lookedFirst();
    });
    connect(&m_keeper, &TextsKeeper::foundChanged, this,
            [this] { m_look.start(m_desk.program.clock.today()); });
    connect(&m_look, &ShelfLook::keptInAlbum, &m_keeper, &TextsKeeper::write);
    connect(&m_look, &ShelfLook::outdated, this, [this] { m_look.start(m_desk.program.clock.today()); });
    connect(&desk.shelf, &PhotoShelf::listChanged, this, &ShelfCare::watch);
}

/// What came into the folders while the album was at work before is known, or was taken off the list since.
void ShelfCare::start()
{
    for (const QString &name : PhotoShelf::fileNames())
        m_since = std::max(m_since, QFileInfo(m_desk.program.folder.filePath(name)).lastModified());
    m_look.start(m_desk.program.clock.today());
    watch();
    m_hasBegun = true;
    readFolders();
}

void ShelfCare::catchUp()
{
    m_keeper.catchUp(recordsOf(m_look.conflicts()));
}

void ShelfCare::stop()
{
    m_wishes.clear();
    m_takeIn.stop();
}

void ShelfCare::takeIn(const QStringList &paths, int album, TakeIn::Copy copy)
{
    m_wishes.push_back(
        {.wish = {.paths = paths, .album = album, .copy = copy, .today = m_desk.program.clock.today()},
         .isAsked = true});
    startNext();
}

void ShelfCare::startNext()
{
    if (m_takeIn.isRunning() || m_wishes.empty())
        return;
    m_current = m_wishes.front();
    m_wishes.pop_front();
    m_takeIn.start(m_current.wish);
    emit changed();
}

/// A folder that brought nothing new is nothing to tell of, unless the person has asked.
void ShelfCare::finish(const TakeIn::Result &result)
{
    m_activity.showProgress(0, 0);
    if (m_current.isAsked || !result.added.isEmpty() || result.foundAgain > 0)
        emit said(AlbumWindowLines::takenIn(result));
    if (m_current.isAsked && !result.added.isEmpty())
        emit taken(result.added);
    if (!result.added.isEmpty())
        m_look.start(m_desk.program.clock.today()); // their contents are to be known, too
    startNext();
    emit changed();
}

/// The folders of the albums, and those inside them.
void ShelfCare::watch()
{
    QStringList folders;
    for (const PhotoAlbum &album : m_desk.shelf.albums()) {
        if (!album.folder.isEmpty() && !folders.contains(album.folder))
            folders.append(album.folder);
    }
    if (folders == m_folders)
        return;
    const bool isMore =
        std::ranges::any_of(folders, [this](const QString &folder) { return !m_folders.contains(folder); });
    for (const QString &folder : folders) {
        if (m_hasBegun && !m_folders.contains(folder))
            m_fresh.append(folder);
    }
    m_folders = folders;
    if (!m_watcher.directories().isEmpty())
        m_watcher.removePaths(m_watcher.directories());
    watchInside();
    if (isMore)
        m_settled.start();
}

/// Those that came into them meanwhile, too.
void ShelfCare::watchInside()
{
    QStringList watched = m_watcher.directories();
    QStringList further;
    for (const QString &folder : std::as_const(m_folders)) {
        QDirIterator inside(folder, QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks,
                            QDirIterator::Subdirectories);
        for (QString place = folder; watched.size() < mostWatched; place = inside.next()) {
            if (!watched.contains(place) && QDir(place).exists()) {
                watched.append(place);
                further.append(place);
            }
            if (!inside.hasNext())
                break;
        }
    }
    if (!further.isEmpty())
        m_watcher.addPaths(further);
}

void ShelfCare::readFolders()
{
    watchInside();
    for (const PhotoAlbum &album : m_desk.shelf.albums()) {
        if (!album.folder.isEmpty() && QDir(album.folder).exists())
            m_wishes.push_back({.wish = {.paths = {album.folder},
                                         .album = album.record,
                                         .today = m_desk.program.clock.today(),
                                         .since = m_fresh.contains(album.folder) ? QDateTime() : m_since}});
    }
    m_fresh.clear();
    startNext();
}
