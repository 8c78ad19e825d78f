// SPDX-License-Identifier: GPL-3.0-or-later
// Two thousand photographs of twelve megapixels as a window asks for them: the first screen rough and sharp,
// after a jump, all of them, and from the thumbnails; beside plain loops that read the same.

#include "benchmarks/heartbeat.h"
#include "benchmarks/limit.h"
#include "shell/pictures/jpeghead.h"
#include "shell/pictures/picturequeue.h"

#include <QBuffer>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QImageReader>
#include <QPainter>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>

#include <atomic>
#include <filesystem>
#include <memory>
#include <thread>

using namespace Qt::Literals::StringLiterals;
using Look = PictureQueue::Look;
using Priority = PictureQueue::Priority;

namespace {

constexpr QSize twelveMegapixels(4000, 3000);
constexpr int drawnCount = 200;
constexpr int namesEach = 10;
constexpr int photographCount = drawnCount * namesEach;
constexpr int screenful = 40;
constexpr int farScreen = photographCount / screenful - 2;
constexpr double mostMilliseconds = 100;
constexpr double mostMemory = 160; ///< MiB, of the whole program

int threadCount()
{
    return std::max(1, QThread::idealThreadCount());
}

QImage draw(int which)
{
    QImage photograph(twelveMegapixels, QImage::Format_RGB32);
    QRandomGenerator generator(which + 1u);
    for (int y = 0; y < photograph.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(photograph.scanLine(y));
        const quint32 grain = generator.generate();
        for (int x = 0; x < photograph.width(); ++x) {
            const int noise = int((grain * quint32(x + 1)) >> 28);
            line[x] = qRgb((x / 16 + which * 9) % 200 + noise, (y / 13) % 200 + noise,
                           (x / 40 + y / 30) % 200 + noise);
        }
    }
    QPainter painter(&photograph);
    for (int i = 0; i < 60; ++i)
        painter.fillRect(int(generator.bounded(4000)), int(generator.bounded(3000)), 300, 200,
                         QColor::fromRgb(generator.generate()));
    return photograph;
}

QByteArray jpeg(const QImage &image, int quality)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!image.save(&buffer, "JPG", quality))
        qFatal("cannot draw a photograph");
    return bytes;
}

/// With a preview inside, as cameras write it.
QByteArray photograph(int which)
{
    const QImage image = draw(which);
    const QByteArray preview =
        jpeg(image.scaled(160, 120, Qt::KeepAspectRatio, Qt::SmoothTransformation), 75);
    QByteArray exif("Exif\0\0II*\0\x08\0\0\0\x01\0\x12\x01\x03\0\x01\0\0\0\x01\0\0\0\x1a\0\0\0", 32);
    exif += QByteArray("\x02\0\x01\x02\x04\0\x01\0\0\0\x38\0\0\0\x02\x02\x04\0\x01\0\0\0", 22);
    for (int i = 0; i < 4; ++i)
        exif += char(preview.size() >> 8 * i & 0xFF);
    exif += QByteArray(4, '\0') + preview;
    const auto length = exif.size() + 2;
    return jpeg(image, 85).insert(2,
                                  "\xFF\xE1" + QByteArray(1, char(length >> 8)) + char(length & 0xFF) + exif);
}

/// Calls `work` for each number below `count`, on as many threads as there are cores.
template <typename Work>
void onAllCores(int count, Work work)
{
    std::atomic_int next = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i < threadCount(); ++i)
        threads.emplace_back([&] {
            for (int n = next++; n < count; n = next++)
                work(n);
        });
    for (std::thread &thread : threads)
        thread.join();
}

/// The photographs, each under several names, and folders for thumbnails.
class Disk
{
public:
    static Disk &get()
    {
        static Disk disk;
        return disk;
    }

    const std::vector<WantedPicture> &photographs() const { return m_photographs; }
    std::vector<WantedPicture> screen(int which) const
    {
        const auto first = m_photographs.begin() + which * screenful;
        return {first, first + screenful};
    }
    QString freshFolder() { return m_folder.filePath(u"thumbnails %1"_s.arg(++m_folders)); }

private:
    Disk()
    {
        onAllCores(drawnCount, [this](int which) {
            QFile file(path(which));
            if (!file.open(QIODevice::WriteOnly) || file.write(photograph(which)) < 0)
                qFatal("cannot write the photographs");
        });
        for (int i = 0; i < photographCount; ++i) {
            if (i >= drawnCount)
                std::filesystem::create_hard_link(path(i % drawnCount).toStdString(), path(i).toStdString());
            m_photographs.push_back({i, path(i)});
        }
        QFile("/proc/self/clear_refs"_L1).open(QIODevice::WriteOnly);
    }
    QString path(int i) const { return m_folder.filePath(u"%1.jpg"_s.arg(i)); }

    QTemporaryDir m_folder;
    std::vector<WantedPicture> m_photographs;
    int m_folders = 0;
};

/// A queue, and what has arrived from it.
class Viewer
{
public:
    explicit Viewer(const QString &thumbnails)
        : m_queue(std::make_unique<PictureQueue>(thumbnails))
    {
        QObject::connect(m_queue.get(), &PictureQueue::arrived, [this](int id, const QImage &, Look look) {
            m_rough.insert(id);
            if (look != Look::Rough)
                m_sharp.insert(id);
        });
    }

    PictureQueue &queue() { return *m_queue; }
    void waitForRough(qsizetype count)
    {
        wait([&] { return m_rough.size() >= count; });
    }
    void waitForSharp(qsizetype count)
    {
        wait([&] { return m_sharp.size() >= count; });
    }
    void waitForAll()
    {
        wait([&] { return m_queue->waitingCount() == 0; });
    }
    void stop() { m_queue.reset(); }

private:
    template <typename Condition>
    void wait(Condition isThere)
    {
        while (!isThere())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

    std::unique_ptr<PictureQueue> m_queue;
    QSet<int> m_rough;
    QSet<int> m_sharp;
};

void readPlainly(const std::vector<WantedPicture> &pictures)
{
    onAllCores(int(pictures.size()), [&](int i) {
        QImageReader reader(pictures[std::size_t(i)].path);
        reader.setAutoTransform(true);
        reader.setScaledSize({256, 192});
        benchmark::DoNotOptimize(reader.read());
    });
}

void firstScreenRough(benchmark::State &state)
{
    Disk &disk = Disk::get();
    const std::vector<WantedPicture> screen = disk.screen(1);
    Limit limit(state, 2);
    for ([[maybe_unused]] auto round : state) {
        limit.reference([&] {
            for (const WantedPicture &picture : screen) {
                QFile file(picture.path);
                if (file.open(QIODevice::ReadOnly))
                    benchmark::DoNotOptimize(JpegHead::of(file.read(JpegHead::usualBytes)).preview());
            }
        });
        Viewer viewer(disk.freshFolder());
        limit.measure([&] {
            viewer.queue().show(screen, {});
            viewer.waitForRough(screenful);
        });
    }
}

void firstScreenSharp(benchmark::State &state)
{
    Disk &disk = Disk::get();
    const std::vector<WantedPicture> screen = disk.screen(2);
    Limit limit(state, 1.5);
    for ([[maybe_unused]] auto round : state) {
        limit.reference([&] { readPlainly(screen); });
        Viewer viewer(disk.freshFolder());
        limit.measure([&] {
            viewer.queue().show(screen, {});
            viewer.waitForSharp(screenful);
        });
    }
}

/// How many others were read before all of a screen that was jumped to.
void jump(benchmark::State &state)
{
    Disk &disk = Disk::get();
    double most = 0;
    for ([[maybe_unused]] auto round : state) {
        const QString thumbnails = disk.freshFolder();
        const auto made = [&] { return QDir(thumbnails).entryList({u"*.jpg"_s}, QDir::Files).size(); };
        Viewer viewer(thumbnails);
        for (const WantedPicture &picture : disk.photographs())
            viewer.queue().want(picture, Priority::Rest);
        viewer.queue().show(disk.screen(0), disk.screen(1));
        viewer.waitForSharp(screenful / 2);
        const qsizetype before = made();
        viewer.queue().show(disk.screen(farScreen), disk.screen(farScreen + 1));
        QSet<int> sharp;
        QObject::connect(&viewer.queue(), &PictureQueue::arrived, &viewer.queue(),
                         [&](int id, const QImage &, Look look) {
                             if (look != Look::Rough && id / screenful == farScreen)
                                 sharp.insert(id);
                         });
        while (sharp.size() < screenful)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        most = std::max(most, double(made() - before - screenful));
    }
    // Those that were being read at the jump, and those that were begun behind the last one.
    state.counters["others"] = most;
    state.counters["limit"] = 2 * threadCount();
    if (most > 2 * threadCount())
        state.SkipWithError("others were read before what is seen");
}

double peakMemory()
{
    QFile file(u"/proc/self/status"_s);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : file.readAll().split('\n'))
        if (line.startsWith("VmHWM:"))
            return line.mid(6).trimmed().split(' ').constFirst().toDouble() / 1024;
    return 0;
}

void all(benchmark::State &state)
{
    Disk &disk = Disk::get();
    Limit limit(state, 1.3);
    for ([[maybe_unused]] auto round : state) {
        if (QFile refs(u"/proc/self/clear_refs"_s); refs.open(QIODevice::WriteOnly))
            refs.write("5"); // the peak begins here
        Viewer viewer(disk.freshFolder());
        const Heartbeat heartbeat(1);
        limit.measure([&] {
            for (const WantedPicture &picture : disk.photographs())
                viewer.queue().want(picture, Priority::Rest);
            viewer.queue().show(disk.screen(0), disk.screen(1));
            viewer.waitForAll();
        });
        state.counters["longest_ms"] = heartbeat.milliseconds();
        state.counters["peak_MiB"] = peakMemory();
        if (heartbeat.milliseconds() > mostMilliseconds || peakMemory() > mostMemory)
            state.SkipWithError("the screen stands still for too long, or too much is in memory");
        limit.reference([&] { readPlainly(disk.photographs()); });
    }
}

void screenFromThumbnails(benchmark::State &state)
{
    Disk &disk = Disk::get();
    const QString thumbnails = disk.freshFolder();
    const std::vector<WantedPicture> screen = disk.screen(3);
    Viewer first(thumbnails);
    first.queue().show(screen, {});
    first.waitForSharp(screenful);
    Limit limit(state, 3);
    for ([[maybe_unused]] auto round : state) {
        limit.reference([&] {
            for (const QString &name : QDir(thumbnails).entryList(QDir::Files))
                benchmark::DoNotOptimize(QImage(thumbnails + u'/' + name));
        });
        Viewer viewer(thumbnails);
        limit.measure([&] {
            viewer.queue().show(screen, {});
            viewer.waitForSharp(screenful);
        });
    }
}

void stop(benchmark::State &state)
{
    Disk &disk = Disk::get();
    double longest = 0;
    for ([[maybe_unused]] auto round : state) {
        Viewer viewer(disk.freshFolder());
        viewer.queue().show(disk.screen(4), disk.screen(5));
        viewer.waitForRough(screenful);
        QElapsedTimer timer;
        timer.start();
        viewer.stop();
        longest = std::max(longest, double(timer.nsecsElapsed()) / 1e6);
    }
    state.counters["longest_ms"] = longest;
    state.counters["limit"] = mostMilliseconds;
    if (longest > mostMilliseconds)
        state.SkipWithError("stopping takes too long");
}

BENCHMARK(firstScreenRough)->Iterations(40)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(firstScreenSharp)->Iterations(5)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(jump)->Iterations(3)->Unit(benchmark::kMillisecond);
BENCHMARK(screenFromThumbnails)->Iterations(15)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(stop)->Iterations(5)->Unit(benchmark::kMillisecond);
BENCHMARK(all)->Iterations(1)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return EXIT_SUCCESS;
}
