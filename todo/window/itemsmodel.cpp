// SPDX-License-Identifier: GPL-3.0-or-later
#include "todo/window/itemsmodel.h"

#include "shell/controls/itemdrag.h"
#include "shell/core/dates.h"
#include "shell/program/householdnames.h"
#include "shell/program/program.h"
#include "todo/model/repeat.h"
#include "todo/window/openlists.h"
#include "todo/window/windowlines.h"

#include <QMimeData>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {
/// A view takes longer to let more rows come and go than to begin anew.
constexpr int mostMoved = 200;
} // namespace

ItemsModel::ItemsModel(const Program &program, const OpenLists &lists, QObject *parent)
    : QAbstractTableModel(parent)
    , m_program(program)
    , m_lists(lists)
{}

void ItemsModel::show(const Shown &shown)
{
    const bool isOther = shown.kind != m_shown.kind || shown.list != m_shown.list;
    m_shown = shown;
    if (isOther) {
        m_ticked.clear();
        m_openNote = 0;
        m_isLaterShown = false;
        m_order = ToDoViews::Order::Own;
        m_isBackwards = false;
    }
}

void ItemsModel::refresh()
{
    setRows(ToDoViews::rows(m_lists.sheet(), {.shown = m_shown,
                                              .today = m_program.clock.today(),
                                              .style = m_program.state.dateStyle,
                                              .order = m_order,
                                              .isBackwards = m_isBackwards,
                                              .isLaterShown = m_isLaterShown,
                                              .ticked = m_ticked,
                                              .openNote = m_openNote}));
}

/// What both have at the beginning and at the end stays; the rest goes and comes. So the view stays where it
/// is.
void ItemsModel::setRows(std::vector<ToDoRow> rows)
{
    const auto front = std::ranges::mismatch(m_rows, rows);
    const auto first = std::size_t(front.in1 - m_rows.begin());
    std::size_t behind = 0;
    while (behind < m_rows.size() - first && behind < rows.size() - first &&
           m_rows[m_rows.size() - 1 - behind] == rows[rows.size() - 1 - behind])
        ++behind;
    const auto goes = int(m_rows.size() - first - behind);
    const auto comes = int(rows.size() - first - behind);
    if (goes + comes > mostMoved) {
        beginResetModel();
        m_rows = std::move(rows);
        endResetModel();
        return;
    }
    if (goes > 0) {
        beginRemoveRows({}, int(first), int(first) + goes - 1);
        m_rows.erase(m_rows.begin() + qsizetype(first), m_rows.begin() + qsizetype(first) + goes);
        endRemoveRows();
    }
    if (comes > 0) {
        beginInsertRows({}, int(first), int(first) + comes - 1);
        m_rows.insert(m_rows.begin() + qsizetype(first), rows.begin() + qsizetype(first),
                      rows.begin() + qsizetype(first) + comes);
        endInsertRows();
    }
    if (!m_rows.empty())
        emit dataChanged(index(0, 0), index(rowCount() - 1, columns - 1));
}

void ItemsModel::sortBy(Column column)
{
    const auto order = column == Due ? ToDoViews::Order::ByDue : ToDoViews::Order::ByActual;
    if (m_order == order && m_isBackwards)
        m_order = ToDoViews::Order::Own;
    else
        m_isBackwards = std::exchange(m_order, order) == order;
    refresh();
}

void ItemsModel::unfoldLater()
{
    m_isLaterShown = !m_isLaterShown;
    refresh();
}

void ItemsModel::openNote(int id)
{
    m_openNote = m_openNote == id ? 0 : id;
    refresh();
}

void ItemsModel::keepInSight(const std::vector<int> &ids)
{
    for (const int id : ids)
        m_ticked.insert(id);
}

int ItemsModel::rowOf(int id) const
{
    const auto found = std::ranges::find_if(m_rows, [id](const ToDoRow &row) {
        return row.id == id && (row.kind == ToDoRow::Item || row.kind == ToDoRow::Heading);
    });
    return found == m_rows.end() ? -1 : int(found - m_rows.begin());
}

std::vector<int> ItemsModel::itemsBetween(int first, int last) const
{
    std::vector<int> items;
    for (int row = std::max(first, 0); row <= last && row < rowCount(); ++row) {
        if (rowAt(row).kind == ToDoRow::Item || rowAt(row).kind == ToDoRow::Heading)
            items.push_back(rowAt(row).id);
    }
    return items;
}

bool ItemsModel::isOverdue(int sheetRow) const
{
    const QDate due = m_lists.sheet().dueOf(sheetRow);
    return due.isValid() && due < m_program.clock.today() && !m_lists.sheet().isDone(sheetRow);
}

QString ItemsModel::spoken(int row) const
{
    const ToDoRow &shown = rowAt(row);
    if (shown.kind == ToDoRow::Group || shown.kind == ToDoRow::Later)
        return shown.words;
    const ToDoItem item = m_lists.sheet().item(m_lists.sheet().rowOf(shown.id));
    return ToDoWindowLines::spoken(item, m_program.clock.today(), m_program.state.dateStyle);
}

QString ItemsModel::text(const ToDoItem &item, int column, int role) const
{
    const DateStyle &style = m_program.state.dateStyle;
    const QDate today = m_program.clock.today();
    const bool isShown = role == Qt::DisplayRole;
    switch (column) {
    case Text:
        return item.text;
    case Due:
        if (item.offset)
            return ToDoWindowLines::offset(*item.offset, isShown);
        return isShown ? ToDoWindowLines::due(item, today, style)
                       : ToDoWindowLines::typedForm(item.due, style);
    case Actual:
        return isShown ? ToDoWindowLines::shortDay(item.actual, today, style)
                       : ToDoWindowLines::typedForm(item.actual, style);
    case Who:
        return item.who;
    case Repeat:
        return ToDoWindowLines::repeat(item, today, style, isShown);
    case List: {
        const ToDoList *list = m_lists.sheet().list(item.list);
        return list ? list->name : QString();
    }
    default:
        return {};
    }
}

/// Who may be meant, first those who have something to do already. Only asked for when somebody types there.
QStringList ItemsModel::names() const
{
    QStringList names;
    const ToDoSheet &sheet = m_lists.sheet();
    for (int row = 0; row < sheet.rowCount(); ++row) {
        if (sheet.isOpen(row))
            names << sheet.item(row).who;
    }
    names += HouseholdNames::of(m_program);
    names.removeAll(QString());
    names.removeDuplicates();
    return names;
}

QVariant ItemsModel::itemData(int row, int column, int role) const
{
    const ToDoSheet &sheet = m_lists.sheet();
    const int place = sheet.rowOf(rowAt(row).id);
    if (place < 0)
        return {};
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return text(sheet.item(place), column, role);
    case Qt::AccessibleTextRole:
        return column == Text   ? spoken(row)
               : column == Tick ? ToDoWindowLines::tickSpoken(sheet.isDone(place))
                                : text(sheet.item(place), column, Qt::DisplayRole);
    case Qt::ToolTipRole:
        return column == Text ? QVariant(sheet.item(place).note) : QVariant();
    case GridCell::choicesRole:
        return column == Who ? QVariant(names()) : QVariant();
    case doneRole:
        return sheet.isDone(place);
    case stepRole:
        return sheet.levelOf(place) == ItemLevel::Step;
    case GridCell::quietRole:
        return column == List || sheet.isDone(place);
    case GridCell::alarmRole:
        return column == Due && isOverdue(place) ? GridCell::Overdue : GridCell::NoAlarm;
    case GridCell::signRole:
        if (column == Due && isOverdue(place))
            return u"overdue"_s;
        return column == Text && !sheet.noteBytes(place).isEmpty() ? u"note"_s : QString();
    default:
        return {};
    }
}

int ItemsModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int ItemsModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : columns;
}

QVariant ItemsModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const ToDoRow &row = rowAt(index.row());
    switch (role) {
    case rowKindRole:
        return row.kind;
    case idRole:
        return row.id;
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(Qt::AlignVCenter | Qt::AlignLeft);
    case GridCell::kindRole:
        return int(index.column() == Due || index.column() == Actual ? GridCell::Kind::Date
                                                                     : GridCell::Kind::Words);
    default:
        break;
    }
    if (row.kind == ToDoRow::Item || (row.kind == ToDoRow::Heading && index.column() == Tick))
        return itemData(index.row(), row.kind == ToDoRow::Item ? index.column() : int(Text), role);
    if (row.kind == ToDoRow::Note || index.column() != Tick)
        return {};
    switch (role) {
    case Qt::DisplayRole:
    case Qt::AccessibleTextRole:
        return row.words;
    case Qt::ToolTipRole:
        return row.list > 0 ? QVariant(ToDoWindowLines::showsList(row.words)) : QVariant();
    case GridCell::quietRole:
        return row.kind == ToDoRow::Later;
    case GridCell::signRole:
        return row.kind != ToDoRow::Later ? QString() : m_isLaterShown ? u"up"_s : u"down"_s;
    default:
        return {};
    }
}

QVariant ItemsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return section == Tick ? QString() : ToDoWindowLines::heading(section);
    case Qt::AccessibleTextRole:
    case Qt::ToolTipRole:
        return isSortable() ? ToDoWindowLines::headingTip(section) : ToDoWindowLines::heading(section);
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(Qt::AlignVCenter | Qt::AlignLeft);
    default:
        return {};
    }
}

Qt::ItemFlags ItemsModel::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return Qt::ItemIsDropEnabled;
    const ToDoRow::Kind kind = rowAt(index.row()).kind;
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    if (kind == ToDoRow::Note)
        return Qt::ItemIsEnabled;
    if (kind == ToDoRow::Group || kind == ToDoRow::Later)
        return flags;
    const bool isCell =
        kind == ToDoRow::Heading ? index.column() == Tick : index.column() != Tick && index.column() != List;
    const bool isTyped = isCell && m_lists.whyLocked().isEmpty();
    return flags | Qt::ItemIsDragEnabled | (isTyped ? Qt::ItemIsEditable : Qt::NoItemFlags);
}

bool ItemsModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::EditRole || !flags(index).testFlag(Qt::ItemIsEditable))
        return false;
    const ToDoRow &row = rowAt(index.row());
    emit typed(row.id, row.kind == ToDoRow::Heading ? int(Text) : index.column(), value.toString());
    return true;
}

QStringList ItemsModel::mimeTypes() const
{
    return {dragFormat()};
}

QMimeData *ItemsModel::mimeData(const QModelIndexList &indexes) const
{
    std::vector<int> items;
    for (const QModelIndex &index : indexes) {
        const int id = rowAt(index.row()).id;
        if (id > 0 && std::ranges::find(items, id) == items.end())
            items.push_back(id);
    }
    return ItemDrag::of(dragFormat(), items).release();
}

/// Only a list that stands in one's own order can be given another.
bool ItemsModel::canDropMimeData(const QMimeData *data, Qt::DropAction, int, int, const QModelIndex &) const
{
    return ItemDrag::isOne(dragFormat(), data) && m_shown.kind == Shown::List &&
           m_order == ToDoViews::Order::Own;
}

bool ItemsModel::dropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                              const QModelIndex &parent)
{
    if (!canDropMimeData(data, action, row, column, parent))
        return false;
    int place = row >= 0 ? row : parent.isValid() ? parent.row() : rowCount();
    while (place < rowCount() && rowAt(place).kind == ToDoRow::Note)
        ++place;
    const bool isBeforeItem = place < rowCount() && rowAt(place).kind != ToDoRow::Later;
    emit dropped(ItemDrag::itemsOf(dragFormat(), data), isBeforeItem ? rowAt(place).id : 0);
    return false; // the rows move with the lists, not by the view
}
