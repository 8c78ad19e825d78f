// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/window/backup1.h"

#include "backup/model/messages.h"
#include "backup/model/restoremessages.h"
#include "backup/model/setrecords.h"
#include "backup/window/backupdeeds.h"
#include "backup/window/backupview.h"
#include "backup/window/bringbackview.h"
#include "backup/window/copydeeds.h"
#include "backup/window/diskwork.h"
#include "backup/window/householdsources.h"
#include "backup/window/placespane.h"
#include "backup/window/restoredeeds.h"
#include "backup/window/restoreview.h"
#include "backup/window/runpanel.h"
#include "backup/window/setdeeds.h"
#include "backup/window/snapshotspanel.h"
#include "shell/controls/activitybar.h"
#include "shell/controls/buttonrow.h"
#include "shell/core/helpcontexts.h"
#include "shell/frame/commonkeys.h"
#include "shell/frame/sidesplitter.h"
#include "shell/frame/undostack.h"
#include "shell/frame/viewmarks.h"
#include "shell/frame/workviews.h"
#include "shell/program/backupplace.h"

#include <QDir>
#include <QMenu>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

WindowTraits traits()
{
    return {.name = u"Backup1"_s,
            .caption = u"Backup and Restore"_s,
            .activity = u"Backup"_s,
            .colors = {SettingsKeys::backupColor, SettingsKeys::backupProgramColor, {}},
            .helpContext = HelpContext::BackupAndRestore};
}

} // namespace

Backup1::Backup1(Program &program, std::function<QList<Drive>()> drives, QWidget *parent)
    : FunctionWindow(program, traits(), parent)
    , m_work(new DiskWork(this))
    , m_places(new PlacesPane([&program] { return program.clock.today(); }, std::move(drives), program.store,
                              this))
    , m_views(new WorkViews(this))
    , m_backup(new BackupView(desk()))
    , m_restore(new RestoreView(desk()))
    , m_bringBack(new BringBackView(desk()))
    , m_run(new RunPanel(desk()))
    , m_snapshots(new SnapshotsPanel(desk()))
    , m_deeds(nullptr)
    , m_restoring(nullptr)
    , m_sets(nullptr)
    , m_opening(nullptr)
{
    m_views->addHome(m_backup);
    m_views->addView(m_restore);
    m_views->addView(m_bringBack);
    m_views->addPanel(m_run);
    m_views->addPanel(m_snapshots);
    m_deeds = new BackupDeeds(desk(), *m_backup, *m_run, this);
    m_restoring = new RestoreDeeds(desk(), *m_restore, *m_run, this);
    m_sets = new SetDeeds(
        desk(), [this] { return chosenSet(); }, *m_run, this);
    m_opening = new CopyDeeds(desk(), *m_run, *m_bringBack, this);
    setWork(new SideSplitter(u"leftPaneSplitter"_s, m_places, makePanel(u"backupPanel"_s, m_views),
                             [](QSize window) { return window.width() < 1200 ? 212 : 272; }));
    makeCommands();
    setViews(m_views);
    connect(m_deeds, &BackupDeeds::said, &activity(), &ActivityBar::say);
    connect(m_deeds, &BackupDeeds::ended, this, &Backup1::look);
    connect(m_restoring, &RestoreDeeds::said, &activity(), &ActivityBar::say);
    connect(m_snapshots, &SnapshotsPanel::said, &activity(), &ActivityBar::say);
    connect(m_snapshots, &SnapshotsPanel::restoreWanted, m_restoring, &RestoreDeeds::startFrom);
    connect(m_sets, &SetDeeds::said, &activity(), &ActivityBar::say);
    connect(m_sets, &SetDeeds::changed, this, &Backup1::look);
    connect(m_run, &RunPanel::stopWanted, this, [this] {
        if (mayStop())
            m_work->stop();
    });
    connect(m_bringBack, &BringBackView::said, &activity(), &ActivityBar::say);
    connect(m_bringBack, &BringBackView::openWanted, m_opening, &CopyDeeds::open);
    connect(m_opening, &CopyDeeds::opened, m_bringBack, &BringBackView::showOpened);
    connect(m_opening, &CopyDeeds::said, &activity(), &ActivityBar::say);
    connect(m_bringBack, &BringBackView::edited, this, [this](const UndoStep &step) {
        undoStack().push(step);
        activity().say(step.title);
        undoStack().offer();
    });
    finishFrame();
    watchFiles({SetRecord::fileName});
    look();
    open(BackupPlace::Side::BackUp);
}

/// What runs ends before anything that it works with goes.
Backup1::~Backup1()
{
    delete m_work;
}

BackupDesk Backup1::desk()
{
    return {
        program(), *this, commands(), *m_views, *m_places, *m_work, [this](bool isBusy) { setBusy(isBusy); }};
}

void Backup1::makeCommands()
{
    QMenu *options = addMenu(u"mO"_s, u"&Options"_s);
    addSides(addMenu(u"mV"_s, u"&View"_s));
    m_commands.start = m_deeds->addStart(options);
    m_commands.restore = m_restoring->addStart(options);
    m_commands.folder =
        commands().add(options, u"mBFolder"_s, u"Other &Folder..."_s, [this] { chooseFolder(); });
    commands().add(
        options, u"mBSnapshots"_s, u"S&napshots..."_s, [this] { m_snapshots->open(); },
        [this] { return m_work->isRunning() ? u"Not while a backup or restore runs"_s : QString(); });
    m_commands.test = m_sets->addTest(options);
    m_commands.remove = m_sets->addDelete(options);
    options->addSeparator();
    m_bringBack->addCommands(options);
    undoStack().addCommands(options);
    options->addSeparator();
    options->addAction(standard(Standard::PanelColor));
    options->addSeparator();
    options->addAction(standard(Standard::Exit));
    addHelpEntry();
    addStandardTool(Standard::PanelColor);
    addStandardTool(Standard::Help, u"mH_tool"_s);
    makeFoot();
}

void Backup1::addSides(QMenu *menu)
{
    auto *marks = new ViewMarks(m_views);
    std::size_t key = 0;
    const auto add = [&](QWidget *view, const QString &name, const QString &caption, const QString &word,
                         QLatin1StringView icon) {
        QAction *command = commands().add(
            menu, name, caption, [this, view] { open(view); }, {}, CommonKeys::views[key++]);
        marks->add(view, {command, commands().tool(command, icon, word, name + u"_tool"_s)});
    };
    add(m_backup, u"mVBackUp"_s, u"&Back Up"_s, u"Back Up"_s, "backup-command"_L1);
    add(m_restore, u"mVRestore"_s, u"&Restore"_s, u"Restore"_s, "restore-command"_L1);
    add(m_bringBack, u"mVBringBack"_s, u"Bring Bac&k"_s, u"Bring Back"_s, "undo"_L1);
    commands().separateTools();
}

void Backup1::makeFoot()
{
    m_places->addButton(
        commands().button(m_commands.folder, u"otherFolder"_s, m_commands.folder->text(), m_places));
    ButtonRow &foot = m_backup->foot();
    foot.addLeft(commands().button(m_commands.test, u"backUpTest"_s, m_commands.test->text(), &foot));
    foot.addRight(commands().button(m_commands.start, u"backUpNow"_s, m_commands.start->text(), &foot,
                                    ButtonKind::Main));
    foot.addRight(commands().button(standard(Standard::Exit), u"backUpExit"_s, u"E&xit"_s, &foot));
    ButtonRow &restoreFoot = m_restore->foot();
    restoreFoot.addRight(commands().button(m_commands.restore, u"restoreStart"_s, m_commands.restore->text(),
                                           &restoreFoot, ButtonKind::Main));
    restoreFoot.addLeft(
        commands().button(m_commands.remove, u"restoreDelete"_s, m_commands.remove->text(), &restoreFoot));
    restoreFoot.addLeft(
        commands().button(m_commands.test, u"restoreTest"_s, m_commands.test->text(), &restoreFoot));
    restoreFoot.addRight(
        commands().button(standard(Standard::Exit), u"restoreExit"_s, u"E&xit"_s, &restoreFoot));
    ButtonRow &bringBackFoot = m_bringBack->foot();
    bringBackFoot.addRight(
        commands().button(standard(Standard::Exit), u"bringBackExit"_s, u"E&xit"_s, &bringBackFoot));
}

void Backup1::open(QWidget *view)
{
    closePreview();
    if (view == m_views->home())
        m_views->goHome();
    else
        m_views->open(view);
    view->setFocus();
    commands().refresh();
}

/// A test can be begun anew at any time, and nothing is lost by stopping it.
bool Backup1::mayStop()
{
    if (m_restoring->isRunning())
        return ask(RestoreMessages::stop()) == Answer::Yes;
    return !m_deeds->isRunning() || ask(BackupMessages::stopBackup()) == Answer::Yes;
}

/// On the side "Back Up" that is the last one on the drive.
std::optional<BackupSet> Backup1::chosenSet() const
{
    if (m_views->isShown(m_restore))
        return m_restore->chosen();
    const std::optional<BackupPlaceRow> place = m_places->chosen();
    return place ? place->last : std::nullopt;
}

void Backup1::open(BackupPlace::Side side)
{
    if (side == BackupPlace::Side::Restore)
        open(m_restore);
    else
        open(m_backup);
}

/// Of the household's own record this window knows by then.
void Backup1::look()
{
    m_backup->look();
    m_restore->look();
    m_bringBack->look();
    m_places->look();
    filesSeen();
}

void Backup1::chooseFolder()
{
    const std::optional<QString> folder =
        program().dialogs.chooseFolder(this, u"Choose a Folder"_s, QDir::homePath());
    if (!folder)
        return;
    if (!QDir(*folder).exists())
        ask(BackupMessages::folderUnavailable());
    else if (Drives::isOwn(*folder, {program().folder.path(), program().programFolder.path()}))
        ask(BackupMessages::ownFolder());
    else
        m_places->addFolder(*folder);
}

void Backup1::showPlace(const Place &place)
{
    if (isBusy())
        return;
    const std::optional<Function> function = BackupPlace::function(place);
    const QString key = function ? HouseholdSources::key(*function) : QString();
    m_backup->choose(key);
    m_restore->choose(key);
    open(BackupPlace::side(place));
}

QString Backup1::runningLine() const
{
    return m_work->isRunning() ? m_run->line() : QString();
}

void Backup1::filesChanged()
{
    look();
}
