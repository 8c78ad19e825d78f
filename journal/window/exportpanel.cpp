// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/window/exportpanel.h"

#include "journal/window/windowlines.h"
#include "shell/controls/choicegrid.h"
#include "shell/controls/dayspan.h"
#include "shell/program/program.h"

#include <QComboBox>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int boxesWidth = 264;
} // namespace

ExportPanel::ExportPanel(const Program &program, QWidget *window, QWidget *parent)
    : TaskPanel(u"journalExportPanel"_s, u"Export"_s, parent)
    , m_which(new ChoiceGrid(u"exportWhich"_s, this))
    , m_form(new ChoiceGrid(u"exportForm"_s, this))
    , m_days(
          new DaySpan(u"export"_s, {program.state.dateStyle, program.clock}, program.settings, window, this))
    , m_tags(named(new QComboBox(this), u"exportTag"_s))
{
    m_tags->setAccessibleName(u"Tag"_s);
    m_tags->setFixedWidth(boxWidth({}, boxesWidth));
    m_which->add(u"All of the&m"_s);
    m_which->add(u"Those of the &days"_s, m_days);
    m_which->add(u"Those with the &tag"_s, m_tags);
    m_form->add(u"A te&xt file, which the journal can bring in again"_s);
    m_form->add(u"A page for &browsers (HTML), with the pictures in a folder beside it"_s);
    m_form->add(u"&Pages in a PDF, as they are printed"_s);
    m_form->choose(Text);
    auto *content = new QWidget(this);
    auto *column = new QVBoxLayout(content);
    column->setContentsMargins({});
    column->setSpacing(8);
    column->addWidget(makeHeading(u"Which entries"_s, content));
    column->addWidget(m_which);
    column->addSpacing(8);
    column->addWidget(makeHeading(u"Into what"_s, content));
    column->addWidget(m_form);
    QLabel *hint = makeQuietLabel(JournalWindowLines::exportHint(), content);
    hint->setWordWrap(true);
    column->addWidget(hint);
    column->addStretch(1);
    setContent(content);
    QPushButton *save = addButton(u"journalExportSave"_s, u"Save &As..."_s, ButtonKind::Main);
    setLeaveButton(u"journalExportClose"_s, u"C&lose"_s);
    connect(save, &QPushButton::clicked, this, &ExportPanel::accept);
}

void ExportPanel::start(QDate shown, const QStringList &tags)
{
    m_days->setDays(QDate(shown.year(), 1, 1), shown);
    m_tags->clear();
    m_tags->addItems(tags);
    m_which->setWhyNot(Tag, tags.isEmpty() ? JournalWindowLines::noTagYet() : QString());
    m_which->choose(All);
    setWords({});
    setFocusProxy(m_which);
}

void ExportPanel::accept()
{
    const QString why = m_which->chosen() == Range ? m_days->refuse() : QString();
    setWords(why);
    if (why.isEmpty())
        emit accepted();
}

JournalExport::Selection ExportPanel::selection() const
{
    JournalExport::Selection selection;
    if (m_which->chosen() == Range) {
        selection.from = m_days->from();
        selection.to = m_days->to();
    } else if (m_which->chosen() == Tag) {
        selection.tag = m_tags->currentText();
    }
    return selection;
}

ExportPanel::Form ExportPanel::form() const
{
    return Form(m_form->chosen());
}
