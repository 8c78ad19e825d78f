// SPDX-License-Identifier: GPL-3.0-or-later
#include "todo/window/printpanel.h"

#include "shell/controls/datebox.h"
#include "shell/controls/datepicker.h"
#include "shell/controls/taborder.h"
#include "shell/program/program.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QRadioButton>
#include <QSettings>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

using ToDoPages::Options;

constexpr QLatin1StringView keys("Windows/ToDo1/print/");
constexpr int boxesWidth = 264;
constexpr int usualDays = 30; ///< of what was done

struct Look {
    bool Options::*option;
    QStringView caption;
    QLatin1StringView name;
};
constexpr std::array<Look, 4> looks{
    {{&Options::hasBoxes, u"&Boxes to tick", "printBoxes"_L1},
     {&Options::hasDates, u"&Dates", "printDates"_L1},
     {&Options::hasNotes, u"&Notes", "printNotes"_L1},
     {&Options::hasEmptyLines, u"Empty lines to &write on", "printEmpty"_L1}}};

QString captionOf(int what)
{
    switch (what) {
    case Options::List:
        return u"A list"_s;
    case Options::AllLists:
        return u"All lists"_s;
    case Options::Today:
        return u"Today"_s;
    case Options::Persons:
        return u"By person"_s;
    default:
        return u"Done"_s;
    }
}

} // namespace

ToDoPrintPanel::ToDoPrintPanel(const Program &program, QWidget *window, QWidget *parent)
    : TaskPanel(u"toDoPrintPanel"_s, u"Print Options"_s, parent)
    , m_program(program)
    , m_what(new QButtonGroup(this))
    , m_lists(named(new QComboBox(this), u"printList"_s))
    , m_persons(named(new QComboBox(this), u"printPerson"_s))
    , m_days(new QWidget(this))
{
    auto *picker = new DatePicker(program.clock, program.settings, window, u"printCalendar"_s);
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
    makeLook(*column);
    column->addStretch(1);
    setContent(content);
    QPushButton *show = addButton(u"toDoPrintShow"_s, u"Show &Pages"_s, ButtonKind::Main);
    QPushButton *close = setLeaveButton(u"toDoPrintClose"_s, u"C&lose"_s);
    TabOrder::findTheChosen(*m_what);
    QWidget *last = TabOrder::follow(*m_days->layout(), TabOrder::follow(*choices->layout()));
    last = TabOrder::follow(*column, last);
    for (QWidget *button : {show, close})
        setTabOrder(std::exchange(last, button), button);
    connect(show, &QPushButton::clicked, this, &ToDoPrintPanel::accepted);
    connect(m_what, &QButtonGroup::idToggled, this, &ToDoPrintPanel::follow);
}

QWidget *ToDoPrintPanel::makeDays()
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
QWidget *ToDoPrintPanel::makeChoices()
{
    auto *choices = new QWidget(this);
    auto *grid = new QGridLayout(choices);
    grid->setContentsMargins({});
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(8);
    grid->setColumnStretch(2, 1);
    makeDays();
    const std::array<QWidget *, 5> besides{m_lists, nullptr, nullptr, m_persons, m_days};
    m_lists->setAccessibleName(captionOf(Options::List));
    m_persons->setAccessibleName(captionOf(Options::Persons));
    for (int what = Options::List; what <= Options::Done; ++what) {
        auto *choice = named(new QRadioButton(captionOf(what), choices), u"printWhat_%1"_s.arg(what));
        m_what->addButton(choice, what);
        grid->addWidget(choice, what, 0);
        grid->setRowMinimumHeight(what, 36);
        QWidget *beside = besides[std::size_t(what)];
        if (!beside)
            continue;
        if (beside != m_days)
            beside->setFixedWidth(boxWidth({}, boxesWidth));
        grid->addWidget(beside, what, 1);
    }
    return choices;
}

void ToDoPrintPanel::makeLook(QVBoxLayout &column)
{
    for (std::size_t i = 0; i < looks.size(); ++i) {
        const Look &look = looks[i];
        auto *box = named(new QCheckBox(look.caption.toString(), this), look.name);
        box->setChecked(m_program.store.value(keys + look.name, Options().*look.option).toBool());
        connect(box, &QCheckBox::toggled, this,
                [this, name = look.name](bool isOn) { m_program.store.setValue(keys + name, isOn); });
        column.addWidget(box);
        m_look[i] = box;
    }
}

void ToDoPrintPanel::start(const ToDoSheet &sheet, const Shown &shown)
{
    m_lists->clear();
    for (const ToDoList &list : sheet.lists())
        m_lists->addItem(list.name, list.id);
    if (shown.kind == Shown::List)
        m_lists->setCurrentIndex(m_lists->findData(shown.list));
    m_persons->clear();
    m_persons->addItem(u"Everybody, each on a sheet"_s);
    for (const QString &person : ToDoPages::persons(sheet))
        m_persons->addItem(person, person);
    const QDate today = m_program.clock.today();
    m_from->setDate(today.addDays(1 - usualDays));
    m_to->setDate(today);
    const int what = shown.kind == Shown::List       ? Options::List
                     : shown.kind == Shown::ByPerson ? Options::Persons
                     : shown.kind == Shown::Done     ? Options::Done
                     : shown.kind == Shown::Today    ? Options::Today
                                                     : Options::AllLists;
    m_what->button(what)->setChecked(true);
    setFocusProxy(m_what->button(what));
    follow();
}

void ToDoPrintPanel::follow()
{
    const int what = m_what->checkedId();
    m_lists->setEnabled(what == Options::List);
    m_persons->setEnabled(what == Options::Persons);
    m_days->setEnabled(what == Options::Done);
}

Options ToDoPrintPanel::options() const
{
    Options options;
    const QDate today = m_program.clock.today();
    options.what = Options::What(std::max(m_what->checkedId(), 0));
    options.list = m_lists->currentData().toInt();
    options.person = m_persons->currentData().toString();
    options.from = m_from->date().value_or(today.addDays(1 - usualDays));
    options.to = std::max(options.from, m_to->date().value_or(today));
    for (std::size_t i = 0; i < looks.size(); ++i)
        options.*looks[i].option = m_look[i]->isChecked();
    return options;
}
