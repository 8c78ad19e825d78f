// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/window/calendarform.h"

#include "calendar/model/calendarpapers.h"
#include "calendar/model/newcalendar.h"
#include "shell/controls/controls.h"
#include "shell/controls/listrowdelegate.h"
#include "shell/controls/pastefilter.h"
#include "shell/controls/taborder.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFontDatabase>
#include <QListWidget>
#include <QLocale>
#include <QSpinBox>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int longestTitle = 60;
constexpr int longestPersons = 200;
constexpr int leastLetters = 5; ///< of a choice
constexpr int holidayRows = 5;
constexpr int gap = 12;
constexpr std::array<double, 8> points{8, 9, 10, 11, 12, 14, 16, 18};

QHBoxLayout *rowOf(std::initializer_list<QLayout *> parts)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(gap);
    for (QLayout *part : parts)
        row->addLayout(part);
    return row;
}

/// Chooses the item with `data`, which is added as `caption` where there is none.
void choose(QComboBox *box, const QVariant &data, const QString &caption)
{
    int index = box->findData(data);
    if (index < 0) {
        box->addItem(caption, data);
        index = box->count() - 1;
    }
    box->setCurrentIndex(index);
}

} // namespace

CalendarForm::CalendarForm(QWidget *parent)
    : QWidget(parent)
    , m_title(named(new QLineEdit(this), u"calendarTitle"_s))
    , m_month(named(new QComboBox(this), u"calendarMonth"_s))
    , m_year(named(new QSpinBox(this), u"calendarYear"_s))
    , m_months(named(new QSpinBox(this), u"calendarMonths"_s))
    , m_layout(named(new QComboBox(this), u"calendarLayout"_s))
    , m_style(named(new QComboBox(this), u"calendarStyle"_s))
    , m_paper(named(new QComboBox(this), u"calendarPaper"_s))
    , m_orientation(named(new QComboBox(this), u"calendarOrientation"_s))
    , m_font(named(new QComboBox(this), u"calendarFont"_s))
    , m_points(named(new QComboBox(this), u"calendarPoints"_s))
    , m_firstDay(named(new QComboBox(this), u"calendarWeekStart"_s))
    , m_weekNumbers(named(new QCheckBox(u"Wee&k numbers"_s, this), u"calendarWeekNumbers"_s))
    , m_smallMonths(named(new QCheckBox(u"Sma&ll neighbouring months"_s, this), u"calendarSmallMonths"_s))
    , m_neighbourLines(
          named(new QCheckBox(u"Entries of neigh&bouring days"_s, this), u"calendarNeighbours"_s))
    , m_holidays(named(new QListWidget(this), u"calendarHolidays"_s))
    , m_persons(named(new QLineEdit(this), u"calendarPersons"_s))
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(8);
    addCalendar(*column);
    addSheets(*column);
    addWeeks(*column);
    addHolidays(*column);
    column->addStretch(1);
    for (QComboBox *box : findChildren<QComboBox *>()) {
        box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        box->setMinimumContentsLength(leastLetters);
        box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        connect(box, &QComboBox::currentIndexChanged, this, &CalendarForm::follow);
    }
    for (QSpinBox *box : findChildren<QSpinBox *>())
        connect(box, &QSpinBox::valueChanged, this, &CalendarForm::follow);
    for (QCheckBox *box : findChildren<QCheckBox *>())
        connect(box, &QCheckBox::toggled, this, &CalendarForm::follow);
    connect(m_holidays, &QListWidget::itemChanged, this, &CalendarForm::follow);
    connect(m_persons, &QLineEdit::textEdited, this, &CalendarForm::follow);
    connect(m_title, &QLineEdit::textEdited, this, [this] {
        m_isTitled = !m_title->text().isEmpty();
        follow();
    });
}

void CalendarForm::addCalendar(QVBoxLayout &column)
{
    new PasteFilter(m_title, Characters::All);
    m_title->setMaxLength(longestTitle);
    for (int month = 1; month <= 12; ++month)
        m_month->addItem(QLocale::c().standaloneMonthName(month), month);
    m_month->setMaxVisibleItems(12);
    m_year->setRange(WallCalendar::firstYear, WallCalendar::lastYear);
    m_months->setRange(1, WallCalendar::mostMonths);
    for (QSpinBox *box : {m_year, m_months})
        box->setMinimumHeight(m_month->sizeHint().height());
    column.addLayout(labelled(u"Title"_s, m_title));
    column.addLayout(rowOf(
        {labelled(u"First month"_s, m_month), labelled(u"Year"_s, m_year), labelled(u"Months"_s, m_months)}));
}

void CalendarForm::addSheets(QVBoxLayout &column)
{
    const std::pair<CalendarLayout, QString> layouts[] = {
        {CalendarLayout::Month, u"Month"_s},     {CalendarLayout::Photo, u"Month with a photo"_s},
        {CalendarLayout::Quarter, u"Quarter"_s}, {CalendarLayout::Year, u"Year on one sheet"_s},
        {CalendarLayout::Columns, u"Columns"_s}, {CalendarLayout::Pocket, u"Pocket"_s}};
    for (const auto &[layout, caption] : layouts)
        m_layout->addItem(caption, int(layout));
    const std::pair<CalendarStyle, QString> styles[] = {{CalendarStyle::Classic, u"Classic"_s},
                                                        {CalendarStyle::Open, u"Open"_s},
                                                        {CalendarStyle::Bars, u"Bars"_s}};
    for (const auto &[style, caption] : styles)
        m_style->addItem(caption, int(style));
    for (const QString &name : CalendarPapers::names())
        m_paper->addItem(name, name);
    m_orientation->addItem(u"Upright"_s, false);
    m_orientation->addItem(u"Landscape"_s, true);
    auto *looks = rowOf({labelled(u"Layout"_s, m_layout), labelled(u"Style"_s, m_style)});
    looks->setStretch(0, 3); // its longest name is shown whole in a narrow window
    looks->setStretch(1, 2);
    column.addLayout(looks);
    column.addLayout(rowOf({labelled(u"Paper"_s, m_paper), labelled(u"Orientation"_s, m_orientation)}));
    column.addLayout(rowOf({labelled(u"Font"_s, m_font), labelled(u"Size"_s, m_points)}));
}

void CalendarForm::addWeeks(QVBoxLayout &column)
{
    for (int day = Qt::Monday; day <= Qt::Sunday; ++day)
        m_firstDay->addItem(QLocale::c().standaloneDayName(day), day);
    column.addLayout(labelled(u"Weeks begin with"_s, m_firstDay));
    for (QCheckBox *box : {m_weekNumbers, m_smallMonths, m_neighbourLines})
        column.addWidget(box);
}

void CalendarForm::addHolidays(QVBoxLayout &column)
{
    setListRows(m_holidays);
    m_holidays->setFixedHeight(holidayRows * ListRowDelegate::rowHeight() + 2 * m_holidays->frameWidth());
    new PasteFilter(m_persons, Characters::All);
    m_persons->setMaxLength(longestPersons);
    column.addLayout(labelled(u"Holidays"_s, m_holidays));
    column.addLayout(labelled(u"Persons"_s, m_persons, u"Anne, Tom: six at most"_s));
}

QWidget *CalendarForm::lastInTab() const
{
    return m_persons;
}

void CalendarForm::setCalendar(const WallCalendar &calendar, const HolidaySets &sets, bool isNew)
{
    m_isSetting = true;
    m_calendar = calendar;
    m_isTitled = !isNew || calendar.title != NewCalendar::title(calendar.from, calendar.months);
    const CalendarLook &look = calendar.look;
    m_title->setText(calendar.title);
    m_month->setCurrentIndex(calendar.from.month() - 1);
    m_year->setValue(calendar.from.year());
    m_months->setValue(calendar.months);
    choose(m_layout, int(look.layout), {});
    choose(m_style, int(look.style), {});
    choose(m_paper, CalendarPapers::nameOf(CalendarPapers::sizeOf(look.paper)), look.paper);
    choose(m_orientation, look.isLandscape, {});
    choose(m_firstDay, int(look.firstDay), {});
    m_weekNumbers->setChecked(look.hasWeekNumbers);
    m_smallMonths->setChecked(look.hasSmallMonths);
    m_neighbourLines->setChecked(look.hasNeighbourLines);
    offerFonts(look);
    offerHolidays(calendar.holidaySets, sets);
    m_persons->setText(calendar.persons.join(u", "_s));
    m_isSetting = false;
}

/// The fonts of the system, and the one that the calendar has where it is none of them.
void CalendarForm::offerFonts(const CalendarLook &look)
{
    m_font->clear();
    m_font->addItem(u"As elsewhere"_s, QString());
    for (const QString &family : QFontDatabase::families()) {
        if (!QFontDatabase::isPrivateFamily(family))
            m_font->addItem(family, family);
    }
    m_points->clear();
    m_points->addItem(u"As it fits"_s, 0.0);
    for (const double size : points)
        m_points->addItem(QString::number(size), size);
    choose(m_font, look.fontFamily, look.fontFamily);
    choose(m_points, look.fontPoints, QString::number(look.fontPoints));
}

/// A set that is gone stays chosen until it is unticked.
void CalendarForm::offerHolidays(const QStringList &chosen, const HolidaySets &sets)
{
    m_holidays->clear();
    QStringList names = sets.names();
    for (const QString &name : chosen) {
        if (!names.contains(name, Qt::CaseInsensitive))
            names.append(name);
    }
    for (const QString &name : std::as_const(names)) {
        auto *item = new QListWidgetItem(name, m_holidays);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        item->setCheckState(chosen.contains(name, Qt::CaseInsensitive) ? Qt::Checked : Qt::Unchecked);
    }
    m_holidays->setCurrentRow(0);
}

WallCalendar CalendarForm::calendar() const
{
    WallCalendar calendar = m_calendar;
    calendar.from = QDate(m_year->value(), m_month->currentData().toInt(), 1);
    calendar.months = m_months->value();
    calendar.title = m_title->text().simplified();
    CalendarLook &look = calendar.look;
    look.layout = CalendarLayout(m_layout->currentData().toInt());
    look.style = CalendarStyle(m_style->currentData().toInt());
    look.paper = m_paper->currentData().toString();
    look.isLandscape = m_orientation->currentData().toBool();
    look.firstDay = Qt::DayOfWeek(m_firstDay->currentData().toInt());
    look.hasWeekNumbers = m_weekNumbers->isChecked();
    look.hasSmallMonths = m_smallMonths->isChecked();
    look.hasNeighbourLines = m_neighbourLines->isChecked();
    look.fontFamily = m_font->currentData().toString();
    look.fontPoints = m_points->currentData().toDouble();
    calendar.holidaySets.clear();
    for (int row = 0; row < m_holidays->count(); ++row) {
        if (m_holidays->item(row)->checkState() == Qt::Checked)
            calendar.holidaySets.append(m_holidays->item(row)->text());
    }
    calendar.persons = NewCalendar::persons(m_persons->text());
    return calendar;
}

void CalendarForm::follow()
{
    if (m_isSetting)
        return;
    if (!m_isTitled)
        m_title->setText(
            NewCalendar::title(QDate(m_year->value(), m_month->currentData().toInt(), 1), m_months->value()));
    emit changed();
}
