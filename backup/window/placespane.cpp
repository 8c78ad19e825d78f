// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/window/placespane.h"

#include "backup/model/backuplines.h"
#include "backup/window/keptselection.h"
#include "shell/controls/controls.h"
#include "shell/controls/listrowdelegate.h"
#include "shell/controls/twolinedelegate.h"
#include "shell/core/threadedstep.h"

#include <QDir>
#include <QListView>
#include <QSettings>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <memory>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int lookMilliseconds = 3000;
constexpr int leastWidth = 180;
constexpr auto foldersKey = "Windows/Backup1/folders"_L1;
constexpr qsizetype mostFolders = 8;

QString words(const BackupPlaceRow &row, QDate today)
{
    QStringList parts{row.drive.isReadOnly ? u"write-protected"_s
                                           : BackupLines::size(row.drive.free) + u" free"_s};
    if (row.last)
        parts.append(u"last set "_s +
                     BackupLines::daysAgo(row.last->begun().toLocalTime().date().daysTo(today)));
    else if (row.disk > 0)
        parts.append(u"disk %1 of a set"_s.arg(row.disk));
    else if (row.isKnown)
        parts.append(u"no set yet"_s);
    return parts.join(u", "_s);
}

BackupPlaceRow lookedAt(const Drive &drive, bool isOther)
{
    BackupPlaceRow row{drive, SetList::last(drive.folder), 0, true, isOther};
    if (const QList<BackupSet> sets = SetList::on(drive.folder); !row.last && !sets.isEmpty())
        row.disk = sets.constFirst().disk.number;
    return row;
}

/// What is plugged in, then the chosen folders.
std::vector<BackupPlaceRow> rowsOf(const QList<Drive> &drives, const QStringList &others)
{
    std::vector<BackupPlaceRow> rows;
    for (const Drive &drive : drives)
        rows.push_back(lookedAt(drive, false));
    for (const QString &folder : others) {
        const bool isDrive = std::ranges::any_of(
            rows, [&folder](const BackupPlaceRow &row) { return row.drive.folder == folder; });
        if (!isDrive && QDir(folder).exists())
            rows.push_back(lookedAt(Drives::of(folder), true));
    }
    return rows;
}

} // namespace

PlacesModel::PlacesModel(QObject *parent)
    : QAbstractListModel(parent)
{}

void PlacesModel::setRows(std::vector<BackupPlaceRow> rows, QDate today)
{
    beginResetModel();
    m_rows = std::move(rows);
    m_today = today;
    endResetModel();
}

QModelIndex PlacesModel::indexOf(const QString &folder) const
{
    const auto found = std::ranges::find_if(
        m_rows, [&folder](const BackupPlaceRow &row) { return row.drive.folder == folder; });
    return found == m_rows.end() ? QModelIndex() : index(int(found - m_rows.begin()));
}

int PlacesModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

QVariant PlacesModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const BackupPlaceRow &row = m_rows[std::size_t(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return row.drive.name;
    case TwoLineDelegate::keyRole:
        return row.drive.folder;
    case TwoLineDelegate::wordsRole:
    case Qt::AccessibleDescriptionRole:
        return words(row, m_today);
    case Qt::ToolTipRole:
        return QDir::toNativeSeparators(row.drive.folder);
    default:
        return {};
    }
}

PlacesPane::PlacesPane(std::function<QDate()> today, std::function<QList<Drive>()> drives, QSettings &store,
                       QWidget *parent)
    : QWidget(parent)
    , m_today(std::move(today))
    , m_drives(std::move(drives))
    , m_store(store)
    , m_model(new PlacesModel(this))
    , m_view(named(new QListView(this), u"places"_s))
    , m_rows(new QVBoxLayout(this))
    , m_step(new ThreadedStep(this))
    , m_timer(new QTimer(this))
    , m_others(store.value(foldersKey).toStringList().mid(0, mostFolders))
{
    m_view->setModel(m_model);
    setListRows(m_view);
    m_view->setItemDelegate(new TwoLineDelegate(m_view));
    m_view->setSelectionMode(QAbstractItemView::SingleSelection);
    m_view->setAccessibleName(u"Drives and folders"_s);
    m_rows->setContentsMargins(0, 0, 0, 0);
    m_rows->setSpacing(12);
    auto *list = new QVBoxLayout;
    list->setSpacing(3);
    list->addWidget(makeFieldLabel(u"Drives and folders:"_s, m_view, this));
    list->addWidget(new WholeRows(m_view, nullptr, this), 1);
    m_rows->addLayout(list, 1);
    setMinimumWidth(leastWidth);
    setFocusProxy(m_view);
    m_timer->setInterval(lookMilliseconds);
    connect(m_timer, &QTimer::timeout, this, &PlacesPane::look);
    keepSelection(m_view);
    connect(m_view->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex &current) {
                if (!current.isValid())
                    return; // the rows are becoming others
                m_chosen = current.data(TwoLineDelegate::keyRole).toString();
                emit chosenChanged();
            });
}

PlacesPane::~PlacesPane() = default;

std::optional<BackupPlaceRow> PlacesPane::chosen() const
{
    const QModelIndex index = m_model->indexOf(m_chosen);
    return index.isValid() ? std::optional(m_model->rows()[std::size_t(index.row())]) : std::nullopt;
}

void PlacesPane::addFolder(const QString &folder)
{
    const QString path = QDir::cleanPath(folder);
    m_others.removeAll(path);
    m_others.append(path);
    m_others = m_others.last(std::min(m_others.size(), mostFolders));
    m_store.setValue(foldersKey, m_others);
    m_chosen = path;
    look();
}

void PlacesPane::prefer(const QString &name)
{
    m_preferred = name;
}

void PlacesPane::look()
{
    if (m_step->isRunning()) {
        m_isAgain = true;
        return;
    }
    auto found = std::make_shared<std::vector<BackupPlaceRow>>();
    m_step->start([found, drives = m_drives, others = m_others] { *found = rowsOf(drives(), others); },
                  [this, found] {
                      take(std::move(*found));
                      if (std::exchange(m_isAgain, false))
                          look();
                  });
}

void PlacesPane::take(std::vector<BackupPlaceRow> rows)
{
    const auto isSame = [this](const BackupPlaceRow &one, const BackupPlaceRow &other) {
        return one.drive.folder == other.drive.folder && one.drive.name == other.drive.name &&
               one.last == other.last && words(one, m_today()) == words(other, m_today());
    };
    // They are others, but for a few bytes.
    const bool areOthers = !std::ranges::equal(rows, m_model->rows(), isSame);
    if (areOthers)
        m_model->setRows(std::move(rows), m_today());
    const QString before = m_chosen;
    // A folder that was chosen meanwhile is still to be looked at.
    if (!m_isAgain && !m_model->indexOf(m_chosen).isValid())
        m_chosen = suitable();
    if (!areOthers && m_chosen == before)
        return;
    if (const QModelIndex index = m_model->indexOf(m_chosen); index.isValid()) {
        const QSignalBlocker still(m_view->selectionModel());
        m_view->setCurrentIndex(index);
        m_view->viewport()->update();
    }
    emit chosenChanged();
}

/// The drive of the last backup, or else the first that can be written to.
QString PlacesPane::suitable() const
{
    const std::vector<BackupPlaceRow> &rows = m_model->rows();
    const auto preferred = std::ranges::find_if(
        rows, [this](const BackupPlaceRow &row) { return row.drive.name == m_preferred; });
    const auto writable =
        std::ranges::find_if(rows, [](const BackupPlaceRow &row) { return !row.drive.isReadOnly; });
    const auto better = preferred == rows.end() ? writable : preferred;
    return better == rows.end() ? QString() : better->drive.folder;
}

void PlacesPane::addButton(QPushButton *button)
{
    m_rows->addWidget(button);
}

void PlacesPane::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    look();
    m_timer->start();
}

void PlacesPane::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    m_timer->stop();
}
