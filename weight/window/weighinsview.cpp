// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/window/weighinsview.h"

#include "shell/charts/linechartview.h"
#include "shell/controls/buttonrow.h"
#include "shell/controls/celldelegate.h"
#include "shell/controls/controls.h"
#include "shell/controls/datebox.h"
#include "shell/controls/datepicker.h"
#include "shell/controls/figurestrip.h"
#include "shell/controls/linkbutton.h"
#include "shell/controls/listrowdelegate.h"
#include "shell/controls/titleline.h"
#include "shell/core/dates.h"
#include "shell/frame/functionwindow.h"
#include "shell/look/theme.h"
#include "shell/program/program.h"
#include "weight/model/messages.h"
#include "weight/model/weightchart.h"
#include "weight/model/weightcolumns.h"
#include "weight/model/weightpaperlines.h"
#include "weight/window/datecheck.h"
#include "weight/window/openperson.h"
#include "weight/window/standing.h"
#include "weight/window/weighinentry.h"
#include "weight/window/weighinmodel.h"
#include "weight/window/weighintable.h"
#include "weight/window/windowlines.h"

#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int reachedSign = 24;
/// From this width on the chart has room beside the table.
constexpr int chartFrom = 960;
} // namespace

WeighInsView::WeighInsView(const WeightDesk &desk)
    : PersonView(u"weighIns"_s, desk)
    , m_picker(new DatePicker(desk.program.clock, desk.program.settings, &desk.window, u"MonthView1"_s))
    , m_model(new WeighInModel(desk.person, desk.dateCheck, this))
    , m_entry(new WeighInEntry(desk, m_picker, this))
    , m_today(titleLine().addWords(u"todaysDate"_s))
    , m_reached(makeReached())
    , m_figures(new FigureStrip(u"weightFigures"_s, this))
    , m_uncountedWords(makeQuietLabel({}, this))
    , m_uncounted(makeUncounted())
    , m_table(new WeighInTable(m_model, this))
    , m_rows(new WholeRows(m_table, nullptr, this))
    , m_empty(named(makeQuietLabel(TrackerLines::noneYet(), this), u"noWeighIns"_s))
    , m_chart(new LineChartView(u"weighInChart"_s, this))
    , m_besides(new QHBoxLayout)
{
    auto *below = new QWidget(this);
    below->setLayout(m_besides);
    m_besides->setContentsMargins({});
    m_besides->setSpacing(16);
    m_besides->addWidget(m_chart, 4);
    m_besides->addWidget(makeTable(), 5);
    addContent(m_reached);
    addContent(m_figures);
    addContent(m_entry);
    addContent(m_uncounted);
    addContent(below, 1);
    setFocusProxy(m_entry);
    connectParts();
}

QWidget *WeighInsView::makeTable()
{
    m_table->cells().takeDates(desk().dateCheck.reading(), m_picker);
    auto *content = new QWidget(this);
    auto *rows = new QVBoxLayout(content);
    rows->setContentsMargins({});
    rows->addWidget(m_empty);
    rows->addWidget(m_rows, 1);
    rows->addStretch(0);
    return content;
}

void WeighInsView::connectParts()
{
    connect(m_entry, &WeighInEntry::entered, this, &WeighInsView::enter);
    connect(m_entry, &WeighInEntry::said, this, &WeighInsView::said);
    connect(m_entry, &WeighInEntry::noticed, this, &WeighInsView::noticed);
    connect(m_model, &WeighInModel::noticed, this, &WeighInsView::noticeAt);
    connect(m_model, &QAbstractItemModel::modelReset, this, &WeighInsView::rowChosen);
    connect(m_table, &CellGrid::currentMoved, this, &WeighInsView::rowChosen);
    connect(m_table, &CellGrid::said, this, &WeighInsView::said);
    connect(m_table, &CellGrid::refused, this, [this] {
        const QString why = person().whyLocked();
        emit said(why.isEmpty() ? TrackerLines::isComputed() : why);
    });
    connect(m_table, &WeighInTable::sortWanted, this, [this] {
        if (person().whyLocked().isEmpty())
            sortRows();
    });
}

/// The given words, with the sign of a goal that is reached.
QWidget *WeighInsView::makeReached()
{
    auto *line = named(new QWidget(this), u"goalReached"_s);
    auto *row = new QHBoxLayout(line);
    row->setContentsMargins({});
    row->setSpacing(8);
    auto *sign = new QLabel(line);
    sign->setPixmap(
        Icons::pixmap("goal-reached"_L1, Theme::of(this).scheme, reachedSign, devicePixelRatioF()));
    row->addWidget(sign);
    for (const QString &words : {u"CONGRATULATIONS!"_s, u"GOAL WEIGHT ACHIEVED!"_s}) {
        auto *label = new QLabel(words, line);
        label->setFont(TypeScale::cardTitle());
        label->setForegroundRole(ThemeRole::strong);
        row->addWidget(label);
    }
    row->addStretch(1);
    return line;
}

/// A quiet line for weigh-ins that a save would drop.
QWidget *WeighInsView::makeUncounted()
{
    auto *line = named(new QWidget(this), u"uncounted"_s);
    auto *row = new QHBoxLayout(line);
    row->setContentsMargins({});
    row->setSpacing(12);
    auto *take = new LinkButton(u"takeUncounted"_s, u"Take them in"_s, line);
    row->addWidget(m_uncountedWords);
    row->addWidget(take);
    row->addStretch(1);
    connect(take, &QAbstractButton::clicked, this, &WeighInsView::takeUncounted);
    return line;
}

void WeighInsView::setAddButton(QPushButton *button)
{
    m_entry->setButton(button);
}

QWidget &WeighInsView::table() const
{
    return *m_table;
}

/// The way at a glance; the graph with all that can be done to it is a view of its own.
void WeighInsView::resizeEvent(QResizeEvent *event)
{
    placeChart();
    PersonView::resizeEvent(event);
}

void WeighInsView::placeChart()
{
    m_chart->setVisible(width() >= TypeScale::wide(chartFrom) && !m_chart->chart().isEmpty());
}

/// A weight that was typed and not entered is not lost, where it is one.
void WeighInsView::finishEdit()
{
    m_table->finishEdit();
    const WeighIn typed = m_entry->typed();
    const bool isTaken = m_entry->isTyped() && person().whyLocked().isEmpty() &&
                         !desk().dateCheck.tableDate(typed.date, {}).refusal &&
                         !WeightEntry::weight(typed.weight, {}).refusal;
    if (isTaken)
        append(typed, Keep::Typed);
}

void WeighInsView::refresh()
{
    const bool isOther = m_shown != person().name();
    m_shown = person().name();
    m_model->refresh();
    m_entry->refresh();
    showFigures();
    titleLine().setTitle(person().isNew() ? TrackerLines::newPerson() : person().name());
    showToday();
    const qsizetype uncounted = person().uncounted().rowCount();
    m_uncounted->setVisible(uncounted > 0);
    m_uncountedWords->setText(TrackerLines::uncounted(uncounted));
    m_rows->setVisible(m_model->rowCount() > 0);
    m_empty->setVisible(m_model->rowCount() == 0 && person().fileTrouble().isEmpty());
    m_empty->setText(person().whyLocked().isEmpty() ? TrackerLines::noneYet()
                                                    : WeightPaperLines::noWeighIns());
    if (isOther) {
        m_entry->clear();
        m_table->refresh();
        showRow();
    }
}

void WeighInsView::showToday()
{
    m_today->setText(TrackerLines::todaysDate(
        Dates::numbers(desk().program.clock.today(), desk().program.state.dateStyle)));
}

void WeighInsView::beginDay()
{
    if (!m_entry->isTyped())
        m_entry->clear();
    showToday();
    showFigures();
}

void WeighInsView::showFigures()
{
    const WeightSheet &sheet = person().sheet();
    LineChart way = WeightChart::of(sheet, WeightGraph::Extent::Last50, desk().program.clock.today(),
                                    desk().program.state.dateStyle);
    way.title = TrackerLines::wayTitle(sheet.weighIns.rowCount());
    way.caption.clear();     // the graph's own view tells it
    way.across.name.clear(); // they stand below one another in the table
    m_chart->setChart(way);
    placeChart();
    m_figures->setFigures(Standing::figures(sheet, desk().program.clock.today()));
    m_reached->setVisible(WeightColumns::isGoalReached(sheet));
}

void WeighInsView::showRow(int row)
{
    m_table->showRow(row);
}

/// Two keys are enough: the weight, and Enter.
void WeighInsView::enter()
{
    if (!m_entry->isTyped()) {
        emit said(TrackerLines::weightFirst());
        return;
    }
    if (!append(m_entry->typed(), Keep::Saved))
        return;
    if (person().isNew())
        emit said(TrackerLines::addedToNew());
    else
        emit done(TrackerLines::added(m_model->titleOf(m_model->rowCount() - 1)));
}

void WeighInsView::addRow()
{
    if (!person().isOpen())
        emit noticed(WeightMessages::noneSelected());
    else if (append(m_entry->typed(), Keep::Saved) && !person().isNew()) {
        emit done(TrackerLines::added(m_model->titleOf(m_model->rowCount() - 1)));
        emit noticed(WeightMessages::rowAdded());
    }
}

/// False where the line was refused, with the focus where it can be typed anew, or the disk refused.
bool WeighInsView::append(const WeighIn &weighIn, Keep keep)
{
    if (const QString why = person().whyLocked(); !why.isEmpty()) {
        emit said(why);
        return false;
    }
    const WeightEntry date = desk().dateCheck.tableDate(weighIn.date, {});
    const WeightEntry weight = WeightEntry::weight(weighIn.weight, {});
    if (date.refusal) {
        emit noticed(*date.refusal);
        m_entry->typeDate();
        return false;
    }
    if (weight.refusal) {
        emit noticed(*weight.refusal);
        m_entry->typeWeight();
        return false;
    }
    if (keep == Keep::Saved && !person().settleUncounted())
        return false;
    const QString title = TrackerLines::rowAdded(TrackerLines::weighIn(weight.text, date.text));
    WeightSheet wanted = person().sheet();
    wanted.weighIns.append({date.text, weight.text});
    m_entry->clear();
    m_entry->typeWeight();
    const bool isKept = keep == Keep::Typed ? person().change(title, wanted) : store(title, wanted);
    showRow();
    return isKept;
}

/// Rows that come and go are written at once; the file of a new person is made by "Save New File".
bool WeighInsView::store(const QString &title, const WeightSheet &wanted)
{
    return person().isNew() ? person().change(title, wanted) : person().changeAndSave(title, wanted);
}

bool WeighInsView::isRowChosen() const
{
    return m_table->chosenRow() >= 0;
}

void WeighInsView::deleteRow()
{
    // Before the row is highlighted that is asked about: it may be another one then.
    if (!person().settleUncounted() ||
        desk().program.dialogs.ask(&desk().window, WeightMessages::deleteRow()) != Answer::Yes)
        return;
    const qsizetype row = m_table->chosenRow();
    const QString line = TrackerLines::rowDeleted(m_model->titleOf(row));
    WeightSheet wanted = person().sheet();
    wanted.weighIns.remove(row);
    if (!store(line, wanted) || person().isNew())
        return;
    emit done(line);
    emit noticed(WeightMessages::rowDeleted());
}

void WeighInsView::sortRows()
{
    WeightSheet wanted = person().sheet();
    const auto order = wanted.weighIns.order(WeightTable::Column::Date, Qt::AscendingOrder);
    const qsizetype chosen = m_table->chosenRow();
    wanted.weighIns.sort(WeightTable::Column::Date, Qt::AscendingOrder);
    if (wanted == person().sheet()) {
        emit said(TrackerLines::sortedAlready());
        return;
    }
    person().change(TrackerLines::sorted(), wanted);
    if (chosen >= 0) // the same weigh-in, in its new place
        m_table->showRow(int(std::ranges::find(order, chosen) - order.begin()));
    emit done(TrackerLines::sorted());
}

void WeighInsView::turnByWeight()
{
    m_table->turnByWeight();
}

void WeighInsView::takeUncounted()
{
    person().takeUncounted();
    showRow();
}

/// A refusal stands over the window; typing goes on in its cell behind that.
void WeighInsView::noticeAt(const Message &message, const QModelIndex &cell)
{
    emit noticed(message);
    QMetaObject::invokeMethod(
        this, [this, at = QPersistentModelIndex(cell)] { m_table->setCurrentIndex(at); },
        Qt::QueuedConnection);
}
