#include "planner/window/searchpanel.h"

#include "planner/model/lines.h"
#include "planner/window/viewfoot.h"
#include "shell/controls/controls.h"
#include "shell/controls/listrowdelegate.h"
#include "shell/core/dates.h"
#include "shell/look/theme.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

/// What the rows keep free at the edges of a column.
constexpr int inset = 8;

} // namespace

HitModel::HitModel(DateStyle style, QObject *parent)
    : QAbstractTableModel(parent)
    , m_style(style)
{}

void HitModel::setHits(std::vector<PlannerHit> hits)
{
    beginResetModel();
    m_hits = std::move(hits);
    endResetModel();
}

int HitModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_hits.size());
}

int HitModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(ColumnCount);
}

QVariant HitModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(Qt::AlignVCenter |
                                   (index.column() == Time ? Qt::AlignRight : Qt::AlignLeft));
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
        return {};
    const PlannerHit &found = hit(index.row());
    switch (index.column()) {
    case Date:
        return Dates::statusText(found.date, m_style);
    case Time:
        return found.time;
    default:
        return found.text;
    }
}

QVariant HitModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(Qt::AlignVCenter | (section == Time ? Qt::AlignRight : Qt::AlignLeft));
    if (role != Qt::DisplayRole)
        return {};
    return section == Date ? u"Date"_s : section == Time ? u"Time"_s : u"Appointment or activity"_s;
}

SearchPanel::SearchPanel(DateStyle style, QWidget *parent)
    : QWidget(parent)
    , m_model(new HitModel(style, this))
    , m_title(named(new ElidedLabel(this), u"searchTitle"_s))
    , m_count(makeQuietLabel({}, this))
    , m_view(named(new QTableView(this), u"searchHits"_s))
{
    m_title->setFont(TypeScale::windowTitle());
    m_count->setObjectName(u"searchCount"_s);
    m_view->setModel(m_model);
    m_view->setItemDelegate(new ListRowDelegate(m_view));
    m_view->setAccessibleName(u"Appointments found"_s);
    m_view->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_view->setSelectionMode(QAbstractItemView::SingleSelection);
    m_view->setAlternatingRowColors(true);
    m_view->setShowGrid(false);
    m_view->setTabKeyNavigation(false);
    m_view->setWordWrap(false);
    m_view->verticalHeader()->hide();
    // The head is as high as a row, so that the view can end with a whole one.
    m_view->verticalHeader()->setDefaultSectionSize(ListRowDelegate::rowHeight());
    m_view->horizontalHeader()->setFixedHeight(ListRowDelegate::rowHeight());
    m_view->horizontalHeader()->setStretchLastSection(true);
    m_view->horizontalHeader()->setSectionsClickable(false);
    m_view->horizontalHeader()->setHighlightSections(false);
    m_view->setColumnWidth(
        HitModel::Date, QFontMetrics(TypeScale::body()).horizontalAdvance(u"Wed, 28 Nov 2026"_s) + 4 * inset);
    m_view->setColumnWidth(HitModel::Time, 104);
    m_view->installEventFilter(this);
    setFocusProxy(m_view);
    auto *foot = new ViewFoot(u"search"_s, u"Click an appointment, or press Enter, to open its day"_s, this);
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(24, 16, 24, 18);
    rows->setSpacing(12);
    rows->addWidget(m_title);
    rows->addWidget(m_count);
    rows->addWidget(new WholeRows(m_view), 1);
    rows->addWidget(foot);
    connect(m_view, &QTableView::clicked, this, [this](const QModelIndex &index) { open(index.row()); });
    connect(foot, &ViewFoot::dayRequested, this, &SearchPanel::left);
}

void SearchPanel::show(const QString &text, std::vector<PlannerHit> hits, QDate today)
{
    const auto nearest =
        std::find_if(hits.begin(), hits.end(), [today](const PlannerHit &hit) { return hit.date >= today; });
    const int row = nearest == hits.end() ? int(hits.size()) - 1 : int(nearest - hits.begin());
    m_title->setText(u"Appointments with \u201c"_s + text + u'\u201d');
    m_count->setText(PlannerLines::found(hits.size(), hits.size() >= PlannerSearch::mostHits));
    m_model->setHits(std::move(hits));
    m_view->selectRow(row);
    m_view->scrollTo(m_model->index(row, 0), QAbstractItemView::PositionAtCenter);
}

void SearchPanel::open(int row)
{
    if (row >= 0 && row < m_model->rowCount())
        emit hitOpened(m_model->hit(row).date, m_model->hit(row).row);
}

bool SearchPanel::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_view && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            open(m_view->currentIndex().row());
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}
