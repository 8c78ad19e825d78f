// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/window/recurrenceform.h"

#include "planner/model/lines.h"
#include "shell/controls/datebox.h"
#include "shell/controls/taborder.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QRadioButton>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int daysPerWeek = 7;
constexpr int lastDayOfMonth = 31;

/// The number that a box holds; 0 when it holds none.
int numberOf(const FieldBox *box)
{
    return box->text().trimmed().toInt();
}

} // namespace

RecurrenceForm::RecurrenceForm(const DateReading &reading, QWidget *parent)
    : QWidget(parent)
    , m_kinds(new QButtonGroup(this))
    , m_weekdays(new QButtonGroup(this))
    , m_dailyInterval(makeNumberBox(u"dailyInterval"_s, u"Days"_s))
    , m_weeklyInterval(makeNumberBox(u"weeklyInterval"_s, u"Weeks"_s))
    , m_dayOfMonth(makeNumberBox(u"dayOfMonth"_s, u"Day of the month"_s))
    , m_monthlyInterval(makeNumberBox(u"monthlyInterval"_s, u"Months"_s))
    , m_yearlyInterval(makeNumberBox(u"yearlyInterval"_s, u"Years"_s))
    , m_yearDay(named(new DateBox(reading, nullptr, this), u"yearDay"_s))
    , m_yearDayInterval(makeNumberBox(u"yearDayInterval"_s, u"Years from date to date"_s))
{
    m_yearDay->setFixedWidth(boxWidth(u"Nov-28-2026"_s, 128));
    m_yearDay->setAccessibleName(u"Date of the year"_s);
    connect(m_yearDay, &FieldBox::refused, this, &RecurrenceForm::said);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(3); // what the choices do below them is in sight on a screen of 768 rows
    addDaily(column);
    addWeekly(column);
    addMonthly(column);
    addYearly(column);
    column->addStretch(1);
    TabOrder::follow(*column);
    // A kind without a default: nothing is chosen until the user does.
    connect(m_kinds, &QButtonGroup::idClicked, this, &RecurrenceForm::kindChosen);
    for (QButtonGroup *group : {m_kinds, m_weekdays}) {
        TabOrder::findTheChosen(*group);
        connect(group, &QButtonGroup::idToggled, this, &RecurrenceForm::changed);
    }
    for (const FieldBox *box : findChildren<FieldBox *>())
        connect(box, &QLineEdit::textChanged, this, &RecurrenceForm::changed);
}

FieldBox *RecurrenceForm::makeNumberBox(const QString &name, const QString &accessibleName)
{
    auto *box = named(new FieldBox(this), name);
    box->setByteLimit(4);
    box->setFixedWidth(boxWidth(u"1000"_s, 56));
    box->setAccessibleName(accessibleName);
    connect(box, &FieldBox::refused, this, &RecurrenceForm::said);
    return box;
}

QWidget *RecurrenceForm::makeKind(Recurrence::Kind kind, const QString &caption)
{
    auto *button = named(new QRadioButton(caption, this), u"kind_"_s + QString::number(kind));
    m_kinds->addButton(button, kind);
    return button;
}

QLabel *RecurrenceForm::makeWords(const QString &words)
{
    return new QLabel(words, this);
}

void RecurrenceForm::addLine(QVBoxLayout *column, const QList<QWidget *> &parts)
{
    auto *line = new QHBoxLayout;
    line->setSpacing(8);
    for (QWidget *part : parts)
        line->addWidget(part);
    line->addStretch(1);
    column->addLayout(line);
}

void RecurrenceForm::addDaily(QVBoxLayout *column)
{
    column->addWidget(makeHeading(u"Daily Recurrence"_s, this));
    addLine(column, {makeKind(Recurrence::Daily, u"Show every"_s), m_dailyInterval, makeWords(u"day(s)"_s)});
    addLine(column, {makeKind(Recurrence::Weekdays, u"Weekdays Only (Monday - Friday)"_s)});
}

void RecurrenceForm::addWeekly(QVBoxLayout *column)
{
    column->addWidget(makeHeading(u"Weekly Recurrence"_s, this));
    addLine(column, {makeKind(Recurrence::Weekly, u"Show every:"_s), m_weeklyInterval,
                     makeWords(u"week(s) on the following day:"_s)});
    auto *days = new QGridLayout;
    days->setContentsMargins(26, 0, 0, 0);
    days->setHorizontalSpacing(12);
    days->setVerticalSpacing(0);
    days->setColumnStretch(4, 1);
    for (int i = 0; i < daysPerWeek; ++i) {
        const int day = i == 0 ? Qt::Sunday : i;
        auto *button =
            named(new QRadioButton(QLocale::c().dayName(day), this), u"weekday_"_s + QString::number(i));
        m_weekdays->addButton(button, day);
        days->addWidget(button, i / 4, i % 4);
    }
    column->addLayout(days);
}

void RecurrenceForm::addMonthly(QVBoxLayout *column)
{
    column->addWidget(makeHeading(u"Monthly Recurrence"_s, this));
    addLine(column, {makeKind(Recurrence::Monthly, u"Show on day:"_s), m_dayOfMonth,
                     makeWords(u"of every:"_s), m_monthlyInterval, makeWords(u"month(s)"_s)});
}

void RecurrenceForm::addYearly(QVBoxLayout *column)
{
    column->addWidget(makeHeading(u"Yearly Recurrence"_s, this));
    addLine(column,
            {makeKind(Recurrence::Yearly, u"Show every:"_s), m_yearlyInterval, makeWords(u"year(s)"_s)});
    addLine(column, {makeKind(Recurrence::YearlyOnDate, u"On this date:"_s), m_yearDay,
                     makeWords(u" Show every:"_s), m_yearDayInterval, makeWords(u"year(s)"_s)});
}

void RecurrenceForm::reset(QDate date)
{
    m_kinds->setExclusive(false);
    for (QAbstractButton *button : m_kinds->buttons())
        button->setChecked(false);
    m_kinds->setExclusive(true);
    for (FieldBox *box :
         {m_dailyInterval, m_weeklyInterval, m_monthlyInterval, m_yearlyInterval, m_yearDayInterval})
        box->setText(u"1"_s);
    m_weekdays->button(date.dayOfWeek())->setChecked(true);
    m_dayOfMonth->setText(QString::number(date.day()));
    m_yearDay->setDate(date);
}

void RecurrenceForm::propose(const Recurrence &recurrence)
{
    m_kinds->button(recurrence.kind)->setChecked(true);
    m_weekdays->button(recurrence.weekday)->setChecked(true);
    if (FieldBox *interval = intervalBox(recurrence.kind))
        interval->setText(QString::number(recurrence.interval));
}

void RecurrenceForm::focusKind()
{
    QAbstractButton *chosen = m_kinds->checkedButton();
    (chosen ? chosen : m_kinds->button(Recurrence::Daily))->setFocus();
}

std::optional<Recurrence::Kind> RecurrenceForm::kind() const
{
    const int id = m_kinds->checkedId();
    return id < 0 ? std::nullopt : std::optional(Recurrence::Kind(id));
}

FieldBox *RecurrenceForm::intervalBox(Recurrence::Kind kind) const
{
    switch (kind) {
    case Recurrence::Daily:
        return m_dailyInterval;
    case Recurrence::Weekly:
        return m_weeklyInterval;
    case Recurrence::Monthly:
        return m_monthlyInterval;
    case Recurrence::Yearly:
        return m_yearlyInterval;
    case Recurrence::YearlyOnDate:
        return m_yearDayInterval;
    case Recurrence::Weekdays:
        break;
    }
    return nullptr;
}

std::optional<QString> RecurrenceForm::read(Recurrence &recurrence) const
{
    recurrence.kind = kind().value_or(Recurrence::Daily);
    recurrence.interval = 1;
    const FieldBox *interval = kind() ? intervalBox(*kind()) : nullptr;
    if (!interval)
        return {};
    if (kind() == Recurrence::Weekly)
        recurrence.weekday = Qt::DayOfWeek(m_weekdays->checkedId());
    if (kind() == Recurrence::Monthly) {
        recurrence.dayOfMonth = numberOf(m_dayOfMonth);
        if (recurrence.dayOfMonth < 1 || recurrence.dayOfMonth > lastDayOfMonth)
            return PlannerLines::noDayOfMonth();
    }
    if (kind() == Recurrence::YearlyOnDate) {
        recurrence.yearDay = m_yearDay->date().value_or(QDate());
        if (!recurrence.yearDay.isValid())
            return PlannerLines::noYearDay();
    }
    recurrence.interval = numberOf(interval);
    return recurrence.interval < 1 ? std::optional(PlannerLines::noInterval()) : std::nullopt;
}
