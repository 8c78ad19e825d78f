// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/cardimport.h"

#include "album/model/contenthash.h"
#include "album/model/photoshelf.h"
#include "album/model/picturefiles.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString pictureFolder = u"DCIM"_s;

/// Where a card has its pictures: in its own folder of that name, or in that of one of its parts, as
/// telephones have it.
QStringList pictureFolders(const QString &card)
{
    const QDir disk(card);
    if (disk.exists(pictureFolder))
        return {disk.filePath(pictureFolder)};
    QStringList folders;
    for (const QString &name : disk.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        if (QDir(disk.filePath(name)).exists(pictureFolder))
            folders.append(disk.filePath(name) + u'/' + pictureFolder);
    }
    return folders;
}

} // namespace

/// The part that runs on the other thread.
class CardImport::Walk
{
public:
    explicit Walk(std::vector<Photo> photos)
        : m_photos(std::move(photos))
    {
        for (Photo &photo : m_photos)
            m_bySize[photo.size].append(&photo);
    }

    std::vector<Card> run(const QStringList &disks, const Walker::Stop &isStopped)
    {
        std::vector<Card> cards;
        for (const QString &disk : disks) {
            for (const QString &folder : pictureFolders(disk)) {
                Card card{.name = QFileInfo(disk).fileName(), .folder = folder, .fresh = {}, .known = 0};
                const bool isDone = PictureFiles::forEach({folder}, isStopped, [&](const QString &path) {
                    if (isKnown(path, isStopped))
                        ++card.known;
                    else
                        card.fresh.append(path);
                    return true;
                });
                if (isDone && (card.known > 0 || !card.fresh.isEmpty()))
                    cards.push_back(card);
            }
        }
        return cards;
    }

private:
    /// By its content, as long as the album's own file is there: the card may be emptied afterwards.
    bool isKnown(const QString &path, const Walker::Stop &isStopped)
    {
        QList<Photo *> same = m_bySize.value(QFileInfo(path).size());
        same.removeIf([](const Photo *photo) { return !QFileInfo(photo->path).isFile(); });
        if (same.isEmpty())
            return false;
        const auto hash = ContentHash::of(path, isStopped);
        return hash && std::ranges::any_of(same, [&](Photo *photo) {
                   if (!photo->isHashed())
                       photo->hash = ContentHash::of(photo->path, isStopped).value_or(Photo::notHashed);
                   return photo->hash == *hash;
               });
    }

    std::vector<Photo> m_photos; ///< with full paths
    QHash<qint64, QList<Photo *>> m_bySize;
};

CardImport::CardImport(PhotoShelf &shelf, QObject *parent)
    : QObject(parent)
    , m_shelf(shelf)
    , m_walker(this)
{}

void CardImport::start(const MountedPlaces &places)
{
    std::vector<Photo> photos = m_shelf.photos();
    for (Photo &photo : photos)
        photo.path = m_shelf.filePath(photo);
    auto walk = std::make_shared<Walk>(std::move(photos));
    auto cards = std::make_shared<std::vector<Card>>();
    m_walker.start([walk, cards, disks = places.cards()](
                       const Walker::Stop &isStopped) { *cards = walk->run(disks, isStopped); },
                   [this, cards](bool) {
                       m_cards = *cards;
                       emit finished();
                   });
}
