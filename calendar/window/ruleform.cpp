// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/window/ruleform.h"

#include "calendar/model/daterulewords.h"
#include "calendar/window/rulelines.h"
#include "shell/controls/controls.h"
#include "shell/controls/datebox.h"
#include "shell/controls/datepicker.h"
#include "shell/controls/flowrow.h"
#include "shell/controls/pastefilter.h"
#include "shell/controls/taskpanel.h"
#include "shell/look/theme.h"
#include "shell/program/program.h"

#include <QComboBox>
#include <QIntValidator>
#include <QLocale>
#include <QSpinBox>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int gap = 12;
constexpr int lastOrdinal = 6; ///< "last"
constexpr int longestText = 200;
constexpr int leapYear = 2024;
constexpr int everyMonth = 12; ///< its place behind the months

/// What becomes of a day on a weekend, as far as it is offered by name.
struct Moving {
    QString caption;
    DateRule::Moving moving;
    QList<DateRule::Shift> shifts;
};

const QList<Moving> &movings()
{
    using Kind = DateRule::Moving;
    static const QList<Moving> all{
        {u"It stays as it is"_s, Kind::None, {}},
        {u"The next weekday is off too"_s, Kind::Next, {}},
        {u"Friday or Monday is off too"_s, Kind::Observed, {{Qt::Saturday, -1}, {Qt::Sunday, 1}}},
        {u"Monday after Sunday is off too"_s, Kind::Observed, {{Qt::Sunday, 1}}},
        {u"Saturday instead of Sunday"_s, Kind::Moved, {{Qt::Sunday, -1}}},
        {u"Monday instead of Sunday"_s, Kind::Moved, {{Qt::Sunday, 1}}},
        {u"Monday instead of a weekend"_s, Kind::Moved, {{Qt::Saturday, 2}, {Qt::Sunday, 1}}},
    };
    return all;
}

int daysIn(int month)
{
    return QDate(leapYear, std::max(month, 1), 1).daysInMonth();
}

/// The red that can be read on a panel of that colour; none where no red can, and its ink is what is left.
QColor redOn(const QColor &panel)
{
    constexpr double readable = 4.5;
    constexpr int darkest = 220;
    for (const Theme *theme : {&Theme::light(), &Theme::dark()}) {
        for (int by = 100; by <= darkest; by += 20) {
            const QColor red = theme->negative.darker(by);
            if (contrast(red, panel) >= readable)
                return red;
        }
    }
    return {};
}

/// The colour behind a part of a panel; its own is black where it lets that of the panel through.
QColor groundOf(const QWidget *part)
{
    const QWidget *panel = part;
    while (panel->parentWidget() && !qobject_cast<const TaskPanel *>(panel))
        panel = panel->parentWidget();
    return panel->palette().color(QPalette::Window);
}

QComboBox *makeBox(const QString &name, int width, QWidget *parent)
{
    auto *box = named(new QComboBox(parent), name);
    box->setFixedWidth(TypeScale::wide(width));
    box->setMaxVisibleItems(12);
    return box;
}

QSpinBox *makeNumber(const QString &name, int least, int most, int width, QWidget *parent)
{
    auto *box = named(new QSpinBox(parent), name);
    box->setRange(least, most);
    box->setFixedWidth(TypeScale::wide(width));
    return box;
}

} // namespace

RuleForm::RuleForm(const Program &program, const QString &name, QWidget *window, QWidget *parent)
    : QWidget(parent)
    , m_program(program)
    , m_way(makeBox(name + u"Way"_s, 232, this))
    , m_interval(makeNumber(name + u"Interval"_s, 1, DateRule::mostInterval, 110, this))
    , m_ordinal(makeBox(name + u"Ordinal"_s, 96, this))
    , m_weekday(makeBox(name + u"Weekday"_s, 124, this))
    , m_month(makeBox(name + u"Month"_s, 124, this))
    , m_day(makeNumber(name + u"Day"_s, 1, 31, 72, this))
    , m_distance(
          makeNumber(name + u"Distance"_s, -DateRule::mostFromEaster, DateRule::mostFromEaster, 96, this))
    , m_start(nullptr)
    , m_firstYear(named(new QLineEdit(this), name + u"FirstYear"_s))
    , m_lastYear(named(new QLineEdit(this), name + u"LastYear"_s))
    , m_moving(makeBox(name + u"Moving"_s, 250, this))
    , m_text(named(new QLineEdit(this), name + u"Rule"_s))
    , m_words(named(makeQuietLabel({}, this), name + u"Fault"_s))
{
    fillChoices();
    auto *picker = new DatePicker(program.clock, program.settings, window, name + u"Calendar"_s);
    m_start = named(new DateBox({program.state.dateStyle, program.clock}, picker, this), name + u"Start"_s);
    m_start->setFixedWidth(boxWidth(u"Nov-24-2026"_s, 130));
    m_words->setWordWrap(true);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(8);
    auto *parts = new FlowRow(gap);
    addTo(*parts, {{u"When"_s, m_way},
                   {u"Every"_s, m_interval},
                   {u"Which"_s, m_ordinal},
                   {u"Weekday"_s, m_weekday},
                   {u"Month"_s, m_month},
                   {u"Day"_s, m_day},
                   {u"Days"_s, m_distance},
                   {u"From"_s, m_start},
                   {u"On a weekend"_s, m_moving}});
    column->addLayout(parts);
    auto *years = new QHBoxLayout;
    years->setSpacing(gap);
    addTo(*years, {{u"From year"_s, m_firstYear}, {u"To year"_s, m_lastYear}});
    years->addLayout(labelled(u"Rule"_s, m_text, RuleLines::ruleHint()), 1);
    column->addLayout(years);
    column->addWidget(m_words);
    QWidget *before = m_way;
    for (QWidget *box :
         std::initializer_list<QWidget *>{m_interval, m_ordinal, m_weekday, m_month, m_day, m_distance,
                                          m_start, m_moving, m_firstYear, m_lastYear, m_text})
        setTabOrder(std::exchange(before, box), box);
    listen();
    setRule(m_rule.text());
}

void RuleForm::fillChoices()
{
    m_way->addItems({u"Every so many weeks"_s, u"Every so many days"_s, u"A date"_s,
                     u"A weekday of a month"_s, u"A weekday before a date"_s, u"A weekday from a date on"_s,
                     u"Days from Easter"_s, u"Days from Orthodox Easter"_s});
    for (int ordinal = 1; ordinal < lastOrdinal; ++ordinal)
        m_ordinal->addItem(DateRuleWords::ordinal(ordinal));
    m_ordinal->addItem(u"last"_s);
    for (int day = Qt::Monday; day <= Qt::Sunday; ++day)
        m_weekday->addItem(QLocale::c().standaloneDayName(day));
    for (int month = 1; month <= 12; ++month)
        m_month->addItem(QLocale::c().standaloneMonthName(month));
    for (const Moving &moving : movings())
        m_moving->addItem(moving.caption);
    for (QLineEdit *box : {m_firstYear, m_lastYear}) {
        box->setValidator(new QIntValidator(1, 9999, box));
        box->setMaxLength(4);
        box->setFixedWidth(boxWidth(u"20277"_s, 84));
    }
    new PasteFilter(m_text, Characters::All);
    m_text->setMaxLength(longestText);
}

/// Boxes with their labels, each of which is shown and hidden with its box.
void RuleForm::addTo(QLayout &row, std::initializer_list<std::pair<QString, QWidget *>> boxes)
{
    for (const auto &[caption, box] : boxes) {
        box->setMinimumHeight(m_way->sizeHint().height());
        auto *part = new QWidget(this);
        QBoxLayout *both = labelled(caption, box);
        both->setContentsMargins({});
        part->setLayout(both);
        row.addWidget(part);
    }
}

void RuleForm::listen()
{
    connect(m_way, &QComboBox::activated, this, [this] {
        if (!m_start->date())
            m_start->setDate(m_program.clock.today());
        readChoices();
    });
    for (QComboBox *box : {m_ordinal, m_weekday, m_month, m_moving})
        connect(box, &QComboBox::activated, this, &RuleForm::readChoices);
    for (QSpinBox *box : {m_interval, m_day, m_distance})
        connect(box, &QSpinBox::valueChanged, this, &RuleForm::readChoices);
    connect(m_start, &DateBox::dateChanged, this, &RuleForm::readChoices);
    for (QLineEdit *box : {m_firstYear, m_lastYear})
        connect(box, &QLineEdit::textEdited, this, &RuleForm::readChoices);
    connect(m_text, &QLineEdit::textEdited, this, &RuleForm::readText);
}

bool RuleForm::goToOpenYear()
{
    QLineEdit *open = m_firstYear->text().toInt() != m_rule.firstYear ? m_firstYear
                      : m_lastYear->text().toInt() != m_rule.lastYear ? m_lastYear
                                                                      : nullptr;
    if (!m_isReadable || !open)
        return false;
    open->setFocus();
    open->selectAll();
    return true;
}

QWidget *RuleForm::firstInTab() const
{
    return m_way;
}

QWidget *RuleForm::lastInTab() const
{
    return m_text;
}

void RuleForm::setRule(const QString &text)
{
    const auto rule = DateRule::parse(text);
    m_isReadable = rule.has_value();
    m_rule = rule.value_or(DateRule());
    m_text->setText(text);
    showRule();
}

QString RuleForm::rule() const
{
    return m_isReadable ? m_rule.text() : m_text->text().simplified();
}

RuleForm::Way RuleForm::way() const
{
    return Way(m_way->currentIndex());
}

/// Puts the rule into the choices.
void RuleForm::showRule()
{
    static constexpr std::array<Way, 9> ways{OnDate,   WeekdayOfMonth, WeekdayOfMonth,     BeforeDate,
                                             FromDate, FromEaster,     FromOrthodoxEaster, Weeks,
                                             Days};
    m_isShowing = true;
    m_way->setCurrentIndex(ways[std::size_t(m_rule.kind)]);
    switch (m_rule.kind) {
    case DateRule::Nth:
        m_ordinal->setCurrentIndex(m_rule.number - 1);
        break;
    case DateRule::Last:
        m_ordinal->setCurrentIndex(lastOrdinal - 1);
        break;
    case DateRule::Easter:
    case DateRule::Orthodox:
        m_distance->setValue(m_rule.number);
        break;
    case DateRule::EveryDays:
    case DateRule::EveryWeeks:
        m_interval->setValue(m_rule.number);
        m_start->setDate(m_rule.start);
        break;
    case DateRule::OnDate:
    case DateRule::Before:
    case DateRule::From:
        break;
    }
    m_weekday->setCurrentIndex(m_rule.weekday - 1);
    offerMonths();
    m_month->setCurrentIndex(m_rule.month == 0 ? everyMonth : m_rule.month - 1);
    m_day->setMaximum(daysIn(m_rule.month));
    m_day->setValue(m_rule.day);
    const auto year = [](int number) { return number == 0 ? QString() : QString::number(number); };
    m_firstYear->setText(year(m_rule.firstYear));
    m_lastYear->setText(year(m_rule.lastYear));
    const auto same = [this](const Moving &moving) {
        return moving.moving == m_rule.moving && moving.shifts == m_rule.shifts;
    };
    const auto moving = std::ranges::find_if(movings(), same);
    const bool isNamed = moving != movings().end();
    if (m_moving->count() > movings().size())
        m_moving->removeItem(int(movings().size()));
    if (!isNamed)
        m_moving->addItem(RuleLines::asTheRuleSays());
    m_moving->setCurrentIndex(int(isNamed ? moving - movings().begin() : movings().size()));
    m_isShowing = false;
    showParts();
    showWords();
}

/// A weekday can be that of every month, a date cannot.
void RuleForm::offerMonths()
{
    const bool isOffered = way() == WeekdayOfMonth;
    if (isOffered && m_month->count() == everyMonth)
        m_month->addItem(u"every month"_s);
    else if (!isOffered && m_month->count() > everyMonth)
        m_month->removeItem(everyMonth);
}

void RuleForm::showParts()
{
    const Way now = way();
    const bool isEvery = now == Weeks || now == Days;
    const bool hasDate = now == OnDate || now == BeforeDate || now == FromDate;
    const std::pair<QWidget *, bool> parts[] = {
        {m_interval, isEvery},
        {m_start, isEvery},
        {m_ordinal, now == WeekdayOfMonth},
        {m_weekday, now == WeekdayOfMonth || now == BeforeDate || now == FromDate},
        {m_month, now == WeekdayOfMonth || hasDate},
        {m_day, hasDate},
        {m_distance, now == FromEaster || now == FromOrthodoxEaster}};
    for (const auto &[box, isShown] : parts)
        box->parentWidget()->setVisible(isShown);
    m_interval->setSuffix(now == Weeks ? u" weeks"_s : u" days"_s);
}

/// What a rule means stands in the list; here is only told that it is none.
void RuleForm::showWords()
{
    QPalette ink = palette();
    const QColor red = redOn(groundOf(this));
    m_words->setForegroundRole(red.isValid() ? QPalette::WindowText : ThemeRole::quiet);
    if (red.isValid())
        ink.setColor(QPalette::WindowText, red);
    m_words->setPalette(red.isValid() ? ink : QPalette());
    m_words->setText(RuleLines::noRule(m_text->text()));
    m_words->setVisible(!m_isReadable);
}

void RuleForm::readChoices()
{
    if (m_isShowing)
        return;
    static constexpr std::array<DateRule::Kind, 8> kinds{
        DateRule::EveryWeeks, DateRule::EveryDays, DateRule::OnDate, DateRule::Nth,
        DateRule::Before,     DateRule::From,      DateRule::Easter, DateRule::Orthodox};
    const Way now = way();
    m_rule.kind = kinds[std::size_t(now)];
    m_rule.weekday = Qt::DayOfWeek(m_weekday->currentIndex() + 1);
    m_rule.month = m_month->currentIndex() == everyMonth ? 0 : m_month->currentIndex() + 1;
    if (m_rule.month == 0 && now != WeekdayOfMonth)
        m_rule.month = 1;
    m_rule.day = std::min(m_day->value(), daysIn(m_rule.month));
    if (now == WeekdayOfMonth && m_ordinal->currentIndex() + 1 == lastOrdinal)
        m_rule.kind = DateRule::Last;
    m_rule.number = now == WeekdayOfMonth                            ? m_ordinal->currentIndex() + 1
                    : now == FromEaster || now == FromOrthodoxEaster ? m_distance->value()
                                                                     : m_interval->value();
    if (now == Weeks || now == Days)
        m_rule.start =
            m_start->date().value_or(m_rule.start.isValid() ? m_rule.start : m_program.clock.today());
    readYears();
    if (const auto at = qsizetype(m_moving->currentIndex()); at < movings().size()) {
        m_rule.moving = movings()[at].moving;
        m_rule.shifts = movings()[at].shifts;
    }
    m_isReadable = true;
    m_text->setText(m_rule.text());
    m_isShowing = true;
    offerMonths();
    m_month->setCurrentIndex(m_rule.month == 0 ? everyMonth : m_rule.month - 1);
    m_day->setMaximum(daysIn(m_rule.month));
    m_isShowing = false;
    showParts();
    showWords();
    emit changed();
}

/// A year that is still being typed does not count yet, nor does one that comes too early.
void RuleForm::readYears()
{
    const auto year = [](const QLineEdit &box) { return box.text().size() == 4 ? box.text().toInt() : 0; };
    m_rule.firstYear = year(*m_firstYear);
    m_rule.lastYear = year(*m_lastYear) < m_rule.firstYear ? 0 : year(*m_lastYear);
}

void RuleForm::readText()
{
    const auto rule = DateRule::parse(m_text->text());
    m_isReadable = rule.has_value();
    m_rule = rule.value_or(m_rule);
    showRule();
    emit changed();
}
