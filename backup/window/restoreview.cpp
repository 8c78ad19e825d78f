// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/window/restoreview.h"

#include "backup/model/backuplines.h"
#include "backup/model/diskrecords.h"
#include "backup/window/keptselection.h"
#include "backup/window/placespane.h"
#include "backup/window/windowlines.h"
#include "shell/controls/controls.h"
#include "shell/controls/listrowdelegate.h"
#include "shell/controls/titleline.h"
#include "shell/core/dates.h"
#include "shell/core/threadedstep.h"
#include "shell/frame/commands.h"
#include "shell/program/program.h"

#include <QHeaderView>
#include <QTableView>

#include <memory>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

QString stateOf(const BackupSet &set)
{
    if (!set.isComplete())
        return set.disks > 0 ? u"Complete with disk %1"_s.arg(set.disks) : u"Not complete"_s;
    return set.isSealed() ? u"Complete, sealed"_s : u"Complete"_s;
}

QString diskOf(const BackupSet &set)
{
    return set.disks > 1 ? u"%1 of %2"_s.arg(set.disk.number).arg(set.disks)
                         : QString::number(set.disk.number);
}

std::vector<TableColumn<BackupSet>> columns(const DateStyle &style)
{
    const auto when = [&style](const BackupSet &set) {
        const QDateTime begun = set.begun().toLocalTime();
        return QString(Dates::shortWithYear(begun.date(), style) + u", "_s + begun.toString(u"hh:mm"_s));
    };
    return {{u"Backup of"_s, Qt::AlignLeft, when},
            {u"State"_s, Qt::AlignLeft, stateOf},
            {u"Disk"_s, Qt::AlignRight, diskOf},
            {u"Size"_s, Qt::AlignRight, [](const BackupSet &set) { return BackupLines::size(set.bytes); }}};
}

} // namespace

RestoreView::RestoreView(const BackupDesk &desk, QWidget *parent)
    : TitledView(u"restore"_s, parent)
    , m_desk(desk)
    , m_words(named(makeQuietLabel({}, this), u"restoreWords"_s))
    , m_model(new RowsModel<BackupSet>(columns(desk.program.state.dateStyle), this))
    , m_view(named(new QTableView(this), u"sets"_s))
    , m_step(new ThreadedStep(this))
{
    m_words->setWordWrap(true);
    addContent(m_words);
    m_view->setModel(m_model);
    setGridRows(m_view);
    m_view->setAccessibleName(u"Backups on the drive"_s);
    m_view->horizontalHeader()->setStretchLastSection(false);
    m_view->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_view->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    addContent(new WholeRows(m_view, nullptr, this), 1);
    setFocusProxy(m_view);
    connect(&desk.places, &PlacesPane::chosenChanged, this, &RestoreView::look);
    keepSelection(m_view);
    connect(m_view->selectionModel(), &QItemSelectionModel::currentChanged, &desk.commands,
            &Commands::refresh);
    titleLine().setTitle(u"Backups"_s);
}

RestoreView::~RestoreView() = default;

/// Its parts follow by themselves.
void RestoreView::refresh() {}

std::optional<BackupSet> RestoreView::chosen() const
{
    const QModelIndex current = m_view->currentIndex();
    return current.isValid() ? std::optional(m_model->row(current.row())) : std::nullopt;
}

QString RestoreView::whyNoSet() const
{
    if (!m_desk.places.chosen())
        return BackupWindowLines::noPlace();
    return chosen() ? QString() : BackupWindowLines::noSetThere();
}

void RestoreView::look()
{
    const std::optional<BackupPlaceRow> place = m_desk.places.chosen();
    if (!place) {
        take({});
        return;
    }
    if (m_step->isRunning()) {
        m_isAgain = true;
        return;
    }
    titleLine().setTitle(u"Backups on %1"_s.arg(place->drive.name));
    auto sets = std::make_shared<QList<BackupSet>>();
    m_step->start(
        [sets, drive = place->drive.folder, household = m_desk.program.folder] {
            *sets = SetList::on(drive, DiskRecords::readSet(household.path()));
        },
        [this, sets] {
            take({sets->begin(), sets->end()});
            if (std::exchange(m_isAgain, false))
                look();
        });
}

void RestoreView::take(std::vector<BackupSet> sets)
{
    if (sets != m_model->rows()) {
        m_model->setRows(std::move(sets));
        if (m_model->rowCount() > 0)
            m_view->setCurrentIndex(m_model->index(0, 0));
    }
    m_words->setText(m_model->rowCount() > 0 ? QString() : whyNoSet());
    m_words->setVisible(!m_words->text().isEmpty());
    m_desk.commands.refresh();
}
