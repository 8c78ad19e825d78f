// SPDX-License-Identifier: GPL-3.0-or-later
#include "todo/window/itemgrid.h"

#include "shell/controls/controls.h"
#include "shell/look/theme.h"
#include "todo/window/itemcells.h"
#include "todo/window/itemcolumns.h"
#include "todo/window/itemsmodel.h"
#include "todo/window/windowlines.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int noteRows = 4;

} // namespace

ItemGrid::ItemGrid(ItemsModel &model, Writing &writing, QWidget *parent)
    : OrderedGrid(model, parent)
    , m_model(model)
    , m_question(new QLabel(viewport()))
{
    setObjectName(u"toDoGrid"_s);
    setAccessibleName(u"Things to do"_s);
    setCells(new ItemCells(this, writing));
    setModel(&model);
    setPlainRows();
    setAlternatingRowColors(false);
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setContextMenuPolicy(Qt::CustomContextMenu);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setHorizontalScrollMode(ScrollPerPixel);
    makeHeading();
    m_question->setObjectName(u"quietQuestion"_s);
    m_question->hide();
    connect(&model, &QAbstractItemModel::modelReset, this, &ItemGrid::span);
    connect(&model, &QAbstractItemModel::modelReset, this, &ItemGrid::showSorting);
    for (const auto changed : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
        connect(&model, changed, this, &ItemGrid::span);
    connect(&model, &QAbstractItemModel::dataChanged, this, [this] {
        showSorting();
        fit();
    });
}

void ItemGrid::makeHeading()
{
    QHeaderView *heading = horizontalHeader();
    heading->setSectionResizeMode(QHeaderView::Fixed);
    heading->setMinimumSectionSize(ItemColumns::tickWidth);
    heading->setFixedHeight(usualRowHeight() + 4);
    heading->setHighlightSections(false);
    heading->setSectionsClickable(true);
    connect(heading, &QHeaderView::sectionClicked, this, [this](int column) {
        if (column != ItemsModel::Due && column != ItemsModel::Actual)
            return;
        if (m_model.isSortable())
            emit sortRequested(column);
        else
            emit said(ToDoWindowLines::sortedInLists());
    });
}

/// Headings and groups reach over all columns; an open note has room for several lines.
void ItemGrid::span()
{
    clearSpans();
    verticalHeader()->setDefaultSectionSize(usualRowHeight()); // all rows at once
    for (int row = 0; row < m_model.rowCount(); ++row) {
        const ToDoRow::Kind kind = m_model.rowAt(row).kind;
        if (kind != ToDoRow::Item)
            setSpan(row, 0, 1, ItemsModel::columns);
        const int height = usualRowHeight() * (kind == ToDoRow::Note ? noteRows : 1);
        if (rowHeight(row) != height)
            setRowHeight(row, height);
    }
    fit();
}

void ItemGrid::showSorting()
{
    QHeaderView *heading = horizontalHeader();
    const bool isSorted = m_model.order() != ToDoViews::Order::Own;
    heading->setSortIndicatorShown(isSorted);
    if (isSorted)
        heading->setSortIndicator(m_model.order() == ToDoViews::Order::ByDue ? ItemsModel::Due
                                                                             : ItemsModel::Actual,
                                  m_model.isBackwards() ? Qt::DescendingOrder : Qt::AscendingOrder);
}

/// Where nothing is shown as done, the column for its day is left out of the views.
void ItemGrid::fit()
{
    const Shown::Kind kind = m_model.shown().kind;
    const bool isOfOpen = kind == Shown::Today || kind == Shown::Coming || kind == Shown::ByPerson;
    bool isNeeded = !isOfOpen;
    for (int row = 0; !isNeeded && row < m_model.rowCount(); ++row)
        isNeeded = m_model.index(row, ItemsModel::Actual).data(ItemsModel::doneRole).toBool();
    setColumnHidden(ItemsModel::Actual, !isNeeded);
    ItemColumns::shareWidth(*this);
}

void ItemGrid::setListShown(bool isShown)
{
    setColumnHidden(ItemsModel::List, !isShown);
    fit();
}

void ItemGrid::resizeEvent(QResizeEvent *event)
{
    CellGrid::resizeEvent(event);
    fit();
    emit resized();
}

bool ItemGrid::isAnyChosen() const
{
    const QModelIndexList rows =
        selectionModel()->hasSelection() ? QModelIndexList() : QModelIndexList{currentIndex()};
    if (!rows.isEmpty())
        return isItem(rows.front());
    const QItemSelection selection = selectionModel()->selection();
    return std::ranges::any_of(selection, [this](const QItemSelectionRange &range) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            if (isItem(m_model.index(row, 0)))
                return true;
        }
        return false;
    });
}

std::vector<int> ItemGrid::chosen() const
{
    std::vector<std::pair<int, int>> ranges;
    for (const QItemSelectionRange &range : selectionModel()->selection())
        ranges.emplace_back(range.top(), range.bottom());
    if (ranges.empty() && currentIndex().isValid())
        ranges.emplace_back(currentIndex().row(), currentIndex().row());
    std::ranges::sort(ranges);
    std::vector<int> ids;
    int next = 0; // ranges of single cells may cover a row twice
    for (const auto &[first, last] : ranges) {
        const std::vector<int> more = m_model.itemsBetween(std::max(first, next), last);
        ids.insert(ids.end(), more.begin(), more.end());
        next = std::max(next, last + 1);
    }
    return ids;
}

void ItemGrid::choose(const std::vector<int> &ids)
{
    QItemSelection rows;
    QModelIndex first;
    QModelIndex last;
    for (const int id : ids) {
        const int row = m_model.rowOf(id);
        if (row < 0)
            continue;
        const bool isHeading = m_model.rowAt(row).kind == ToDoRow::Heading;
        const int column =
            !isHeading && currentIndex().isValid() && currentIndex().column() != ItemsModel::Tick
                ? currentIndex().column()
            : isHeading ? int(ItemsModel::Tick)
                        : int(ItemsModel::Text);
        if (!first.isValid())
            first = m_model.index(row, column);
        last = m_model.index(row, column);
        rows.select(m_model.index(row, 0), m_model.index(row, ItemsModel::columns - 1));
    }
    if (!first.isValid())
        return;
    selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
    selectionModel()->select(rows, QItemSelectionModel::ClearAndSelect);
    for (const QModelIndex &row : {last, first}) // as many as there is room for
        scrollTo(row);
}

void ItemGrid::typeAgain(const QModelIndex &index, const QString &text)
{
    type(index);
    if (auto *box = qobject_cast<QLineEdit *>(window()->focusWidget()); box && isAncestorOf(box)) {
        box->setText(text);
        box->selectAll();
    }
}

void ItemGrid::goToFirst()
{
    int row = 0;
    while (row < m_model.rowCount() && m_model.rowAt(row).kind != ToDoRow::Item)
        ++row;
    if (row == m_model.rowCount())
        row = 0; // headings only
    selectionModel()->setCurrentIndex(m_model.index(row, ItemsModel::Text), QItemSelectionModel::NoUpdate);
    scrollToTop();
}

void ItemGrid::goToLater()
{
    int row = m_model.rowCount() - 1;
    while (row >= 0 && m_model.rowAt(row).kind != ToDoRow::Later)
        --row;
    if (row < 0)
        return;
    setCurrentIndex(m_model.index(row, ItemsModel::Tick));
    if (row + 1 < m_model.rowCount())
        scrollTo(m_model.index(row + 1, ItemsModel::Tick)); // the first of what was unfolded
}

void ItemGrid::askQuietly(const QString &question)
{
    const Theme &theme = Theme::of(this);
    m_question->setStyleSheet(
        u"background: %1; color: %2; border: 1px solid %3; border-radius: 6px; padding: 3px 8px;"_s.arg(
            theme.mark.name(), theme.text.name(), theme.edge.name()));
    m_question->setText(question);
    m_question->adjustSize();
    const QRect cell = visualRect(currentIndex());
    const bool isBelow = cell.bottom() + m_question->height() < viewport()->height();
    m_question->move(std::min(cell.left(), viewport()->width() - m_question->width()),
                     isBelow ? cell.bottom() + 1 : cell.top() - m_question->height());
    m_question->show();
    m_question->raise();
}

bool ItemGrid::isRow(const QModelIndex &index, int kind) const
{
    return index.isValid() && m_model.rowAt(index.row()).kind == kind;
}

bool ItemGrid::isItem(const QModelIndex &index) const
{
    return isRow(index, ToDoRow::Item) || isRow(index, ToDoRow::Heading);
}

/// A mouse that goes down on a tick means the tick.
bool ItemGrid::mayDrag()
{
    if (isTick(m_pressed))
        return false;
    m_pressed = QModelIndex();
    return true;
}

/// The list to which the words over what a search has found lead; 0 for any other row.
int ItemGrid::listOf(const QModelIndex &index) const
{
    return isRow(index, ToDoRow::Group) ? m_model.rowAt(index.row()).list : 0;
}

bool ItemGrid::isTick(const QModelIndex &index) const
{
    return isRow(index, ToDoRow::Item) && index.column() == ItemsModel::Tick;
}

/// Whether it begins to type, which beside a tick means the text.
bool ItemGrid::isForText(const QKeyEvent &key)
{
    const QString text = key.text();
    const bool isTyped = !text.isEmpty() && text.front().isPrint() && text.front() != u' ' &&
                         !(key.modifiers() & (Qt::ControlModifier | Qt::AltModifier));
    return isTyped || key.key() == Qt::Key_F2;
}

void ItemGrid::keyPressEvent(QKeyEvent *event)
{
    m_question->hide();
    m_isPassing = m_isPassing && event->key() == Qt::Key_Tab;
    const bool isTyping = state() == EditingState;
    if (!isTyping && isTick(currentIndex()) && isForText(*event))
        selectionModel()->setCurrentIndex(currentIndex().siblingAtColumn(ItemsModel::Text),
                                          QItemSelectionModel::NoUpdate);
    if (isTyping || !currentIndex().isValid())
        return CellGrid::keyPressEvent(event);
    if (event->key() == Qt::Key_Space && event->modifiers() == Qt::NoModifier) {
        if (isRow(currentIndex(), ToDoRow::Later))
            emit laterClicked();
        else
            emit ticked();
    } else if (isEnter(*event) && isRow(currentIndex(), ToDoRow::Later)) {
        emit laterClicked();
    } else if (isEnter(*event) && listOf(currentIndex()) > 0) {
        emit listClicked(listOf(currentIndex()));
    } else if (event->matches(QKeySequence::SelectAll)) {
        selectAll();
    } else {
        CellGrid::keyPressEvent(event);
    }
}

void ItemGrid::mousePressEvent(QMouseEvent *event)
{
    m_question->hide();
    m_isPassing = false;
    m_pressed = event->button() == Qt::LeftButton ? indexAt(event->pos()) : QModelIndex();
    // A click on a tick leaves the rows chosen that are.
    if (isTick(m_pressed) && selectionModel()->isRowSelected(m_pressed.row(), {}))
        return;
    CellGrid::mousePressEvent(event);
}

void ItemGrid::mouseReleaseEvent(QMouseEvent *event)
{
    const QModelIndex released = indexAt(event->pos());
    const bool isClick = m_pressed.isValid() && QModelIndex(m_pressed) == released;
    m_pressed = QModelIndex();
    if (isClick && isTick(released) && event->modifiers() == Qt::NoModifier) {
        emit ticked();
        return;
    }
    CellGrid::mouseReleaseEvent(event);
    if (isClick && isRow(released, ToDoRow::Later))
        emit laterClicked();
    else if (isClick && listOf(released) > 0)
        emit listClicked(listOf(released));
}

/// The second click on a tick takes it back.
void ItemGrid::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (isTick(indexAt(event->pos())))
        mousePressEvent(event);
    else
        CellGrid::mouseDoubleClickEvent(event);
}

void ItemGrid::focusInEvent(QFocusEvent *event)
{
    m_isPassing = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    CellGrid::focusInEvent(event);
}

/// On the text of a row that was chosen, Tab makes a step of it and Shift+Tab an item again. Whoever came
/// with Tab, or has nothing to gain by it, goes on to the next cell and out behind the last.
bool ItemGrid::focusNextPrevChild(bool next)
{
    const QModelIndex current = currentIndex();
    const bool isStep = current.data(ItemsModel::stepRole).toBool();
    const bool isOnText = isRow(current, ToDoRow::Item) && current.column() == ItemsModel::Text;
    if (isOnText && !m_isPassing && state() != EditingState && isStep != next && hasFocus()) {
        const QModelIndex before = current;
        emit stepped(next);
        if (before.data(ItemsModel::stepRole).toBool() == next)
            return true;
    }
    return CellGrid::focusNextPrevChild(next);
}
