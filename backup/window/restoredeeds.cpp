// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/window/restoredeeds.h"

#include "backup/model/drives.h"
#include "backup/model/restoremessages.h"
#include "backup/window/copyowners.h"
#include "backup/window/copypasswordbox.h"
#include "backup/window/diskwork.h"
#include "backup/window/householdsnapshot.h"
#include "backup/window/householdsources.h"
#include "backup/window/readmeter.h"
#include "backup/window/restorepanel.h"
#include "backup/window/restoreview.h"
#include "backup/window/runpanel.h"
#include "backup/window/windowlines.h"
#include "shell/access/gate.h"
#include "shell/core/dates.h"
#include "shell/core/restart.h"
#include "shell/core/threadedstep.h"
#include "shell/frame/commands.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/leaving.h"
#include "shell/frame/workviews.h"
#include "shell/program/program.h"

#include <QApplication>
#include <QDir>

#include <optional>
#include <utility>

using namespace Qt::Literals::StringLiterals;

/// A backup with what restoring it would do.
struct RestoreDeeds::Opened : OpenedBackup {
    void take(OpenedBackup &&opened) { static_cast<OpenedBackup &>(*this) = std::move(opened); }

    QList<RestoreItem> items;
};

/// Asks on the thread of the windows what a restore asks on its own.
class RestoreDeeds::Asker final : public RestoreAsker
{
public:
    explicit Asker(const BackupDesk &desk)
        : m_desk(desk)
    {}

    DiskAnswer ask(const DiskQuestion &question) override { return m_desk.work.ask(question); }
    bool takeTheRest(const QStringList &damaged) override
    {
        m_isSeveral = damaged.size() > 1;
        m_takesAll.reset();
        return agrees(RestoreMessages::takeTheRest(damaged));
    }
    /// Of several it is asked once for all: a worn stick may have hundreds.
    bool takeDamaged(const QString &name) override
    {
        if (!m_takesAll)
            m_takesAll =
                agrees(m_isSeveral ? RestoreMessages::takeAllDamaged() : RestoreMessages::takeDamaged(name));
        return *m_takesAll;
    }

private:
    bool agrees(const Message &question)
    {
        bool agrees = false;
        m_desk.work.doHere(
            [&] { agrees = m_desk.program.dialogs.ask(&m_desk.window, question) == Answer::Yes; });
        return agrees;
    }

    BackupDesk m_desk;
    bool m_isSeveral = false;
    std::optional<bool> m_takesAll; ///< nothing while it was not asked
};

RestoreDeeds::RestoreDeeds(const BackupDesk &desk, RestoreView &view, RunPanel &run, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
    , m_view(view)
    , m_panel(run)
    , m_plan(new RestorePanel(desk, &desk.window))
    , m_demands(desk)
    , m_step(new ThreadedStep(this))
    , m_asker(std::make_unique<Asker>(desk))
{
    m_desk.views.addPanel(m_plan);
    connect(m_plan, &RestorePanel::restoreWanted, this, &RestoreDeeds::restoreHere);
    connect(m_plan, &RestorePanel::folderWanted, this, &RestoreDeeds::restoreIntoFolder);
    connect(m_plan, &RestorePanel::left, this, [this] {
        if (m_opened && !m_opened->isSnapshot)
            openSide();
        m_opened.reset();
    });
}

RestoreDeeds::~RestoreDeeds()
{
    m_isStopped = true;
    delete m_step;
}

QAction *RestoreDeeds::addStart(QMenu *menu)
{
    return m_desk.commands.add(
        menu, u"mRStart"_s, u"&Restore..."_s, [this] { start(); }, [this] { return whyNot(); });
}

QString RestoreDeeds::whyNot() const
{
    if (QString why = m_view.whyNoSet(); !why.isEmpty())
        return why;
    return m_view.chosen()->isComplete() ? QString() : BackupWindowLines::notComplete(*m_view.chosen());
}

void RestoreDeeds::start()
{
    const std::optional<BackupSet> set = m_view.chosen();
    if (!set || m_step->isRunning() || m_desk.work.isRunning())
        return;
    if (!QDir(set->folder).exists()) {
        tell(RestoreMessages::notice(u"The backup is no longer there."_s));
        return;
    }
    if (const auto password = CopyPasswordBox::ofSet(m_desk.program, *set, &m_desk.window))
        lookInto(*set, *password);
}

/// A sealed one is read through to its end before anything of it is known, which may take minutes.
void RestoreDeeds::lookInto(const BackupSet &set, const QString &password)
{
    auto opened = std::make_shared<Opened>();
    if (!set.isSealed()) {
        look(opened, u"Looking into the backup..."_s,
             [opened, set] { opened->take(OpenedBackup::ofSet(set, {}, {})); });
        return;
    }
    m_isStopped = false;
    m_panel.begin(u"Opening the sealed backup"_s, u"Opening a backup"_s);
    m_desk.setBusy(true);
    m_desk.views.open(&m_panel);
    const auto meter = std::make_shared<std::optional<ReadMeter>>(
        std::in_place, OpenedBackup::sealedBytes(set), m_desk.work);
    const auto goOn = [this, meter](qint64 bytes) {
        if (*meter)
            (*meter)->tell(bytes);
        return !m_isStopped;
    };
    const auto open = [=] {
        opened->take(OpenedBackup::ofSet(set, password, goOn));
        meter->reset(); // a restore has a progress of its own
    };
    m_desk.work.start({open, [this] { m_isStopped = true; }}, [this, opened] { follow(opened); });
}

void RestoreDeeds::startFrom(const Snapshot &snapshot)
{
    if (m_step->isRunning() || m_desk.work.isRunning())
        return;
    auto opened = std::make_shared<Opened>();
    look(opened, u"Opening the snapshot..."_s,
         [this, opened, snapshot] { opened->take(OpenedBackup::ofSnapshot(snapshot, m_isStopped)); });
}

/// `way` looks into it on a thread of its own, then the plan follows.
void RestoreDeeds::look(const std::shared_ptr<Opened> &opened, const QString &doing,
                        const std::function<void()> &way)
{
    m_desk.setBusy(true);
    m_isStopped = false;
    emit said(doing);
    m_step->start(way, [this, opened] { follow(opened); });
}

void RestoreDeeds::follow(const std::shared_ptr<Opened> &opened)
{
    if (opened->refusal.isEmpty() && !m_isStopped) {
        makePlan(opened);
        return;
    }
    m_desk.setBusy(false);
    if (!opened->isSnapshot)
        openSide();
    emit said(m_isStopped ? u"Stopped: the backup was not opened"_s : QString());
    if (!m_isStopped)
        tell(RestoreMessages::refused(opened->refusal));
}

/// Whose the files are is asked of the functions here; all that takes long follows on a thread of its own.
void RestoreDeeds::makePlan(const std::shared_ptr<Opened> &opened)
{
    const BackupSet &place = opened->place;
    const auto owners = std::make_shared<CopyOwners>(m_desk.program, opened->set.files,
                                                     place.isSealed() ? QString() : place.folder);
    const RestorePlan::Aim aim{m_desk.program.folder, true, HouseholdSources::desk(m_desk.program)};
    const auto make = [this, opened, owners, aim] {
        owners->find();
        opened->items = RestorePlan::made(aim, opened->set.files, owners->here(), owners->all(), m_isStopped);
    };
    m_step->start(make, [this, opened] {
        m_desk.setBusy(false);
        emit said({});
        m_opened = opened;
        showPlan();
    });
}

void RestoreDeeds::showPlan()
{
    const QDateTime begun = m_opened->set.begun.toLocalTime();
    const QString title = u"%1 of %2, %3"_s.arg(
        m_opened->isSnapshot ? u"Snapshot"_s : u"Backup"_s,
        Dates::monthDayYear(begun.date(), m_desk.program.state.dateStyle), begun.toString(u"hh:mm"_s));
    m_plan->show(title, m_opened->items, m_view.function(),
                 m_demands.passwordHere().state() == PasswordCheck::State::Set);
}

void RestoreDeeds::restoreHere()
{
    run({m_desk.program.folder});
}

void RestoreDeeds::restoreIntoFolder()
{
    const std::optional<QString> folder =
        m_desk.program.dialogs.chooseFolder(&m_desk.window, u"Choose a Folder"_s, QDir::homePath());
    if (!folder)
        return;
    if (Drives::isOwn(*folder, {m_desk.program.folder.path(), m_desk.program.programFolder.path()}))
        tell(RestoreMessages::notice(u"That is the folder of the household or of the program."_s));
    else
        run({DataFolder(*folder), false});
}

void RestoreDeeds::run(const RestorePlan::Aim &aim)
{
    Program &program = m_desk.program;
    if (!m_opened || m_desk.work.isRunning())
        return;
    if (m_demands.passwordHere().state() == PasswordCheck::State::Set &&
        !program.gate.mayOpenPasswordControl(program, &m_desk.window))
        return;
    if (aim.isHousehold && !leaveAllWindows(program, &m_desk.window))
        return;
    RestoreRun::Order order{
        .aim = aim, .set = m_opened->set, .drive = m_opened->place.drive, .items = m_plan->chosen()};
    order.isAll = m_plan->isAll() && !m_opened->isSnapshot;
    order.prepare = [this, isFileChosen = m_plan->isPasswordChosen()](RestoreRun::Order &prepared) {
        return mayPrepare(prepared, isFileChosen);
    };
    auto snapshot = std::make_shared<SnapshotJob>(HouseholdSnapshot::job(program));
    order.snapshot = [snapshot] {
        const SnapshotReport report = SnapshotRun(*snapshot).run();
        return report.refusal;
    };
    m_isStopped = false;
    m_run =
        std::make_shared<RestoreRun>(std::move(order), *m_opened->source, *m_asker,
                                     [this](const DiskProgress &progress) { m_desk.work.tell(progress); });
    m_panel.begin(u"Restoring from %1"_s.arg(m_opened->set.drive), u"Restoring"_s);
    m_desk.setBusy(true);
    m_desk.views.open(&m_panel);
    auto result = std::make_shared<RestoreResult>();
    m_desk.work.start({[run = m_run, result] { *result = run->run(); },
                       [this, run = m_run] {
                           m_isStopped = true;
                           run->stop();
                       }},
                      [this, result, aim] { finish(*result, aim); });
}

/// On the thread of the run.
bool RestoreDeeds::mayPrepare(RestoreRun::Order &order, bool isFileChosen) const
{
    if (order.aim.isHousehold)
        return m_demands.areMet(order, {*m_opened, m_opened->items, isFileChosen});
    // What is the same in the household is written elsewhere all the same.
    for (RestoreItem &item : order.items) {
        if (item.effect == RestoreEffect::Same)
            item.effect = RestoreEffect::New;
    }
    if (!m_demands.areMet(order, {*m_opened, m_opened->items, isFileChosen}))
        return false;
    QList<BackupFile> files;
    for (const RestoreItem &item : std::as_const(order.items)) {
        if (item.effect != RestoreEffect::OnlyHere)
            files.append(item.file);
    }
    order.items = RestorePlan::made(order.aim, files, {}, {}, m_isStopped);
    return true;
}

void RestoreDeeds::finish(const RestoreResult &result, const RestorePlan::Aim &aim)
{
    using End = RestoreResult::End;
    m_run.reset();
    m_desk.setBusy(false);
    const bool isDone = result.end != End::Stopped && result.end != End::Refused;
    if (isDone)
        openSide();
    else
        m_desk.views.open(m_plan); // nothing has happened, so that it still holds
    if (result.end == End::Stopped) {
        emit said(u"Stopped: nothing has been changed"_s);
    } else if (result.end == End::Refused) {
        tell(RestoreMessages::refused(result.refusal));
    } else {
        m_opened.reset();
        tell(RestoreMessages::done(result, aim.isHousehold ? QString()
                                                           : QDir::toNativeSeparators(aim.folder.path())));
        if (result.end == End::AtNextStart)
            QApplication::exit(Restart::exitCode);
    }
}

void RestoreDeeds::openSide()
{
    m_desk.views.open(&m_view);
    m_view.setFocus();
}

void RestoreDeeds::tell(const Message &message) const
{
    m_desk.program.dialogs.ask(&m_desk.window, message);
}
