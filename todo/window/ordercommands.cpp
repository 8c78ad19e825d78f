// SPDX-License-Identifier: GPL-3.0-or-later
#include "todo/window/ordercommands.h"

#include "shell/frame/commands.h"
#include "todo/model/todoactions.h"
#include "todo/window/itemgrid.h"
#include "todo/window/itemsmodel.h"
#include "todo/window/itemsview.h"
#include "todo/window/openlists.h"
#include "todo/window/windowlines.h"

#include <QMenu>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

OrderCommands::OrderCommands(const ToDoDesk &desk, ItemsView &view, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
    , m_view(view)
{
    connect(&m_view.grid(), &ItemGrid::stepped, this, &OrderCommands::step);
    connect(&m_view.model(), &ItemsModel::dropped, this, [this](const std::vector<int> &ids, int before) {
        const int row = before > 0 ? m_view.model().rowOf(before) : m_view.model().rowCount();
        m_view.make(ToDoActions::move(m_desk.lists.sheet(), ids, m_view.shown().list,
                                      placeBehind(m_desk.lists.sheet(), shownAbove(row, ids), ids, before)));
    });
}

void OrderCommands::addCommands(QMenu *edit)
{
    edit->addSeparator();
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

void OrderCommands::fillListMenu(QMenu &menu)
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

QString OrderCommands::whyNoOrder() const
{
    if (const QString why = m_desk.lists.whyLocked(); !why.isEmpty())
        return why;
    if (!m_view.grid().isAnyChosen())
        return ToDoWindowLines::noneChosen();
    const bool isOwnOrder =
        m_view.shown().kind == Shown::List && m_view.model().order() == ToDoViews::Order::Own;
    return isOwnOrder ? QString() : ToDoWindowLines::ownOrderOnly();
}

/// Where it has a step of the item that is seen above it, nothing done that is not shown may stand between.
void OrderCommands::step(bool isStep)
{
    if (!whyNoOrder().isEmpty())
        return;
    ToDoSheet sheet = m_desk.lists.sheet();
    const std::vector<int> ids = m_view.chosen();
    for (const int id : ids) {
        const int above = isStep ? shownAbove(m_view.model().rowOf(id), {id}) : 0;
        if (above > 0)
            sheet = ToDoActions::move(sheet, {id}, m_view.shown().list, placeBehind(sheet, above, {id}, id))
                        .sheet;
    }
    if (!m_view.make(isStep ? ToDoActions::indent(sheet, ids) : ToDoActions::outdent(sheet, ids)) && isStep)
        emit m_view.said(ToDoWindowLines::noItemAbove());
}

/// What is shown above a row, beside `ids`; 0: nothing.
int OrderCommands::shownAbove(int row, const std::vector<int> &ids) const
{
    const ItemsModel &model = m_view.model();
    for (int above = row - 1; above >= 0; --above) {
        const ToDoRow &shown = model.rowAt(above);
        const bool isItem = shown.kind == ToDoRow::Item || shown.kind == ToDoRow::Heading;
        if (isItem && std::ranges::find(ids, shown.id) == ids.end())
            return shown.id;
    }
    return 0;
}

/// Before what `ids` are put, to stand right behind `above` in their list and before anything that is not
/// shown; `before` where there is nothing above. 0: to the end.
int OrderCommands::placeBehind(const ToDoSheet &sheet, int above, const std::vector<int> &ids,
                               int before) const
{
    if (above == 0)
        return before;
    std::vector<int> moved;
    for (const int id : ids) {
        const std::vector<int> steps = ToDoActions::withSteps(sheet, id);
        moved.insert(moved.end(), steps.begin(), steps.end());
    }
    const auto isStep = [&sheet](int row) { return sheet.levelOf(row) == ItemLevel::Step; };
    const bool areSteps = !moved.empty() && isStep(sheet.rowOf(moved.front()));
    const int list = sheet.listOf(sheet.rowOf(above));
    for (int row = sheet.rowOf(above) + 1; row < sheet.rowCount(); ++row) {
        const int id = sheet.idOf(row);
        const bool isTheirs = isStep(row) && !areSteps && m_view.model().rowOf(id) < 0;
        if (sheet.listOf(row) == list && !isTheirs && std::ranges::find(moved, id) == moved.end())
            return id;
    }
    return 0;
}

/// The row before which things are put that go up from `row`: the item, heading or step above. -1: there is
/// none.
int OrderCommands::placeAbove(int row) const
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
int OrderCommands::placeBelow(int row) const
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

void OrderCommands::moveBy(int direction)
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
    const int before = isBehindAll ? 0 : model.rowAt(place).id;
    const ToDoSheet &sheet = m_desk.lists.sheet();
    m_view.make(ToDoActions::move(sheet, ids, m_view.shown().list,
                                  placeBehind(sheet, shownAbove(place, ids), ids, before)));
}

/// Up from the first place leads to the end of the list above, down from the last to the beginning of the one
/// below.
void OrderCommands::moveBeyond(int direction, const std::vector<int> &ids)
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
    emit m_view.done(result.title);
}

void OrderCommands::moveToList(const std::vector<int> &ids, int list)
{
    const ToDoActions::Result result = ToDoActions::move(m_desk.lists.sheet(), ids, list, 0);
    if (result.isChange() && m_desk.lists.change(result.title, result.sheet))
        emit m_view.done(result.title);
}
