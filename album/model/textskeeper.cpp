// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/textskeeper.h"

#include "album/model/contenthash.h"
#include "album/model/photooffile.h"
#include "album/model/photoshelf.h"
#include "album/model/picturefiles.h"

#include <QFileInfo>
#include <QHashFunctions>

#include <tuple>
#include <utility>

namespace {

/// Where a picture's albums want its texts: in the picture, if one of them does.
PhotoAlbum::Into wished(const PhotoShelf &shelf, int record)
{
    PhotoAlbum::Into into = PhotoAlbum::Into::Nowhere;
    for (const int number : shelf.albumsOf(record)) {
        const PhotoAlbum *album = shelf.album(number);
        if (album && (into == PhotoAlbum::Into::Nowhere || album->into == PhotoAlbum::Into::Picture))
            into = album->into;
    }
    return into;
}

/// What is written. A date that came out of the picture is there already, unless another one was written in
/// its place and taken back since.
PictureTexts textsOf(const Photo &photo)
{
    PictureTexts texts = PhotoOfFile::texts(photo);
    if (photo.dateFrom == Photo::DateFrom::Picture)
        texts.date = QString::fromLatin1(photo.date.edtf());
    return texts;
}

bool isAsKnown(const QString &path, qint64 size, qint64 fileTime)
{
    const QFileInfo file(path);
    return !file.isFile() || (file.size() == size && PictureFiles::timeOf(path) == fileTime);
}

} // namespace

TextsKeeper::TextsKeeper(PhotoShelf &shelf, QDate today, QObject *parent)
    : QObject(parent)
    , m_shelf(shelf)
    , m_today(today)
    , m_walker(this)
{
    connect(&shelf, &PhotoShelf::listChanged, this, &TextsKeeper::see);
    connect(&shelf, &PhotoShelf::photosChanged, this, &TextsKeeper::notice);
    see();
}

TextsKeeper::Seen TextsKeeper::seenOf(const Photo &photo)
{
    const std::size_t texts =
        qHashMulti(0, photo.caption, photo.people, photo.tags, photo.rating, photo.date.edtf());
    return {texts, photo.size, photo.fileTime, photo.has(Photo::TextsInFile), PhotoOfFile::texts(photo).date};
}

void TextsKeeper::see()
{
    m_seen.clear();
    m_seen.reserve(qsizetype(m_shelf.photos().size()));
    for (const Photo &photo : m_shelf.photos())
        m_seen.insert(photo.record, seenOf(photo));
}

void TextsKeeper::notice(const QList<int> &records)
{
    QList<int> changed;
    QList<int> outdated;
    for (const int record : records) {
        const Photo *photo = m_shelf.photo(record);
        if (!photo)
            continue;
        const Seen now = seenOf(*photo);
        const Seen before = std::exchange(m_seen[record], now);
        const bool isOfFile =
            now.size != before.size || now.fileTime != before.fileTime || (now.isInFile && !before.isInFile);
        if (now.texts == before.texts || isOfFile)
            continue;
        changed.append(record);
        if (!before.typedDate.isEmpty() && before.typedDate != now.typedDate)
            m_goneDates[record].append(before.typedDate);
        if (now.isInFile)
            outdated.append(record);
    }
    if (!outdated.isEmpty())
        std::ignore = m_shelf.note(outdated, [](Photo &photo) { photo.set(Photo::TextsInFile, false); });
    write(changed);
}

void TextsKeeper::catchUp(const QSet<int> &waiting)
{
    QList<int> records;
    for (const PhotoAlbum &album : m_shelf.albums()) {
        if (album.into == PhotoAlbum::Into::Nowhere)
            continue;
        for (const int record : m_shelf.recordsIn(album.record)) {
            const Photo *photo = m_shelf.photo(record);
            if (photo && !photo->has(Photo::TextsInFile) && !photo->has(Photo::NotThere) &&
                !waiting.contains(record) && !PhotoOfFile::texts(*photo).isEmpty())
                records.append(record);
        }
    }
    write(records);
}

void TextsKeeper::write(const QList<int> &records)
{
    for (const int record : records) {
        if (!m_waiting.contains(record))
            m_waiting.append(record);
    }
    startNext();
}

std::optional<TextsKeeper::Task> TextsKeeper::taskFor(int record) const
{
    const Photo *photo = m_shelf.photo(record);
    const PhotoAlbum::Into into = wished(m_shelf, record);
    if (!photo || into == PhotoAlbum::Into::Nowhere)
        return {};
    return Task{record,
                m_shelf.filePath(*photo),
                textsOf(*photo),
                photo->size,
                photo->fileTime,
                into == PhotoAlbum::Into::Picture ? KeptTexts::Into::Picture : KeptTexts::Into::Beside};
}

void TextsKeeper::startNext()
{
    if (m_walker.isRunning())
        return;
    std::vector<Task> tasks;
    for (const int record : std::exchange(m_waiting, {})) {
        const QStringList goneDates = m_goneDates.take(record);
        if (const auto task = taskFor(record)) {
            tasks.push_back(*task);
            tasks.back().goneDates = goneDates;
        }
    }
    if (tasks.empty())
        return;
    const auto work = [this, tasks, today = m_today](const Walker::Stop &isStopped) {
        for (const Task &task : tasks) {
            if (isStopped)
                return;
            if (!isAsKnown(task.path, task.size, task.fileTime)) {
                m_walker.tell([this, record = task.record] { emit foundChanged(record); });
                continue;
            }
            const KeptTexts::Written written =
                KeptTexts::write(task.path, task.texts, task.into, today, task.goneDates);
            // Known by its content at once, should it be moved before the next look.
            const Photo::Hash hash = written.isKept
                                         ? ContentHash::of(task.path, isStopped).value_or(Photo::notHashed)
                                         : Photo::notHashed;
            m_walker.tell([this, task, written, hash] { take(task, written, hash); });
        }
    };
    m_walker.start(work, [this](bool) {
        if (m_waiting.isEmpty())
            emit finished();
        else
            startNext();
    });
}

void TextsKeeper::take(const Task &task, const KeptTexts::Written &written, const Photo::Hash &hash)
{
    const Photo *photo = m_shelf.photo(task.record);
    if (!written.isKept)
        emit said(written.why);
    // What was typed meanwhile is written next.
    if (!photo || !written.isKept || m_shelf.filePath(*photo) != task.path)
        return;
    const bool isUpToDate = textsOf(*photo) == task.texts;
    std::ignore = m_shelf.note({task.record}, [&](Photo &kept) {
        PhotoOfFile::takeFacts(kept, task.path);
        kept.hash = hash;
        kept.set(Photo::TextsInFile, isUpToDate && !task.texts.isEmpty());
    });
}
