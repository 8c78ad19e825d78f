// SPDX-License-Identifier: GPL-3.0-or-later
// How long the screen stands still while a page of the family's photographs is read: the longest time between
// two turns of the event loop.

#include "addressbook/model/viewerpages.h"
#include "benchmarks/heartbeat.h"
#include "benchmarks/limit.h"
#include "shell/look/theme.h"
#include "shell/pictures/picturegallery.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double mostMilliseconds = 100;
constexpr QSize twelveMegapixels(4000, 3000);

/// A photograph with enough in it to take as long as a real one.
void savePhotograph(const QString &path)
{
    QImage photograph(twelveMegapixels, QImage::Format_RGB32);
    QRandomGenerator generator(5);
    for (int y = 0; y < photograph.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(photograph.scanLine(y));
        for (int x = 0; x < photograph.width(); ++x)
            line[x] = qRgb((x / 8 * 7 + y) & 255, int(generator.bounded(64)), (x ^ y) & 255);
    }
    if (!photograph.save(path, "JPG", 90))
        qFatal("cannot write the photograph to be read");
}

void readPage(benchmark::State &state, QSize window)
{
    QTemporaryDir data;
    savePhotograph(data.filePath(u"photo.jpg"_s));
    const DataFolder folder(data.path());
    PictureGallery gallery(folder, ViewerPages::picturesPerSheet);
    gallery.resize(window);
    gallery.show();
    const std::vector<NamedPicture> page(ViewerPages::picturesPerSheet, {u"Lind, Anne"_s, u"photo.jpg"_s});
    double longest = 0;
    for ([[maybe_unused]] auto round : state) {
        const Heartbeat heartbeat(0);
        gallery.setPictures(page);
        while (gallery.waitingCount() > 0)
            QApplication::processEvents();
        gallery.resize(window + QSize(40, 40)); // every picture is scaled anew
        QApplication::processEvents();
        gallery.resize(window);
        QApplication::processEvents();
        longest = std::max(longest, heartbeat.milliseconds());
    }
    state.counters["longest_ms"] = longest;
    state.counters["limit"] = mostMilliseconds;
    if (longest > mostMilliseconds)
        state.SkipWithError("the screen stands still for too long");
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    Theme::apply(application);
    for (const QSize window : {QSize(1200, 560), QSize(2400, 1300)})
        benchmark::RegisterBenchmark(qPrintable(u"photographs, %1 wide"_s.arg(window.width())), readPage,
                                     window)
            ->Iterations(3)
            ->Unit(benchmark::kMillisecond);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return EXIT_SUCCESS;
}
