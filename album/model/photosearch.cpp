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
    if (among) {
        for (std::size_t row = 0; row < m_rows.size(); ++row)
            found[row] =
                (*among)[row] && ByteSearch::find(begin + m_rows[row].start, begin + endOf(row), word);
    } else {
        std::size_t row = 0;
        const char *at = begin;
        while ((at = ByteSearch::find(at, begin + m_texts.size(), word))) {
            while (endOf(row) <= at - begin)
                ++row;
            found[row] = true;
            at = begin + endOf(row);
        }
    }
    addAlbums(word, found);
    return found;
}

void PhotoSearch::addAlbums(const QByteArray &word, Rows &found) const
{
    for (const PhotoAlbum &album : m_shelf.albums()) {
        if (!FoldedText::of(album.name).contains(word))
            continue;
        for (const int record : m_shelf.recordsIn(album.record)) {
            const auto row = std::ranges::lower_bound(m_rows, record, {}, &Row::record);
            found[std::size_t(row - m_rows.begin())] = true;
        }
    }
}

PhotoSearch::Rows PhotoSearch::rowsOf(const Term &term, const Rows *among) const
{
    Rows found(m_rows.size(), true);
    for (const QByteArray &word : term.words) {
        found = rowsWith(word, among);
        among = &found;
    }
    if (!term.date.isNone()) {
        const PhotoDateWords::Days sought = PhotoDateWords::mayMean(term.date);
        for (std::size_t row = 0; row < m_rows.size(); ++row)
            found[row] = found[row] || m_rows[row].days.overlap(sought);
    }
    return found;
}

QList<int> PhotoSearch::pictures(QStringView text, DateStyle style, QDate today)
{
    prepare();
    Rows found(m_rows.size(), true);
    bool isFirst = true;
    for (const Term &term : termsOf(text, style, today)) {
        const Rows rows = rowsOf(term, isFirst ? nullptr : &found);
        for (std::size_t row = 0; row < found.size(); ++row)
            found[row] = found[row] && rows[row];
        isFirst = false;
    }
    QList<int> records;
    for (std::size_t row = 0; row < m_rows.size(); ++row) {
        if (found[row])
            records.append(m_rows[row].record);
    }
    return records;
}
