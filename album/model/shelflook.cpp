// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/shelflook.h"

#include "album/model/contenthash.h"
#include "album/model/kepttexts.h"
#include "album/model/lines.h"
#include "album/model/photooffile.h"
#include "album/model/photoshelf.h"
#include "album/model/phototexts.h"
#include "album/model/picturefiles.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QPointer>

#include <algorithm>
#include <utility>

namespace {

/// Contents come to the shelf in bundles.
constexpr qsizetype atOnce = 200;
constexpr int atOnceMs = 2000;

/// What the file says as a record has it. A date counts only where somebody typed one here: the name of a
/// file or its time contradicts nobody.
PictureTexts ofFile(const FoundTexts &found, const PictureTexts &inAlbum)
{
    PictureTexts texts = PhotoOfFile::cut(found.texts);
    if (inAlbum.date.isEmpty() || found.dateFound != DateFound::Picture)
        texts.date.clear();
    return texts;
}

/// Nothing takes the place of something: programs that send pictures strip them of all that is said in them.
PictureTexts filledUp(PictureTexts texts, const PictureTexts &inAlbum)
{
    if (texts.caption.isEmpty())
        texts.caption = inAlbum.caption;
    if (texts.people.isEmpty())
        texts.people = inAlbum.people;
    if (texts.tags.isEmpty())
        texts.tags = inAlbum.tags;
    if (texts.rating == 0)
        texts.rating = inAlbum.rating;
    if (texts.date.isEmpty())
        texts.date = inAlbum.date;
    return texts;
}

/// Takes what the file says, and keeps what it says nothing of.
void takeFilled(Photo &photo, const FoundTexts &found, const PictureTexts &texts)
{
    const PhotoDate date = photo.date;
    const Photo::DateFrom dateFrom = photo.dateFrom;
    FoundTexts filled = found;
    filled.texts = texts;
    filled.texts.date = found.texts.date;
    PhotoOfFile::take(photo, filled);
    if (found.dateFound != DateFound::Picture && !date.isNone()) {
        photo.date = date;
        photo.dateFrom = dateFrom;
    }
}

void takeFacts(Photo &photo, const Photo &facts)
{
    photo.size = facts.size;
    photo.fileTime = facts.fileTime;
    photo.width = facts.width;
    photo.height = facts.height;
    photo.hash = {};
}

/// Where one of them says nothing, the other's is kept.
void settle(Photo &photo, const TextsConflict &conflict, bool isForAlbum)
{
    FoundTexts found = conflict.inPicture;
    if (isForAlbum && !photo.date.isNone())
        found.dateFound = DateFound::Nowhere;
    const PictureTexts inAlbum = PhotoOfFile::texts(photo);
    const PictureTexts inFile = ofFile(found, inAlbum);
    const PictureTexts both = isForAlbum ? filledUp(inAlbum, inFile) : filledUp(inFile, inAlbum);
    takeFacts(photo, conflict.facts);
    takeFilled(photo, found, both);
    photo.set(Photo::TextsInFile, both == inFile);
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
    QHash<int, qint64> touched; ///< the same content, at another time
    QHash<int, Photo> damaged;  ///< no pictures any more, or not yet again
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
            lookAt(photo, isStopped, files);
            const bool isThere = !files.away.contains(photo.record) && !files.missing.contains(photo.record);
            if (isThere && (!photo.isHashed() || files.changed.contains(photo.record)))
                unknown.push_back(&photo);
        }
        report(files);
        readContents(unknown, isStopped, report);
    }

private:
    void lookAt(const Photo &photo, const Walker::Stop &isStopped, Report &report) const
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
        if (file.size() == photo.size && photo.isHashed() &&
            ContentHash::of(photo.path, isStopped) == photo.hash) {
            report.touched.insert(photo.record, PictureFiles::timeOf(photo.path));
            return;
        }
        const Photo facts = PhotoOfFile::read(photo.path, m_today);
        if (facts.width == 0 && photo.width > 0)
            report.damaged.insert(photo.record, facts);
        else
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
    note(known(report.touched.keys()),
         [&](Photo &photo) { photo.fileTime = report.touched.value(photo.record); });
    note(known(report.damaged.keys()), [&](Photo &photo) {
        photo.size = report.damaged.value(photo.record).size;
        photo.fileTime = report.damaged.value(photo.record).fileTime;
    });
    m_away = report.away;
    const QList<int> before = waiting();
    m_conflicts.clear();
    for (const auto &[record, changed] : report.changed.asKeyValueRange())
        takeChanged(record, changed.found, changed.facts);
    if (waiting() != before)
        emit conflictsChanged();
    emit looked();
}

void ShelfLook::takeChanged(int record, const FoundTexts &found, const Photo &facts)
{
    const Photo *photo = m_shelf.photo(record);
    if (!photo)
        return;
    const PictureTexts inAlbum = PhotoOfFile::texts(*photo);
    const PictureTexts inFile = ofFile(found, inAlbum);
    const PictureTexts both = filledUp(inFile, inAlbum);
    const bool isNew = both != inAlbum;
    const bool mayTake = photo->has(Photo::TextsInFile) || inAlbum.isEmpty();
    if (isNew && !mayTake) {
        m_conflicts.push_back({record, found, facts});
        return; // the record knows the file as it was, until it is settled: so it is seen again the next time
    }
    std::ignore = m_shelf.note({record}, [&](Photo &changed) {
        takeFacts(changed, facts);
        if (isNew || inAlbum.isEmpty())
            takeFilled(changed, found, both);
        changed.set(Photo::TextsInFile, both == inFile && !both.isEmpty());
    });
}

bool ShelfLook::settle(const QList<int> &records, Keep keep)
{
    QList<int> settled = records;
    settled.removeIf([this](int record) { return !conflictOf(record); });
    auto step = m_shelf.changeAsPart(
        settled, AlbumLines::settled(settled.size(), keep == Keep::InAlbum),
        [&](Photo &photo) { ::settle(photo, *conflictOf(photo.record), keep == Keep::InAlbum); });
    if (!step || !step->undo)
        return false;
    std::erase_if(m_conflicts, [&](const TextsConflict &other) { return settled.contains(other.record); });
    for (auto *way : {&step->undo, &step->redo}) {
        *way = [way = *way, look = QPointer<ShelfLook>(this)] {
            const ChangeResult result = way();
            if (look && result == ChangeResult::Done)
                emit look->outdated();
            return result;
        };
    }
    m_shelf.tell(*step);
    if (keep == Keep::InAlbum)
        emit keptInAlbum(settled);
    emit conflictsChanged();
    emit outdated();
    return true;
}

const TextsConflict *ShelfLook::conflictOf(int record) const
{
    const auto found = std::ranges::find(m_conflicts, record, &TextsConflict::record);
    return found == m_conflicts.end() ? nullptr : &*found;
}

QList<int> ShelfLook::waiting() const
{
    QList<int> records;
    for (const TextsConflict &conflict : m_conflicts)
        records.append(conflict.record);
    std::ranges::sort(records);
    return records;
}
