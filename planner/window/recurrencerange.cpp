// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/window/recurrencerange.h"

#include "planner/model/lines.h"
#include "planner/window/plannercalendar.h"
#include "shell/controls/datebox.h"
#include "shell/controls/monthview.h"
#include "shell/controls/taborder.h"
#include "shell/program/program.h"

#include <QButtonGroup>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int usualWidth = 384;
constexpr int narrowWidth = 316;

int dateWidth()
{
    return boxWidth(u"Nov-28-2026"_s, 128);
}

} // namespace

RecurrenceRange::RecurrenceRange(const Program &program, QWidget *parent)
    : QWidget(parent)
    , m_clock(program.clock)
    , m_style(program.state.dateStyle)
    , m_beginning(setUp(new DateBox({program.state.dateStyle, program.clock}, nullptr, this),
                        u"beginningDate"_s, u"Beginning Date"_s, dateWidth()))
    , m_end(setUp(new DateBox({program.state.dateStyle, program.clock}, nullptr, this), u"endDate"_s,
                  u"End Date"_s, dateWidth()))
    , m_occurrences(
          setUp(new FieldBox(this), u"occurrences"_s, u"Number of occurrences"_s, boxWidth(u"10000"_s, 64)))
    , m_endBy(new QButtonGroup(this))
    , m_calendarSets(new QButtonGroup(this))
{
    m_occurrences->setByteLimit(5);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(4);
    QLabel *heading = makeHeading(u"Beginning and End Date For Recurrence"_s, this);
    heading->setWordWrap(true);
    column->addWidget(heading);
    auto *beginning = new QHBoxLayout;
    beginning->addWidget(new QLabel(u"  Beginning Date:"_s, this));
    beginning->addStretch(1);
    beginning->addWidget(m_beginning);
    column->addLayout(beginning);
    addEndLines(column);
    addCalendar(column);
    connectBoxes();
    for (QButtonGroup *group : {m_endBy, m_calendarSets})
        TabOrder::findTheChosen(*group);
    TabOrder::follow(*column);
}

int RecurrenceRange::leastWidth() const
{
    return std::max(narrowWidth, layout()->minimumSize().width());
}

void RecurrenceRange::fitWidth(int room)
{
    const int least = leastWidth();
    setFixedWidth(std::clamp(room, least, std::max(least, usualWidth)));
}

template <typename Box>
Box *RecurrenceRange::setUp(Box *box, const QString &name, const QString &accessibleName, int width)
{
    box->setObjectName(name);
    box->setAccessibleName(accessibleName);
    box->setFixedWidth(width);
    connect(box, &FieldBox::refused, this, &RecurrenceRange::said);
    return box;
}

void RecurrenceRange::addEndLines(QVBoxLayout *column)
{
    const auto addLine = [&](EndBy id, const QString &caption, FieldBox *box, const QString &words) {
        auto *button = named(new QRadioButton(caption, this), u"endBy_"_s + QString::number(id));
        m_endBy->addButton(button, id);
        auto *line = new QHBoxLayout;
        line->addWidget(button);
        line->addStretch(1);
        line->addWidget(box);
        if (!words.isEmpty())
            line->addWidget(new QLabel(words, this));
        column->addLayout(line);
    };
    addLine(EndDate, u"End Date:"_s, m_end, {});
    addLine(Occurrences, u"End Date after:"_s, m_occurrences, u"occurance(s)"_s);
    QLabel *note = makeQuietLabel(u"[Note: Recommend - To Keep Files Manageable -    Ending Dates should be "
                                  u"between 5 to 10 years.]"_s,
                                  this);
    note->setWordWrap(true);
    column->addWidget(note);
}

void RecurrenceRange::addCalendar(QVBoxLayout *column)
{
    column->addSpacing(4);
    column->addWidget(new QLabel(u"Use Calendar to change either date:"_s, this));
    auto *sets = new QHBoxLayout;
    sets->setSpacing(16);
    for (const auto &[id, caption] :
         {std::pair{Beginning, u"Beginning Date"_s}, std::pair{End, u"End Date"_s}}) {
        auto *button = named(new QRadioButton(caption, this), u"calendarSets_"_s + QString::number(id));
        m_calendarSets->addButton(button, id);
        sets->addWidget(button);
    }
    sets->addStretch(1);
    column->addLayout(sets);
    m_month = named(new MonthView(this), u"MonthView2"_s);
    m_month->setAccessibleName(u"Calendar for the beginning and the end date"_s);
    m_month->setFixedHeight(std::max(226, 8 * (fontMetrics().height() + 11))); // heading, names, six weeks
    column->addWidget(m_month);
    column->addStretch(1);
}

void RecurrenceRange::connectBoxes()
{
    connect(m_month, &QCalendarWidget::selectionChanged, this, &RecurrenceRange::calendarMoved);
    connect(m_month, &MonthView::edgeReached, this,
            [this] { emit said(PlannerLines::beyondDates(m_style)); });
    connect(m_calendarSets, &QButtonGroup::idClicked, this, &RecurrenceRange::showCalendarDate);
    for (const DateBox *box : {m_beginning, m_end})
        connect(box, &QLineEdit::editingFinished, this, &RecurrenceRange::showCalendarDate);
    for (const FieldBox *box :
         {static_cast<FieldBox *>(m_beginning), static_cast<FieldBox *>(m_end), m_occurrences})
        connect(box, &QLineEdit::textChanged, this, &RecurrenceRange::changed);
    connect(m_endBy, &QButtonGroup::idToggled, this, &RecurrenceRange::changed);
    // Typing into a box means that the recurrence ends by it.
    connect(m_end, &QLineEdit::textEdited, this, [this] { m_endBy->button(EndDate)->setChecked(true); });
    connect(m_occurrences, &QLineEdit::textEdited, this,
            [this] { m_endBy->button(Occurrences)->setChecked(true); });
}

void RecurrenceRange::reset(QDate date, const CalendarOptions &options)
{
    m_beginning->setDate(date);
    m_end->setDate(CalendarDates::within(date.addYears(1)));
    m_occurrences->setText(u"10"_s);
    m_endBy->button(EndDate)->setChecked(true);
    m_calendarSets->button(Beginning)->setChecked(true);
    applyOptions(*m_month, options, m_clock.today());
    showCalendarDate();
}

std::optional<QString> RecurrenceRange::read(Recurrence &recurrence) const
{
    const auto beginning = m_beginning->date();
    if (!beginning)
        return PlannerLines::noBeginning();
    if (!CalendarDates::has(*beginning))
        return PlannerLines::beyondDates(m_style);
    recurrence.beginning = *beginning;
    if (m_endBy->checkedId() == Occurrences) {
        recurrence.end.reset();
        recurrence.occurrences = m_occurrences->text().trimmed().toInt();
        return recurrence.occurrences < 1 ? std::optional(PlannerLines::noOccurrences()) : std::nullopt;
    }
    recurrence.end = m_end->date();
    if (!recurrence.end)
        return PlannerLines::noEnd();
    if (!CalendarDates::has(*recurrence.end))
        return PlannerLines::beyondDates(m_style);
    return *recurrence.end < *beginning ? std::optional(PlannerLines::endBeforeBeginning()) : std::nullopt;
}

void RecurrenceRange::showEnd(const Recurrence &recurrence)
{
    if (recurrence.end)
        m_end->setDate(*recurrence.end);
    else
        m_occurrences->setText(QString::number(recurrence.occurrences));
    showCalendarDate();
}

DateBox *RecurrenceRange::calendarBox() const
{
    return m_calendarSets->checkedId() == End ? m_end : m_beginning;
}

void RecurrenceRange::calendarMoved()
{
    if (m_isShowing)
        return;
    calendarBox()->setDate(m_month->selectedDate());
    if (calendarBox() == m_end)
        m_endBy->button(EndDate)->setChecked(true);
}

void RecurrenceRange::showCalendarDate()
{
    const QScopedValueRollback<bool> showing(m_isShowing, true);
    if (const auto date = calendarBox()->date())
        m_month->setSelectedDate(*date);
}
