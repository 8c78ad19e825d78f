// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/photoshelf.h"

#include "album/model/albumfile.h"
#include "album/model/lines.h"
#include "album/model/photofile.h"
#include "album/model/shelfedits.h"
#include "shell/core/framelines.h"
#include "shell/pictures/keptpictures.h"
#include "storage/disk.h"
#include "storage/recordfile.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <iterator>

using namespace Qt::Literals::StringLiterals;

namespace {

bool isReadable(const DataFolder &folder, const QString &name)
{
    QFile file(folder.filePath(name));
    return !file.exists() || file.open(QIODevice::ReadOnly);
}

} // namespace

PhotoShelf::PhotoShelf(const DataFolder &folder, QObject *parent)
    : QObject(parent)
    , m_folder(folder)
{}

QStringList PhotoShelf::fileNames()
{
    return {PhotoFile::name, AlbumFile::name};
}

void PhotoShelf::load()
{
    m_records.clear();
    m_whyLocked.clear();
    for (const QString &name : fileNames()) {
        if (m_whyLocked.isEmpty() && !isReadable(m_folder, name))
            m_whyLocked = AlbumLines::unreadableFile(name);
    }
    RecordFile(m_folder, PhotoFile::name, PhotoFile::recordLength)
        .forEach(1, [this](int number, QByteArrayView bytes) {
            m_records.readPhoto(number, bytes);
            return number < PhotoFile::lastRecord;
        });
    RecordFile(m_folder, AlbumFile::name, AlbumFile::recordLength)
        .forEach(1, [this](int number, QByteArrayView bytes) {
            m_records.readPlace(number, bytes);
            return number < AlbumFile::lastRecord;
        });
    m_records.settle();
    if (const QStringList foreign = foreignFiles(); m_whyLocked.isEmpty() && !foreign.isEmpty())
        m_whyLocked = AlbumLines::foreignFile(foreign.constFirst());
    emit fileTouched();
    emit listChanged();
    emit changed();
}

QString PhotoShelf::whyLocked() const
{
    return m_folder.isReadOnly() ? m_folder.whyReadOnly() : m_whyLocked;
}

QStringList PhotoShelf::foreignFiles() const
{
    QStringList names;
    if (m_records.arePhotosForeign())
        names.append(PhotoFile::name);
    if (m_records.arePlacesForeign())
        names.append(AlbumFile::name);
    return names;
}

bool PhotoShelf::setAside(const QString &name)
{
    const QString path = m_folder.filePath(name);
    const QString base = name.chopped(4);
    QString aside = base + u" (set aside).Fil"_s;
    for (int number = 2; m_folder.exists(aside); ++number)
        aside = base + u" (set aside %1).Fil"_s.arg(number);
    if (m_folder.isReadOnly() || !Disk::renameOver(path, m_folder.path() + u'/' + aside))
        return refuse(AlbumLines::notSetAside(name));
    Disk::flushNames(m_folder.path());
    load();
    emit said(AlbumLines::setAside(name, aside));
    return true;
}

const Photo *PhotoShelf::photoAt(const QString &storedPath) const
{
    const auto found = std::ranges::find(photos(), storedPath, &Photo::path);
    return found == photos().end() ? nullptr : &*found;
}

QList<int> PhotoShelf::recordsIn(int album) const
{
    QList<int> records;
    for (const PhotoPlace &place : m_records.places(album))
        records.append(place.photo);
    return records;
}

int PhotoShelf::countIn(int album) const
{
    return int(m_records.places(album).size());
}

QList<int> PhotoShelf::albumsOf(int photo) const
{
    const std::vector<PhotoPlace> places = m_records.placesOf(photo);
    QList<int> numbers;
    for (const PhotoAlbum &album : albums()) {
        if (std::ranges::find(places, album.record, &PhotoPlace::album) != places.end())
            numbers.append(album.record);
    }
    return numbers;
}

int PhotoShelf::coverOf(int number) const
{
    const PhotoAlbum *album = this->album(number);
    const QList<int> records = recordsIn(number);
    if (album && records.contains(album->cover))
        return album->cover;
    return records.value(0);
}

QString PhotoShelf::filePath(const Photo &photo) const
{
    return QDir::isRelativePath(photo.path) ? QString(m_folder.path() + u'/' + photo.path) : photo.path;
}

QString PhotoShelf::storedPath(const QString &file) const
{
    return KeptPictures::stored(m_folder, file);
}

bool PhotoShelf::change(const QList<int> &photos, const QString &title, const Edit &edit)
{
    return perform([&](ShelfEdits &edits) { return edits.changePhotos(photos, edit); }, title);
}

bool PhotoShelf::note(const QList<int> &photos, const Edit &edit)
{
    return changeAsPart(photos, {}, edit).has_value();
}

std::optional<UndoStep> PhotoShelf::changeAsPart(const QList<int> &photos, const QString &title,
                                                 const Edit &edit)
{
    return commit([&](ShelfEdits &edits) { return edits.changePhotos(photos, edit); }, title);
}

void PhotoShelf::tell(const UndoStep &step)
{
    if (step.undo)
        emit edited(step);
}

QList<int> PhotoShelf::addPhotos(std::vector<Photo> photos, int album)
{
    QList<int> numbers;
    const std::optional<UndoStep> step = addPhotosAsPart(photos, album);
    if (!step)
        return numbers;
    tell(*step);
    std::ranges::transform(photos, std::back_inserter(numbers), &Photo::record);
    return numbers;
}

std::optional<UndoStep> PhotoShelf::addPhotosAsPart(std::vector<Photo> &photos, int album)
{
    if (photos.empty())
        return {};
    return commit([&](ShelfEdits &edits) { return edits.addPhotos(photos, album); },
                  AlbumLines::added(qsizetype(photos.size())));
}

bool PhotoShelf::removePhotos(const QList<int> &photos)
{
    const Photo *only = photos.size() == 1 ? photo(photos.constFirst()) : nullptr;
    const QString what = only ? only->fileName() : AlbumLines::pictures(photos.size());
    return perform([&](ShelfEdits &edits) { return edits.removePhotos(photos); }, AlbumLines::removed(what));
}

int PhotoShelf::addAlbum(PhotoAlbum album)
{
    const QString title = AlbumLines::albumAdded(album.name);
    return perform([&](ShelfEdits &edits) { return edits.addAlbum(album); }, title) ? album.record : 0;
}

bool PhotoShelf::changeAlbum(const QString &title, const PhotoAlbum &album)
{
    return perform([&](ShelfEdits &edits) { return edits.changeAlbum(album); }, title);
}

bool PhotoShelf::moveAlbum(int album, int before)
{
    return perform([&](ShelfEdits &edits) { return edits.moveAlbum(album, before); },
                   AlbumLines::albumMoved(nameOf(album)));
}

bool PhotoShelf::removeAlbum(int album)
{
    return perform([&](ShelfEdits &edits) { return edits.removeAlbum(album); },
                   AlbumLines::albumRemoved(nameOf(album)));
}

bool PhotoShelf::putInto(int album, const QList<int> &photos, int before)
{
    return perform([&](ShelfEdits &edits) { return edits.putInto(album, photos, before); },
                   AlbumLines::putInto(photos.size(), nameOf(album)));
}

std::optional<UndoStep> PhotoShelf::putIntoAsPart(int album, const QList<int> &photos)
{
    return commit([&](ShelfEdits &edits) { return edits.putInto(album, photos, 0); }, {});
}

bool PhotoShelf::arrange(int album, const QList<int> &photos, int before)
{
    return perform([&](ShelfEdits &edits) { return edits.arrange(album, photos, before); },
                   AlbumLines::arranged(photos.size(), nameOf(album)));
}

bool PhotoShelf::takeOut(int album, const QList<int> &photos)
{
    return perform([&](ShelfEdits &edits) { return edits.takeOut(album, photos); },
                   AlbumLines::takenOut(photos.size(), nameOf(album)));
}

QString PhotoShelf::nameOf(int album) const
{
    const PhotoAlbum *found = this->album(album);
    return found ? found->name : QString();
}

bool PhotoShelf::refuse(const QString &line)
{
    m_refusal = line;
    emit said(line);
    return false;
}

bool PhotoShelf::perform(const Work &work, const QString &title)
{
    const std::optional<UndoStep> step = commit(work, title);
    if (step)
        tell(*step);
    return step.has_value();
}

std::optional<UndoStep> PhotoShelf::commit(const Work &work, const QString &title)
{
    if (const QString why = whyLocked(); !why.isEmpty()) {
        refuse(why);
        return {};
    }
    ShelfEdits edits(m_folder, m_records);
    const ShelfEdits::Change change = work(edits);
    if (!change) {
        if (edits.isOutdated())
            load();
        refuse(edits.refusal());
        return {};
    }
    if (change->isEmpty())
        return UndoStep{title, {}, {}};
    if (!change->commit(m_folder)) {
        refuse(FrameLines::refused(m_folder, AlbumLines::notSaved()));
        return {};
    }
    reread(*change);
    return UndoStep{title, [this, change] { return exchange(*change, &ShelfChange::undo); },
                    [this, change] { return exchange(*change, &ShelfChange::redo); }};
}

ChangeResult PhotoShelf::exchange(ShelfChange &change, Way way)
{
    const ChangeResult result = (change.*way)(m_folder);
    if (result == ChangeResult::Done)
        reread(change);
    return result;
}

void PhotoShelf::reread(const ShelfChange &change)
{
    const QList<int> touched = change.photos();
    const QList<int> places = change.places();
    const std::size_t count = photos().size();
    RecordsReader photoReader = RecordsReader::ofPhotos(m_folder);
    for (const int record : touched)
        m_records.readPhoto(record, photoReader.read(record));
    if (!places.isEmpty()) {
        RecordsReader placeReader = RecordsReader::ofPlaces(m_folder);
        m_records.forgetPlaces(places);
        for (const int record : places)
            m_records.readPlace(record, placeReader.read(record));
        m_records.settle();
    }
    emit fileTouched();
    if (places.isEmpty() && photos().size() == count)
        emit photosChanged(touched);
    else
        emit listChanged();
    emit changed();
}
