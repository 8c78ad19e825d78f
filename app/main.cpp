// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/assembly.h"
#include "app/folderhold.h"
#include "app/householdfolder.h"
#include "app/startup.h"
#include "backup/window/driveoffer.h"
#include "shell/core/framelines.h"
#include "shell/core/restart.h"
#include "shell/look/theme.h"
#include "shell/mainmenu/mainmenuwindow.h"
#include "shell/mainmenu/splash.h"
#include "shell/program/program.h"

#include <QApplication>
#include <QLoggingCategory>
#include <QProcess>
#include <QStandardPaths>
#include <QTimer>

#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Holds the folder, with the user's word where another program holds it and does not answer: it hangs, runs
/// on another computer, or its lock came here with a copy of the folder.
FolderHold::Result take(FolderHold &hold)
{
    const FolderHold::Result result = hold.take();
    if (result != FolderHold::Result::Locked)
        return result;
    Theme::apply(*qApp);
    QtDialogs dialogs;
    return hold.takeOver(dialogs);
}

int run(QApplication &application, const DataFolder &programFolder, const DataFolder &folder,
        const InstanceLink &line)
{
    Assembly assembly(programFolder, folder);
    Program &program = assembly.program();
    Theme::apply(application);
    std::optional<Splash1> splash;
    if (Splash1::isWanted(program.store))
        splash.emplace(program).open();
    // The main window is made ready while the splash stands, so that it is there at once when it goes.
    Startfrm mainMenu(program);
    QObject::connect(&line, &InstanceLink::called, &program.changes, &ProgramSignals::mainMenuRequested);
    DriveOffer offer(program, &Drives::now);
    QTimer::singleShot(3000, &offer, &DriveOffer::begin); // long after what is seen first
    // Later, when the main window has closed: what is left of the other windows is closed then.
    QObject::connect(&mainMenu, &Startfrm::exited, &application, &QApplication::quit, Qt::QueuedConnection);
    if (splash) {
        splash->giveWayTo(mainMenu);
    } else {
        mainMenu.show();
        mainMenu.activateWindow();
    }
    const int result = QApplication::exec();
    // Nothing may write over what the next start finds, and no window outlives what it works with.
    if (result == Restart::exitCode)
        qDeleteAll(program.functions.openWindows());
    return result;
}

/// Runs the program on the household's folder, which is free for others when it has ended.
int runOnHousehold(QApplication &application)
{
    const QString programFolder = QApplication::applicationDirPath();
    DataFolder folder = HouseholdFolder::choose(
        DataFolder(programFolder), QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
    FolderHold hold(folder);
    switch (take(hold)) {
    case FolderHold::Result::Answered:
        return EXIT_SUCCESS;
    case FolderHold::Result::Locked:
        return EXIT_FAILURE;
    case FolderHold::Result::Unknown:
        folder = DataFolder(folder.path(), FrameLines::folderPerhapsInUse());
        break;
    case FolderHold::Result::Ours:
        break;
    }
    return run(application, DataFolder(HouseholdFolder::filesOfProgram(programFolder)), folder, hold.line());
}

/// The same program once more, as it was called.
int startAnew()
{
    const bool isStarted =
        QProcess::startDetached(QApplication::applicationFilePath(), QApplication::arguments().sliced(1));
    return isStarted ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace

int main(int argc, char *argv[])
{
    Startup::prepare();
    // That a picture is damaged is said in its place; it may be one of thousands.
    QLoggingCategory::setFilterRules(u"qt.gui.imageio*=false"_s);
    QApplication application(argc, argv);
    Startup::readAllLetters();
    QApplication::setOrganizationName(u"Tessaly"_s);
    QApplication::setApplicationName(u"Quillery"_s);
    QApplication::setApplicationVersion(QStringLiteral(QUILLERY_VERSION));
    QApplication::setDesktopFileName(u"com.tessaly.quillery"_s);
    QApplication::setWindowIcon(Icons::applicationIcon());
    // The splash goes before the main window comes; the main window says when the program ends.
    QApplication::setQuitOnLastWindowClosed(false);

    const int result = runOnHousehold(application);
    return result == Restart::exitCode ? startAnew() : result;
}
