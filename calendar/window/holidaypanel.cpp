// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/window/holidaypanel.h"

#include "calendar/window/rulelines.h"
#include "calendar/window/ruleseditor.h"
#include "shell/controls/buttonrow.h"
#include "shell/controls/pastefilter.h"
#include "shell/program/program.h"

#include <QComboBox>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int longestName = 60;
constexpr int setWidth = 300;

/// The set `base` with these rows: what stands between them stays, and new ones come last.
HolidaySet withRows(const HolidaySet &base, const QList<RuleRow> &rows)
{
    HolidaySet set{base.name};
    for (int at = 0; at < base.holidays.size(); ++at) {
        Holiday holiday = base.holidays[at];
        const auto row = std::ranges::find(rows, at, &RuleRow::at);
        if (!holiday.isKept && row == rows.end())
            continue;
        if (!holiday.isKept) {
            holiday.rule = row->rule;
            holiday.text = row->text;
        }
        set.holidays.append(holiday);
    }
    for (const RuleRow &row : rows) {
        if (row.at < 0)
            set.holidays.append({row.rule, row.text});
    }
    return set;
}

} // namespace

HolidayPanel::HolidayPanel(const Program &program, QWidget *window, QWidget *parent)
    : TaskPanel(u"holidayPanel"_s, u"Holidays"_s, parent)
    , m_program(program)
    , m_editor(new RulesEditor(program, u"holidays"_s, RulesEditor::Signs::None, window))
{
    auto *content = new QWidget;
    auto *column = new QVBoxLayout(content);
    column->setContentsMargins({});
    column->setSpacing(12);
    column->addWidget(makeSets());
    column->addWidget(m_editor, 1);
    setContent(content);
    addButton(m_editor->removeButton(), Side::Left);
    m_drop = addButton(u"holidaysDrop"_s, {}, ButtonKind::Plain, Side::Left);
    addButton(m_editor->newButton());
    m_keep = addButton(u"holidaysKeep"_s, u"&Keep"_s, ButtonKind::Main);
    QPushButton *cancel = setLeaveButton(u"holidaysCancel"_s, u"C&ancel"_s);
    setTabOrder(m_choice, m_name);
    setTabOrder(m_name, m_newSet);
    setTabOrder(m_newSet, m_editor->focusProxy());
    QWidget *before = m_editor->lastInTab();
    for (QWidget *button : {m_editor->removeButton(), m_drop, m_editor->newButton(), m_keep, cancel})
        setTabOrder(std::exchange(before, button), button);
    setFocusProxy(m_choice);
    connect(m_choice, &QComboBox::currentIndexChanged, this, &HolidayPanel::showSet);
    connect(m_name, &QLineEdit::textEdited, this, &HolidayPanel::rename);
    connect(m_editor, &RulesEditor::changed, this, &HolidayPanel::take);
    connect(m_drop, &QPushButton::clicked, this, &HolidayPanel::dropSet);
    connect(m_keep, &QPushButton::clicked, this, &HolidayPanel::save);
}

QWidget *HolidayPanel::makeSets()
{
    auto *sets = new QWidget(this);
    m_choice = named(new QComboBox(sets), u"holidaysSet"_s);
    m_choice->setFixedWidth(boxWidth({}, setWidth));
    m_choice->setMaxVisibleItems(20);
    m_nameRow = new QWidget(sets);
    m_name = named(new QLineEdit(m_nameRow), u"holidaysName"_s);
    m_name->setMaxLength(longestName);
    m_name->setFixedWidth(boxWidth({}, setWidth));
    new PasteFilter(m_name, Characters::All);
    QBoxLayout *name = labelled(u"Name"_s, m_name);
    name->setContentsMargins({});
    m_nameRow->setLayout(name);
    m_newSet = makeButton(u"holidaysNewSet"_s, u"New Se&t"_s, sets);
    connect(m_newSet, &QPushButton::clicked, this, &HolidayPanel::addSet);
    auto *row = new QHBoxLayout(sets);
    row->setContentsMargins({});
    row->setSpacing(12);
    row->addLayout(labelled(u"Holidays of"_s, m_choice));
    row->addWidget(m_nameRow);
    row->addWidget(m_newSet, 0, Qt::AlignBottom);
    row->addStretch(1);
    return sets;
}

void HolidayPanel::start(const QString &name)
{
    m_sets = HolidaySets::of(m_program.folder);
    m_own = m_sets.own();
    m_own.form = TabLine::Known;
    m_isWarned = false;
    m_editor->setWhyLocked(m_sets.whyLocked());
    offerSets(name);
    const QList<HolidayFile::Fault> &faults = m_own.faults;
    setWords(faults.isEmpty() ? m_sets.whyLocked() : RuleLines::faults(faults.size(), faults.first().line));
}

/// A choice bears the place of its set in the household's file, or -1 where it is as it came.
void HolidayPanel::offerSets(const QString &name)
{
    const QSignalBlocker still(m_choice);
    m_choice->clear();
    for (const QString &each : m_sets.names()) {
        const HolidaySet *own = m_own.set(each);
        m_choice->addItem(each, own ? int(own - m_own.sets.constData()) : -1);
    }
    const int chosen = m_choice->findText(name, Qt::MatchFixedString);
    m_choice->setCurrentIndex(std::max(0, chosen));
    showSet();
}

int HolidayPanel::ownPlace() const
{
    return m_choice->currentIndex() < 0 ? -1 : m_choice->currentData().toInt();
}

/// What is to be written: a country's holidays that are as they came are not the household's.
HolidayFile HolidayPanel::wanted() const
{
    HolidayFile wanted = m_own;
    wanted.sets.removeIf([this](const HolidaySet &set) {
        return m_sets.isBuiltIn(set.name) && set == m_sets.builtIn(set.name) &&
               m_sets.own().set(set.name) == nullptr;
    });
    return wanted;
}

bool HolidayPanel::isModified() const
{
    return wanted().sets != m_sets.own().sets;
}

void HolidayPanel::showSet()
{
    const int place = ownPlace();
    m_base = place >= 0 ? m_own.sets[place] : m_sets.builtIn(m_choice->currentText());
    QList<RuleRow> rows;
    for (int at = 0; at < m_base.holidays.size(); ++at) {
        const Holiday &holiday = m_base.holidays[at];
        if (!holiday.isKept)
            rows.append({holiday.rule, {}, holiday.text, holiday.line, at});
    }
    m_editor->setRows(rows, RuleLines::noHoliday(), {u"01-01"_s});
    const bool isThere = m_sets.names().contains(m_base.name, Qt::CaseInsensitive);
    m_nameRow->setVisible(!isThere);
    m_name->setText(m_base.name);
    const bool isBuiltIn = m_sets.isBuiltIn(m_base.name);
    m_drop->setText(isBuiltIn ? u"As &It Came"_s : u"Re&move Set"_s);
    setUnavailable(m_drop, place < 0 ? RuleLines::asItCame() : m_sets.whyLocked());
    setUnavailable(m_keep, m_sets.whyLocked());
    buttonRow().rearrange();
}

/// What stands in the list becomes the household's.
void HolidayPanel::take()
{
    const HolidaySet set = withRows(m_base, m_editor->rows());
    int place = ownPlace();
    if (place < 0) {
        place = int(m_own.sets.size());
        m_own.sets.append(set);
        m_choice->setItemData(m_choice->currentIndex(), place);
    }
    m_own.sets[place] = set;
    setUnavailable(m_drop, m_sets.whyLocked());
    setWords({});
}

void HolidayPanel::rename()
{
    const int place = ownPlace();
    if (place < 0)
        return;
    m_base.name = m_name->text().simplified();
    m_own.sets[place].name = m_base.name;
    m_choice->setItemText(m_choice->currentIndex(), m_base.name);
    setWords({});
}

void HolidayPanel::addSet()
{
    if (!m_sets.whyLocked().isEmpty())
        return;
    const QString name = u"Our holidays"_s;
    m_own.sets.append({name});
    m_choice->addItem(name, int(m_own.sets.size() - 1));
    m_choice->setCurrentIndex(m_choice->count() - 1);
    m_name->setFocus();
    m_name->selectAll();
}

/// A country's becomes as it came; one of the household's own goes.
void HolidayPanel::dropSet()
{
    const int place = ownPlace();
    if (place < 0)
        return;
    const QString name = m_own.sets[place].name;
    m_own.sets.removeAt(place);
    const QSignalBlocker still(m_choice);
    if (m_sets.isBuiltIn(name))
        m_choice->setItemData(m_choice->currentIndex(), -1);
    else
        m_choice->removeItem(m_choice->currentIndex());
    for (int item = 0; item < m_choice->count(); ++item) {
        if (m_choice->itemData(item).toInt() > place)
            m_choice->setItemData(item, m_choice->itemData(item).toInt() - 1);
    }
    showSet();
    m_choice->setFocus();
}

/// Why the sets cannot be told apart; the focus is then in the name that is wrong.
QString HolidayPanel::whyNotNamed()
{
    for (int item = 0; item < m_choice->count(); ++item) {
        const QString name = m_choice->itemText(item);
        if (!name.isEmpty() && m_choice->findText(name, Qt::MatchFixedString) == item)
            continue;
        m_choice->setCurrentIndex(item);
        m_name->setFocus();
        return name.isEmpty() ? RuleLines::needsName() : RuleLines::nameIsThere(name);
    }
    return {};
}

void HolidayPanel::save()
{
    if (m_editor->goToOpenYear()) {
        setWords(RuleLines::needsYear());
        return;
    }
    if (m_editor->goToUnnamed()) {
        setWords(RuleLines::needsWords());
        return;
    }
    if (!isModified()) {
        setWords(RuleLines::nothingToSave());
        return;
    }
    if (const QString why = whyNotNamed(); !why.isEmpty()) {
        setWords(why);
        return;
    }
    const bool isOutdated = HolidaySets::of(m_program.folder).own().bytes() != m_sets.own().bytes();
    if (isOutdated && !m_isWarned) {
        m_isWarned = true;
        setWords(RuleLines::changedMeanwhile());
        return;
    }
    if (!HolidaySets::save(m_program.folder, wanted())) {
        setWords(RuleLines::notSaved());
        emit said(RuleLines::notSaved());
        return;
    }
    start(m_choice->currentText());
    emit changed();
    emit said(RuleLines::saved());
    TaskPanel::leave();
}

void HolidayPanel::leave()
{
    if (isModified() && m_program.dialogs.ask(window(), RuleLines::leaveHolidays()) != Answer::Yes)
        return;
    m_own = m_sets.own();
    TaskPanel::leave();
}
