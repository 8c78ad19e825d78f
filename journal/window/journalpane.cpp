// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/window/journalpane.h"

#include "journal/model/journal.h"
#include "journal/window/hitlist.h"
#include "journal/window/journalfinder.h"
#include "journal/window/onthisday.h"
#include "journal/window/tagslist.h"
#include "journal/window/windowlines.h"
#include "shell/controls/controls.h"
#include "shell/controls/listrowdelegate.h"
#include "shell/controls/monthview.h"
#include "shell/controls/searchbox.h"
#include "shell/core/calendardates.h"
#include "shell/core/dates.h"
#include "shell/core/settingskeys.h"
#include "shell/frame/panelcolors.h"
#include "shell/look/theme.h"
#include "shell/program/program.h"

#include <QScopedValueRollback>
#include <QScrollArea>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int wideWidth = 304;
constexpr int narrowWidth = 264;
constexpr int wideFrom = 1200;
/// A month has room in it, with its dots below the numbers; less of it in a low window.
constexpr int calendarHeight = 252;
constexpr int leastCalendarHeight = 236;
constexpr int lowBelow = 580;
constexpr int leastWidth = 240;
constexpr int gap = 12; ///< between the cards
constexpr QMargins cardMargins(14, 10, 14, 12);

PanelFrame *makeCard(const QString &name, QWidget *content)
{
    auto *card = named(new PanelFrame, name);
    auto *rows = new QVBoxLayout(card);
    rows->setContentsMargins(cardMargins);
    rows->setSpacing(4);
    content->setParent(card);
    rows->addWidget(content);
    return card;
}

} // namespace

JournalPane::JournalPane(const Program &program, PanelColors &colors, Journal &journal, QWidget *parent)
    : QWidget(parent)
    , m_program(program)
    , m_journal(journal)
    , m_search(new SearchBox(u"journalSearch"_s, u"Search all years"_s,
                             u"Words in any order, \"a phrase\", tag:garden, year:2019"_s, this))
    , m_stack(new QStackedWidget(this))
    , m_finder(new JournalFinder(journal, this))
{
    setObjectName(u"journalPane"_s);
    setMinimumWidth(leastWidth);
    setFocusProxy(m_search);
    QScrollArea *scroll = makeScrolling(makePanels(program, colors), u"leftPaneScroll"_s, this);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_stack->addWidget(scroll);
    m_stack->addWidget(makeHits());
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins({});
    rows->setSpacing(12);
    rows->addWidget(m_search);
    rows->addWidget(m_stack, 1);
    m_search->setTarget(m_hits);
    connect(m_search, &SearchBox::textChanged, this, &JournalPane::search);
    connect(m_search, &SearchBox::returnPressed, this, [this] {
        if (const QDate date = m_hits->date(m_hits->currentIndex()); date.isValid())
            emit hitOpened(date);
    });
    connect(m_finder, &JournalFinder::found, this, &JournalPane::showHits);
    connect(m_hits, &HitList::opened, this, &JournalPane::hitOpened);
    connect(m_onThisDay, &OnThisDay::dateChosen, this, &JournalPane::dateChosen);
    connect(m_onThisDay, &OnThisDay::refreshed, this, &JournalPane::shareRoom);
    connect(m_tags, &TagsList::tagChosen, this, [this](const QString &tag) {
        const bool isPhrase = tag.contains(u' ');
        m_search->setText(isPhrase ? u"tag:\"%1\""_s.arg(tag) : u"tag:%1"_s.arg(tag));
        m_hits->setFocus();
    });
}

QWidget *JournalPane::makePanels(const Program &program, PanelColors &colors)
{
    auto *content = new QWidget;
    content->setMinimumWidth(1); // as wide as the pane
    m_calendar = named(new MonthView(content), u"MonthView1"_s);
    m_calendar->setAccessibleName(u"Calendar"_s);
    m_calendar->setFixedHeight(calendarHeight);
    m_calendar->setDateRange(CalendarDates::first(), CalendarDates::last());
    m_calendar->setFirstDayOfWeek(Dates::weekStart(program.settings.number(SettingsKeys::calendarWeekStart)));
    m_calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    m_calendar->setDayWords([this](QDate date) {
        return JournalWindowLines::dayWords(date, m_journal.dates(date.year()).contains(date),
                                            m_program.state.dateStyle);
    });
    m_onThisDay = new OnThisDay(program, m_journal, content);
    m_tags = new TagsList(content);
    auto *rows = new QVBoxLayout(content);
    rows->setContentsMargins({});
    rows->setSpacing(gap);
    PanelFrame *cards[] = {makeCard(u"calendarPanel"_s, m_calendar),
                           makeCard(u"onThisDayPanel"_s, m_onThisDay), makeCard(u"tagsPanel"_s, m_tags)};
    for (PanelFrame *card : cards) {
        rows->addWidget(card, card == cards[2] ? 1 : 0);
        colors.addPanel(card);
    }
    connect(m_calendar, &QCalendarWidget::selectionChanged, this, &JournalPane::announce);
    connect(m_calendar, &QCalendarWidget::clicked, this, &JournalPane::announce);
    connect(m_calendar, &QCalendarWidget::activated, this, &JournalPane::entered, Qt::QueuedConnection);
    connect(m_calendar, &QCalendarWidget::currentPageChanged, this, &JournalPane::showMarks);
    return content;
}

QWidget *JournalPane::makeHits()
{
    auto *part = new QWidget;
    m_hits = new HitList(part);
    m_count = named(makeQuietLabel({}, part), u"hitCount"_s);
    auto *rows = new QVBoxLayout(part);
    rows->setContentsMargins({});
    auto *list = new WholeRows(m_hits, m_count, part);
    list->setMinimumHeight(1); // the other parts of the pane say how high it is at least
    rows->addWidget(list, 1);
    return part;
}

int JournalPane::suitableWidth(QSize window)
{
    return TypeScale::wide(window.width() < TypeScale::wide(wideFrom) ? narrowWidth : wideWidth);
}

void JournalPane::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    m_calendar->setFixedHeight(height() < lowBelow ? leastCalendarHeight : calendarHeight);
    shareRoom();
}

/// Both lists show whole rows: two of the other years before the tags have more than one, and half of the
/// room at the most where the tags need the rest.
void JournalPane::shareRoom()
{
    if (m_onThisDay->count() == 0)
        return;
    const int calendar = m_calendar->height() + cardMargins.top() + cardMargins.bottom();
    const int heads = m_onThisDay->headHeight() + m_tags->headHeight();
    const int room =
        m_stack->height() - calendar - 2 * gap - heads - 2 * (cardMargins.top() + cardMargins.bottom());
    const int tags = m_tags->rowsHeight(m_tags->count());
    const int forTags = std::min(tags, std::max(m_tags->rowsHeight(2), room / 2));
    int rows = 1;
    while (rows < m_onThisDay->count()) {
        const int left = room - m_onThisDay->rowsHeight(rows + 1);
        if (left < (rows == 1 ? m_tags->rowsHeight(1) : forTags))
            break;
        ++rows;
    }
    m_onThisDay->showRows(rows);
}

void JournalPane::setDate(QDate date)
{
    const QScopedValueRollback<bool> setting(m_isSetting, true);
    m_announced = {};
    m_calendar->setToday(m_program.clock.today());
    m_calendar->setSelectedDate(date);
    m_calendar->setCurrentPage(date.year(), date.month());
    m_onThisDay->setDate(date);
    shareRoom();
    showMarks();
}

void JournalPane::refresh()
{
    m_onThisDay->refresh();
    m_tags->setTags(m_journal.tags());
    shareRoom();
    showMarks();
}

/// A page shows some days of the months around it.
void JournalPane::showMarks()
{
    QSet<QDate> marked;
    const QDate first(m_calendar->yearShown(), m_calendar->monthShown(), 1);
    const QDate from = first.addDays(-7);
    const QDate to = first.addDays(42);
    for (int year = from.year(); year <= to.year(); ++year) {
        for (const QDate date : m_journal.dates(year)) {
            if (date >= from && date <= to)
                marked.insert(date);
        }
    }
    m_calendar->setMarkedDays(marked);
}

/// A click tells twice, and the calendar must have done with it first.
void JournalPane::announce()
{
    if (m_isSetting)
        return;
    const bool isNew = !m_announced.isValid();
    m_announced = m_calendar->selectedDate();
    if (!isNew)
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (const QDate date = std::exchange(m_announced, {}); date.isValid())
                emit dateChosen(date);
        },
        Qt::QueuedConnection);
}

void JournalPane::startSearch()
{
    m_search->startAgain();
}

void JournalPane::clearSearch()
{
    m_search->clear();
}

QList<std::pair<qsizetype, qsizetype>> JournalPane::placesIn(const QString &text) const
{
    return JournalHit::places(text, m_finder->search().question());
}

void JournalPane::search(const QString &text)
{
    const bool isSearching = !text.trimmed().isEmpty();
    const bool wasSearching = m_stack->currentIndex() == 1;
    if (isSearching && !wasSearching)
        emit searchBegun();
    m_stack->setCurrentIndex(isSearching ? 1 : 0);
    m_finder->ask(text, m_calendar->selectedDate().year());
    if (!isSearching && wasSearching)
        emit searchLeft();
}

void JournalPane::showHits()
{
    JournalSearch &search = m_finder->search();
    m_hits->setHits(
        search.dates(), [&search](QDate date) { return search.hit(date); }, m_program.state.dateStyle);
    m_count->setText(m_finder->isLooking() ? JournalWindowLines::stillReading(search.count())
                                           : JournalWindowLines::hits(search.count()));
}

void JournalPane::forget()
{
    m_search->setText({}); // with what could be undone in it
    m_finder->forget();
    m_hits->setHits({}, {}, m_program.state.dateStyle);
    m_count->clear();
    m_onThisDay->forget();
    m_tags->setTags({});
    m_calendar->setMarkedDays({});
}
