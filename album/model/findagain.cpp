// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/findagain.h"

#include "album/model/contenthash.h"
#include "album/model/findlines.h"
#include "album/model/photoshelf.h"
#include "album/model/picturefiles.h"
#include "shell/core/undosteps.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <array>
#include <map>
#include <tuple>
#include <utility>

namespace {

QString nameOf(const QString &path)
{
    return path.sliced(path.lastIndexOf(u'/') + 1);
}

/// How many names at the ends of both paths are the same: a folder that was moved has the same folders in it.
int sharedEnd(const QString &one, const QString &other)
{
    const QStringList names = one.split(u'/');
    const QStringList others = other.split(u'/');
    int count = 0;
    while (count < names.size() && count < others.size() &&
           names[names.size() - 1 - count] == others[others.size() - 1 - count])
        ++count;
    return count;
}

/// Taken back or done again, the pictures are missing or there as their files are now.
std::function<ChangeResult()> withALook(const std::function<ChangeResult()> &way, PhotoShelf &shelf,
                                        const QList<int> &records)
{
    return [way, &shelf, records] {
        const ChangeResult result = way();
        if (result == ChangeResult::Done) {
            std::ignore = shelf.note(records, [&shelf](Photo &photo) {
                photo.set(Photo::NotThere, !QFileInfo(shelf.filePath(photo)).isFile());
            });
        }
        return result;
    };
}

} // namespace

/// The part that runs on the other thread.
class FindAgain::Walk
{
public:
    Walk(std::vector<Photo> photos, QStringList others)
        : m_photos(std::move(photos))
        , m_others(std::move(others))
    {}

    std::vector<FoundPicture> run(const QString &folder, const Walker::Stop &isStopped,
                                  const std::function<void(int, int)> &progress)
    {
        findMissing(isStopped);
        collect(folder, isStopped);
        readContents(isStopped, progress);
        if (isStopped)
            return {};
        assign();
        assignOthers();
        return m_found;
    }
    int soughtCount() const { return int(m_photos.size() + std::size_t(m_others.size())); }

private:
    void findMissing(const Walker::Stop &isStopped)
    {
        std::erase_if(m_photos,
                      [&](const Photo &photo) { return isStopped || QFileInfo(photo.path).isFile(); });
        for (const Photo &photo : m_photos)
            m_sizes.insert(photo.size);
    }

    void collect(const QString &folder, const Walker::Stop &isStopped)
    {
        PictureFiles::forEach({folder}, isStopped, [this](const QString &path) {
            m_byName.insert(nameOf(path).toLower(), path);
            if (m_sizes.contains(QFileInfo(path).size()))
                m_fitting.append(path);
            return true;
        });
    }

    void readContents(const Walker::Stop &isStopped, const std::function<void(int, int)> &progress)
    {
        int done = 0;
        for (const QString &path : std::as_const(m_fitting)) {
            if (const auto hash = ContentHash::of(path, isStopped))
                m_byContent[*hash].append(path);
            if (isStopped)
                return;
            progress(++done, int(m_fitting.size()));
        }
    }

    void assign()
    {
        QSet<QString> used;
        for (const Photo &photo : m_photos) {
            const auto same = m_byContent.find(photo.hash);
            const bool isSure = photo.isHashed() && same != m_byContent.end();
            const QString path = isSure              ? best(photo.path, same->second, used)
                                 : !photo.isHashed() ? sameNameAndSize(photo)
                                                     : QString();
            if (path.isEmpty())
                continue;
            used.insert(path);
            m_found.push_back({photo.record, photo.path, path, isSure});
        }
    }

    /// Where several files have the content, the one that lies most alike and is nobody's yet.
    static QString best(const QString &old, const QStringList &paths, const QSet<QString> &used)
    {
        const auto rank = [&](const QString &path) {
            return std::pair(!used.contains(path), sharedEnd(old, path));
        };
        return *std::ranges::max_element(paths, {}, rank);
    }

    /// Of a picture whose content was never read.
    QString sameNameAndSize(const Photo &photo) const
    {
        const QString name = nameOf(photo.path);
        const auto found = std::ranges::find_if(m_fitting, [&](const QString &path) {
            return nameOf(path) == name && QFileInfo(path).size() == photo.size;
        });
        return found == m_fitting.end() ? QString() : *found;
    }

    /// What others name lies where the album found the same picture, or bears its name.
    void assignOthers()
    {
        for (const QString &stored : std::as_const(m_others)) {
            const auto own = std::ranges::find_if(m_found, [&](const FoundPicture &found) {
                return found.record != 0 && found.stored == stored;
            });
            if (own != m_found.end()) {
                m_found.push_back({0, stored, own->path, own->isSure});
                continue;
            }
            // Other systems part folders by another sign.
            const QStringList paths = m_byName.values(nameOf(QDir::fromNativeSeparators(stored)).toLower());
            if (!paths.isEmpty())
                m_found.push_back({0, stored, best(stored, paths, {}), false});
        }
    }

    std::vector<Photo> m_photos; ///< with full paths
    const QStringList m_others;
    QSet<qint64> m_sizes;
    QMultiHash<QString, QString> m_byName;
    QStringList m_fitting; ///< files of a size that is looked for
    std::map<Photo::Hash, QStringList> m_byContent;
    std::vector<FoundPicture> m_found;
};

FindAgain::FindAgain(PhotoShelf &shelf, Others others, QObject *parent)
    : QObject(parent)
    , m_shelf(shelf)
    , m_others(std::move(others))
    , m_walker(this)
{}

int FindAgain::missingCount() const
{
    const auto isMissing = [](const Photo &photo) { return photo.has(Photo::NotThere); };
    return int(std::ranges::count_if(m_shelf.photos(), isMissing) + m_others.missing.size());
}

void FindAgain::start(const QString &folder)
{
    std::vector<Photo> photos = m_shelf.photos();
    for (Photo &photo : photos)
        photo.path = m_shelf.filePath(photo);
    m_found.clear();
    auto walk = std::make_shared<Walk>(std::move(photos), m_others.missing);
    auto found = std::make_shared<std::vector<FoundPicture>>();
    const auto progress = [this](int done, int total) {
        m_walker.tell([this, done, total] { emit progressed(done, total); });
    };
    m_walker.start([=](const Walker::Stop &isStopped) { *found = walk->run(folder, isStopped, progress); },
                   [this, walk, found](bool wasStopped) {
                       m_found = *found;
                       m_sought = walk->soughtCount();
                       emit finished(wasStopped);
                   });
}

std::optional<UndoStep> FindAgain::linkOwn(const std::vector<FoundPicture> &chosen)
{
    QHash<int, QString> paths;
    for (const FoundPicture &found : chosen) {
        if (found.record != 0)
            paths.insert(found.record, found.path);
    }
    if (paths.isEmpty())
        return UndoStep{};
    const QList<int> records = paths.keys();
    auto step = m_shelf.changeAsPart(
        records, {}, [&](Photo &photo) { photo.path = m_shelf.storedPath(paths.value(photo.record)); });
    if (step) {
        std::ignore = m_shelf.note(records, [&](Photo &photo) {
            photo.fileTime = PictureFiles::timeOf(paths.value(photo.record));
            photo.set(Photo::NotThere, false);
        });
        for (auto *way : {&step->undo, &step->redo})
            *way = withALook(*way, m_shelf, records);
    }
    return step;
}

bool FindAgain::link(const std::vector<FoundPicture> &chosen)
{
    const std::optional<UndoStep> own = linkOwn(chosen);
    if (!own)
        return false;
    QHash<QString, QString> files;
    for (const FoundPicture &found : chosen) {
        if (found.record == 0)
            files.insert(found.stored, found.path);
    }
    std::optional<UndoStep> others = UndoStep{};
    if (!files.isEmpty() && m_others.relink)
        others = m_others.relink(files);
    if (!others) {
        if (own->undo)
            std::ignore = own->undo();
        return false;
    }
    m_shelf.tell(UndoSteps::joined(FindLines::linked(qsizetype(chosen.size())), {*own, *others}));
    return true;
}
