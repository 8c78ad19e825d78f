// SPDX-License-Identifier: GPL-3.0-or-later
#include "benchmarks/limit.h"
#include "calendar/model/calendarpages.h"
#include "shell/pages/gridlayout.h"
#include "shell/pages/pagepainter.h"
#include "shell/pages/pagepicture.h"

#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>

#include <malloc.h>

#include <utility>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double bodyPoints = 11;
constexpr int months = 12;
constexpr QSize camera{4000, 3000};
constexpr double paperDots = 300;

PageFont bodyFont()
{
    PageFont font;
    font.font.setPointSizeF(bodyPoints);
    return font;
}

/// Twelve months with six lines in each cell.
WallCalendar fullYear()
{
    WallCalendar calendar;
    calendar.title = u"Family Calendar 2027"_s;
    calendar.from = QDate(2027, 1, 1);
    const QStringList texts{u"8:00 Dentist"_s,  u"Choir practice"_s, u"Paper bin"_s,
                            u"Anne turns 48"_s, u"Ben: football"_s,  u"19:30 Parents"_s};
    for (QDate date = calendar.from; date <= calendar.lastDay(); date = date.addDays(1)) {
        for (const QString &text : texts)
            calendar.days[date].append({.shown = text});
    }
    return calendar;
}

CalendarPages::Source sourceFor(const WallCalendar &calendar)
{
    return {.context = {.setup = CalendarPages::setup(calendar.look), .today = QDate(2026, 11, 23)}};
}

void print(const WallCalendar &calendar, const QString &path)
{
    const CalendarPages::Source source = sourceFor(calendar);
    QPdfWriter writer(path);
    if (!PagePainter(CalendarPages::page(calendar, source), source.context.setup, bodyFont()).print(writer))
        qFatal("no calendar");
}

/// What stands on a sheet, to be drawn by nothing but the PDF writer.
struct Bare {
    std::vector<std::pair<QPointF, QString>> strings;
    std::vector<QRectF> rects;
};

Bare bareOf(const WallCalendar &calendar, int sheet)
{
    const GridLayout layout(CalendarPages::grid(calendar, sheet, sourceFor(calendar)), bodyFont());
    Bare bare;
    for (const LaidCell &cell : layout.blocks().front().laid.cells) {
        bare.rects.push_back(cell.rect);
        bare.strings.emplace_back(cell.number.bottomLeft(), cell.cell->number);
        for (const LaidLine &line : cell.lines) {
            for (const QString &words : line.words)
                bare.strings.emplace_back(line.rect.bottomLeft(), words);
        }
    }
    return bare;
}

void drawBare(const std::vector<Bare> &sheets, const PageSetup &setup, const QString &path)
{
    QPdfWriter writer(path);
    writer.setPageLayout(PagePainter::deviceLayout(setup));
    QPainter painter(&writer);
    const double scale = writer.logicalDpiX() / PageMetrics::pointsPerInch;
    painter.setFont(bodyFont().font);
    for (const Bare &sheet : sheets) {
        if (&sheet != &sheets.front())
            writer.newPage();
        for (const QRectF &rect : sheet.rects)
            painter.drawRect(QRectF(rect.topLeft() * scale, rect.size() * scale));
        for (const auto &[place, words] : sheet.strings)
            painter.drawText(place * scale, words);
    }
}

void printFullYear(benchmark::State &state)
{
    const QTemporaryDir folder;
    const WallCalendar calendar = fullYear();
    std::vector<Bare> bare;
    for (int sheet = 0; sheet < months; ++sheet)
        bare.push_back(bareOf(calendar, sheet));
    const PageSetup setup = CalendarPages::setup(calendar.look);
    Limit limit(state, 3);
    for ([[maybe_unused]] auto _ : state) {
        limit.measure([&] { print(calendar, folder.filePath(u"year.pdf"_s)); });
        limit.reference([&] { drawBare(bare, setup, folder.filePath(u"bare.pdf"_s)); });
    }
}

/// Twelve photographs as a camera takes them.
class Photos
{
public:
    Photos()
    {
        QImage image(camera, QImage::Format_RGB32);
        quint32 seed = 1;
        for (int y = 0; y < camera.height(); ++y) {
            auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
            for (int x = 0; x < camera.width(); ++x) {
                seed = seed * 1664525 + 1013904223;
                const int noise = int(seed >> 28);
                line[x] = qRgb(100 + y / 30 + noise, 120 + x / 40 + noise, 90 + (x ^ y) / 64 + noise);
            }
        }
        for (int i = 0; i < months; ++i) {
            const QString path = m_folder.filePath(u"%1.jpg"_s.arg(i));
            if (i == 0 ? !image.save(path, "jpg", 92) : !QFile::copy(m_folder.filePath(u"0.jpg"_s), path))
                qFatal("no photos");
        }
    }

    WallCalendar calendar() const
    {
        WallCalendar calendar;
        calendar.from = QDate(2027, 1, 1);
        calendar.look.layout = CalendarLayout::Photo;
        calendar.look.isLandscape = false;
        for (int i = 0; i < months; ++i)
            calendar.photos[calendar.month(i)] = {path(i), {}};
        return calendar;
    }

    QString path(int i) const { return m_folder.filePath(u"%1.jpg"_s.arg(i)); }

private:
    QTemporaryDir m_folder;
};

/// The dots that the place of a picture has.
QSize dotsOf(const WallCalendar &calendar)
{
    const GridLayout layout(CalendarPages::grid(calendar, 0, sourceFor(calendar)), bodyFont());
    return (layout.photoRect().size() * paperDots / PageMetrics::pointsPerInch).toSize();
}

/// Reads the pictures scaled and encodes them. Gives the bytes.
qint64 encode(const Photos &photos, QSize dots, const QTemporaryDir &folder)
{
    qint64 bytes = 0;
    for (int i = 0; i < months; ++i) {
        const QString path = folder.filePath(u"scaled.jpg"_s);
        if (!PagePicture::read(photos.path(i), dots).image.save(path, "jpg", 94))
            qFatal("not encoded");
        bytes += QFileInfo(path).size();
    }
    return bytes;
}

void printTwelvePhotos(benchmark::State &state)
{
    const QTemporaryDir folder;
    const Photos photos;
    const WallCalendar calendar = photos.calendar();
    const QSize dots = dotsOf(calendar);
    const QString pdf = folder.filePath(u"photos.pdf"_s);
    qint64 bytes = 0;
    {
        Limit limit(state, 1.3);
        for ([[maybe_unused]] auto _ : state) {
            limit.measure([&] { print(calendar, pdf); });
            limit.reference([&] { bytes = encode(photos, dots, folder); });
        }
    }
    constexpr double fontsAndLines = 200'000;
    state.counters["MiB"] = double(QFileInfo(pdf).size()) / (1024 * 1024);
    if (double(QFileInfo(pdf).size()) > double(bytes) + fontsAndLines)
        state.SkipWithError("the file is larger than its pictures");
}

/// A line of /proc/self/status, in MiB; 0 where the system does not tell.
double mebibytes(QByteArrayView name)
{
    QFile status(u"/proc/self/status"_s);
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith(name))
            return line.sliced(name.size()).simplified().split(' ').front().toDouble() / 1024;
    }
    return 0;
}

void memoryOfTwelvePhotos(benchmark::State &state)
{
    constexpr double most = 60;
    const QTemporaryDir folder;
    const Photos photos;
    const WallCalendar calendar = photos.calendar();
    double used = 0;
    for ([[maybe_unused]] auto _ : state) {
        malloc_trim(0);
        QFile peak(u"/proc/self/clear_refs"_s);
        if (peak.open(QIODevice::WriteOnly))
            peak.write("5"); // the peak begins anew
        peak.close();
        const double before = mebibytes("VmRSS:");
        print(calendar, folder.filePath(u"photos.pdf"_s));
        used = mebibytes("VmHWM:") - before;
    }
    state.counters["MiB"] = used;
    state.counters["limit"] = most;
    if (used > most)
        state.SkipWithError("takes too much memory");
}

/// Beside a frame: a month as a window shows it while somebody types.
void repaintAMonth(benchmark::State &state, const WallCalendar &calendar)
{
    constexpr double frame = 0.016;
    QImage screen(1000, 720, QImage::Format_RGB32);
    Limit limit(state, 1);
    for ([[maybe_unused]] auto _ : state) {
        limit.referred(frame);
        limit.measure([&] {
            screen.fill(Qt::white);
            QPainter painter(&screen);
            painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
            painter.scale(1.2, 1.2);
            GridLayout(CalendarPages::grid(calendar, 4, sourceFor(calendar)), bodyFont()).paint(painter);
        });
    }
}

/// More than a month has room for.
WallCalendar crowdedYear()
{
    WallCalendar calendar = fullYear();
    for (QList<DayLine> &day : calendar.days) {
        for (int i = 0; i < 6; ++i)
            day.append({.shown = u"Ben: football training, bring the blue shirt"_s});
    }
    return calendar;
}

} // namespace

BENCHMARK(printFullYear)->UseManualTime()->Iterations(9)->Unit(benchmark::kMillisecond);
BENCHMARK(printTwelvePhotos)->UseManualTime()->Iterations(3)->Unit(benchmark::kMillisecond);
BENCHMARK(memoryOfTwelvePhotos)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(repaintAMonth, full, fullYear())
    ->UseManualTime()
    ->Iterations(50)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(repaintAMonth, crowded, crowdedYear())
    ->UseManualTime()
    ->Iterations(50)
    ->Unit(benchmark::kMillisecond);
