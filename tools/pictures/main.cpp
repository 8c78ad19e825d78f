// SPDX-License-Identifier: GPL-3.0-or-later
// pictures FOLDER [NAME...]: takes the program's pictures on every desk into FOLDER; all of them, or the
// albums and pictures named. pictures --desk DESK FOLDER [NAME...]: the same on one desk, in surroundings
// that fit it; run by the first.

#include "tools/pictures/albums.h"
#include "tools/pictures/picturesession.h"

#include <QApplication>
#include <QDir>
#include <QProcess>

#include <algorithm>
#include <array>
#include <cstdio>
#include <memory>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

struct Album {
    const char *name;
    void (*take)(const Camera &camera);
};

constexpr std::array albums{Album{"main-menu", Albums::mainMenu},
                            Album{"password", Albums::password},
                            Album{"manual", Albums::manual},
                            Album{"address-book", Albums::addressBook},
                            Album{"address-pages", Albums::addressPages},
                            Album{"viewer", Albums::viewer},
                            Album{"viewer-panels", Albums::viewerPanels},
                            Album{"planner", Albums::planner},
                            Album{"budget", Albums::budget},
                            Album{"cars", Albums::cars},
                            Album{"car-histories", Albums::carHistories},
                            Album{"weight", Albums::weight},
                            Album{"weight-pages", Albums::weightPages},
                            Album{"weight-graph", Albums::weightGraph},
                            Album{"todo", Albums::toDo},
                            Album{"keeper", Albums::keeper},
                            Album{"journal", Albums::journal},
                            Album{"calendar", Albums::calendar},
                            Album{"calendar-pages", Albums::calendarPages},
                            Album{"album", Albums::photos},
                            Album{"backup", Albums::backup},
                            Album{"charts", Albums::charts}};

constexpr int longestMinutes = 10;

bool isAlbum(const QString &name)
{
    return std::ranges::any_of(albums, [&](const Album &album) { return name == QLatin1String(album.name); });
}

int takeOn(const Desk &desk, const QString &folder, const QStringList &wanted)
{
    const bool onlyAlbums = !wanted.isEmpty() && std::ranges::all_of(wanted, isAlbum);
    for (const Album &album : albums) {
        const QString name = QString::fromLatin1(album.name);
        if (!onlyAlbums || wanted.contains(name))
            album.take({desk, folder, wanted, name});
    }
    return EXIT_SUCCESS;
}

/// Without what the offscreen screen says of itself each time.
void tell(QtMsgType, const QMessageLogContext &, const QString &message)
{
    if (!message.startsWith("This plugin does not support"_L1))
        std::fprintf(stderr, "%s\n", qPrintable(message));
}

/// All desks at a time: a run waits for its windows more than it works.
int takeOnAll(const QStringList &arguments)
{
    struct Run {
        QTemporaryDir folder;
        QProcess process;
    };
    std::vector<std::unique_ptr<Run>> runs;
    for (const Desk &desk : Desk::all()) {
        auto run = std::make_unique<Run>();
        run->process.setProcessEnvironment(desk.surroundings(run->folder.path()));
        run->process.setProcessChannelMode(QProcess::ForwardedChannels);
        run->process.start(QCoreApplication::applicationFilePath(),
                           QStringList{u"--desk"_s, QString::fromLatin1(desk.name)} + arguments);
        runs.push_back(std::move(run));
    }
    bool isWell = true;
    for (const auto &run : runs) {
        const bool hasEnded = run->process.waitForFinished(longestMinutes * 60 * 1000);
        isWell = isWell && hasEnded && run->process.exitStatus() == QProcess::NormalExit &&
                 run->process.exitCode() == 0;
    }
    return isWell ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace

int main(int argc, char *argv[])
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    const bool isOneDesk = arguments.value(0) == "--desk"_L1;
    const Desk *desk = isOneDesk ? Desk::named(arguments.value(1)) : nullptr;
    if (isOneDesk)
        arguments.remove(0, std::min<qsizetype>(2, arguments.size()));
    if (arguments.isEmpty() || (isOneDesk && !desk)) {
        std::fputs("pictures FOLDER [ALBUM or PICTURE...]\n", stderr);
        return EXIT_FAILURE;
    }
    arguments[0] = QDir(arguments[0]).absolutePath();
    if (!isOneDesk) {
        const QCoreApplication application(argc, argv);
        QDir().mkpath(arguments[0]);
        return takeOnAll(arguments);
    }
    qInstallMessageHandler(tell);
    QApplication application(argc, argv);
    QApplication::setApplicationVersion(QStringLiteral(QUILLERY_VERSION));
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::addLibraryPath(QStringLiteral(QUILLERY_PROGRAM)); // where the program's modules are
    desk->furnish(application);
    return takeOn(*desk, arguments[0], arguments.mid(1));
}
