// SPDX-License-Identifier: GPL-3.0-or-later
// Pictures whose folder was moved, found again by their contents; and how long it takes until a walk over
// files is stopped.

#include "album/model/contenthash.h"
#include "album/model/findagain.h"
#include "album/model/photoshelf.h"
#include "benchmarks/limit.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <sodium.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int pictureCount = 400;
constexpr int pictureBytes = 1 << 20;
constexpr double mostMilliseconds = 100;

/// A shelf of pictures that lay elsewhere, and the folder into which they were moved.
class Moved
{
public:
    Moved()
        : shelf(m_data)
    {
        shelf.load();
        std::vector<Photo> photos;
        QRandomGenerator generator(7);
        for (int i = 0; i < pictureCount; ++i) {
            QByteArray bytes(pictureBytes + i, Qt::Uninitialized);
            generator.fillRange(reinterpret_cast<quint32 *>(bytes.data()), bytes.size() / 4);
            const QString name = u"picture %1.jpg"_s.arg(i);
            QFile file(m_folder.filePath(name));
            if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
                qFatal("no picture");
            file.close();
            Photo photo;
            photo.path = u"/nowhere/"_s + name;
            photo.size = bytes.size();
            photo.hash = ContentHash::of(file.fileName(), std::atomic_bool(false)).value_or(Photo::Hash());
            photos.push_back(photo);
        }
        if (shelf.addPhotos(photos).isEmpty())
            qFatal("no shelf");
    }

    QString folder() const { return m_folder.path(); }

private:
    QTemporaryDir m_place;
    QTemporaryDir m_folder;
    DataFolder m_data{m_place.path()};

public:
    PhotoShelf shelf;
};

/// Each file read once into memory, and what is known of it then.
void readAndHash(const QString &folder)
{
    for (const QString &name : QDir(folder).entryList(QDir::Files)) {
        QFile file(folder + u'/' + name);
        if (!file.open(QIODevice::ReadOnly))
            qFatal("no picture");
        const QByteArray bytes = file.readAll();
        Photo::Hash hash{};
        crypto_generichash(hash.data(), hash.size(),
                           reinterpret_cast<const unsigned char *>(bytes.constData()),
                           static_cast<unsigned long long>(bytes.size()), nullptr, 0);
        benchmark::DoNotOptimize(hash);
    }
}

void findAgain(benchmark::State &state)
{
    Moved moved;
    Limit limit(state, 1.5);
    for ([[maybe_unused]] auto round : state) {
        limit.reference([&] { readAndHash(moved.folder()); });
        FindAgain search(moved.shelf, {});
        QEventLoop loop;
        QObject::connect(&search, &FindAgain::finished, &loop, &QEventLoop::quit);
        limit.measure([&] {
            search.start(moved.folder());
            loop.exec();
        });
        if (search.found().size() != std::size_t(pictureCount))
            state.SkipWithError("not all are found");
    }
}

void stop(benchmark::State &state)
{
    Moved moved;
    double longest = 0;
    for ([[maybe_unused]] auto round : state) {
        FindAgain search(moved.shelf, {});
        QEventLoop loop;
        QObject::connect(&search, &FindAgain::finished, &loop, &QEventLoop::quit);
        QElapsedTimer timer;
        QObject::connect(&search, &FindAgain::progressed, &loop, [&](int done, int) {
            if (done != pictureCount / 4)
                return;
            timer.start();
            search.stop();
        });
        search.start(moved.folder());
        loop.exec();
        longest = std::max(longest, double(timer.nsecsElapsed()) / 1e6);
    }
    state.counters["longest_ms"] = longest;
    state.counters["limit"] = mostMilliseconds;
    if (longest > mostMilliseconds)
        state.SkipWithError("stopping takes too long");
}

BENCHMARK(findAgain)->Iterations(10)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(stop)->Iterations(5)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return EXIT_SUCCESS;
}
