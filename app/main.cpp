// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/assembly.h"
#include "app/instancelink.h"
#include "shell/look/theme.h"
#include "shell/mainmenu/mainmenumessages.h"
#include "shell/mainmenu/mainmenuwindow.h"
#include "shell/mainmenu/splash.h"
#include "shell/program/program.h"
#include "storage/folderlock.h"
#include "storage/log.h"

#include <QApplication>
#include <QDir>
#include <QStandardPaths>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The folder of the program, so that it can be carried about with its data; where that cannot be written to,
/// the user's own folder for application data.
DataFolder dataFolder(const DataFolder &programFolder)
{
    if (programFolder.isWritable())
        return programFolder;
    const QString own = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    if (!QDir().mkpath(own))
        qCWarning(storageLog) << "cannot make the data folder" << own;
    return DataFolder(own);
}

/// Another program holds the folder and does not answer: it hangs, runs on another computer, or its lock came
/// here with a copy of the folder. The user knows.
bool mayTakeOver(FolderLock &lock, const DataFolder &folder)
{
    QtDialogs dialogs;
    while (dialogs.ask(nullptr, StartMessages::folderHeld(folder.path(), lock.holder())) == Answer::Yes) {
        if (lock.takeOver())
            return true;
    }
    return false;
}

int run(QApplication &application, const DataFolder &programFolder, const DataFolder &folder,
        InstanceLink &link)
{
    Assembly assembly(programFolder, folder);
    Program &program = assembly.program();
    Theme::apply(application);
    Splash1 splash(program);
    splash.open();
    // The main window is made ready while the splash stands, so that it is there at once when it goes.
    Startfrm mainMenu(program);
    QObject::connect(&link, &InstanceLink::called, &program.changes, &ProgramSignals::mainMenuRequested);
    // Later, when the main window has closed: what is left of the other windows is closed then.
    QObject::connect(&mainMenu, &Startfrm::exited, &application, &QApplication::quit, Qt::QueuedConnection);
    splash.wait();
    mainMenu.show();
    mainMenu.activateWindow();
    return QApplication::exec();
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QApplication::setOrganizationName(u"Tessaly"_s);
    QApplication::setApplicationName(u"Quillery"_s);
    QApplication::setApplicationVersion(QStringLiteral(QUILLERY_VERSION));
    QApplication::setWindowIcon(Icons::applicationIcon());
    // The splash goes before the main window comes; the main window says when the program ends.
    QApplication::setQuitOnLastWindowClosed(false);

    const DataFolder programFolder(QApplication::applicationDirPath());
    const DataFolder folder = dataFolder(programFolder);
    FolderLock lock(folder);
    InstanceLink link(folder);
    if (!lock.take()) {
        if (link.callOther())
            return EXIT_SUCCESS;
        Theme::apply(application);
        if (!mayTakeOver(lock, folder))
            return EXIT_FAILURE;
    }
    // Without a lock the line itself tells whether another program is at work here.
    if (!lock.isHeld() && link.callOther(2))
        return EXIT_SUCCESS;
    link.listen();
    return run(application, programFolder, folder, link);
}
