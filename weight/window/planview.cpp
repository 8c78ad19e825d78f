// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/window/planview.h"

#include "shell/controls/buttonrow.h"
#include "shell/controls/controls.h"
#include "shell/controls/datepicker.h"
#include "shell/controls/scrollpart.h"
#include "shell/controls/titleline.h"
#include "shell/core/framelines.h"
#include "shell/frame/functionwindow.h"
#include "shell/program/program.h"
#include "weight/window/datecheck.h"
#include "weight/window/openperson.h"
#include "weight/window/planform.h"
#include "weight/window/windowlines.h"

using namespace Qt::Literals::StringLiterals;

PlanView::PlanView(const WeightDesk &desk)
    : PersonView(u"plan"_s, desk)
    , m_form(new PlanForm(
          desk, new DatePicker(desk.program.clock, desk.program.settings, &desk.window, u"MonthView2"_s),
          this))
{
    addContent(m_form, 1);
    setFocusProxy(m_form->box(WeightSheet::Name));
    connect(m_form, &PlanForm::boxFocused, this,
            [this](QWidget *box) { scroll().ensureWidgetVisible(box, 8, 32); });
    connect(m_form, &PlanForm::edited, this, [this] { foot().setWords(FrameLines::unsavedChanges()); });
    connect(m_form, &PlanForm::entered, this, &PlanView::take);
    connect(m_form, &PlanForm::said, this, &PlanView::said);
}

void PlanView::finishEdit()
{
    take(u"Exercise Plan and Information"_s);
}

void PlanView::typeName()
{
    m_form->box(WeightSheet::Name)->setFocus();
    m_form->box(WeightSheet::Name)->selectAll();
}

/// What was typed into a box is the sheet's, unless the entry check refuses it.
void PlanView::take(const QString &caption)
{
    const WeightSheet &sheet = person().sheet();
    WeightSheet wanted = m_form->typed(sheet);
    std::optional<WeightSheet::Field> refused;
    for (const auto field :
         {WeightSheet::BeginningDate, WeightSheet::BeginningWeight, WeightSheet::GoalWeight}) {
        if (wanted.field(field) == sheet.field(field))
            continue;
        const WeightEntry entry = field == WeightSheet::BeginningDate
                                      ? desk().dateCheck.sheetDate(wanted.field(field), sheet.field(field))
                                      : WeightEntry::weight(wanted.field(field), sheet.field(field));
        wanted.field(field) = entry.text;
        if (!entry.refusal)
            continue;
        refused = field;
        emit noticed(*entry.refusal);
    }
    person().change(caption, wanted);
    m_form->show(person().sheet());
    if (refused)
        m_form->box(*refused)->setFocus();
}

void PlanView::refresh()
{
    m_form->show(person().sheet());
    m_form->setLocked(!person().whyLocked().isEmpty());
    titleLine().setTitle(person().isNew() ? TrackerLines::newPerson() : person().name());
}
