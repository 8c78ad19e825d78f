#include "app/functions.h"
#include "app/instancelink.h"
#include "shell/form32.h"
#include "shell/helpviewer.h"
#include "shell/passwordfile.h"
#include "shell/program.h"
#include "shell/qtdialogs.h"
#include "shell/splash1.h"
#include "shell/startfrm.h"
#include "shell/theme.h"
#include "storage/folderlock.h"
#include "storage/log.h"
#include "storage/saving.h"

#include <QApplication>
#include <QDir>
#include <QPointer>
#include <QSettings>
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

/// The manual opens when it is first asked for, and stays one window.
void connectManual(Program &program, Startfrm &mainMenu)
{
    QObject::connect(&program.changes, &ProgramSignals::helpRequested, &mainMenu,
                     [&program, viewer = QPointer<HelpViewer>()](int context) mutable {
                         if (!viewer)
                             viewer = new HelpViewer(program);
                         viewer->openPage(context);
                     });
}

int run(QApplication &application, const DataFolder &programFolder, const DataFolder &folder,
        InstanceLink &link)
{
    Saving::recover(folder);
    QSettings store(u"Tessaly"_s, u"Quillery"_s);
    Settings settings(folder);
    ProgramState state;
    PasswordFile(folder).load(state);
    SystemClock clock;
    QtDialogs dialogs;
    FunctionCatalogue functions;
    AccessGate gate(showPasswordPrompt);
    ProgramSignals changes;
    Program program{folder, programFolder, settings, state, clock, dialogs, functions, gate, store, changes};
    addFunctions(functions, clock);

    Theme::apply(application);
    Splash1 splash(program);
    splash.open();
    // The main window is made ready while the splash stands, so that it is there at once when it goes.
    Startfrm mainMenu(program);
    connectManual(program, mainMenu);
    QObject::connect(&link, &InstanceLink::called, &changes, &ProgramSignals::mainMenuRequested);
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
        if (!link.callOther())
            qCCritical(storageLog) << "another program holds" << folder.path() << "and does not answer";
        return EXIT_SUCCESS;
    }
    link.listen();
    return run(application, programFolder, folder, link);
}
