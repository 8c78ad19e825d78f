// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/shelflook.h"

#include "album/model/contenthash.h"
#include "album/model/kepttexts.h"
#include "album/model/photooffile.h"
#include "album/model/photoshelf.h"
#include "album/model/phototexts.h"
#include "album/model/picturefiles.h"

#include <QElapsedTimer>
#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace {

/// Contents come to the shelf in bundles.
constexpr qsizetype atOnce = 200;
constexpr int atOnceMs = 2000;

/// Whether what was said in the file is what the record has of it.
bool isSame(const PictureTexts &inAlbum, const PictureTexts &inPicture)
{
    PictureTexts other = PhotoOfFile::cut(inPicture);
    if (inAlbum.date.isEmpty())
        other.date.clear(); // nobody typed another one
    return inAlbum == other;
}

void takeFacts(Photo &photo, const Photo &facts)
{
    photo.size = facts.size;
    photo.fileTime = facts.fileTime;
    photo.width = facts.width;
    photo.height = facts.height;
    photo.hash = {};
}

} // namespace

struct ShelfLook::Report {
    struct Changed {
        FoundTexts found;
        Photo facts;
    };
    bool isOfFiles = false;
    QSet<int> away;
    QList<int> missing;
    QList<int> there; ///< that were missing
    QHash<int, Changed> changed;
    QHash<int, Photo::Hash> hashes;
};

/// The part that runs on the other thread.
class ShelfLook::Walk
{
public:
    Walk(std::vector<Photo> photos, MountedPlaces places, QDate today)
        : m_photos(std::move(photos))
        , m_places(std::move(places))
        , m_today(today)
    {}

    void run(const Walker::Stop &isStopped, const std::function<void(const Report &)> &report)
    {
        Report files;
        files.isOfFiles = true;
        std::vector<const Photo *> unknown;
        for (const Photo &photo : m_photos) {
            if (isStopped)
                return;
            lookAt(photo, files);
            const bool isThere = !files.away.contains(photo.record) && !files.missing.contains(photo.record);
            if (isThere && (!photo.isHashed() || files.changed.contains(photo.record)))
                unknown.push_back(&photo);
        }
        report(files);
        readContents(unknown, isStopped, report);
    }

private:
    void lookAt(const Photo &photo, Report &report) const
    {
        const QFileInfo file(photo.path);
        if (!file.isFile()) {
            if (m_places.isAway(photo.path))
                report.away.insert(photo.record);
            else if (!photo.has(Photo::NotThere))
                report.missing.append(photo.record);
            return;
        }
        if (photo.has(Photo::NotThere))
            report.there.append(photo.record);
        if (file.size() == photo.size && PictureFiles::timeOf(photo.path) == photo.fileTime)
            return;
        Photo facts = PhotoOfFile::read(photo.path, m_today);
        report.changed.insert(photo.record, {KeptTexts::read(photo.path, m_today), facts});
    }

    static void readContents(const std::vector<const Photo *> &photos, const Walker::Stop &isStopped,
                             const std::function<void(const Report &)> &report)
    {
        Report contents;
        QElapsedTimer clock;
        clock.start();
        for (const Photo *photo : photos) {
            if (const auto hash = ContentHash::of(photo->path, isStopped))
                contents.hashes.insert(photo->record, *hash);
            if (isStopped)
                break;
            if (contents.hashes.size() >= atOnce || clock.elapsed() > atOnceMs) {
                report(std::exchange(contents, {}));
                clock.restart();
            }
        }
        report(contents);
    }

    const std::vector<Photo> m_photos;
    const MountedPlaces m_places;
    const QDate m_today;
};

ShelfLook::ShelfLook(PhotoShelf &shelf, QObject *parent)
    : QObject(parent)
    , m_shelf(shelf)
    , m_walker(this)
{}

void ShelfLook::start(QDate today, const MountedPlaces &places)
{
    std::vector<Photo> photos = m_shelf.photos();
    for (Photo &photo : photos)
        photo.path = m_shelf.filePath(photo);
    auto walk = std::make_shared<Walk>(std::move(photos), places, today);
    const auto report = [this](const Report &found) { m_walker.tell([this, found] { take(found); }); };
    m_walker.start([walk, report](const Walker::Stop &isStopped) { walk->run(isStopped, report); },
                   [this](bool) { emit finished(); });
}

void ShelfLook::take(const Report &report)
{
    const auto known = [this](QList<int> records) {
        records.removeIf([this](int record) { return m_shelf.photo(record) == nullptr; });
        return records;
    };
    const auto note = [this](const QList<int> &records, const PhotoShelf::Edit &edit) {
        if (!records.isEmpty())
            std::ignore = m_shelf.note(records, edit);
    };
    note(known(report.missing), [](Photo &photo) { photo.set(Photo::NotThere, true); });
    note(known(report.there), [](Photo &photo) { photo.set(Photo::NotThere, false); });
    note(known(report.hashes.keys()), [&](Photo &photo) { photo.hash = report.hashes.value(photo.record); });
    if (!report.isOfFiles)
        return;
    m_away = report.away;
    for (const auto &[record, changed] : report.changed.asKeyValueRange())
        takeChanged(record, changed.found, changed.facts);
    emit looked();
}

void ShelfLook::takeChanged(int record, const FoundTexts &found, const Photo &facts)
{
    const Photo *photo = m_shelf.photo(record);
    if (!photo)
        return;
    const PictureTexts inAlbum = PhotoOfFile::texts(*photo);
    const bool isAlike = isSame(inAlbum, found.texts);
    const bool mayTake = photo->has(Photo::TextsInFile) || inAlbum.isEmpty();
    if (!isAlike && !mayTake) {
        std::erase_if(m_conflicts, [record](const TextsConflict &other) { return other.record == record; });
        m_conflicts.push_back({record, inAlbum, found, facts});
        emit conflictsChanged();
        return; // the record knows the file as it was, until it is settled: so it is seen again the next time
    }
    std::ignore = m_shelf.note({record}, [&](Photo &changed) {
        takeFacts(changed, facts);
        if (isAlike)
            changed.set(Photo::TextsInFile, !inAlbum.isEmpty());
        else
            PhotoOfFile::take(changed, found);
    });
}

void ShelfLook::settle(int record, Keep keep)
{
    const auto found = std::ranges::find(m_conflicts, record, &TextsConflict::record);
    if (found == m_conflicts.end())
        return;
    const TextsConflict conflict = *found;
    m_conflicts.erase(found);
    std::ignore = m_shelf.note({record}, [&](Photo &photo) {
        takeFacts(photo, conflict.facts);
        if (keep == Keep::InPicture)
            PhotoOfFile::take(photo, conflict.inPicture);
    });
    if (keep == Keep::InAlbum)
        emit keptInAlbum(record);
    emit conflictsChanged();
}
