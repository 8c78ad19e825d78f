// SPDX-License-Identifier: GPL-3.0-or-later
#include "todo/window/itemcommands.h"

#include "shell/controls/buttonrow.h"
#include "shell/frame/commands.h"
#include "shell/frame/commonkeys.h"
#include "shell/program/program.h"
#include "todo/model/repeat.h"
#include "todo/model/repeatwords.h"
#include "todo/model/typeddate.h"
#include "todo/window/entryline.h"
#include "todo/window/itemgrid.h"
#include "todo/window/itemsmodel.h"
#include "todo/window/itemsview.h"
#include "todo/window/notebox.h"
#include "todo/window/openlists.h"
#include "todo/window/windowlines.h"

#include <QMenu>
#include <QTimer>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

ItemCommands::ItemCommands(const ToDoDesk &desk, ItemsView &view, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
    , m_view(view)
{
    connectView();
}

void ItemCommands::connectView()
{
    connect(&m_view.entry(), &EntryLine::entered, this, &ItemCommands::takeNew);
    connect(&m_view.model(), &ItemsModel::typed, this, &ItemCommands::takeTyped);
    connect(&m_view.grid(), &ItemGrid::ticked, this, &ItemCommands::tick);
    connect(&m_view, &ItemsView::moved, this, &ItemCommands::captionTick);
    connect(&m_view.note(), &NoteBox::typed, this, [this](int id, const QString &note) {
        const ToDoActions::Result result = ToDoActions::setNote(m_desk.lists.sheet(), id, note);
        if (result.isChange() && m_desk.lists.change(result.title, result.sheet))
            emit m_view.done(result.title);
    });
    connect(&m_view.note(), &NoteBox::left, this, [this] {
        m_view.model().openNote(m_view.model().noteOpened());
        m_view.grid().setFocus();
    });
}

QAction *ItemCommands::add(QMenu *menu, const QString &name, const QString &caption,
                           std::function<void()> run, const QKeySequence &key)
{
    return m_desk.commands.writing(m_desk.commands.add(
        menu, name, caption, std::move(run), [this] { return whyNone(); }, key));
}

void ItemCommands::addCommands(QMenu *edit)
{
    edit->addSeparator();
    addRowCommands(edit);
    edit->addSeparator();
    addDateCommands(edit);
}

void ItemCommands::addRowCommands(QMenu *edit)
{
    Commands &commands = m_desk.commands;
    const auto unlessNew = [this] {
        const QString why = m_desk.lists.whyLocked();
        return !why.isEmpty() || m_view.takesNew() ? why : ToDoWindowLines::noNewHere();
    };
    m_add = commands.writing(commands.add(
        nullptr, u"addItem"_s, u"&Add"_s, [this] { takeNew({m_view.entry().text()}); }, unlessNew));
    QAction *create = commands.writing(commands.add(
        edit, u"mENew"_s, u"&New Item"_s, [this] { m_view.typeNew(); }, unlessNew, CommonKeys::newEntry));
    commands.tool(create, "new-entry"_L1, u"New Item"_s);
    commands.writing(commands.add(
        edit, u"mEHead"_s, u"New &Heading"_s, [this] { addHeading(); },
        [this] {
            const QString why = m_desk.lists.whyLocked();
            return !why.isEmpty() || m_view.shown().kind == Shown::List ? why
                                                                        : ToDoWindowLines::noListChosen();
        },
        QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_H)));
    m_tick = add(
        edit, u"mETick"_s, u"&Done"_s, [this] { tick(); }, QKeySequence(Qt::CTRL | Qt::Key_D));
    commands.add(
        edit, u"mENote"_s, u"N&ote"_s, [this] { openNote(); },
        [this] { return m_view.grid().isAnyChosen() ? QString() : ToDoWindowLines::noneChosen(); },
        QKeySequence(Qt::CTRL | Qt::Key_E));
    m_remove = add(edit, u"mEDel"_s, u"&Remove"_s, [this] { remove(); });
    commands.setKeyIn(&m_view.grid(), m_remove, CommonKeys::remove);
}

void ItemCommands::addDateCommands(QMenu *edit)
{
    const auto today = [this] { return m_desk.program.clock.today(); };
    QAction *now = add(
        edit, u"mEToday"_s, u"&Today"_s, [=, this] { setDue(today()); }, QKeySequence(Qt::CTRL | Qt::Key_T));
    m_desk.commands.tool(now, "today"_L1, u"Today"_s, u"mEToday_tool"_s);
    add(
        edit, u"mETomorrow"_s, u"To&morrow"_s, [=, this] { setDue(today().addDays(1)); },
        QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_T));
    add(edit, u"mENoDate"_s, u"No D&ate"_s, [this] { setDue({}); });
    m_overdue = m_desk.commands.writing(m_desk.commands.add(
        edit, u"mEOverdue"_s, u"Move &Overdue to Today"_s, [this] { moveOverdue(); },
        [this] { return m_desk.lists.whyLocked(); }));
}

QString ItemCommands::whyNone() const
{
    const QString why = m_desk.lists.whyLocked();
    return !why.isEmpty() || m_view.grid().isAnyChosen() ? why : ToDoWindowLines::noneChosen();
}

void ItemCommands::takeNew(const QStringList &lines)
{
    const QDate today = m_desk.program.clock.today();
    ToDoItem pattern;
    pattern.list = m_view.listForNew();
    if (m_view.shown().kind != Shown::List)
        pattern.due = today;
    m_view.entry().clear();
    m_view.make(ToDoActions::newItems(m_desk.lists.sheet(), pattern, lines, 0, today));
}

void ItemCommands::takeLine()
{
    const bool hasList = m_desk.lists.sheet().list(m_view.listForNew()) != nullptr;
    if (hasList && m_view.takesNew() && !m_view.entry().text().trimmed().isEmpty())
        takeNew({m_view.entry().text()});
}

void ItemCommands::takeTyped(int id, int column, const QString &text)
{
    const ToDoSheet &sheet = m_desk.lists.sheet();
    switch (column) {
    case ItemsModel::Text:
        m_view.make(ToDoActions::setText(sheet, id, text));
        hintAtLength(id);
        break;
    case ItemsModel::Due:
    case ItemsModel::Actual:
        takeDate(id, column, text);
        break;
    case ItemsModel::Who:
        m_view.make(ToDoActions::setWho(sheet, {id}, text.trimmed()));
        break;
    case ItemsModel::Repeat:
        takeRepeat(id, text);
        break;
    default:
        break;
    }
}

void ItemCommands::takeDate(int id, int column, const QString &text)
{
    const ToDoSheet &sheet = m_desk.lists.sheet();
    const QDate today = m_desk.program.clock.today();
    const bool isEmpty = text.trimmed().isEmpty();
    const ToDoList *list = sheet.list(sheet.listOf(sheet.rowOf(id)));
    if (list && list->kind == ListKind::Template && column == ItemsModel::Due) {
        const auto offset = TypedDate::readOffset(text);
        if (isEmpty || offset)
            m_view.make(ToDoActions::setOffset(sheet, {id}, offset));
        else
            refuse(id, column, text, ToDoWindowLines::notDays());
        return;
    }
    const auto date = isEmpty ? QDate() : TypedDate::read(text, m_desk.program.state.dateStyle, today);
    if (!date) {
        refuse(id, column, text, TypedDate::refusal());
        return;
    }
    if (column == ItemsModel::Due) {
        m_view.make(ToDoActions::setDue(sheet, {id}, *date));
        hintAtLength(id);
    } else {
        m_view.model().keepInSight({id});
        m_view.make(ToDoActions::setActual(sheet, {id}, *date, today));
    }
    if (const QString question = date->isValid() ? TypedDate::question(*date, today) : QString();
        !question.isEmpty())
        m_view.grid().askQuietly(question);
}

/// Says why, and lets the text be typed over once the keys that ended it have been dealt with.
void ItemCommands::refuse(int id, int column, const QString &text, const QString &why)
{
    emit m_view.said(why);
    QTimer::singleShot(0, this, [this, id, column, text] {
        const int row = m_view.model().rowOf(id);
        if (row >= 0 && m_view.grid().isInUse())
            m_view.grid().typeAgain(m_view.model().index(row, column), text);
    });
}

/// The planner has less room for a text than the lists.
void ItemCommands::hintAtLength(int id)
{
    const ToDoSheet &sheet = m_desk.lists.sheet();
    const int row = sheet.rowOf(id);
    if (row >= 0 && sheet.dueOf(row).isValid() && !sheet.isDone(row) &&
        sheet.item(row).text.size() > ToDoWindowLines::plannerRoom)
        m_view.grid().askQuietly(ToDoWindowLines::tooLong());
}

void ItemCommands::takeRepeat(int id, const QString &text)
{
    const ToDoSheet &sheet = m_desk.lists.sheet();
    const QDate due = sheet.dueOf(sheet.rowOf(id));
    const auto rule = RepeatWords::read(text, due.isValid() ? due : m_desk.program.clock.today());
    if (!rule && !text.trimmed().isEmpty())
        refuse(id, ItemsModel::Repeat, text, ToDoWindowLines::notARepeat());
    else
        m_view.make(ToDoActions::setRepeat(sheet, {id}, rule ? rule->toFile() : QString()));
}

/// Ticks what is open; where all is done already, opens it again.
void ItemCommands::tick()
{
    const ToDoSheet &sheet = m_desk.lists.sheet();
    const QDate today = m_desk.program.clock.today();
    if (m_view.isTemplate()) {
        emit m_view.said(ToDoWindowLines::templateNotTicked());
        return;
    }
    std::vector<int> open;
    std::vector<int> done;
    for (const int id : m_view.chosen()) {
        const int row = sheet.rowOf(id);
        if (sheet.levelOf(row) != ItemLevel::Heading)
            (sheet.isDone(row) ? done : open).push_back(id);
    }
    if (open.empty() && done.empty())
        return;
    for (const int id : open)
        m_view.model().keepInSight(ToDoActions::withSteps(sheet, id));
    m_view.model().keepInSight(done);
    const ToDoActions::Result result =
        open.empty() ? ToDoActions::untick(sheet, done) : ToDoActions::tick(sheet, open, today, today);
    if (m_view.make(result) && open.size() == 1)
        tellNext(open.front(), result.title);
}

/// When what was ticked comes back, and whose turn it is then.
void ItemCommands::tellNext(int done, const QString &title)
{
    const ToDoSheet &sheet = m_desk.lists.sheet();
    const int ticked = sheet.rowOf(done);
    for (int row = 0; ticked >= 0 && row < sheet.rowCount(); ++row) {
        const bool isSame = sheet.idOf(row) > done && sheet.listOf(row) == sheet.listOf(ticked) &&
                            sheet.isOpen(row) && sheet.textBytes(row) == sheet.textBytes(ticked);
        if (!isSame || sheet.item(row).repeat.isEmpty() || !sheet.dueOf(row).isValid())
            continue;
        emit m_view.done(title + ToDoWindowLines::next(sheet.item(row), m_desk.program.clock.today(),
                                                       m_desk.program.state.dateStyle));
        return;
    }
}

/// The command says which of the two it would do.
void ItemCommands::captionTick()
{
    const ToDoSheet &sheet = m_desk.lists.sheet();
    const std::vector<int> ids = m_view.chosen();
    const bool isDone = !ids.empty() && std::ranges::all_of(ids, [&sheet](int id) {
        const int row = sheet.rowOf(id);
        return row >= 0 && sheet.isDone(row);
    });
    const QString caption = isDone ? u"Not &Done"_s : u"&Done"_s;
    if (m_tick && m_tick->text() != caption) {
        m_desk.commands.setCaption(m_tick, caption);
        m_view.foot().rearrange();
    }
}

void ItemCommands::setDue(QDate due)
{
    if (m_view.isTemplate()) {
        emit m_view.said(ToDoWindowLines::notDays());
        return;
    }
    m_view.make(ToDoActions::setDue(m_desk.lists.sheet(), m_view.chosen(), due));
}

void ItemCommands::moveOverdue()
{
    const int list = m_view.shown().kind == Shown::List ? m_view.shown().list : 0;
    if (!m_view.make(ToDoActions::moveOverdue(m_desk.lists.sheet(), list, m_desk.program.clock.today())))
        emit m_view.said(ToDoWindowLines::nothingOverdue());
}

/// The row that takes the place of the removed ones is chosen then.
void ItemCommands::remove()
{
    const std::vector<int> ids = m_view.chosen();
    if (ids.empty())
        return;
    const int row = m_view.model().rowOf(ids.front());
    const int column = m_view.grid().currentIndex().column();
    if (!m_view.make(ToDoActions::remove(m_desk.lists.sheet(), ids)))
        return;
    const int last = m_view.model().rowCount() - 1;
    if (last >= 0)
        m_view.grid().setCurrentIndex(m_view.model().index(std::min(row, last), std::max(column, 0)));
}

/// Before the chosen row, and its words are to be typed over.
void ItemCommands::addHeading()
{
    const std::vector<int> ids = m_view.chosen();
    const int before = ids.empty() ? 0 : ids.front();
    if (!m_view.make(ToDoActions::newHeading(m_desk.lists.sheet(), m_view.shown().list,
                                             ToDoWindowLines::newHeading(), before)))
        return;
    m_view.grid().setFocus();
    m_view.grid().type(m_view.grid().currentIndex());
}

void ItemCommands::openNote()
{
    const std::vector<int> ids = m_view.chosen();
    const bool isItem = !ids.empty() && m_desk.lists.sheet().levelOf(
                                            m_desk.lists.sheet().rowOf(ids.front())) != ItemLevel::Heading;
    if (!isItem)
        return;
    m_view.finishEdit();
    m_view.model().openNote(ids.front());
    if (m_view.note().isVisible())
        m_view.note().setFocus();
}
