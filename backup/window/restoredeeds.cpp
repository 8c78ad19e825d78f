// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/window/restoredeeds.h"

#include "backup/model/copiedfile.h"
#include "backup/model/diskrecords.h"
#include "backup/model/drives.h"
#include "backup/model/restoremessages.h"
#include "backup/model/restorerule.h"
#include "backup/model/sealedsource.h"
#include "backup/model/snapshotsource.h"
#include "backup/window/copyowners.h"
#include "backup/window/copypasswordbox.h"
#include "backup/window/diskwork.h"
#include "backup/window/householdsnapshot.h"
#include "backup/window/householdsources.h"
#include "backup/window/restorepanel.h"
#include "backup/window/restoreview.h"
#include "backup/window/runpanel.h"
#include "backup/window/windowlines.h"
#include "shell/access/gate.h"
#include "shell/core/area.h"
#include "shell/core/dates.h"
#include "shell/core/restart.h"
#include "shell/core/threadedstep.h"
#include "shell/frame/commands.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/leaving.h"
#include "shell/frame/workviews.h"
#include "shell/program/functionfaces.h"
#include "shell/program/program.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

RestoreRule::Password stateOf(PasswordCheck::State state)
{
    switch (state) {
    case PasswordCheck::State::NotSet:
        return RestoreRule::Password::None;
    case PasswordCheck::State::Set:
        return RestoreRule::Password::Set;
    case PasswordCheck::State::Damaged:
        return RestoreRule::Password::Damaged;
    }
    Q_UNREACHABLE();
}

/// Whether files of a function are written that answers `is`.
template <typename Is>
bool isAnyWritten(const QList<RestoreItem> &items, Is is)
{
    return std::ranges::any_of(items, [&is](const RestoreItem &item) {
        const std::optional<Function> function = HouseholdSources::function(item.function);
        return item.isWritten() && function && is(FunctionFaces::of(*function));
    });
}

/// Whether files are written of which no function is known, so that one that is guarded may be among them.
bool isAnyUnknown(const QList<RestoreItem> &items)
{
    return std::ranges::any_of(items, [](const RestoreItem &item) {
        return item.isWritten() && item.function == Holdings::others &&
               item.file.name.endsWith(u".fil"_s, Qt::CaseInsensitive);
    });
}

/// The key of a sealed set; null where that was not its password.
std::shared_ptr<const SealedKey> openedKey(const QString &folder, const QString &password)
{
    const QByteArray record = SealedSource::keyRecord(folder);
    std::optional<KeyDerivation> derivation = SealedKey::opening(record, SecretBytes::ofText(password));
    if (!derivation || !derivation->run())
        return {};
    std::optional<SealedKey> key = SealedKey::open(record, *derivation);
    return key ? std::make_shared<const SealedKey>(*std::move(key)) : nullptr;
}

} // namespace

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
    QString password;
    if (set->isSealed()) {
        CopyPasswordBox box(m_desk.program, u"This backup is sealed"_s,
                            u"Type the password that it was sealed with."_s, {}, &m_desk.window);
        if (m_desk.program.dialogs.run(box) != QDialog::Accepted)
            return;
        password = box.password();
    }
    lookInto(*set, password);
}

void RestoreDeeds::lookInto(const BackupSet &set, const QString &password)
{
    auto opened = std::make_shared<Opened>();
    opened->place = set;
    const auto way = [this, opened, password] {
        const BackupSet &place = opened->place;
        std::optional<SetRecord> record = DiskRecords::readSet(place.folder);
        if (record && place.isSealed()) {
            const auto key = openedKey(place.folder, password);
            if (!key) {
                opened->refusal = u"That is not the password of this backup."_s;
                return;
            }
            auto source = std::make_shared<SealedSource>(key, record->set, record->begun,
                                                         [this] { return !m_isStopped; });
            record = source->setRecord(place.drive, record->disks);
            opened->source = source;
        } else if (record) {
            opened->source = std::make_shared<SetSource>(record->set, record->begun);
        }
        if (!record) {
            opened->refusal = u"What is in this backup cannot be read: its last disk is damaged."_s;
            return;
        }
        opened->set = *record;
    };
    look(opened, set.isSealed() ? u"Opening the sealed backup..."_s : u"Looking into the backup..."_s, way);
}

void RestoreDeeds::startFrom(const Snapshot &snapshot)
{
    if (m_step->isRunning() || m_desk.work.isRunning())
        return;
    auto opened = std::make_shared<Opened>();
    opened->isSnapshot = true;
    look(opened, u"Opening the snapshot..."_s, [this, opened, snapshot] {
        auto source = std::make_shared<SnapshotSource>(snapshot, m_isStopped);
        opened->refusal = source->refusal();
        opened->set = source->setRecord();
        opened->place.drive = source->folder();
        opened->place.folder = source->folder();
        opened->source = source;
    });
}

/// `way` looks into it on a thread of its own, then the plan follows.
void RestoreDeeds::look(const std::shared_ptr<Opened> &opened, const QString &doing,
                        const std::function<void()> &way)
{
    m_desk.setBusy(true);
    m_isStopped = false;
    emit said(doing);
    m_step->start(way, [this, opened] {
        if (opened->refusal.isEmpty()) {
            makePlan(opened);
            return;
        }
        m_desk.setBusy(false);
        emit said({});
        tell(RestoreMessages::refused(opened->refusal));
    });
}

/// Whose the files are is asked of the functions here; all that takes long follows on a thread of its own.
void RestoreDeeds::makePlan(const std::shared_ptr<Opened> &opened)
{
    const BackupSet &place = opened->place;
    const auto owners = std::make_shared<CopyOwners>(m_desk.program, opened->set.files,
                                                     place.isSealed() ? QString() : place.folder);
    const auto make = [this, opened, owners, folder = m_desk.program.folder] {
        owners->find();
        opened->items =
            RestorePlan::made({folder}, opened->set.files, owners->here(), owners->all(), m_isStopped);
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
                 passwordHere().state() == PasswordCheck::State::Set);
}

PasswordCheck RestoreDeeds::passwordHere() const
{
    return PasswordCheck(m_desk.program.folder, PasswordCost::interactive(), &m_desk.program.gate.memory());
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
    if (passwordHere().state() == PasswordCheck::State::Set &&
        !program.gate.mayOpenPasswordControl(program, &m_desk.window))
        return;
    if (aim.isHousehold && !leaveAllWindows(program, &m_desk.window))
        return;
    RestoreRun::Order order{
        .aim = aim, .set = m_opened->set, .drive = m_opened->place.drive, .items = m_plan->chosen()};
    order.isAll = m_plan->isAll() && !m_opened->isSnapshot;
    order.prepare = [this](RestoreRun::Order &prepared) { return mayPrepare(prepared); };
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

std::optional<RestoreItem> RestoreDeeds::passwordItem() const
{
    const auto found = std::ranges::find_if(m_opened->items, [](const RestoreItem &item) {
        return item.function == Holdings::password && item.effect != RestoreEffect::OnlyHere;
    });
    return found == m_opened->items.end() ? std::nullopt : std::optional(*found);
}

/// On the thread of the run.
bool RestoreDeeds::mayPrepare(RestoreRun::Order &order)
{
    QByteArray copy;
    if (const auto item = passwordItem()) {
        const auto content =
            CopiedFile::read(*m_opened->source, order.set, item->file, order.drive, m_desk.work);
        if (!content)
            return false;
        // What is damaged in the backup cannot be told.
        copy = content->isEmpty() && item->file.size > 0 ? QByteArray("damaged") : *content;
    }
    bool isMet = false;
    m_desk.work.doHere([&] { isMet = demandsAreMet(order, copy); });
    if (!isMet || order.aim.isHousehold)
        return isMet;
    QList<BackupFile> files;
    for (const RestoreItem &item : std::as_const(order.items)) {
        if (item.effect != RestoreEffect::OnlyHere)
            files.append(item.file);
    }
    order.items = RestorePlan::made(order.aim, files, {}, {}, m_isStopped);
    return true;
}

bool RestoreDeeds::demandsAreMet(RestoreRun::Order &order, const QByteArray &copy)
{
    const PasswordCheck::Content content = PasswordCheck::parsed(copy);
    RestoreRule::Case known;
    known.here = stateOf(passwordHere().state());
    known.copy = stateOf(content.state);
    const std::optional<RestoreItem> item = passwordItem();
    known.isSame = item && item->effect == RestoreEffect::Same;
    known.isFileChosen = m_plan->isPasswordChosen();
    known.isGuardedByCopy =
        isAnyWritten(order.items,
                     [&content](const FunctionFace &face) { return face.isGuarded(content.areas); }) ||
        (content.areas.isAnyProtected() && isAnyUnknown(order.items));
    known.isGuardable =
        isAnyWritten(order.items, [](const FunctionFace &face) { return face.area != Area::None; });
    const RestoreRule::Demand demand = RestoreRule::of(known);
    if (!demand.refusal.isEmpty()) {
        tell(RestoreMessages::refused(demand.refusal));
        return false;
    }
    if (demand.takesFile && item)
        order.items.prepend(*item);
    if (!demand.asksCopy)
        return true;
    const QTemporaryDir folder;
    QFile file(folder.filePath(QString::fromLatin1(SettingsKeys::passwordFile.name)));
    if (!file.open(QIODevice::WriteOnly) || file.write(copy) != copy.size())
        return false;
    file.close();
    const DataFolder place(folder.path());
    CopyPasswordBox box(
        m_desk.program, u"The password of this backup"_s,
        u"This backup was guarded by a password of its own, which comes back with it. Type that one."_s,
        [check = PasswordCheck(place)](const QString &typed) { return check.matches(typed); },
        &m_desk.window);
    return m_desk.program.dialogs.run(box) == QDialog::Accepted;
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
