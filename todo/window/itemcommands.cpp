// SPDX-License-Identifier: GPL-3.0-or-later
#include "todo/window/itemcommands.h"

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
    connect(&m_view.grid(), &ItemGrid::stepped, this, &ItemCommands::step);
    connect(&m_view.model(), &ItemsModel::dropped, this, [this](const std::vector<int> &ids, int before) {
        make(ToDoActions::move(m_desk.lists.sheet(), ids, m_view.shown().list, before));
    });
    connect(&m_view, &ItemsView::moved, this, &ItemCommands::captionTick);
    connect(&m_view.note(), &NoteBox::typed, this, [this](int id, const QString &note) {
        const ToDoActions::Result result = ToDoActions::setNote(m_desk.lists.sheet(), id, note);
        if (result.isChange() && m_desk.lists.change(result.title, result.sheet))
            emit done(result.title);
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
    edit->addSeparator();
    addOrderCommands(edit);
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
    add(
        edit, u"mENote"_s, u"N&ote"_s, [this] { openNote(); }, QKeySequence(Qt::CTRL | Qt::Key_E));
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
    m_desk.commands.writing(m_desk.commands.add(
        edit, u"mEOverdue"_s, u"Move &Overdue to Today"_s, [this] { moveOverdue(); },
        [this] { return m_desk.lists.whyLocked(); }));
}

void ItemCommands::addOrderCommands(QMenu *edit)
{
    Commands &commands = m_desk.commands;
    const auto order = [&](const QString &name, const QString &caption, std::function<void()> run, auto key) {
        commands.writing(commands.add(
            edit, name, caption, std::move(run), [this] { return whyNoOrder(); }, QKeySequence(key)));
    };
    order(
        u"mEUp"_s, u"Move &Up"_s, [this] { moveBy(-1); }, Qt::ALT | Qt::Key_Up);
    order(
        u"mEDown"_s, u"Move Do&wn"_s, [this] { moveBy(1); }, Qt::ALT | Qt::Key_Down);
    order(
        u"mEStep"_s, u"Make It a &Step"_s, [this] { step(true); }, Qt::ALT | Qt::Key_Right);
    order(
        u"mEItem"_s, u"Make It an &Item"_s, [this] { step(false); }, Qt::ALT | Qt::Key_Left);
    QMenu *lists = edit->addMenu(u"Move to &List"_s);
    lists->setObjectName(u"mEList"_s);
    connect(lists, &QMenu::aboutToShow, this, [this, lists] { fillListMenu(*lists); });
}

void ItemCommands::fillListMenu(QMenu &menu)
{
    menu.clear();
    const std::vector<int> ids = m_view.chosen();
    for (const ToDoList &list : m_desk.lists.sheet().lists()) {
        QString caption = list.name;
        QAction *action = menu.addAction(caption.replace(u'&', u"&&"_s));
        action->setEnabled(!ids.empty() && m_desk.lists.whyLocked().isEmpty() &&
                           !(m_view.shown().kind == Shown::List && m_view.shown().list == list.id));
        connect(action, &QAction::triggered, this, [this, ids, id = list.id] { moveToList(ids, id); });
    }
}

QString ItemCommands::whyNone() const
{
    const QString why = m_desk.lists.whyLocked();
    return !why.isEmpty() || !m_view.chosen().empty() ? why : ToDoWindowLines::noneChosen();
}

QString ItemCommands::whyNoOrder() const
{
    const QString why = whyNone();
    const bool isOwnOrder =
        m_view.shown().kind == Shown::List && m_view.model().order() == ToDoViews::Order::Own;
    return !why.isEmpty() || isOwnOrder ? why : ToDoWindowLines::ownOrderOnly();
}

/// False where nothing has changed.
bool ItemCommands::make(const ToDoActions::Result &result)
{
    if (!result.isChange() || !m_desk.lists.change(result.title, result.sheet))
        return false;
    m_view.choose(result.ids);
    emit done(result.title);
    return true;
}

void ItemCommands::takeNew(const QStringList &lines)
{
    const QDate today = m_desk.program.clock.today();
    ToDoItem pattern;
    pattern.list = m_view.listForNew();
    if (m_view.shown().kind != Shown::List)
        pattern.due = today;
    m_view.entry().clear();
    make(ToDoActions::newItems(m_desk.lists.sheet(), pattern, lines, 0, today));
}

void ItemCommands::takeTyped(int id, int column, const QString &text)
{
    const ToDoSheet &sheet = m_desk.lists.sheet();
    switch (column) {
    case ItemsModel::Text:
        make(ToDoActions::setText(sheet, id, text));
        break;
    case ItemsModel::Due:
    case ItemsModel::Actual:
        takeDate(id, column, text);
        break;
    case ItemsModel::Who:
        make(ToDoActions::setWho(sheet, {id}, text.trimmed()));
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
            make(ToDoActions::setOffset(sheet, {id}, offset));
        else
            emit said(ToDoWindowLines::notDays());
        return;
    }
    const auto date = isEmpty ? QDate() : TypedDate::read(text, m_desk.program.state.dateStyle, today);
    if (!date) {
        emit said(TypedDate::refusal());
        return;
    }
    if (column == ItemsModel::Due) {
        make(ToDoActions::setDue(sheet, {id}, *date));
    } else {
        m_view.model().keepInSight({id});
        make(ToDoActions::setActual(sheet, {id}, *date, today));
    }
    if (const QString question = date->isValid() ? TypedDate::question(*date, today) : QString();
        !question.isEmpty())
        m_view.grid().askQuietly(question);
}

void ItemCommands::takeRepeat(int id, const QString &text)
{
    const ToDoSheet &sheet = m_desk.lists.sheet();
    const QDate due = sheet.dueOf(sheet.rowOf(id));
    const auto rule = RepeatWords::read(text, due.isValid() ? due : m_desk.program.clock.today());
    if (!rule && !text.trimmed().isEmpty())
        emit said(ToDoWindowLines::notARepeat());
    else
        make(ToDoActions::setRepeat(sheet, {id}, rule ? rule->toFile() : QString()));
}

/// Ticks what is open; where all is done already, opens it again.
void ItemCommands::tick()
{
    const ToDoSheet &sheet = m_desk.lists.sheet();
    const QDate today = m_desk.program.clock.today();
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
    make(result);
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
    if (m_tick && m_tick->text() != caption)
        m_desk.commands.setCaption(m_tick, caption);
}

void ItemCommands::setDue(QDate due)
{
    make(ToDoActions::setDue(m_desk.lists.sheet(), m_view.chosen(), due));
}

void ItemCommands::moveOverdue()
{
    const int list = m_view.shown().kind == Shown::List ? m_view.shown().list : 0;
    if (!make(ToDoActions::moveOverdue(m_desk.lists.sheet(), list, m_desk.program.clock.today())))
        emit said(ToDoWindowLines::nothingOverdue());
}

/// The row that takes the place of the removed ones is chosen then.
void ItemCommands::remove()
{
    const std::vector<int> ids = m_view.chosen();
    if (ids.empty())
        return;
    const int row = m_view.model().rowOf(ids.front());
    const int column = m_view.grid().currentIndex().column();
    if (!make(ToDoActions::remove(m_desk.lists.sheet(), ids)))
        return;
    const int last = m_view.model().rowCount() - 1;
    if (last >= 0)
        m_view.grid().setCurrentIndex(m_view.model().index(std::min(row, last), std::max(column, 0)));
}

void ItemCommands::step(bool isStep)
{
    const ToDoSheet &sheet = m_desk.lists.sheet();
    const std::vector<int> ids = m_view.chosen();
    if (!make(isStep ? ToDoActions::indent(sheet, ids) : ToDoActions::outdent(sheet, ids)) && isStep)
        emit said(ToDoWindowLines::noItemAbove());
}

/// The row before which things are put that go up from `row`: the item, heading or step above. -1: there is
/// none.
int ItemCommands::placeAbove(int row) const
{
    const ItemsModel &model = m_view.model();
    const bool isStep = model.index(row, ItemsModel::Text).data(ItemsModel::stepRole).toBool();
    for (int above = row - 1; above >= 0; --above) {
        const QModelIndex index = model.index(above, ItemsModel::Text);
        const ToDoRow::Kind kind = model.rowAt(above).kind;
        const bool isItem = kind == ToDoRow::Item || kind == ToDoRow::Heading;
        if (isItem && index.data(ItemsModel::stepRole).toBool() == isStep)
            return above;
        if (isItem && isStep)
            return -1; // the item that it is a step of
    }
    return -1;
}

/// The row before which things are put that go down beyond what stands at `row`. -1: it is the last;
/// rowCount(): behind the last.
int ItemCommands::placeBelow(int row) const
{
    const ItemsModel &model = m_view.model();
    const bool isStep = model.index(row, ItemsModel::Text).data(ItemsModel::stepRole).toBool();
    int passed = 0;
    for (int below = row + 1; below < model.rowCount(); ++below) {
        const ToDoRow::Kind kind = model.rowAt(below).kind;
        if (kind == ToDoRow::Later)
            return passed == 1 ? below : -1;
        if (kind == ToDoRow::Note)
            continue;
        const bool isStepBelow = model.index(below, ItemsModel::Text).data(ItemsModel::stepRole).toBool();
        if (isStep && !isStepBelow)
            return passed == 1 ? below : -1;
        if (isStep == isStepBelow && ++passed == 2)
            return below;
    }
    return passed == 1 ? model.rowCount() : -1;
}

void ItemCommands::moveBy(int direction)
{
    const std::vector<int> ids = m_view.chosen();
    if (ids.empty())
        return;
    const ItemsModel &model = m_view.model();
    const int place =
        direction < 0 ? placeAbove(model.rowOf(ids.front())) : placeBelow(model.rowOf(ids.back()));
    if (place < 0) {
        moveBeyond(direction, ids);
        return;
    }
    const bool isBehindAll = place == model.rowCount() || model.rowAt(place).kind == ToDoRow::Later;
    make(ToDoActions::move(m_desk.lists.sheet(), ids, m_view.shown().list,
                           isBehindAll ? 0 : model.rowAt(place).id));
}

/// Up from the first place leads to the end of the list above, down from the last to the beginning of the one
/// below.
void ItemCommands::moveBeyond(int direction, const std::vector<int> &ids)
{
    const ToDoSheet &sheet = m_desk.lists.sheet();
    std::vector<int> lists;
    for (const ToDoList &list : sheet.lists()) {
        if (list.kind != ListKind::Template)
            lists.push_back(list.id);
    }
    const auto here = std::ranges::find(lists, m_view.shown().list);
    const bool isStep = sheet.levelOf(sheet.rowOf(ids.front())) == ItemLevel::Step;
    const auto place = here - lists.begin() + direction;
    if (here == lists.end() || isStep || place < 0 || place >= qsizetype(lists.size()))
        return;
    const int target = lists[std::size_t(place)];
    int before = 0;
    for (int row = 0; direction > 0 && before == 0 && row < sheet.rowCount(); ++row) {
        if (sheet.listOf(row) == target)
            before = sheet.idOf(row);
    }
    const ToDoActions::Result result = ToDoActions::move(sheet, ids, target, before);
    if (!result.isChange() || !m_desk.lists.change(result.title, result.sheet))
        return;
    emit listWanted(target);
    m_view.choose(result.ids);
    emit done(result.title);
}

void ItemCommands::moveToList(const std::vector<int> &ids, int list)
{
    const ToDoActions::Result result = ToDoActions::move(m_desk.lists.sheet(), ids, list, 0);
    if (result.isChange() && m_desk.lists.change(result.title, result.sheet))
        emit done(result.title);
}

/// Before the chosen row, and its words are to be typed over.
void ItemCommands::addHeading()
{
    const std::vector<int> ids = m_view.chosen();
    const int before = ids.empty() ? 0 : ids.front();
    if (!make(ToDoActions::newHeading(m_desk.lists.sheet(), m_view.shown().list,
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
