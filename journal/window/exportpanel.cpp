// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/window/exportpanel.h"

#include "journal/window/windowlines.h"
#include "shell/controls/datebox.h"
#include "shell/controls/datepicker.h"
#include "shell/controls/taborder.h"
#include "shell/program/program.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QGridLayout>
#include <QRadioButton>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int boxesWidth = 264;
} // namespace

ExportPanel::ExportPanel(const Program &program, QWidget *window, QWidget *parent)
    : TaskPanel(u"journalExportPanel"_s, u"Export"_s, parent)
    , m_which(new QButtonGroup(this))
    , m_form(new QButtonGroup(this))
    , m_days(new QWidget(this))
    , m_tags(named(new QComboBox(this), u"exportTag"_s))
{
    auto *picker = new DatePicker(program.clock, program.settings, window, u"journalExportCalendar"_s);
    const DateReading reading{program.state.dateStyle, program.clock};
    auto *days = new QHBoxLayout(m_days);
    days->setContentsMargins({});
    days->setSpacing(8);
    m_from = named(new DateBox(reading, picker, m_days), u"exportFrom"_s);
    m_to = named(new DateBox(reading, picker, m_days), u"exportTo"_s);
    for (DateBox *box : {m_from, m_to}) {
        box->setFixedWidth(boxWidth(u"Nov-24-2026"_s, 112));
        box->setAccessibleName(box == m_from ? u"From"_s : u"To"_s);
        days->addWidget(box);
        if (box == m_from)
            days->addWidget(makeQuietLabel(u"to"_s, m_days));
    }
    days->addStretch(1);
    auto *content = new QWidget(this);
    auto *column = new QVBoxLayout(content);
    column->setContentsMargins({});
    column->setSpacing(8);
    column->addWidget(makeHeading(u"Which entries"_s, content));
    QWidget *choices = makeChoices();
    column->addWidget(choices);
    column->addSpacing(8);
    column->addWidget(makeHeading(u"Into what"_s, content));
    const std::array<QString, 2> forms{
        u"A te&xt file, which the journal can bring in again"_s,
        u"A page for &browsers (HTML), with the pictures in a folder beside it"_s};
    for (int form = Text; form <= Html; ++form) {
        auto *choice =
            named(new QRadioButton(forms[std::size_t(form)], content), u"exportForm_%1"_s.arg(form));
        m_form->addButton(choice, form);
        column->addWidget(choice);
    }
    QLabel *hint = makeQuietLabel(JournalWindowLines::exportHint(), content);
    hint->setWordWrap(true);
    column->addWidget(hint);
    column->addStretch(1);
    setContent(content);
    QPushButton *save = addButton(u"journalExportSave"_s, u"&Save As..."_s, ButtonKind::Main);
    setLeaveButton(u"journalExportClose"_s, u"C&lose"_s);
    TabOrder::findTheChosen(*m_which);
    TabOrder::findTheChosen(*m_form);
    connect(save, &QPushButton::clicked, this, &ExportPanel::accepted);
    connect(m_which, &QButtonGroup::idToggled, this, &ExportPanel::follow);
}

/// Each with what it asks for beside it.
QWidget *ExportPanel::makeChoices()
{
    auto *choices = new QWidget(this);
    auto *grid = new QGridLayout(choices);
    grid->setContentsMargins({});
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(6);
    grid->setColumnStretch(2, 1);
    m_tags->setAccessibleName(u"Tag"_s);
    m_tags->setFixedWidth(boxWidth({}, boxesWidth));
    const std::array<QString, 3> captions{u"&All of them"_s, u"Those of the &days"_s,
                                          u"Those with the &tag"_s};
    const std::array<QWidget *, 3> besides{nullptr, m_days, m_tags};
    for (int which = All; which <= Tag; ++which) {
        auto *choice =
            named(new QRadioButton(captions[std::size_t(which)], choices), u"exportWhich_%1"_s.arg(which));
        m_which->addButton(choice, which);
        grid->addWidget(choice, which, 0);
        grid->setRowMinimumHeight(which, 36);
        if (QWidget *beside = besides[std::size_t(which)])
            grid->addWidget(beside, which, 1);
    }
    return choices;
}

void ExportPanel::start(QDate shown, const QStringList &tags)
{
    m_shown = shown;
    m_from->setDate(QDate(shown.year(), 1, 1));
    m_to->setDate(shown);
    m_tags->clear();
    m_tags->addItems(tags);
    setUnavailable(m_which->button(Tag), tags.isEmpty() ? JournalWindowLines::noTagYet() : QString());
    m_which->button(All)->setChecked(true);
    if (m_form->checkedId() < 0)
        m_form->button(Text)->setChecked(true);
    setFocusProxy(m_which->button(All));
    follow();
}

void ExportPanel::follow()
{
    m_days->setEnabled(m_which->checkedId() == Range);
    m_tags->setEnabled(m_which->checkedId() == Tag);
}

JournalExport::Selection ExportPanel::selection() const
{
    JournalExport::Selection selection;
    if (m_which->checkedId() == Range) {
        selection.from = m_from->date().value_or(m_shown);
        selection.to = std::max(selection.from, m_to->date().value_or(m_shown));
    } else if (m_which->checkedId() == Tag) {
        selection.tag = m_tags->currentText();
    }
    return selection;
}

ExportPanel::Form ExportPanel::form() const
{
    return Form(std::max(m_form->checkedId(), 0));
}
