// SPDX-License-Identifier: GPL-3.0-or-later
#include "todo/window/printpanel.h"

#include "shell/controls/choicegrid.h"
#include "shell/controls/dayspan.h"
#include "shell/program/program.h"

#include <QCheckBox>
#include <QComboBox>
#include <QSettings>
#include <QVBoxLayout>

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
    : PrintPanel(u"toDoPrint"_s, parent)
    , m_program(program)
    , m_lists(named(new QComboBox(this), u"printList"_s))
    , m_persons(named(new QComboBox(this), u"printPerson"_s))
    , m_days(
          new DaySpan(u"print"_s, {program.state.dateStyle, program.clock}, program.settings, window, this))
{
    fillChoices();
    compose(makeLook());
    addClose();
}

void ToDoPrintPanel::fillChoices()
{
    const std::array<QWidget *, 5> besides{m_lists, nullptr, nullptr, m_persons, m_days};
    for (int each = Options::List; each <= Options::Done; ++each)
        what().add(captionOf(each), besides[std::size_t(each)]);
    for (QComboBox *box : {m_lists, m_persons}) {
        box->setAccessibleName(captionOf(box == m_lists ? Options::List : Options::Persons));
        box->setFixedWidth(boxWidth({}, boxesWidth));
    }
}

QLayout *ToDoPrintPanel::makeLook()
{
    auto *column = new QVBoxLayout;
    column->setSpacing(8);
    for (std::size_t i = 0; i < looks.size(); ++i) {
        const Look &look = looks[i];
        auto *box = named(new QCheckBox(look.caption.toString(), this), look.name);
        box->setChecked(m_program.store.value(keys + look.name, Options().*look.option).toBool());
        connect(box, &QCheckBox::toggled, this,
                [this, name = look.name](bool isOn) { m_program.store.setValue(keys + name, isOn); });
        column->addWidget(box);
        m_look[i] = box;
    }
    return column;
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
    m_days->setDays(today.addDays(1 - usualDays), today);
    const int proposed = shown.kind == Shown::List       ? Options::List
                         : shown.kind == Shown::ByPerson ? Options::Persons
                         : shown.kind == Shown::Done     ? Options::Done
                         : shown.kind == Shown::Today    ? Options::Today
                                                         : Options::AllLists;
    what().choose(proposed);
    setWords({});
}

QString ToDoPrintPanel::refuse()
{
    return what().chosen() == Options::Done ? m_days->refuse() : QString();
}

Options ToDoPrintPanel::options() const
{
    Options options;
    options.what = Options::What(what().chosen());
    options.list = m_lists->currentData().toInt();
    options.person = m_persons->currentData().toString();
    options.from = m_days->from();
    options.to = m_days->to();
    for (std::size_t i = 0; i < looks.size(); ++i)
        options.*looks[i].option = m_look[i]->isChecked();
    return options;
}
