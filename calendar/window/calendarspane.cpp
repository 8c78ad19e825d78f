// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/window/calendarspane.h"

#include "calendar/model/calendarsearch.h"
#include "calendar/window/monthpictures.h"
#include "calendar/window/opencalendars.h"
#include "calendar/window/windowlines.h"
#include "shell/controls/controls.h"
#include "shell/controls/listrowdelegate.h"
#include "shell/controls/searchbox.h"
#include "shell/controls/twolinedelegate.h"

#include <QListView>
#include <QScopedValueRollback>
#include <QStackedWidget>
#include <QStandardItemModel>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int leastWidth = 180;
constexpr int lineRole = TwoLineDelegate::furtherRole;
constexpr int fewestRows = 1;
constexpr int mostRows = 4;
constexpr int mostInLow = 2;
constexpr int lowBelow = 480;

QStandardItem *makeRow(const QString &title, const QString &words, const QVariant &key)
{
    auto *row = new QStandardItem(title);
    row->setEditable(false);
    row->setData(words, TwoLineDelegate::wordsRole);
    row->setData(key, TwoLineDelegate::keyRole);
    row->setData(QString(title + u", "_s + words), Qt::AccessibleTextRole);
    return row;
}

} // namespace

CalendarsPane::CalendarsPane(OpenCalendars &calendars, const SheetMaker &sheets, QWidget *parent)
    : QWidget(parent)
    , m_calendars(calendars)
    , m_search(new SearchBox(u"calendarSearch"_s, CalendarWindowLines::searchHint(),
                             u"Words of its lines and bars, in any order"_s, this))
    , m_stack(new QStackedWidget(this))
    , m_rows(new QStandardItemModel(this))
    , m_hitRows(new QStandardItemModel(this))
    , m_layout(new QVBoxLayout(this))
{
    setMinimumWidth(leastWidth);
    m_stack->addWidget(makeLists(sheets));
    m_stack->addWidget(makeHits());
    m_layout->setContentsMargins({});
    m_layout->setSpacing(8);
    m_layout->addWidget(m_search);
    m_layout->addWidget(m_stack, 1);
    m_search->setTarget(m_list);
    setFocusProxy(m_list);
    connect(m_search, &QLineEdit::textChanged, this, &CalendarsPane::search);
    connect(&calendars, &OpenCalendars::listChanged, this, &CalendarsPane::refresh);
    connect(&calendars, &OpenCalendars::shown, this, &CalendarsPane::follow);
    connect(&calendars, &OpenCalendars::changed, this, [this] {
        if (m_stack->currentIndex() == 1)
            search();
    });
}

QListView *CalendarsPane::makeRows(QStandardItemModel *rows, const QString &name, const QString &spoken)
{
    auto *view = named(new QListView(this), name);
    view->setModel(rows);
    view->setAccessibleName(spoken);
    setListRows(view);
    view->setItemDelegate(new TwoLineDelegate(view));
    view->setSelectionMode(QAbstractItemView::SingleSelection);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    return view;
}

QWidget *CalendarsPane::makeLists(const SheetMaker &sheets)
{
    auto *part = new QWidget(this);
    m_list = makeRows(m_rows, u"calendars"_s, u"Calendars"_s);
    m_count = named(makeQuietLabel({}, part), u"calendarCount"_s);
    m_months = new MonthPictures(m_calendars, sheets, part);
    auto *rows = new QVBoxLayout(part);
    rows->setContentsMargins({});
    rows->setSpacing(6);
    rows->addWidget(m_list);
    rows->addWidget(m_count);
    rows->addSpacing(4);
    rows->addWidget(m_months, 1);
    const auto choose = [this](const QModelIndex &row) {
        if (!m_isSetting && row.isValid())
            emit calendarChosen(row.data(TwoLineDelegate::keyRole).toInt());
    };
    connect(m_list->selectionModel(), &QItemSelectionModel::currentChanged, this, choose);
    connect(m_list, &QListView::activated, this, &CalendarsPane::entered);
    connect(m_months, &MonthPictures::chosen, this, &CalendarsPane::monthChosen);
    connect(m_months, &MonthPictures::entered, this, &CalendarsPane::entered);
    return part;
}

QWidget *CalendarsPane::makeHits()
{
    auto *part = new QWidget(this);
    m_hits = makeRows(m_hitRows, u"calendarHits"_s, u"Lines found"_s);
    m_hitCount = named(makeQuietLabel({}, part), u"calendarHitCount"_s);
    auto *rows = new QVBoxLayout(part);
    rows->setContentsMargins({});
    rows->setSpacing(6);
    rows->addWidget(new WholeRows(m_hits), 1);
    rows->addWidget(m_hitCount);
    const auto open = [this](const QModelIndex &row) {
        if (row.isValid())
            emit hitOpened(row.data(TwoLineDelegate::keyRole).toDate(), row.data(lineRole).toInt());
    };
    connect(m_hits, &QListView::clicked, this, open);
    connect(m_hits, &QListView::activated, this, open);
    connect(m_search, &QLineEdit::returnPressed, this, [this, open] {
        open(m_hits->currentIndex().isValid() ? m_hits->currentIndex() : m_hitRows->index(0, 0));
    });
    return part;
}

void CalendarsPane::refresh()
{
    const QScopedValueRollback<bool> setting(m_isSetting, true);
    m_rows->clear();
    for (const CalendarHead &head : m_calendars.heads()) {
        const QString words = head.from.isValid() ? CalendarWindowLines::monthsOf(head.from, head.months)
                                                  : CalendarWindowLines::withoutMonths(head);
        const QString title = head.title.trimmed().isEmpty() ? CalendarWindowLines::untitled() : head.title;
        m_rows->appendRow(makeRow(title, words, head.number));
    }
    m_count->setText(CalendarWindowLines::countOfCalendars(m_rows->rowCount()));
    shareHeight();
    follow();
}

/// In a low window the months need the room more than a fifth calendar does.
void CalendarsPane::shareHeight()
{
    const int most = height() < lowBelow ? mostInLow : mostRows;
    const int rows = std::clamp(m_rows->rowCount(), fewestRows, most);
    m_list->ensurePolished();
    QStyleOptionViewItem option;
    option.initFrom(m_list);
    const int rowHeight = m_list->itemDelegate()->sizeHint(option, m_rows->index(0, 0)).height();
    m_list->setFixedHeight(rows * rowHeight + 2 * m_list->frameWidth() + 6);
}

void CalendarsPane::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    shareHeight();
}

void CalendarsPane::follow()
{
    const QScopedValueRollback<bool> setting(m_isSetting, true);
    for (int row = 0; row < m_rows->rowCount(); ++row) {
        const QModelIndex index = m_rows->index(row, 0);
        if (index.data(TwoLineDelegate::keyRole).toInt() == m_calendars.number())
            m_list->setCurrentIndex(index);
    }
}

void CalendarsPane::setMonth(QDate month)
{
    m_months->setMonth(month);
}

void CalendarsPane::search()
{
    const QString words = m_search->text().trimmed();
    m_stack->setCurrentIndex(words.isEmpty() ? 0 : 1);
    m_search->setTarget(words.isEmpty() ? m_list : m_hits);
    m_hitRows->clear();
    if (words.isEmpty())
        return;
    for (const CalendarSearch::Hit &hit : CalendarSearch::find(m_calendars.calendar(), words)) {
        QStandardItem *row = makeRow(CalendarWindowLines::hitDate(hit.date), hit.text, hit.date);
        row->setData(hit.line, lineRole);
        m_hitRows->appendRow(row);
    }
    m_hitCount->setText(CalendarWindowLines::hits(m_hitRows->rowCount()));
    m_hits->setCurrentIndex(m_hitRows->index(0, 0));
}

void CalendarsPane::startSearch()
{
    m_search->startAgain();
}

void CalendarsPane::addButton(QPushButton *button)
{
    m_layout->addWidget(button);
}

QWidget &CalendarsPane::list() const
{
    return *m_list;
}
