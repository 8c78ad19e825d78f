// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/window/checkuppanel.h"

#include "keeper/window/windowlines.h"
#include "shell/controls/rowsmodel.h"
#include "shell/controls/tablework.h"
#include "shell/look/theme.h"

#include <QTableView>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

enum Column { What, Title, Words };

constexpr int titleWidth = 220;
constexpr int inset = 32;

} // namespace

std::vector<TableColumn<CheckupPanel::Row>> CheckupPanel::columns()
{
    return {{u"What"_s, Qt::AlignLeft, [](const Row &row) { return row.heading; }},
            {u"Entry"_s, Qt::AlignLeft, [](const Row &row) { return row.line.title; }},
            {u"Why"_s, Qt::AlignLeft, [](const Row &row) { return row.line.words; }}};
}

CheckupPanel::CheckupPanel(QWidget *parent)
    : TaskPanel(u"checkupPanel"_s, u"Check-Up"_s, parent)
    , m_model(new RowsModel<Row>(columns(), this))
    , m_words(named(makeQuietLabel({}, this), u"checkupWords"_s))
    , m_view(named(new QTableView(this), u"checkupList"_s))
    , m_advice(named(makeQuietLabel({}, this), u"checkupAdvice"_s))
    , m_open(nullptr)
{
    m_view->setModel(m_model);
    auto *work = new TableWork(m_words, m_view, u"What should be looked after"_s, this);
    const QFontMetrics body(TypeScale::body());
    m_view->setColumnWidth(What, body.horizontalAdvance(u"Expiring within 90 days"_s) + inset);
    m_view->setColumnWidth(Title, TypeScale::wide(titleWidth));
    setFocusProxy(m_view);
    m_advice->setWordWrap(true);
    auto *both = new QWidget(this);
    auto *rows = new QVBoxLayout(both);
    rows->setContentsMargins({});
    rows->setSpacing(8);
    rows->addWidget(work, 1);
    rows->addWidget(m_advice);
    setWork(both);
    m_open = addButton(u"openChecked"_s, u"O&pen Entry"_s, ButtonKind::Main);
    setLeaveButton(u"checkupClose"_s, u"C&lose"_s);
    connect(m_open, &QPushButton::clicked, this, &CheckupPanel::choose);
    connect(m_view, &QTableView::doubleClicked, this, &CheckupPanel::choose);
    connect(work, &TableWork::entered, this, &CheckupPanel::choose);
    connect(m_view->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &CheckupPanel::followRow);
}

void CheckupPanel::show(const QList<KeeperSummary> &entries, QDate today, DateStyle style)
{
    std::vector<Row> rows;
    for (const KeeperCheckup::Section &section : KeeperCheckup::of(entries, today, style)) {
        for (const KeeperCheckup::Line &line : section.lines)
            rows.push_back({section.heading, section.advice, line});
    }
    const auto count = qsizetype(rows.size());
    m_model->setRows(std::move(rows));
    m_words->setText(KeeperWindowLines::countOfFindings(count));
    setUnavailable(m_open, count == 0 ? KeeperWindowLines::countOfFindings(0) : QString());
    m_view->selectRow(0);
    followRow();
}

/// What can be done about the chosen line.
void CheckupPanel::followRow()
{
    const int row = m_view->currentIndex().row();
    m_advice->setText(row < 0 ? QString() : m_model->row(row).advice);
}

void CheckupPanel::forget()
{
    m_model->setRows({});
}

void CheckupPanel::choose()
{
    if (const int row = m_view->currentIndex().row(); row >= 0)
        emit chosen(QByteArray(m_model->row(row).line.id));
}
