// SPDX-License-Identifier: GPL-3.0-or-later
#include "todo/window/newlistpanel.h"

#include "shell/controls/buttonrow.h"
#include "shell/controls/datebox.h"
#include "shell/controls/datepicker.h"
#include "shell/program/program.h"
#include "todo/model/templates.h"
#include "todo/model/typeddate.h"
#include "todo/window/panellines.h"

#include <QComboBox>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int longestName = 60;

NewListPanel::Beginning ownTemplate(const ToDoSheet &sheet, const ToDoList &list)
{
    NewListPanel::Beginning beginning{NewListPanel::Beginning::OwnTemplate, list.id, false, list.name};
    for (int row = 0; row < sheet.rowCount() && !beginning.hasDays; ++row)
        beginning.hasDays = sheet.listOf(row) == list.id && sheet.item(row).offset.has_value();
    return beginning;
}

NewListPanel::Beginning builtIn(std::size_t place)
{
    const Templates::Template &made = Templates::all()[place];
    const bool hasDays =
        std::ranges::any_of(made.items, [](const ToDoItem &item) { return item.offset.has_value(); });
    return {NewListPanel::Beginning::BuiltIn, int(place), hasDays, made.name};
}

} // namespace

NewListPanel::NewListPanel(const Program &program, QWidget *window, QWidget *parent)
    : TaskPanel(u"newListPanel"_s, {}, parent)
    , m_program(program)
    , m_name(named(new FieldBox(this), u"newListName"_s))
    , m_beginnings(named(new QComboBox(this), u"newListBeginning"_s))
    , m_beginningRow(new QWidget(this))
    , m_dayRow(new QWidget(this))
    , m_day(nullptr)
    , m_what(makeQuietLabel({}, this))
    , m_make(nullptr)
{
    auto *picker = new DatePicker(program.clock, program.settings, window, u"newListCalendar"_s);
    m_day = named(new DateBox({program.state.dateStyle, program.clock}, picker, m_dayRow), u"newListDate"_s);
    setContent(makeContent());
    m_make = addButton(u"newListMake"_s, {}, ButtonKind::Main);
    QPushButton *cancel = setLeaveButton(u"newListCancel"_s, u"C&ancel"_s);
    setTabOrder(m_beginnings, m_name);
    setTabOrder(m_name, m_day);
    setTabOrder(m_day, m_make);
    setTabOrder(m_make, cancel);
    connect(m_make, &QPushButton::clicked, this, &NewListPanel::accepted);
    for (QLineEdit *box : {static_cast<QLineEdit *>(m_name), static_cast<QLineEdit *>(m_day)})
        connect(box, &QLineEdit::returnPressed, this, &NewListPanel::accepted);
    connect(m_name, &QLineEdit::textEdited, this, [this] {
        m_isNamed = !m_name->text().isEmpty();
        setWords({});
    });
    connect(m_beginnings, &QComboBox::currentIndexChanged, this, &NewListPanel::followBeginning);
}

QWidget *NewListPanel::makeContent()
{
    m_name->setByteLimit(longestName);
    m_name->setFixedWidth(boxWidth({}, 420));
    m_beginnings->setFixedWidth(boxWidth({}, 420));
    m_beginnings->setAccessibleName(NewListLines::beginsWith());
    m_day->setFixedWidth(boxWidth(u"Nov-24-2026"_s, 160));
    m_what->setWordWrap(true);
    const std::pair<QWidget *, QBoxLayout *> rows[] = {
        {m_beginningRow, labelled(NewListLines::beginsWith(), m_beginnings)},
        {m_dayRow, labelled(NewListLines::day(), m_day, NewListLines::dayHint())}};
    for (const auto &[row, parts] : rows) {
        parts->setContentsMargins({});
        row->setLayout(parts);
    }
    auto *content = new QWidget(this);
    auto *column = new QVBoxLayout(content);
    column->setContentsMargins({});
    column->setSpacing(12);
    column->addWidget(m_beginningRow);
    column->addLayout(labelled(u"Name:"_s, m_name));
    column->addWidget(m_dayRow);
    column->addWidget(m_what);
    column->addStretch(1);
    return content;
}

void NewListPanel::start(const ToDoSheet &sheet, bool isFromTemplate)
{
    m_all = {{Beginning::Plain, 0, false, {}}, {Beginning::Shopping, 0, false, {}}};
    const std::size_t first = m_all.size();
    for (const ToDoList &list : sheet.lists()) {
        if (list.kind == ListKind::Template)
            m_all.push_back(ownTemplate(sheet, list));
    }
    for (std::size_t place = 0; place < Templates::all().size(); ++place)
        m_all.push_back(builtIn(place));
    offer(isFromTemplate && first < m_all.size() ? first : 0);
    m_day->setDate({});
    setFocusProxy(isFromTemplate ? static_cast<QWidget *>(m_beginnings) : m_name);
}

/// The last of its dates is the day, unless another is typed: what has dates mostly leads up to one.
void NewListPanel::startKeeping(const ToDoSheet &sheet, int list, const QString &name)
{
    QDate last;
    for (int row = 0; row < sheet.rowCount(); ++row) {
        if (sheet.listOf(row) == list && sheet.dueOf(row).isValid() && !(sheet.dueOf(row) < last))
            last = sheet.dueOf(row);
    }
    m_all = {{Beginning::KeptList, list, last.isValid(), name}};
    offer(0);
    m_day->setDate(last);
    setFocusProxy(m_name);
}

void NewListPanel::offer(std::size_t chosen)
{
    const bool isKept = m_all[chosen].kind == Beginning::KeptList;
    setTitle(isKept ? NewListLines::keepTitle() : u"New List"_s);
    m_make->setText(isKept ? NewListLines::keep() : u"&Make List"_s);
    m_beginningRow->setVisible(!isKept);
    m_isNamed = false;
    m_beginnings->clear();
    for (const Beginning &beginning : m_all)
        m_beginnings->addItem(NewListLines::caption(beginning));
    m_beginnings->setCurrentIndex(int(chosen));
    followBeginning();
    setWords({});
}

void NewListPanel::followBeginning()
{
    const Beginning now = beginning();
    m_dayRow->setVisible(now.hasDays);
    m_what->setText(NewListLines::what(now));
    if (!m_isNamed)
        m_name->setText(now.name);
}

QString NewListPanel::name() const
{
    return m_name->text().trimmed();
}

NewListPanel::Beginning NewListPanel::beginning() const
{
    const auto place = std::size_t(std::max(m_beginnings->currentIndex(), 0));
    return place < m_all.size() ? m_all[place] : Beginning();
}

std::optional<QDate> NewListPanel::day() const
{
    const QDate today = m_program.clock.today();
    return beginning().hasDays ? TypedDate::read(m_day->text(), m_program.state.dateStyle, today) : today;
}

void NewListPanel::refuse(const QString &why)
{
    setWords(why);
    if (!day())
        m_day->setFocus();
    else
        m_name->setFocus();
}
