// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/window/spentpanel.h"

#include "budget/model/amount.h"
#include "budget/model/spentlines.h"
#include "budget/window/sheetmodel.h"
#include "budget/window/spentyear.h"
#include "shell/controls/buttonrow.h"
#include "shell/controls/datebox.h"
#include "shell/controls/datepicker.h"
#include "shell/controls/listrowdelegate.h"
#include "shell/controls/pastefilter.h"
#include "shell/controls/rowsmodel.h"
#include "shell/controls/titleline.h"
#include "shell/core/dates.h"
#include "shell/look/theme.h"
#include "shell/program/program.h"

#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

enum Column { Date, Amounts, Item, Note };

/// What the rows keep free at the edges of a column.
constexpr int inset = 8;
constexpr int noteLength = 400;
constexpr double most = 9999999.99;

} // namespace

SpentPanel::SpentPanel(const Program &program, SpentYear &year, QWidget *window)
    : TaskPanel(u"spentPanel"_s, {}, nullptr)
    , m_program(program)
    , m_year(year)
    , m_model(new RowsModel<Line>(
          {{u"Date"_s, Qt::AlignLeft,
            [&program](const Line &line) {
                return Dates::statusText(line.amount.date, program.state.dateStyle);
            }},
           {u"Amount"_s, Qt::AlignRight, [](const Line &line) { return centsText(line.amount.cents); }},
           {u"Item"_s, Qt::AlignLeft, [](const Line &line) { return line.amount.item; }},
           {u"Note"_s, Qt::AlignLeft, [](const Line &line) { return line.amount.note.text().simplified(); }}},
          this))
    , m_view(named(new QTableView(this), u"spentList"_s))
    , m_sum(titleLine().addWords(u"spentSum"_s))
    , m_empty(named(makeQuietLabel(SpentLines::noneYet(), this), u"spentEmpty"_s))
{
    m_view->setModel(m_model);
    setGridRows(m_view);
    m_view->setAccessibleName(u"Amounts spent"_s);
    const QFontMetrics body(TypeScale::body());
    m_view->setColumnWidth(Date, body.horizontalAdvance(u"Wed, 28 Nov 2026"_s) + 4 * inset);
    m_view->setColumnWidth(Amounts, body.horizontalAdvance(u"-99999.99"_s) + 4 * inset);
    m_view->setColumnWidth(Item, body.horizontalAdvance(u"Building work and more"_s) + 4 * inset);
    m_view->installEventFilter(this);
    auto *work = new QWidget(this);
    auto *rows = new QVBoxLayout(work);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(12);
    rows->addWidget(makeForm(program, window));
    rows->addWidget(m_empty);
    rows->addWidget(new WholeRows(m_view), 1);
    setWork(work);
    makeButtons();
    setFocusProxy(m_amount);
    connect(m_view->selectionModel(), &QItemSelectionModel::selectionChanged, this, &SpentPanel::fill);
    connect(&year, &SpentYear::changed, this, [this] {
        if (isVisible())
            refresh();
    });
}

QWidget *SpentPanel::makeForm(const Program &program, QWidget *window)
{
    auto *form = new QWidget(this);
    m_date = new DateBox({program.state.dateStyle, program.clock},
                         new DatePicker(program.clock, program.settings, window), form);
    m_date->setObjectName(u"spentDate"_s);
    m_date->setFixedWidth(140);
    m_amount = named(new QLineEdit(form), u"spentAmount"_s);
    m_amount->setAlignment(Qt::AlignRight);
    m_amount->setFixedWidth(120);
    m_items = named(new QComboBox(form), u"spentItem"_s);
    m_items->setFixedWidth(200);
    m_note = named(new QLineEdit(form), u"spentNote"_s);
    m_note->setMaxLength(noteLength);
    new PasteFilter(m_amount, Characters::All);
    new PasteFilter(m_note, Characters::All);
    auto *row = new QHBoxLayout(form);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(12);
    row->addLayout(labelled(u"Date"_s, m_date));
    row->addLayout(labelled(u"Amount"_s, m_amount));
    row->addLayout(labelled(u"Item"_s, m_items));
    row->addLayout(labelled(u"Note"_s, m_note), 1);
    for (QLineEdit *box : std::initializer_list<QLineEdit *>{m_date, m_amount, m_note})
        connect(box, &QLineEdit::returnPressed, this, &SpentPanel::take);
    return form;
}

void SpentPanel::makeButtons()
{
    m_delete = addButton(u"spentDelete"_s, u"&Delete"_s, ButtonKind::Plain, Side::Left);
    m_new = addButton(u"spentNew"_s, u"&New Amount"_s);
    m_take = addButton(u"spentTake"_s, u"&Add"_s, ButtonKind::Main);
    setLeaveButton(u"spentClose"_s, u"C&lose"_s);
    connect(m_delete, &QPushButton::clicked, this, &SpentPanel::remove);
    connect(m_new, &QPushButton::clicked, this, &SpentPanel::startNew);
    connect(m_take, &QPushButton::clicked, this, &SpentPanel::take);
}

void SpentPanel::open(int row, int month)
{
    const BudgetSheet &sheet = m_year.sheet().sheet();
    m_item = row < 0 ? QString() : sheet.rows[std::size_t(row)].item.trimmed();
    m_month = month;
    m_view->clearSelection();
    refresh();
    startNew();
}

void SpentPanel::choose(QDate date)
{
    for (int row = 0; row < m_model->rowCount(); ++row) {
        if (m_model->row(row).amount.date != date)
            continue;
        m_view->selectRow(row);
        m_view->scrollTo(m_model->index(row, 0));
        return;
    }
}

void SpentPanel::refresh()
{
    const BudgetSheet &sheet = m_year.sheet().sheet();
    const BudgetItems items(sheet);
    std::vector<Line> lines;
    qint64 sum = 0;
    const QList<SpentAmount> &amounts = m_year.spending().amounts;
    for (qsizetype at = 0; at < amounts.size(); ++at) {
        const SpentAmount &amount = amounts[at];
        const bool isOfItem = m_item.isEmpty() ? items.row(amount.item) < 0 : amount.item == m_item;
        if (!isOfItem || (m_month >= 0 && amount.date.month() != m_month + 1))
            continue;
        lines.push_back({at, amount});
        sum += amount.cents;
    }
    std::ranges::stable_sort(lines, {}, [](const Line &line) { return line.amount.date; });
    const qsizetype wasChosen = chosen();
    const int row = m_view->currentIndex().row();
    m_empty->setVisible(lines.empty());
    m_model->setRows(std::move(lines));
    m_view->setColumnHidden(Item, !m_item.isEmpty());
    setTitle(SpentLines::cell(m_item, m_month, m_year.year()));
    qint64 planned = 0;
    if (const int of = items.row(m_item); of >= 0) {
        for (int month = 0; month < int(BudgetSheet::monthCount); ++month)
            planned += m_month < 0 || m_month == month
                           ? centsOf(sheet.rows[std::size_t(of)].amounts[std::size_t(month)])
                           : 0;
    }
    m_sum->setText(SpentLines::ofPlan(sum, planned));
    if (wasChosen >= 0 && m_model->rowCount() > 0)
        m_view->selectRow(std::clamp(row, 0, m_model->rowCount() - 1));
    fill();
}

/// The boxes show what is chosen, to be changed there.
void SpentPanel::fill()
{
    const qsizetype at = chosen();
    const QString why = m_year.whyReadOnly();
    const QString whyNone = at < 0 ? SpentLines::noneChosen() : why;
    setUnavailable(m_delete, whyNone);
    setUnavailable(m_new, whyNone);
    setUnavailable(m_take, why);
    m_take->setText(at < 0 ? u"&Add"_s : u"Ch&ange"_s);
    buttonRow().rearrange();
    const SpentAmount none{{}, 0, m_item, {}};
    const SpentAmount &amount = at < 0 ? none : m_year.spending().amounts[at];
    m_items->clear();
    m_items->addItem(SpentLines::noRow(), QString());
    for (const BudgetSheet::Row &row : m_year.sheet().sheet().rows) {
        const QString item = row.item.trimmed();
        if (!item.isEmpty() && m_items->findData(item) < 0)
            m_items->addItem(item, item);
    }
    if (m_items->findData(amount.item) < 0)
        m_items->addItem(amount.item, amount.item);
    m_items->setCurrentIndex(m_items->findData(amount.item));
    if (at < 0)
        return;
    m_date->setDate(amount.date);
    m_amount->setText(centsText(amount.cents));
    m_note->setText(amount.note.text());
}

void SpentPanel::startNew()
{
    m_view->clearSelection();
    m_view->setCurrentIndex({});
    fill();
    const QDate today = m_program.clock.today();
    const int month = m_month < 0 ? (today.year() == m_year.year() ? today.month() : 1) : m_month + 1;
    m_date->setDate(spentDate(m_year.year(), month, today));
    m_amount->clear();
    m_note->clear();
    m_amount->setFocus();
}

std::optional<SpentAmount> SpentPanel::typed()
{
    const double amount = Amount::rounded(Amount::typed(m_amount->text()));
    if (amount == 0 || std::abs(amount) > most) {
        emit said(SpentLines::typeAnAmount());
        m_amount->setFocus();
        return {};
    }
    m_date->tidy();
    const std::optional<QDate> date = m_date->date();
    if (!date || date->year() != m_year.year()) {
        emit said(SpentLines::dateOfYear(m_year.year()));
        m_date->setFocus();
        return {};
    }
    return SpentAmount{*date, qint64(std::llround(amount * 100)), m_items->currentData().toString(),
                       m_note->text()};
}

void SpentPanel::take()
{
    const std::optional<SpentAmount> amount = typed();
    if (!amount || !m_year.whyReadOnly().isEmpty())
        return;
    Spending wanted = m_year.spending();
    const qsizetype at = chosen();
    if (at < 0)
        wanted.amounts.append(*amount);
    else
        wanted.amounts[at] = *amount;
    m_year.change(at < 0 ? SpentLines::added(amount->cents, amount->item, amount->date)
                         : SpentLines::changed(amount->item),
                  wanted);
    if (at < 0)
        startNew();
}

void SpentPanel::remove()
{
    const qsizetype at = chosen();
    if (at < 0 || !m_year.whyReadOnly().isEmpty())
        return;
    Spending wanted = m_year.spending();
    const SpentAmount gone = wanted.amounts.takeAt(at);
    m_year.change(SpentLines::deleted(gone.cents, gone.item), wanted);
    m_view->setFocus();
}

/// Where the chosen amount stands among all; -1 without one.
qsizetype SpentPanel::chosen() const
{
    const QModelIndexList rows = m_view->selectionModel()->selectedRows();
    const qsizetype at = rows.isEmpty() ? -1 : m_model->row(rows.first().row()).at;
    return at < m_year.spending().amounts.size() ? at : -1;
}

bool SpentPanel::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_view && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Delete) {
            remove();
            return true;
        }
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            m_amount->setFocus();
            m_amount->selectAll();
            return true;
        }
    }
    return TaskPanel::eventFilter(watched, event);
}
