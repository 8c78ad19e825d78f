// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/window/rulespanel.h"

#include "calendar/window/rulelines.h"
#include "calendar/window/ruleseditor.h"
#include "shell/program/program.h"

#include <utility>

using namespace Qt::Literals::StringLiterals;

RulesPanel::RulesPanel(const Program &program, QWidget *window, QWidget *parent)
    : TaskPanel(u"rulesPanel"_s, u"Rules"_s, parent)
    , m_program(program)
    , m_editor(new RulesEditor(program, u"rules"_s, RulesEditor::Signs::Offered, window))
{
    setContent(m_editor);
    addButton(m_editor->removeButton(), Side::Left);
    addButton(m_editor->newButton());
    QPushButton *keep = addButton(u"rulesKeep"_s, u"&Keep"_s, ButtonKind::Main);
    QPushButton *cancel = setLeaveButton(u"rulesCancel"_s, u"C&ancel"_s);
    QWidget *before = m_editor->lastInTab();
    for (QWidget *button : {m_editor->removeButton(), m_editor->newButton(), keep, cancel})
        setTabOrder(std::exchange(before, button), button);
    connect(keep, &QPushButton::clicked, this, &RulesPanel::accept);
    connect(m_editor, &RulesEditor::changed, this, [this] { setWords({}); });
}

void RulesPanel::start(const WallCalendar &calendar)
{
    m_before = calendar.rules;
    QList<RuleRow> rows;
    for (const CalendarRule &rule : calendar.rules)
        rows.append({rule.rule, rule.sign, rule.text});
    const QDate today = m_program.clock.today();
    const QDate first =
        calendar.from.isValid() ? qMax(calendar.from, qMin(today, calendar.lastDay())) : today;
    m_editor->setRows(rows, RuleLines::noRuleYet(), {u"every 2 weeks "_s + first.toString(Qt::ISODate)});
    setFocusProxy(rows.isEmpty() ? static_cast<QWidget *>(m_editor->newButton()) : m_editor);
    setWords({});
}

QList<CalendarRule> RulesPanel::rules() const
{
    QList<CalendarRule> rules;
    for (const RuleRow &row : m_editor->rows())
        rules.append({row.rule, row.sign, row.text});
    return rules;
}

void RulesPanel::accept()
{
    if (m_editor->goToUnnamed()) {
        setWords(RuleLines::needsWords());
        return;
    }
    if (m_editor->goToOpenYear()) {
        setWords(RuleLines::needsYear());
        return;
    }
    m_before = rules();
    emit accepted();
}

void RulesPanel::leave()
{
    if (isModified() && m_program.dialogs.ask(window(), RuleLines::leaveRules()) != Answer::Yes)
        return;
    m_before = rules();
    TaskPanel::leave();
}
