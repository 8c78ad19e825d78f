// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/window/journalprintpanel.h"

#include "journal/window/windowlines.h"
#include "shell/controls/datebox.h"
#include "shell/controls/datepicker.h"
#include "shell/controls/taborder.h"
#include "shell/core/dates.h"
#include "shell/program/program.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QRadioButton>
#include <QSettings>
#include <QSpinBox>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QLatin1StringView keys("Windows/DJournal/print/");
constexpr int boxesWidth = 264;
constexpr int firstYear = 1000;
constexpr int lastYear = 9999;

} // namespace

JournalPrintPanel::JournalPrintPanel(const Program &program, QWidget *window, QWidget *parent)
    : TaskPanel(u"journalPrintPanel"_s, u"Print Options"_s, parent)
    , m_program(program)
    , m_what(new QButtonGroup(this))
    , m_days(new QWidget(this))
    , m_tags(named(new QComboBox(this), u"printTag"_s))
    , m_year(named(new QSpinBox(this), u"printYear"_s))
    , m_pictures(named(new QComboBox(this), u"printPictures"_s))
    , m_newSheets(named(new QCheckBox(u"Each day on a &new sheet"_s, this), u"printNewSheets"_s))
    , m_facts(named(new QCheckBox(u"What other &functions have for the days"_s, this), u"printFacts"_s))
{
    auto *picker = new DatePicker(program.clock, program.settings, window, u"journalPrintCalendar"_s);
    const DateReading reading{program.state.dateStyle, program.clock};
    m_from = named(new DateBox(reading, picker, m_days), u"printFrom"_s);
    m_to = named(new DateBox(reading, picker, m_days), u"printTo"_s);
    auto *content = new QWidget(this);
    auto *column = new QVBoxLayout(content);
    column->setContentsMargins({});
    column->setSpacing(8);
    column->addWidget(makeHeading(u"What is printed"_s, content));
    QWidget *choices = makeChoices();
    column->addWidget(choices);
    column->addSpacing(8);
    column->addWidget(makeHeading(u"How"_s, content));
    QWidget *how = makeHow();
    column->addWidget(how);
    column->addStretch(1);
    setContent(content);
    QPushButton *show = addButton(u"journalPrintShow"_s, u"Show &Pages"_s, ButtonKind::Main);
    QPushButton *close = setLeaveButton(u"journalPrintClose"_s, u"C&lose"_s);
    TabOrder::findTheChosen(*m_what);
    QWidget *last = TabOrder::follow(*m_days->layout(), TabOrder::follow(*choices->layout()));
    last = TabOrder::follow(*how->layout(), last);
    for (QWidget *button : {show, close})
        setTabOrder(std::exchange(last, button), button);
    connect(show, &QPushButton::clicked, this, &JournalPrintPanel::accepted);
    connect(m_what, &QButtonGroup::idToggled, this, &JournalPrintPanel::follow);
}

QWidget *JournalPrintPanel::makeDays()
{
    auto *row = new QHBoxLayout(m_days);
    row->setContentsMargins({});
    row->setSpacing(8);
    for (DateBox *box : {m_from, m_to}) {
        box->setFixedWidth(boxWidth(u"Nov-24-2026"_s, 112));
        box->setAccessibleName(box == m_from ? u"From"_s : u"To"_s);
        row->addWidget(box);
        if (box == m_from)
            row->addWidget(makeQuietLabel(u"to"_s, m_days));
    }
    row->addStretch(1);
    return m_days;
}

/// Each with what it asks for beside it.
QWidget *JournalPrintPanel::makeChoices()
{
    auto *choices = new QWidget(this);
    auto *grid = new QGridLayout(choices);
    grid->setContentsMargins({});
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(6);
    grid->setColumnStretch(2, 1);
    m_tags->setAccessibleName(u"Tag"_s);
    m_tags->setFixedWidth(boxWidth({}, boxesWidth));
    m_year->setAccessibleName(u"Year"_s);
    m_year->setRange(firstYear, lastYear);
    m_year->setFixedWidth(boxWidth(u"20266"_s, 96));
    const std::array<QString, Yearbook + 1> captions{u"The &day that is shown"_s, u"The d&ays"_s,
                                                     u"All entries with the &tag"_s,
                                                     u"The &month as a calendar"_s, u"The &yearbook of"_s};
    const std::array<QWidget *, Yearbook + 1> besides{nullptr, makeDays(), m_tags, nullptr, m_year};
    for (int what = Day; what <= Yearbook; ++what) {
        auto *choice =
            named(new QRadioButton(captions[std::size_t(what)], choices), u"printWhat_%1"_s.arg(what));
        m_what->addButton(choice, what);
        grid->addWidget(choice, what, 0);
        grid->setRowMinimumHeight(what, 36);
        if (QWidget *beside = besides[std::size_t(what)])
            grid->addWidget(beside, what, 1);
    }
    return choices;
}

QWidget *JournalPrintPanel::makeHow()
{
    auto *how = new QWidget(this);
    auto *column = new QVBoxLayout(how);
    column->setContentsMargins({});
    column->setSpacing(8);
    m_pictures->addItems({u"No pictures"_s, u"Small pictures"_s, u"Medium pictures"_s, u"Large pictures"_s});
    m_pictures->setAccessibleName(u"Pictures"_s);
    m_pictures->setFixedWidth(boxWidth({}, boxesWidth));
    m_pictures->setCurrentIndex(
        std::clamp(m_program.store.value(keys + "pictures"_L1, 2).toInt(), 0, m_pictures->count() - 1));
    m_newSheets->setChecked(m_program.store.value(keys + "newSheets"_L1, false).toBool());
    m_facts->setChecked(m_program.store.value(keys + "facts"_L1, true).toBool());
    column->addWidget(m_pictures);
    column->addWidget(m_newSheets);
    column->addWidget(m_facts);
    connect(m_pictures, &QComboBox::currentIndexChanged, this,
            [this](int size) { m_program.store.setValue(keys + "pictures"_L1, size); });
    connect(m_newSheets, &QCheckBox::toggled, this,
            [this](bool isOn) { m_program.store.setValue(keys + "newSheets"_L1, isOn); });
    connect(m_facts, &QCheckBox::toggled, this,
            [this](bool isOn) { m_program.store.setValue(keys + "facts"_L1, isOn); });
    return how;
}

void JournalPrintPanel::start(QDate shown, const QStringList &tags)
{
    m_shown = shown;
    m_from->setDate(QDate(shown.year(), shown.month(), 1));
    m_to->setDate(shown);
    m_year->setValue(shown.year());
    m_tags->clear();
    m_tags->addItems(tags);
    setUnavailable(m_what->button(Tag), tags.isEmpty() ? JournalWindowLines::noTagYet() : QString());
    m_what->button(Day)->setChecked(true);
    setFocusProxy(m_what->button(Day));
    follow();
}

void JournalPrintPanel::follow()
{
    m_days->setEnabled(what() == Range);
    m_tags->setEnabled(what() == Tag);
    m_year->setEnabled(what() == Yearbook);
    m_newSheets->setEnabled(what() == Range || what() == Tag || what() == Yearbook);
    m_pictures->setEnabled(what() != Month);
    m_facts->setEnabled(what() != Month);
}

JournalPrintPanel::What JournalPrintPanel::what() const
{
    return What(std::max(m_what->checkedId(), 0));
}

QDate JournalPrintPanel::from() const
{
    return m_from->date().value_or(m_shown);
}

QDate JournalPrintPanel::to() const
{
    return std::max(from(), m_to->date().value_or(m_shown));
}

QString JournalPrintPanel::tag() const
{
    return m_tags->currentText();
}

int JournalPrintPanel::year() const
{
    return m_year->value();
}

JournalPages::Options JournalPrintPanel::options() const
{
    return {JournalPages::PictureSize(m_pictures->currentIndex()), m_newSheets->isChecked(),
            m_facts->isChecked()};
}
