// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/albumfile.h"
#include "album/model/albumnews.h"
#include "album/model/photofile.h"
#include "album/model/photosearch.h"
#include "album/model/photoshelf.h"
#include "album/model/shelfview.h"
#include "benchmarks/limit.h"
#include "storage/bytesearch.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <array>
#include <cstring>
#include <string_view>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int photoCount = 20000;
constexpr int albumCount = 200;
const QDate today(2026, 11, 21);

/// Twenty thousand pictures with captions, people and dates, a hundred in each of two hundred albums.
void fillShelf(const DataFolder &folder)
{
    constexpr std::array<std::string_view, 12> words{"Anne",   "and",    "Karin", "at",
                                                     "the",    "lake",   "with",  "boat",
                                                     "summer", "garden", "Tom",   "caf\xc3\xa9"};
    QFile photos(folder.filePath(PhotoFile::name));
    QFile albums(folder.filePath(AlbumFile::name));
    if (!photos.open(QIODevice::WriteOnly) || !albums.open(QIODevice::WriteOnly))
        qFatal("cannot fill a shelf");
    for (int record = 1; record <= photoCount; ++record) {
        Photo photo;
        photo.path = u"/home/anne/Pictures/%1/%2/IMG_%3.jpg"_s.arg(1990 + record % 36)
                         .arg(record % 12 + 1)
                         .arg(record);
        QStringList caption;
        for (int i = 0, number = record; i < 7; ++i, number = number * 7 / 3 + 5)
            caption += QString::fromUtf8(words[std::size_t(number) % words.size()]);
        photo.caption = caption.join(u' ');
        photo.story = record % 10 == 0 ? photo.caption.repeated(8) : QString();
        photo.place = record % 3 == 0 ? u"Berlin"_s : QString();
        photo.tags = record % 4 == 0 ? u"summer; water"_s : QString();
        photo.people = record % 2 == 0 ? u"Anne Lind; Karin Holm"_s : QString();
        photo.date =
            PhotoDate::of(QDate(1990 + record % 36, record % 12 + 1, record % 28 + 1), QTime(record % 24, 7));
        photo.size = 4000000 + record;
        photos.write(PhotoFile::encode(photo));
    }
    for (int album = 1; album <= albumCount; ++album)
        albums.write(AlbumFile::encode(
            PhotoAlbum{.record = album, .order = quint32(album * 1024), .name = u"Album %1"_s.arg(album)}));
    for (int record = 1; record <= photoCount; ++record)
        albums.write(AlbumFile::encode(
            PhotoPlace{.album = record % albumCount + 1, .photo = record, .order = quint32(record * 1024)}));
}

/// The same folder for all: filling it takes longer than measuring.
const DataFolder &filledFolder()
{
    static const QTemporaryDir dir;
    static const DataFolder folder = [] {
        DataFolder filled(dir.path());
        fillShelf(filled);
        return filled;
    }();
    return folder;
}

qsizetype readBoth(const DataFolder &folder)
{
    qsizetype sum = 0;
    for (const QString &name : PhotoShelf::fileNames()) {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
            qFatal("no shelf");
        static QByteArray block(256 * 1024, Qt::Uninitialized);
        for (qint64 count = file.read(block.data(), block.size()); count > 0;
             count = file.read(block.data(), block.size()))
            sum += count;
    }
    return sum;
}

void shelfIsReady(benchmark::State &state)
{
    const DataFolder &folder = filledFolder();
    Limit limit(state, 4);
    for (auto _ : state) {
        limit.measure([&] {
            PhotoShelf shelf(folder);
            shelf.load();
            const QList<int> all = ShelfViews::pictures(shelf, {}, PhotoAlbum::Sorting::ByDate, today);
            benchmark::DoNotOptimize(all.size() + qsizetype(ShelfViews::periods(shelf).size()));
        });
        limit.reference([&] { benchmark::DoNotOptimize(readBoth(folder)); });
    }
}
BENCHMARK(shelfIsReady)->UseManualTime()->Iterations(20);

void newsIsReady(benchmark::State &state)
{
    const DataFolder &folder = filledFolder();
    Limit limit(state, 2);
    for (auto _ : state) {
        limit.measure([&] { benchmark::DoNotOptimize(AlbumNews::liveLine(folder, today)); });
        limit.reference([&] { benchmark::DoNotOptimize(readBoth(folder)); });
    }
}
BENCHMARK(newsIsReady)->UseManualTime()->Iterations(20);

void keystroke(benchmark::State &state, const QString &typed)
{
    PhotoShelf shelf(filledFolder());
    shelf.load();
    PhotoSearch search(shelf);
    search.pictures(typed, DateStyle::Usa, today); // folds
    const QByteArrayView texts = search.bytes();
    state.counters["folded_bytes"] = double(texts.size());
    const std::string_view nowhere = "lake zebra";
    Limit limit(state, 5);
    for (auto _ : state) {
        limit.measure([&] { benchmark::DoNotOptimize(search.pictures(typed, DateStyle::Usa, today)); });
        limit.reference([&] {
            benchmark::DoNotOptimize(
                memmem(texts.data(), std::size_t(texts.size()), nowhere.data(), nowhere.size()));
        });
    }
}
BENCHMARK_CAPTURE(keystroke, one_letter, u"a"_s)->UseManualTime()->Iterations(50);
BENCHMARK_CAPTURE(keystroke, a_word, u"garden"_s)->UseManualTime()->Iterations(50);
BENCHMARK_CAPTURE(keystroke, a_word_of_none, u"grandmother"_s)->UseManualTime()->Iterations(50);
BENCHMARK_CAPTURE(keystroke, three_words, u"lake caf\u00e9 tom"_s)->UseManualTime()->Iterations(50);
BENCHMARK_CAPTURE(keystroke, a_date_and_a_word, u"summer 2004 berlin"_s)->UseManualTime()->Iterations(50);
BENCHMARK_CAPTURE(keystroke, albums, u"album 12"_s)->UseManualTime()->Iterations(50);

} // namespace
BENCHMARK_MAIN();
