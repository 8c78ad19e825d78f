// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/albumsource.h"

#include "album/model/albumfile.h"
#include "album/model/photodatewords.h"
#include "album/model/photofile.h"
#include "album/model/photoshelf.h"
#include "album/model/recordsreader.h"
#include "storage/foldedtext.h"
#include "storage/recordfile.h"

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

/// In the place of a date's row: the record is an album's.
constexpr int albumRow = 0;
/// Read in one step, which takes a few milliseconds.
constexpr int recordsAtOnce = 256;

QString titleOf(const Photo &photo)
{
    return photo.caption.isEmpty() ? photo.fileName() : photo.caption;
}

enum Rank { BeginsTitle, WordOfTitle, Inside, NoHit };
constexpr std::size_t rankCount = NoHit;

Rank rankOf(const QByteArray &title, const QByteArray &texts, const QByteArrayList &words)
{
    Rank worst = BeginsTitle;
    for (const QByteArray &word : words) {
        const bool begins = title.startsWith(word);
        const bool isWord = begins || title.contains(QByteArray(' ' + word));
        const Rank rank = begins ? BeginsTitle : isWord ? WordOfTitle : texts.contains(word) ? Inside : NoHit;
        worst = std::max(worst, rank);
    }
    return worst;
}

} // namespace

AlbumSource::AlbumSource(const DataFolder &folder, DateStyle style)
    : m_folder(folder)
    , m_style(style)
{}

int AlbumSource::albumOf(const Place &place)
{
    return place.row == albumRow && !place.date.isValid() ? place.record : 0;
}

bool AlbumSource::prepare()
{
    if (m_next > 0)
        return readPictures();
    const FileStamp now = FileStamp::of(m_folder, PhotoShelf::fileNames());
    if (m_seen == now)
        return false;
    m_seen = now;
    m_entries.clear();
    readAlbums();
    m_next = 1;
    return true;
}

void AlbumSource::readAlbums()
{
    RecordFile(m_folder, AlbumFile::name, AlbumFile::recordLength)
        .forEach(1, [this](int number, QByteArrayView bytes) {
            const std::optional<PhotoAlbum> album = AlbumFile::decodeAlbum(number, bytes);
            if (album && !album->name.isEmpty()) {
                const QByteArray name = FoldedText::of(album->name);
                m_entries.push_back({Place{.record = number, .row = albumRow}, name, name});
            }
            return true;
        });
}

bool AlbumSource::readPictures()
{
    const RecordFile file(m_folder, PhotoFile::name, PhotoFile::recordLength);
    const QByteArray bytes = file.read(m_next, m_next + recordsAtOnce - 1);
    for (qsizetype at = 0; at < bytes.size(); at += PhotoFile::recordLength) {
        const int number = m_next + int(at / PhotoFile::recordLength);
        const std::optional<Photo> photo = PhotoFile::decode(number, QByteArrayView(bytes).sliced(at));
        if (!photo)
            continue;
        const QStringList texts{titleOf(*photo), photo->story,  photo->place,
                                photo->tags,     photo->people, photo->fileName()};
        m_entries.push_back(
            {Place{.record = number}, FoldedText::of(texts.constFirst()), FoldedText::of(texts.join(u'\n'))});
    }
    const bool isAtEnd = bytes.size() < recordsAtOnce * PhotoFile::recordLength;
    m_next = isAtEnd ? 0 : m_next + recordsAtOnce;
    return true;
}

SearchHit AlbumSource::hit(const Place &place) const
{
    if (const int number = albumOf(place); number > 0) {
        const auto album = AlbumFile::decodeAlbum(number, RecordsReader::ofPlaces(m_folder).read(number));
        return {album ? album->name : QString(), u"Album"_s, place};
    }
    const auto photo = PhotoFile::decode(place.record, RecordsReader::ofPhotos(m_folder).read(place.record));
    if (!photo)
        return {{}, {}, place};
    QStringList context;
    for (const QString &text : {PhotoDateWords::words(photo->date, m_style), photo->place, photo->people}) {
        if (!text.isEmpty())
            context.append(text);
    }
    return {titleOf(*photo), context.join(u", "_s), place};
}

QList<SearchHit> AlbumSource::matches(QStringView text, int most) const
{
    const QByteArrayList words = FoldedText::of(text).simplified().split(' ');
    std::array<std::vector<const Entry *>, rankCount> found;
    if (words.constFirst().isEmpty())
        return {};
    for (const Entry &entry : m_entries) {
        const Rank rank = rankOf(entry.title, entry.texts, words);
        if (rank != NoHit && int(found[rank].size()) < most)
            found[rank].push_back(&entry);
        if (int(found[BeginsTitle].size()) == most)
            break;
    }
    QList<SearchHit> hits;
    for (const auto &like : found) {
        for (const Entry *entry : like) {
            if (int(hits.size()) < most)
                hits.append(hit(entry->place));
        }
    }
    hits.removeIf([](const SearchHit &hit) { return hit.title.isEmpty(); });
    return hits;
}
