// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/window/journalprintpanel.h"

#include "journal/window/windowlines.h"
#include "shell/controls/choicegrid.h"
#include "shell/controls/dayspan.h"
#include "shell/core/dates.h"
#include "shell/program/program.h"

#include <QCheckBox>
#include <QComboBox>
#include <QSettings>
#include <QSpinBox>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QLatin1StringView keys("Windows/DJournal/print/");
constexpr int boxesWidth = 240;
constexpr int firstYear = 1000;
constexpr int lastYear = 9999;

} // namespace

JournalPrintPanel::JournalPrintPanel(const Program &program, QWidget *window, QWidget *parent)
    : PrintPanel(u"journalPrint"_s, parent)
    , m_program(program)
    , m_days(
          new DaySpan(u"print"_s, {program.state.dateStyle, program.clock}, program.settings, window, this))
    , m_tags(named(new QComboBox(this), u"printTag"_s))
    , m_year(named(new QSpinBox(this), u"printYear"_s))
    , m_paper(named(new QComboBox(this), u"printPaper"_s))
    , m_pictures(named(new QComboBox(this), u"printPictures"_s))
    , m_newSheets(named(new QCheckBox(u"Each day on a &new sheet"_s, this), u"printNewSheets"_s))
    , m_facts(named(new QCheckBox(u"What other fun&ctions have for the days"_s, this), u"printFacts"_s))
{
    fillChoices();
    compose(makeHow());
    addClose();
    connect(&what(), &ChoiceGrid::chosenChanged, this, &JournalPrintPanel::follow);
}

void JournalPrintPanel::fillChoices()
{
    m_tags->setAccessibleName(u"Tag"_s);
    m_tags->setFixedWidth(boxWidth({}, boxesWidth));
    m_year->setAccessibleName(u"Year"_s);
    m_year->setRange(firstYear, lastYear);
    m_year->setFixedWidth(boxWidth(u"20266"_s, 96));
    m_year->setMinimumHeight(m_tags->sizeHint().height());
    what().add(u"The &day that is shown"_s);
    what().add(u"The d&ays"_s, m_days);
    what().add(u"All entries with the &tag"_s, m_tags);
    what().add(u"The &month as a calendar"_s);
    what().add(u"The &yearbook of"_s, m_year);
}

QLayout *JournalPrintPanel::makeHow()
{
    auto *column = new QVBoxLayout;
    column->setSpacing(8);
    fillBoxes();
    m_newSheets->setChecked(m_program.store.value(keys + "newSheets"_L1, false).toBool());
    m_facts->setChecked(m_program.store.value(keys + "facts"_L1, true).toBool());
    auto *boxes = new QHBoxLayout;
    boxes->setSpacing(12);
    boxes->addLayout(labelled(u"Pape&r"_s, m_paper));
    boxes->addLayout(labelled(u"P&ictures"_s, m_pictures));
    boxes->addStretch(1);
    column->addLayout(boxes);
    column->addWidget(m_newSheets);
    column->addWidget(m_facts);
    connect(m_paper, &QComboBox::currentIndexChanged, this,
            [this] { m_program.store.setValue(keys + "paper"_L1, m_paper->currentData()); });
    connect(m_pictures, &QComboBox::currentIndexChanged, this,
            [this](int size) { m_program.store.setValue(keys + "pictures"_L1, size); });
    connect(m_newSheets, &QCheckBox::toggled, this,
            [this](bool isOn) { m_program.store.setValue(keys + "newSheets"_L1, isOn); });
    connect(m_facts, &QCheckBox::toggled, this,
            [this](bool isOn) { m_program.store.setValue(keys + "facts"_L1, isOn); });
    return column;
}

/// With what was chosen the last time.
void JournalPrintPanel::fillBoxes()
{
    m_paper->addItem(u"Letter"_s, u"Letter"_s);
    m_paper->addItem(u"A4"_s, u"A4"_s);
    m_paper->addItem(u"A5, for a bound book"_s, u"A5"_s);
    m_paper->setAccessibleName(u"Paper"_s);
    const QString usual = m_program.state.dateStyle == DateStyle::Usa ? u"Letter"_s : u"A4"_s;
    m_paper->setCurrentIndex(
        std::max(0, m_paper->findData(m_program.store.value(keys + "paper"_L1, usual).toString())));
    m_pictures->addItems({u"No pictures"_s, u"Small pictures"_s, u"Medium pictures"_s, u"Large pictures"_s});
    m_pictures->setAccessibleName(u"Pictures"_s);
    m_pictures->setCurrentIndex(
        std::clamp(m_program.store.value(keys + "pictures"_L1, 2).toInt(), 0, m_pictures->count() - 1));
    for (QComboBox *box : {m_paper, m_pictures})
        box->setFixedWidth(boxWidth({}, boxesWidth));
}

void JournalPrintPanel::start(QDate shown, const QStringList &tags)
{
    m_days->setDays(QDate(shown.year(), shown.month(), 1), shown);
    m_year->setValue(shown.year());
    m_tags->clear();
    m_tags->addItems(tags);
    what().setWhyNot(Tag, tags.isEmpty() ? JournalWindowLines::noTagYet() : QString());
    what().choose(Day);
    setWords({});
    follow();
}

void JournalPrintPanel::follow()
{
    m_newSheets->setEnabled(chosen() == Range || chosen() == Tag || chosen() == Yearbook);
    m_pictures->setEnabled(chosen() != Month);
    m_facts->setEnabled(chosen() != Month);
}

QString JournalPrintPanel::refuse()
{
    return chosen() == Range ? m_days->refuse() : QString();
}

JournalPrintPanel::What JournalPrintPanel::chosen() const
{
    return What(what().chosen());
}

QDate JournalPrintPanel::from() const
{
    return m_days->from();
}

QDate JournalPrintPanel::to() const
{
    return m_days->to();
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

QSizeF JournalPrintPanel::paper() const
{
    const std::array<QSizeF, 3> papers{PageMetrics::letter, PageMetrics::a4, PageMetrics::a5};
    return papers[std::size_t(std::max(0, m_paper->currentIndex()))];
}
