// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/window/searchpanel.h"

#include "planner/model/lines.h"
#include "shell/controls/busycursor.h"
#include "shell/controls/rowsmodel.h"
#include "shell/controls/tablework.h"
#include "shell/core/dates.h"
#include "shell/look/theme.h"

#include <QTableView>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

enum Column { Date, Time };

/// What the rows keep free at the edges of a column.
constexpr int inset = 8;

std::vector<TableColumn<PlannerHit>> hitColumns(DateStyle style)
{
    return {{u"Date"_s, Qt::AlignLeft,
             [style](const PlannerHit &hit) { return Dates::statusText(hit.date, style); }},
            {u"Time"_s, Qt::AlignRight, &PlannerHit::time},
            {u"Appointment or activity"_s, Qt::AlignLeft, &PlannerHit::text}};
}

} // namespace

SearchPanel::SearchPanel(const PlannerFiles &files, DateStyle style, QWidget *parent)
    : TaskPanel(u"searchPanel"_s, {}, parent)
    , m_files(files)
    , m_model(new RowsModel<PlannerHit>(hitColumns(style), this))
    , m_count(makeQuietLabel({}, this))
    , m_view(named(new QTableView(this), u"searchHits"_s))
{
    m_count->setObjectName(u"searchCount"_s);
    m_view->setModel(m_model);
    auto *work = new TableWork(m_count, m_view, u"Appointments found"_s, this);
    m_view->setColumnWidth(Date, QFontMetrics(TypeScale::body()).horizontalAdvance(u"Wed, 28 Nov 2026"_s) +
                                     4 * inset);
    m_view->setColumnWidth(Time, 104);
    setFocusProxy(m_view);
    setWork(work);
    setWords(u"Click an appointment, or press Enter, to open its day"_s);
    setLeaveButton(u"search_dayView"_s, u"&Day View"_s, ButtonKind::Main);
    connect(m_view, &QTableView::clicked, this, [this](const QModelIndex &index) { open(index.row()); });
    connect(work, &TableWork::entered, this, [this] { open(m_view->currentIndex().row()); });
}

bool SearchPanel::search(const QString &text, QDate today)
{
    const BusyCursor busy;
    PlannerSearch search(m_files, text);
    while (search.step()) {}
    std::vector<PlannerHit> hits = search.hits();
    if (hits.empty())
        return false;
    const auto nearest =
        std::find_if(hits.begin(), hits.end(), [today](const PlannerHit &hit) { return hit.date >= today; });
    const int row = nearest == hits.end() ? int(hits.size()) - 1 : int(nearest - hits.begin());
    setTitle(u"Appointments with \u201c"_s + text + u'\u201d');
    m_count->setText(PlannerLines::found(hits.size(), hits.size() >= PlannerSearch::mostHits));
    m_model->setRows(std::move(hits));
    m_view->selectRow(row);
    m_view->scrollTo(m_model->index(row, 0), QAbstractItemView::PositionAtCenter);
    return true;
}

void SearchPanel::open(int row)
{
    if (row >= 0 && row < m_model->rowCount())
        emit hitOpened(m_model->row(row).date, m_model->row(row).row);
}
