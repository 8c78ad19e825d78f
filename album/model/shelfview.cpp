// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/shelfview.h"

#include "album/model/photoshelf.h"
#include "storage/foldedtext.h"

#include <algorithm>
#include <map>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int yearsPerDecade = 10;

/// The first year of the decade that a vague date lies in; 0 where it is in several, or has a year.
int decadeOf(const PhotoDate &date)
{
    const QDate first = date.first();
    const QDate last = date.last();
    const bool isVague = first.isValid() && last.isValid() && date.year() == 0;
    const int decade = isVague ? first.year() - first.year() % yearsPerDecade : 0;
    return isVague && last.year() < decade + yearsPerDecade ? decade : 0;
}

std::vector<bool> inAlbums(const PhotoShelf &shelf)
{
    std::vector<bool> isIn(shelf.photos().empty() ? 0 : std::size_t(shelf.photos().back().record) + 1);
    for (const PhotoPlace &place : shelf.records().allPlaces()) {
        if (std::size_t(place.photo) < isIn.size() && shelf.album(place.album))
            isIn[std::size_t(place.photo)] = true;
    }
    return isIn;
}

bool isOnThisDay(const PhotoDate &date, QDate today)
{
    const QDate day = date.day();
    return day.isValid() && day.day() == today.day() && day.month() == today.month() &&
           day.year() != today.year();
}

bool isOf(const Photo &photo, const ShelfView &view, QDate today, const std::vector<bool> &isInAlbum)
{
    switch (view.kind) {
    case ShelfView::Kind::NoAlbum:
        return !isInAlbum[std::size_t(photo.record)];
    case ShelfView::Kind::OnThisDay:
        return isOnThisDay(photo.date, today);
    case ShelfView::Kind::NoDate:
        return !photo.date.isUnderstood();
    case ShelfView::Kind::Missing:
        return photo.has(Photo::NotThere);
    case ShelfView::Kind::Year:
        return photo.date.year() == view.number;
    case ShelfView::Kind::Decade:
        return decadeOf(photo.date) == view.number;
    case ShelfView::Kind::All:
    case ShelfView::Kind::Album:
        break;
    }
    return true;
}

QList<int> found(const PhotoShelf &shelf, const ShelfView &view, QDate today)
{
    const std::vector<bool> isInAlbum =
        view.kind == ShelfView::Kind::NoAlbum ? inAlbums(shelf) : std::vector<bool>();
    QList<int> records;
    for (const Photo &photo : shelf.photos()) {
        if (isOf(photo, view, today, isInAlbum))
            records.append(photo.record);
    }
    return records;
}

/// By which names follow each other as people count: "IMG_9" before "IMG_10".
QByteArray nameKey(const QString &name)
{
    constexpr qsizetype longestNumber = 60;
    const auto isDigit = [](char byte) { return byte >= '0' && byte <= '9'; };
    const QByteArray folded = FoldedText::of(name);
    QByteArray key;
    key.reserve(folded.size() + 4);
    for (qsizetype at = 0; at < folded.size();) {
        if (!isDigit(folded[at])) {
            key += folded[at++];
            continue;
        }
        while (at + 1 < folded.size() && folded[at] == '0' && isDigit(folded[at + 1]))
            ++at;
        qsizetype end = at;
        while (end < folded.size() && isDigit(folded[end]))
            ++end;
        // How long a number is decides first; all lengths stand where digits do.
        key += char('0' + std::min(end - at, longestNumber));
        key += QByteArrayView(folded).sliced(at, end - at);
        at = end;
    }
    return key;
}

void sortByName(const PhotoShelf &shelf, QList<int>::iterator begin, QList<int>::iterator end)
{
    std::vector<std::pair<QByteArray, int>> keyed;
    keyed.reserve(std::size_t(end - begin));
    for (auto at = begin; at != end; ++at) {
        const Photo *photo = shelf.photo(*at);
        keyed.emplace_back(nameKey(photo ? photo->fileName() : QString()), *at);
    }
    std::ranges::stable_sort(keyed, {}, [](const auto &item) -> const QByteArray & { return item.first; });
    std::ranges::transform(keyed, begin, [](const auto &item) { return item.second; });
}

/// Pictures of one moment, and those without any, stand by their names.
void sortByDate(const PhotoShelf &shelf, QList<int> &pictures)
{
    std::vector<std::pair<qint64, int>> keyed;
    keyed.reserve(std::size_t(pictures.size()));
    for (const int picture : pictures) {
        const Photo *photo = shelf.photo(picture);
        keyed.emplace_back((photo ? photo->date : PhotoDate()).sortKey(), picture);
    }
    std::ranges::stable_sort(keyed, {}, [](const auto &item) { return item.first; });
    std::ranges::transform(keyed, pictures.begin(), [](const auto &item) { return item.second; });
    for (auto begin = keyed.begin(); begin != keyed.end();) {
        const auto end = std::find_if(begin, keyed.end(),
                                      [&begin](const auto &item) { return item.first != begin->first; });
        if (end - begin > 1)
            sortByName(shelf, pictures.begin() + (begin - keyed.begin()),
                       pictures.begin() + (end - keyed.begin()));
        begin = end;
    }
}

} // namespace

QList<int> ShelfViews::pictures(const PhotoShelf &shelf, const ShelfView &view, PhotoAlbum::Sorting sorting,
                                QDate today)
{
    const bool isAlbum = view.kind == ShelfView::Kind::Album;
    QList<int> records = isAlbum ? shelf.recordsIn(view.number) : found(shelf, view, today);
    const bool isByHand = sorting == PhotoAlbum::Sorting::ByHand;
    sort(shelf, records, isByHand && !isAlbum ? PhotoAlbum::Sorting::ByDate : sorting);
    return records;
}

void ShelfViews::sort(const PhotoShelf &shelf, QList<int> &pictures, PhotoAlbum::Sorting sorting)
{
    switch (sorting) {
    case PhotoAlbum::Sorting::ByDate:
        sortByDate(shelf, pictures);
        break;
    case PhotoAlbum::Sorting::ByName:
        sortByName(shelf, pictures.begin(), pictures.end());
        break;
    case PhotoAlbum::Sorting::ByHand:
        break;
    }
}

std::vector<ShelfViews::Period> ShelfViews::periods(const PhotoShelf &shelf)
{
    std::map<int, int> years;
    std::map<int, int> decades;
    for (const Photo &photo : shelf.photos()) {
        if (const int year = photo.date.year(); year != 0)
            ++years[year];
        else if (const int decade = decadeOf(photo.date); decade != 0)
            ++decades[decade];
    }
    std::vector<Period> periods;
    periods.reserve(years.size() + decades.size());
    for (const auto &[year, count] : years)
        periods.push_back({{ShelfView::Kind::Year, year}, QString::number(year), count});
    for (const auto &[decade, count] : decades)
        periods.push_back({{ShelfView::Kind::Decade, decade}, u"The %1s"_s.arg(decade), count});
    // A decade behind its first year, the latest of which comes first.
    std::ranges::stable_sort(periods, std::ranges::greater(), [](const Period &period) {
        return 2 * period.view.number - (period.view.kind == ShelfView::Kind::Decade ? 1 : 0);
    });
    return periods;
}

int ShelfViews::count(const PhotoShelf &shelf, ShelfView::Kind kind, QDate today)
{
    return int(found(shelf, {kind, 0}, today).size());
}
