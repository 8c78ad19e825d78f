// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/window/backupdeeds.h"

#include "backup/model/diskrecords.h"
#include "backup/model/messages.h"
#include "backup/model/sealedkey.h"
#include "backup/window/backeduppanel.h"
#include "backup/window/backupoutline.h"
#include "backup/window/backupsealpanel.h"
#include "backup/window/backupview.h"
#include "backup/window/diskwork.h"
#include "backup/window/householdsources.h"
#include "backup/window/placespane.h"
#include "backup/window/runpanel.h"
#include "shell/core/dates.h"
#include "shell/core/threadedstep.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/workviews.h"

#include <QDir>

#include <algorithm>
#include <tuple>
#include <utility>

using namespace Qt::Literals::StringLiterals;

BackupDeeds::BackupDeeds(const BackupDesk &desk, BackupView &view, RunPanel &run, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
    , m_view(view)
    , m_panel(run)
    , m_sealPanel(new BackupSealPanel(&desk.window))
    , m_step(new ThreadedStep(this))
    , m_done(new BackedUpPanel(desk, &desk.window))
{
    m_desk.views.addPanel(m_done);
    m_desk.views.addPanel(m_sealPanel);
    connect(m_sealPanel, &BackupSealPanel::chosen, this, &BackupDeeds::derive);
}

BackupDeeds::~BackupDeeds() = default;

QAction *BackupDeeds::addStart(QMenu *menu)
{
    return m_desk.commands.add(
        menu, u"mBStart"_s, u"&Back Up Now"_s, [this] { begin(); }, [this] { return m_view.whyNot(); });
}

void BackupDeeds::begin()
{
    if (m_desk.work.isRunning() || m_step->isRunning() || !mayStart())
        return;
    if (!m_view.isToBeSealed()) {
        start({});
        return;
    }
    m_desk.views.open(m_sealPanel);
    m_sealPanel->start();
    m_sealPanel->setFocus();
}

/// A second of work, and 256 MiB that are given back.
void BackupDeeds::derive(const QString &password)
{
    m_sealPanel->setWorking(true);
    auto derived = std::make_shared<KeyDerivation>(
        KeyDerivation::fresh(SecretBytes::ofText(password), PasswordCost::moderate()));
    m_step->start([derived] { std::ignore = derived->run(); },
                  [this, derived] {
                      if (!derived->isDone()) {
                          m_sealPanel->refuse(u"There is too little memory to seal it"_s);
                          return;
                      }
                      m_sealPanel->start();
                      m_desk.views.goHome();
                      start(std::make_shared<const SealedKey>(SealedKey::fresh(*derived)));
                  });
}

void BackupDeeds::start(std::shared_ptr<const SealedKey> seal)
{
    if (!areWindowsReady())
        return;
    // A sealed one cannot be gone on with under another key.
    const auto goneOn = seal ? std::optional(std::optional<SetRecord>()) : unfinished();
    if (!goneOn)
        return;
    BackupJob made = job(*goneOn);
    made.seal = std::move(seal);
    const QStringList keys = m_view.chosen();
    const QString here = m_desk.program.folder.path();
    made.count = [this, keys](const QString &folder) {
        return HouseholdSources::count(m_desk.program, m_desk.work, folder, keys);
    };
    emit said({}); // what was said of another one
    m_panel.begin(u"Backing up to %1"_s.arg(made.drive), u"Backing up"_s);
    m_run = std::make_shared<BackupRun>(std::move(made), m_desk.work,
                                        [this](const DiskProgress &progress) { m_desk.work.tell(progress); });
    auto outcome = std::make_shared<Outcome>();
    m_desk.setBusy(true);
    m_desk.views.open(&m_panel);
    m_desk.work.start({[this, run = m_run, outcome, keys, here] {
                           outcome->report = run->run();
                           if (outcome->report.end == BackupReport::End::Complete)
                               outcome->here =
                                   HouseholdSources::count(m_desk.program, m_desk.work, here, keys);
                       },
                       [run = m_run] { run->stop(); }},
                      [this, outcome] { finish(*outcome); });
}

bool BackupDeeds::mayStart()
{
    const std::optional<BackupPlaceRow> place = m_desk.places.chosen();
    if (!place)
        return false;
    const auto ask = [this](const Message &message) {
        m_desk.program.dialogs.ask(&m_desk.window, message);
        return false;
    };
    if (!QDir(place->drive.folder).exists()) {
        m_desk.places.look();
        return ask(place->isOther ? BackupMessages::folderUnavailable() : BackupMessages::driveUnavailable());
    }
    if (Drives::isOwn(place->drive.folder,
                      {m_desk.program.folder.path(), m_desk.program.programFolder.path()}))
        return ask(BackupMessages::ownFolder());
    return true;
}

bool BackupDeeds::areWindowsReady() const
{
    const QList<QWidget *> windows = m_desk.program.functions.openWindows();
    return std::ranges::all_of(windows, [](QWidget *each) {
        auto *window = qobject_cast<FunctionWindow *>(each);
        return !window || window->mayBackUp();
    });
}

std::optional<std::optional<SetRecord>> BackupDeeds::unfinished() const
{
    std::optional<SetRecord> record = DiskRecords::readSet(m_desk.program.folder.path());
    const std::optional<BackupPlaceRow> place = m_desk.places.chosen();
    if (!record || record->ended.isValid() || record->isSealed || !place ||
        record->drive != place->drive.name)
        return std::optional<SetRecord>();
    const QDate begun = record->begun.toLocalTime().date();
    const Message question = BackupMessages::goOn(Dates::monthDayYear(begun, m_desk.program.state.dateStyle));
    switch (m_desk.program.dialogs.ask(&m_desk.window, question)) {
    case Answer::Yes:
        return record;
    case Answer::No:
        return std::optional<SetRecord>();
    default:
        return std::nullopt;
    }
}

BackupJob BackupDeeds::job(const std::optional<SetRecord> &unfinished) const
{
    const Drive drive = m_desk.places.chosen()->drive;
    BackupJob job;
    job.items = m_view.outline().holdings().only(m_view.chosen()).items;
    job.household = m_desk.program.folder;
    job.folder = drive.folder;
    job.drive = drive.name;
    job.begun = m_desk.program.clock.now().toUTC();
    job.unfinished = unfinished;
    job.now = [clock = &m_desk.program.clock] { return clock->now().toUTC(); };
    job.room = m_view.room();
    return job;
}

void BackupDeeds::finish(const Outcome &outcome)
{
    m_desk.setBusy(false);
    m_run.reset();
    const BackupReport &report = outcome.report;
    m_desk.views.goHome();
    emit ended();
    if (report.end == BackupReport::End::Complete)
        m_done->tell(report, reported(outcome));
    else
        emit said(u"Stopped: the backup is not finished, and can be gone on with"_s);
    if (!report.isNoted && m_desk.program.folder.whyReadOnly().isEmpty())
        emit said(u"The backup could not be noted in the household's folder"_s);
}

QList<ReportedCount> BackupDeeds::reported(const Outcome &outcome) const
{
    const auto words = [this](const QList<BackupCount> &counts, const QString &key) {
        const auto found = std::ranges::find(counts, key, &BackupCount::function);
        return found == counts.end() ? QString() : HouseholdSources::counted(m_desk.program, *found);
    };
    QList<ReportedCount> reported;
    for (const BackupCount &count : outcome.report.set.counts) {
        const bool isOpen = HouseholdSources::mayTell(m_desk.program, count.function);
        reported.append({HouseholdSources::title(count.function),
                         isOpen ? words(outcome.report.set.counts, count.function) : u"Guarded"_s,
                         isOpen ? words(outcome.here, count.function) : QString()});
    }
    return reported;
}
