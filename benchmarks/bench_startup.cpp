// SPDX-License-Identifier: GPL-3.0-or-later
// How long the program takes until its main menu is painted, the splash's two seconds aside, and what memory
// it takes at most, beside an empty window of the same toolkit. Each start is a process of its own: this
// executable started again with the word that says what to open.

#include "app/assembly.h"
#include "benchmarks/limit.h"
#include "shell/look/theme.h"
#include "shell/mainmenu/mainmenuwindow.h"
#include "shell/mainmenu/menupicture.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdio>
#include <cstdlib>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double timesAnEmptyWindow = 4;
constexpr double mebibytesAtMost = 70;
constexpr int startMilliseconds = 30'000;
constexpr auto emptyWindow = "--empty-window"_L1;
constexpr auto mainMenu = "--main-menu"_L1;

/// The most memory that this process has held until now, in MiB; 0 where the system does not tell.
double peakMebibytes()
{
    QFile status(u"/proc/self/status"_s);
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : status.readAll().split('\n'))
        if (line.startsWith("VmHWM:"))
            return line.sliced(6).simplified().split(' ').front().toDouble() / 1024;
    return 0;
}

/// Seconds on the clock that all processes share.
double now()
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

/// Tells the measuring process when the window stood; what is read after the first paint still counts as
/// memory.
void tellPainted()
{
    std::printf("%.6f\n", now());
    std::fflush(stdout);
    QTimer::singleShot(200, qApp, [] {
        std::printf("%.1f\n", peakMebibytes());
        std::fflush(stdout);
        // At once: the main menu would ask whether to exit.
        std::_Exit(EXIT_SUCCESS);
    });
}

/// Tells when a widget and what stands on it were painted for the first time, before anything else is done.
class PaintWatch : public QObject
{
public:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint) {
            watched->removeEventFilter(this);
            QTimer::singleShot(0, this, tellPainted);
        }
        return false;
    }
};

class EmptyWindow : public QWidget
{
    void paintEvent(QPaintEvent *) override
    {
        if (!std::exchange(m_painted, true))
            tellPainted();
    }

    bool m_painted = false;
};

int openEmptyWindow()
{
    EmptyWindow window;
    window.showMaximized();
    return QApplication::exec();
}

int openMainMenu(QApplication &application, const QString &path)
{
    const DataFolder folder(path);
    const DataFolder programFolder(QStringLiteral(QUILLERY_PROGRAM));
    Assembly assembly(programFolder, folder);
    Theme::apply(application);
    Startfrm menu(assembly.program());
    PaintWatch watch;
    menu.findChild<MenuPicture *>()->installEventFilter(&watch);
    menu.show();
    return QApplication::exec();
}

struct Start {
    double seconds = 0; ///< from the start of the process to the painted window
    double mebibytes = 0;
};

Start start(const QStringList &arguments)
{
    Start measured;
    QProcess process;
    const double begin = now();
    process.start(QApplication::applicationFilePath(), arguments);
    if (!process.waitForReadyRead(startMilliseconds))
        qFatal("the window does not come");
    process.waitForFinished(startMilliseconds);
    const QList<QByteArray> told = process.readAllStandardOutput().split('\n');
    measured.seconds = told.value(0).toDouble() - begin;
    measured.mebibytes = told.value(1).toDouble();
    return measured;
}

/// A book of 50,000 entries beside the household's other files: the start must not grow with it.
void fillBook(const QString &path)
{
    QByteArray entries(724, '\0');
    QByteArray lines(60, '\0');
    for (int record = 2; record <= 50'000; ++record) {
        const QByteArray name = "Lind" + QByteArray::number(record);
        entries += name.leftJustified(724, ' ');
        const QByteArray line =
            QByteArray(name + ", Anne").leftJustified(47, ' ') + QByteArray::number(record);
        lines += QByteArray(QByteArray(1, char(line.size())) + '\0' + line).leftJustified(60, '\0');
    }
    for (const auto &[name, content] :
         {std::pair(u"Addbk1.Fil"_s, entries), std::pair(u"Addbk2.Fil"_s, lines)}) {
        QFile file(QDir(path).filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("cannot write the address book");
    }
}

/// The main menu on a copy of the household, or, with `full`, with a full address book.
void paintMainMenu(benchmark::State &state, bool full)
{
    QTemporaryDir data;
    const QDir household(QStringLiteral(QUILLERY_HOUSEHOLD));
    for (const QString &name : household.entryList(QDir::Files))
        QFile::copy(household.filePath(name), data.filePath(name));
    if (full)
        fillBook(data.path());
    double peak = 0, emptyPeak = 0;
    {
        Limit limit(state, timesAnEmptyWindow);
        for ([[maybe_unused]] auto round : state) {
            const Start menu = start({mainMenu, data.path()});
            const Start empty = start({emptyWindow});
            limit.measured(menu.seconds);
            limit.referred(empty.seconds);
            peak = std::max(peak, menu.mebibytes);
            emptyPeak = std::max(emptyPeak, empty.mebibytes);
        }
    }
    state.counters["MiB"] = peak;
    state.counters["MiB_empty"] = emptyPeak;
    if (peak > mebibytesAtMost)
        state.SkipWithError("takes more memory than it may");
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.contains(emptyWindow))
        return openEmptyWindow();
    if (arguments.contains(mainMenu))
        return openMainMenu(application, arguments.last());

    benchmark::RegisterBenchmark("main menu of the household", paintMainMenu, false)
        ->UseManualTime()
        ->Iterations(15)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("main menu with 50,000 addresses", paintMainMenu, true)
        ->UseManualTime()
        ->Iterations(15)
        ->Unit(benchmark::kMillisecond);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return EXIT_SUCCESS;
}
