// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/window/snapshotspanel.h"

#include "backup/model/backuplines.h"
#include "backup/model/messages.h"
#include "backup/window/householdsnapshot.h"
#include "backup/window/keptselection.h"
#include "backup/window/snapshotchoice.h"
#include "shell/controls/tablework.h"
#include "shell/core/dates.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/workviews.h"
#include "shell/look/theme.h"
#include "shell/program/program.h"

#include <QComboBox>
#include <QDir>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QTableView>

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 megabyte = 1'000'000;
constexpr std::array<qint64, 5> limits{0, 50 * megabyte, 100 * megabyte, 500 * megabyte, 2000 * megabyte};

QString madeWords(const Snapshot &snapshot, DateStyle style)
{
    const QString day = Dates::longText(snapshot.made.date(), style);
    const bool isFirst = snapshot.made.time() == QTime(0, 0);
    return isFirst ? day : QString(day + u", "_s + snapshot.made.toString(u"hh:mm"_s));
}

std::vector<TableColumn<Snapshot>> columns(DateStyle style)
{
    return {
        {u"Made"_s, Qt::AlignLeft, [style](const Snapshot &snapshot) { return madeWords(snapshot, style); }},
        {u"Size"_s, Qt::AlignRight,
         [](const Snapshot &snapshot) { return BackupLines::size(snapshot.bytes); }}};
}

QComboBox *makeLimits(QWidget *parent)
{
    auto *box = named(new QComboBox(parent), u"snapshotLimit"_s);
    for (const qint64 limit : limits)
        box->addItem(limit == 0 ? u"No limit"_s : BackupLines::size(limit), limit);
    return box;
}

} // namespace

SnapshotsPanel::SnapshotsPanel(const BackupDesk &desk, QWidget *parent)
    : TaskPanel(u"snapshotsPanel"_s, u"Snapshots"_s, parent)
    , m_desk(desk)
    , m_words(named(makeQuietLabel({}, this), u"snapshotWords"_s))
    , m_model(new RowsModel<Snapshot>(columns(desk.program.state.dateStyle), this))
    , m_view(named(new QTableView(this), u"snapshotList"_s))
    , m_limit(makeLimits(this))
    , m_now(nullptr)
    , m_remove(nullptr)
    , m_restore(nullptr)
    , m_step(this)
{
    auto *work = new QWidget(this);
    auto *rows = new QVBoxLayout(work);
    rows->setContentsMargins({});
    rows->setSpacing(12);
    m_words->setWordWrap(true);
    m_view->setModel(m_model);
    rows->addWidget(new TableWork(m_words, m_view, u"Snapshots, the newest first"_s, work), 1);
    m_view->horizontalHeader()->setStretchLastSection(true);
    m_view->horizontalHeader()->setSectionResizeMode(QHeaderView::Interactive);
    auto *choice = new QHBoxLayout;
    choice->setSpacing(12);
    choice->addWidget(makeFieldLabel(u"&Space they may take"_s, m_limit, work));
    choice->addWidget(m_limit);
    choice->addStretch(1);
    rows->addLayout(choice);
    setWork(work);
    QPushButton *folder =
        addButton(u"snapshotFolder"_s, u"&Keep Elsewhere..."_s, ButtonKind::Plain, Side::Left);
    m_remove = addButton(u"snapshotDelete"_s, u"&Delete"_s, ButtonKind::Plain, Side::Left);
    m_restore = addButton(u"snapshotRestore"_s, u"&Restore..."_s);
    m_now = addButton(u"snapshotNow"_s, u"&Make One Now"_s, ButtonKind::Main);
    setLeaveButton(u"snapshotClose"_s, u"&Close"_s);
    setFocusProxy(m_view);
    connect(m_now, &QPushButton::clicked, this, &SnapshotsPanel::makeNow);
    connect(m_restore, &QPushButton::clicked, this, &SnapshotsPanel::restoreChosen);
    connect(m_remove, &QPushButton::clicked, this, &SnapshotsPanel::removeChosen);
    connect(folder, &QPushButton::clicked, this, &SnapshotsPanel::chooseFolder);
    connect(m_limit, &QComboBox::activated, this, &SnapshotsPanel::setLimit);
    keepSelection(m_view);
    connect(m_view->selectionModel(), &QItemSelectionModel::currentChanged, this, &SnapshotsPanel::follow);
}

SnapshotsPanel::~SnapshotsPanel()
{
    if (m_run)
        m_run->stop();
}

void SnapshotsPanel::open()
{
    look();
    m_desk.views.open(this);
    m_view->setColumnWidth(0, TypeScale::wide(320));
    setFocus();
}

void SnapshotsPanel::look()
{
    const SnapshotChoice choice = SnapshotChoice::read(m_desk.program.store, m_desk.program.folder);
    const QList<Snapshot> snapshots = Snapshots::in(choice.folder);
    const QString count =
        snapshots.isEmpty() ? u"There are no snapshots yet in "_s
                            : QString(BackupLines::counted(snapshots.size(), u"snapshot"_s, u"snapshots"_s) +
                                      u", "_s + BackupLines::size(Snapshots::bytes(snapshots)) + u", in "_s);
    m_words->setText(
        count + QDir::toNativeSeparators(choice.folder) +
        u".\nOne is made on the first start of a day after which anything has changed, and before each "
        u"restore. Those of 30 days are kept, one of each of 12 months, and one of each year."_s);
    m_limit->setCurrentIndex(std::max(0, m_limit->findData(choice.limit)));
    m_model->setRows({snapshots.begin(), snapshots.end()});
    if (!snapshots.isEmpty())
        m_view->setCurrentIndex(m_model->index(0, 0));
    follow();
}

void SnapshotsPanel::follow()
{
    const QString readOnly = m_desk.program.folder.whyReadOnly();
    const QString nothing = m_view->currentIndex().isValid() ? QString() : u"No snapshot is chosen"_s;
    for (QPushButton *button : {m_remove, m_restore})
        setUnavailable(button, nothing);
    setUnavailable(m_now, m_step.isRunning() ? u"A snapshot is being made"_s : readOnly);
}

void SnapshotsPanel::makeNow()
{
    m_run = std::make_shared<SnapshotRun>(HouseholdSnapshot::job(m_desk.program));
    const auto report = std::make_shared<SnapshotReport>();
    m_step.start([run = m_run, report] { *report = run->run(); },
                 [this, report] {
                     look();
                     emit said(report->end == SnapshotReport::End::Made ? u"Snapshot made"_s
                                                                        : report->refusal);
                 });
    follow();
}

void SnapshotsPanel::removeChosen()
{
    const QModelIndex index = m_view->currentIndex();
    if (!index.isValid())
        return;
    const Snapshot snapshot = m_model->row(index.row());
    const QString made = madeWords(snapshot, m_desk.program.state.dateStyle);
    if (m_desk.program.dialogs.ask(&m_desk.window, BackupMessages::deleteSnapshot(made)) != Answer::Yes)
        return;
    const bool isGone = Snapshots::remove(snapshot);
    look();
    emit said(isGone ? u"Snapshot deleted"_s : u"The snapshot could not be deleted"_s);
}

void SnapshotsPanel::restoreChosen()
{
    const QModelIndex index = m_view->currentIndex();
    if (index.isValid() && !m_step.isRunning())
        emit restoreWanted(m_model->row(index.row()));
}

/// Those that are there stay where they are.
void SnapshotsPanel::chooseFolder()
{
    SnapshotChoice choice = SnapshotChoice::read(m_desk.program.store, m_desk.program.folder);
    const std::optional<QString> folder =
        m_desk.program.dialogs.chooseFolder(&m_desk.window, u"Choose a Folder"_s, choice.folder);
    if (!folder)
        return;
    choice.folder = *folder;
    choice.write(m_desk.program.store, m_desk.program.folder);
    look();
}

void SnapshotsPanel::setLimit()
{
    SnapshotChoice choice = SnapshotChoice::read(m_desk.program.store, m_desk.program.folder);
    choice.limit = m_limit->currentData().toLongLong();
    choice.write(m_desk.program.store, m_desk.program.folder);
    emit said(u"This counts from the next snapshot on; the newest seven always stay"_s);
}
