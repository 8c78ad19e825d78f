// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/photosearch.h"

#include "album/model/photoshelf.h"
#include "storage/bytesearch.h"
#include "storage/foldedtext.h"

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr char textEnd = '\n'; ///< no folded text holds it

/// The texts of a picture; nothing typed reaches from one into the next.
void append(QByteArray &texts, const Photo &photo)
{
    for (const QString &text :
         {photo.caption, photo.story, photo.place, photo.tags, photo.people, photo.fileName()}) {
        if (text.isEmpty())
            continue;
        FoldedText::append(texts, text.toUtf8());
        texts += textEnd;
    }
    texts += textEnd;
}

} // namespace

/// What must be found: each of the words or, where they make one, the date.
struct PhotoSearch::Term {
    std::vector<QByteArray> words;
    PhotoDate date{};
};

PhotoSearch::PhotoSearch(const PhotoShelf &shelf, QObject *parent)
    : QObject(parent)
    , m_shelf(shelf)
{
    connect(&shelf, &PhotoShelf::listChanged, this, [this] { m_isFolded = false; });
    connect(&shelf, &PhotoShelf::photosChanged, this, &PhotoSearch::refold);
}

void PhotoSearch::prepare()
{
    if (std::exchange(m_isFolded, true))
        return;
    m_texts.clear();
    m_rows.clear();
    m_rows.reserve(m_shelf.photos().size());
    for (const Photo &photo : m_shelf.photos()) {
        m_rows.push_back({photo.record, m_texts.size(), PhotoDateWords::mayMean(photo.date)});
        append(m_texts, photo);
    }
    m_rowOf.assign(m_rows.empty() ? 0 : std::size_t(m_rows.back().record) + 1, -1);
    for (std::size_t row = 0; row < m_rows.size(); ++row)
        m_rowOf[std::size_t(m_rows[row].record)] = int(row);
    m_albums.clear();
    for (const PhotoAlbum &album : m_shelf.albums())
        m_albums.push_back({album.record, FoldedText::of(album.name)});
    std::ranges::sort(m_albums, {}, &AlbumName::album);
}

void PhotoSearch::refold(const QList<int> &photos)
{
    constexpr qsizetype few = 32; // of more, all are folded again: each moves those behind it
    m_isFolded = m_isFolded && photos.size() <= few;
    if (!m_isFolded)
        return;
    for (const int record : photos) {
        const Photo *photo = m_shelf.photo(record);
        const auto row = std::ranges::lower_bound(m_rows, record, {}, &Row::record);
        if (!photo || row == m_rows.end() || row->record != record)
            continue;
        QByteArray texts;
        append(texts, *photo);
        const qsizetype length = endOf(std::size_t(row - m_rows.begin())) - row->start;
        m_texts.replace(row->start, length, texts);
        row->days = PhotoDateWords::mayMean(photo->date);
        for (auto behind = row + 1; behind != m_rows.end(); ++behind)
            behind->start += texts.size() - length;
    }
}

qsizetype PhotoSearch::endOf(std::size_t row) const
{
    return row + 1 < m_rows.size() ? m_rows[row + 1].start : m_texts.size();
}

/// As many words as make a date are one term, the longest first.
std::vector<PhotoSearch::Term> PhotoSearch::termsOf(QStringView text, DateStyle style, QDate today) const
{
    constexpr qsizetype mostOfDate = 6;
    const QStringList words = text.toString().simplified().split(u' ', Qt::SkipEmptyParts);
    std::vector<Term> terms;
    for (qsizetype at = 0; at < words.size();) {
        Term term;
        qsizetype count = std::min(mostOfDate, words.size() - at);
        for (; count > 0; --count) {
            const QString phrase = words.sliced(at, count).join(u' ');
            if (const auto date = PhotoDateWords::readSought(phrase, style, today)) {
                term.date = *date;
                break;
            }
        }
        count = std::max<qsizetype>(count, 1);
        for (const QString &word : words.sliced(at, count)) {
            if (const QByteArray folded = FoldedText::of(word); !folded.isEmpty())
                term.words.push_back(folded);
        }
        terms.push_back(std::move(term));
        at += count;
    }
    // What is long is rare, and looked for first.
    const auto length = [](const Term &term) { return term.words.empty() ? 0 : term.words.front().size(); };
    std::ranges::stable_sort(terms, std::ranges::greater(), length);
    return terms;
}

PhotoSearch::Rows PhotoSearch::rowsWith(const QByteArray &word, const Rows *among) const
{
    Rows found(m_rows.size());
    const char *const begin = m_texts.constData();
    const char *const end = begin + m_texts.size();
    if (among) {
        for (std::size_t row = 0; row < m_rows.size(); ++row) {
            if ((*among)[row] != 0)
                found[row] = ByteSearch::find(begin + m_rows[row].start, begin + endOf(row), word) ? 1 : 0;
        }
    } else {
        std::size_t row = 0;
        const char *at = begin;
        while ((at = ByteSearch::find(at, end, word))) {
            while (endOf(row) <= at - begin)
                ++row;
            found[row] = 1;
            at = begin + endOf(row);
        }
    }
    addAlbums(word, found);
    return found;
}

void PhotoSearch::addAlbums(const QByteArray &word, Rows &found) const
{
    std::vector<int> albums;
    for (const AlbumName &name : m_albums) {
        if (name.folded.contains(word))
            albums.push_back(name.album);
    }
    auto album = albums.begin();
    for (const PhotoPlace &place : m_shelf.records().allPlaces()) { // by album
        while (album != albums.end() && *album < place.album)
            ++album;
        if (album == albums.end())
            return;
        const bool isKnown = *album == place.album && std::size_t(place.photo) < m_rowOf.size();
        if (const int row = isKnown ? m_rowOf[std::size_t(place.photo)] : -1; row >= 0)
            found[std::size_t(row)] = 1;
    }
}

PhotoSearch::Rows PhotoSearch::rowsOf(const Term &term, const Rows *among) const
{
    Rows found(m_rows.size(), 1);
    for (const QByteArray &word : term.words) {
        found = rowsWith(word, among);
        among = &found;
    }
    if (!term.date.isNone()) {
        const PhotoDateWords::Days sought = PhotoDateWords::mayMean(term.date);
        for (std::size_t row = 0; row < m_rows.size(); ++row)
            found[row] |= char(m_rows[row].days.overlap(sought));
    }
    return found;
}

QList<int> PhotoSearch::pictures(QStringView text, DateStyle style, QDate today)
{
    prepare();
    Rows found(m_rows.size(), 1);
    bool isFirst = true;
    for (const Term &term : termsOf(text, style, today)) {
        const Rows rows = rowsOf(term, isFirst ? nullptr : &found);
        std::ranges::transform(found, rows, found.begin(),
                               [](char one, char other) { return char(one & other); });
        isFirst = false;
    }
    QList<int> records;
    records.reserve(std::ranges::count(found, 1));
    for (std::size_t row = 0; row < m_rows.size(); ++row) {
        if (found[row] != 0)
            records.append(m_rows[row].record);
    }
    return records;
}
