// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/alike.h"

#include "album/model/contenthash.h"
#include "album/model/photoshelf.h"
#include "shell/pictures/picturehash.h"
#include "shell/pictures/picturereading.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QStandardPaths>

#include <algorithm>
#include <map>
#include <tuple>
#include <utility>

/// The part that runs on the other thread.
class Alike::Walk
{
public:
    Walk(std::vector<Photo> photos, Thumbnails *thumbnails)
        : m_photos(std::move(photos))
        , m_thumbnails(thumbnails)
    {}

    std::vector<AlikePictures> run(const Walker::Stop &isStopped,
                                   const std::function<void(int, int)> &progress)
    {
        std::erase_if(m_photos,
                      [&](const Photo &photo) { return isStopped || !QFileInfo(photo.path).isFile(); });
        leaveOutLinks();
        findSameContent(isStopped);
        readLooks(isStopped, progress);
        compareLooks(isStopped);
        return m_groups;
    }

private:
    /// What a picture looks like, turned by any quarters.
    using Looks = std::array<PictureHash, 4>;

    /// A link to a picture is that picture: were one thrown away, both would be gone.
    void leaveOutLinks()
    {
        QSet<QString> files;
        std::erase_if(m_photos, [&files](const Photo &photo) {
            const QString file = QFileInfo(photo.path).canonicalFilePath();
            const bool isKnown = files.contains(file);
            files.insert(file);
            return isKnown;
        });
    }

    void findSameContent(const Walker::Stop &isStopped)
    {
        std::map<qint64, std::vector<Photo *>> bySize;
        for (Photo &photo : m_photos)
            bySize[photo.size].push_back(&photo);
        for (auto &[size, photos] : bySize) {
            std::map<Photo::Hash, QList<int>> byContent;
            for (Photo *photo : photos) {
                if (photos.size() > 1 && !photo->isHashed())
                    photo->hash = ContentHash::of(photo->path, isStopped).value_or(Photo::notHashed);
                if (isStopped)
                    return;
                if (photo->isHashed())
                    byContent[photo->hash].append(photo->record);
            }
            for (const auto &[hash, records] : byContent) {
                if (records.size() > 1)
                    m_groups.push_back({records, true});
            }
        }
        for (const AlikePictures &group : m_groups) // one of them stands for all
            std::erase_if(m_photos, [&](const Photo &photo) {
                return photo.record != group.records.constFirst() && group.records.contains(photo.record);
            });
    }

    QImage thumbnail(const Photo &photo, const Walker::Stop &isStopped) const
    {
        const QImage kept = m_thumbnails ? m_thumbnails->read(ThumbnailKey::of(photo.path)).image : QImage();
        if (!kept.isNull())
            return kept;
        return PictureReading::read(photo.path, {Thumbnails::side, Thumbnails::side}, &isStopped).image;
    }

    void readLooks(const Walker::Stop &isStopped, const std::function<void(int, int)> &progress)
    {
        m_looks.reserve(m_photos.size());
        for (const Photo &photo : m_photos) {
            if (isStopped)
                return;
            const QImage image = thumbnail(photo, isStopped);
            m_looks.push_back(image.isNull() ? Looks() : PictureHash::ofAllTurns(image));
            progress(int(m_looks.size()), int(m_photos.size()));
        }
    }

    void compareLooks(const Walker::Stop &isStopped)
    {
        std::vector<bool> isTaken(m_photos.size());
        for (std::size_t i = 0; i < m_looks.size() && !isStopped; ++i) {
            std::vector<const Photo *> group{&m_photos[i]};
            for (std::size_t j = i + 1; j < m_looks.size() && !isTaken[i]; ++j) {
                if (isTaken[j] || !isAlike(m_looks[i], m_looks[j].front()))
                    continue;
                isTaken[j] = true;
                group.push_back(&m_photos[j]);
            }
            if (group.size() > 1)
                add(group);
        }
    }

    static bool isAlike(const Looks &one, PictureHash other)
    {
        return std::ranges::any_of(one, [other](PictureHash look) { return look.isAlike(other); });
    }

    void add(std::vector<const Photo *> group)
    {
        const auto pixels = [](const Photo *photo) { return quint64(photo->width) * photo->height; };
        std::ranges::stable_sort(group, std::ranges::greater(), pixels);
        AlikePictures pictures;
        for (const Photo *photo : group)
            pictures.records.append(photo->record);
        m_groups.push_back(pictures);
    }

    std::vector<Photo> m_photos; ///< with full paths
    Thumbnails *m_thumbnails;
    std::vector<Looks> m_looks;
    std::vector<AlikePictures> m_groups;
};

Alike::Alike(PhotoShelf &shelf, Thumbnails *thumbnails, QObject *parent)
    : QObject(parent)
    , m_shelf(shelf)
    , m_thumbnails(thumbnails)
    , m_walker(this)
{}

void Alike::start(const QList<int> &records)
{
    std::vector<Photo> photos;
    for (const Photo &photo : m_shelf.photos()) {
        if (!records.isEmpty() && !records.contains(photo.record))
            continue;
        photos.push_back(photo);
        photos.back().path = m_shelf.filePath(photo);
    }
    m_groups.clear();
    auto walk = std::make_shared<Walk>(std::move(photos), m_thumbnails);
    auto groups = std::make_shared<std::vector<AlikePictures>>();
    const auto progress = [this](int done, int total) {
        m_walker.tell([this, done, total] { emit progressed(done, total); });
    };
    m_walker.start([=](const Walker::Stop &isStopped) { *groups = walk->run(isStopped, progress); },
                   [this, groups](bool wasStopped) {
                       m_groups = *groups;
                       emit finished(wasStopped);
                   });
}

QList<int> Alike::moveToTrash(const QList<int> &records)
{
    // Where the folder that the trash lies in is not there yet, Qt takes the working folder for it.
    if (!QDir().mkpath(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)))
        return records;
    QList<int> gone;
    QList<int> refused;
    for (const int record : records) {
        const Photo *photo = m_shelf.photo(record);
        const QString path = photo ? m_shelf.filePath(*photo) : QString();
        if (!QFileInfo::exists(path) || QFile::moveToTrash(path))
            gone.append(record);
        else
            refused.append(record);
    }
    if (!gone.isEmpty())
        std::ignore = m_shelf.removePhotos(gone);
    return refused;
}
