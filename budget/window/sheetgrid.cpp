// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/window/sheetgrid.h"

#include "budget/window/sheetdelegate.h"
#include "budget/window/sheetheadings.h"
#include "budget/window/sheetmodel.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QWheelEvent>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int monthCount = int(BudgetSheet::monthCount);
constexpr int dragPause = 150; ///< milliseconds between two months

} // namespace

SheetGrid::SheetGrid(SheetModel &model, QWidget *parent)
    : CellGrid(parent)
    , m_model(model)
    , m_headings(new SheetHeadings(Qt::Horizontal, this, SheetLook::amountInset))
    , m_numbers(new SheetHeadings(Qt::Vertical, this))
    , m_needed(SheetColumns::needed(model))
{
    setModel(&model);
    setCells(new SheetDelegate(this));
    setHorizontalHeader(m_headings);
    setVerticalHeader(m_numbers);
    connect(&model, &SheetModel::recomputed, this, &SheetGrid::measure);
    connect(&model, &SheetModel::layerChanged, this, &SheetGrid::measure);
}

void SheetGrid::setRows(SheetLook::Rows rows)
{
    m_headings->setRows(rows);
    m_numbers->setRows(rows);
    updateGeometries();
}

int SheetGrid::heightOfRows(int rows) const
{
    const int frame = height() - contentsRect().height();
    return horizontalHeader()->sizeHint().height() + rows * m_numbers->defaultSectionSize() + frame;
}

void SheetGrid::measure()
{
    const SheetColumns::Widths needed = SheetColumns::needed(m_model);
    if (std::exchange(m_needed, needed) != needed)
        fitAroundCurrent();
}

/// The month in which one is stays in view.
void SheetGrid::fitAroundCurrent()
{
    const int current = currentIndex().column();
    const bool wasInView = current >= 0 && !isColumnHidden(current);
    fitColumns();
    if (wasInView && isColumnHidden(current))
        scrollTo(currentIndex());
}

void SheetGrid::fitColumns()
{
    const SheetColumns columns =
        SheetColumns::in(viewport()->width(), SheetColumns::neededByItems(), m_needed);
    m_monthsInView = columns.inView;
    m_firstMonth = std::clamp(m_firstMonth, 0, monthCount - m_monthsInView);
    setColumnWidth(SheetColumn::item, columns.item);
    for (int i = 0; i < monthCount; ++i) {
        const int column = SheetColumn::firstMonth + i;
        setColumnWidth(column, columns.months[std::size_t(i)]);
        setColumnHidden(column, i < m_firstMonth || i >= m_firstMonth + m_monthsInView);
    }
    emit columnsMoved();
}

void SheetGrid::setFirstMonth(int month)
{
    month = std::clamp(month, 0, monthCount - m_monthsInView);
    if (std::exchange(m_firstMonth, month) != month)
        fitColumns();
}

void SheetGrid::scrollTo(const QModelIndex &index, ScrollHint hint)
{
    const int month = index.column() - SheetColumn::firstMonth;
    if (month >= 0)
        setFirstMonth(std::clamp(m_firstMonth, month - m_monthsInView + 1, month));
    else if (QGuiApplication::mouseButtons() == Qt::NoButton)
        setFirstMonth(0); // a row begins here; who clicks an item may want to see later months beside it
    CellGrid::scrollTo(index, hint);
}

SheetRange SheetGrid::range() const
{
    const QItemSelection selection = selectionModel()->selection();
    if (!selection.isEmpty()) {
        const QItemSelectionRange &chosen = selection.first();
        return {chosen.top(), chosen.left(), chosen.bottom(), chosen.right()};
    }
    const QModelIndex current = currentIndex();
    if (!current.isValid())
        return {};
    return {current.row(), current.column(), current.row(), current.column()};
}

void SheetGrid::choose(const SheetRange &range)
{
    if (range.isEmpty())
        return;
    const QModelIndex first = model()->index(range.top, range.left);
    setCurrentIndex(first);
    selectionModel()->select(QItemSelection(first, model()->index(range.bottom, range.right)),
                             QItemSelectionModel::ClearAndSelect);
}

void SheetGrid::returnTo(const QModelIndex &cell)
{
    goOn(cell, m_runColumn);
}

QModelIndex SheetGrid::beside(const QModelIndex &from, int rows, int columns, bool toEnd) const
{
    const auto isFilled = [](const QModelIndex &cell) { return !cell.data().toString().isEmpty(); };
    QModelIndex at = from;
    QModelIndex next = from.sibling(from.row() + rows, from.column() + columns);
    if (!toEnd)
        return next.isValid() ? next : from;
    // To the last of the filled cells; from there, and from an empty one, to the next that is filled.
    const bool isWithin = isFilled(at) && next.isValid() && isFilled(next);
    while (next.isValid()) {
        if (isWithin && !isFilled(next))
            return at;
        at = next;
        if (!isWithin && isFilled(next))
            return at;
        next = at.sibling(at.row() + rows, at.column() + columns);
    }
    return at;
}

QModelIndex SheetGrid::afterTab(bool forward) const
{
    const QModelIndex from = currentIndex();
    const int place = from.row() * SheetColumn::count + from.column() + (forward ? 1 : -1);
    return place < 0 ? QModelIndex() : model()->index(place / SheetColumn::count, place % SheetColumn::count);
}

QModelIndex SheetGrid::target(const QKeyEvent &key) const
{
    const QModelIndex from = currentIndex();
    const bool ctrl = key.modifiers().testFlag(Qt::ControlModifier);
    const bool shift = key.modifiers().testFlag(Qt::ShiftModifier);
    const int page = std::max(1, viewport()->height() / m_numbers->defaultSectionSize() - 1);
    const auto rowAt = [](int row) { return std::clamp(row, 0, int(BudgetSheet::rowCount) - 1); };
    switch (key.key()) {
    case Qt::Key_Left:
        return beside(from, 0, -1, ctrl);
    case Qt::Key_Right:
        return beside(from, 0, 1, ctrl);
    case Qt::Key_Up:
        return beside(from, -1, 0, ctrl);
    case Qt::Key_Down:
        return beside(from, 1, 0, ctrl);
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return m_runColumn >= 0 && !shift ? belowRun() : beside(from, shift ? -1 : 1, 0, false);
    case Qt::Key_Tab:
        return afterTab(!shift);
    case Qt::Key_Backtab:
        return afterTab(false);
    case Qt::Key_Home:
        return model()->index(ctrl ? 0 : from.row(), 0);
    case Qt::Key_End:
        return model()->index(ctrl ? lastUsedRow() : from.row(), SheetColumn::count - 1);
    case Qt::Key_PageUp:
        return from.siblingAtRow(rowAt(from.row() - page));
    case Qt::Key_PageDown:
        return from.siblingAtRow(rowAt(from.row() + page));
    default:
        return {};
    }
}

/// Behind a run of Tabs, Enter leads to the next row in the column where they began.
QModelIndex SheetGrid::belowRun() const
{
    const QModelIndex from = currentIndex();
    const QModelIndex next = from.sibling(from.row() + 1, m_runColumn);
    return next.isValid() ? next : from;
}

void SheetGrid::goOn(const QModelIndex &to, int runColumn)
{
    setCurrentIndex(to);
    m_runColumn = runColumn;
}

int SheetGrid::lastUsedRow() const
{
    for (int row = model()->rowCount() - 1; row > 0; --row) {
        for (int column = 0; column < SheetColumn::count; ++column) {
            if (!model()->index(row, column).data().toString().isEmpty())
                return row;
        }
    }
    return 0;
}

bool SheetGrid::walk(const QKeyEvent &key)
{
    if (key.modifiers().testFlag(Qt::AltModifier))
        return false;
    if (!currentIndex().isValid())
        setCurrentIndex(model()->index(0, 0));
    const QModelIndex to = target(key);
    if (!to.isValid())
        return false;
    const bool isTab = key.key() == Qt::Key_Tab || key.key() == Qt::Key_Backtab;
    const bool isShifted = key.modifiers().testFlag(Qt::ShiftModifier);
    if (isTab)
        goOn(to, runColumn());
    else if (isEnter(key) && !isShifted)
        goOn(to, m_runColumn); // a refused entry leads back into the run
    else if (isShifted && !isEnter(key))
        extendTo(to);
    else
        setCurrentIndex(to);
    return true;
}

void SheetGrid::extendTo(const QModelIndex &index)
{
    const QScopedValueRollback<bool> extending(m_isExtending, true);
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
    selectionModel()->select(QItemSelection(m_anchor, index), QItemSelectionModel::ClearAndSelect);
}

void SheetGrid::keyPressEvent(QKeyEvent *event)
{
    const SheetRange chosen = range();
    if (event->key() == Qt::Key_Escape && chosen.height() * chosen.width() > 1)
        setCurrentIndex(currentIndex());
    else if (state() == EditingState || !walk(*event))
        CellGrid::keyPressEvent(event);
}

void SheetGrid::mousePressEvent(QMouseEvent *event)
{
    const QScopedValueRollback<bool> extending(m_isExtending, event->modifiers().testFlag(Qt::ShiftModifier));
    m_runColumn = -1;
    CellGrid::mousePressEvent(event);
}

void SheetGrid::mouseMoveEvent(QMouseEvent *event)
{
    const QScopedValueRollback<bool> extending(m_isExtending, true);
    if (event->buttons().testFlag(Qt::LeftButton))
        dragMonths(event->pos().x());
    CellGrid::mouseMoveEvent(event);
}

/// A range that is drawn beyond the months in view brings the next one.
void SheetGrid::dragMonths(int x)
{
    const int months = columnViewportPosition(SheetColumn::firstMonth + m_firstMonth);
    const bool isBeyond = x < months || x >= viewport()->width();
    if (!isBeyond || m_anchor.column() < SheetColumn::firstMonth ||
        (m_dragged.isValid() && m_dragged.elapsed() < dragPause))
        return;
    m_dragged.start();
    const int month = m_firstMonth;
    setFirstMonth(month + (x < months ? -1 : 1));
    if (m_firstMonth != month)
        extendTo(currentIndex().siblingAtColumn(
            SheetColumn::firstMonth + (x < months ? m_firstMonth : m_firstMonth + m_monthsInView - 1)));
}

void SheetGrid::wheelEvent(QWheelEvent *event)
{
    const QPoint turned = event->angleDelta();
    const int sideways = event->modifiers().testFlag(Qt::ShiftModifier) ? turned.y() : turned.x();
    if (sideways == 0)
        CellGrid::wheelEvent(event);
    else
        setFirstMonth(m_firstMonth + (sideways < 0 ? 1 : -1));
}

void SheetGrid::resizeEvent(QResizeEvent *event)
{
    CellGrid::resizeEvent(event);
    fitAroundCurrent();
}

void SheetGrid::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    CellGrid::currentChanged(current, previous);
    m_runColumn = -1;
    if (!m_isExtending || !m_anchor.isValid())
        m_anchor = current;
    viewport()->update();
    verticalHeader()->viewport()->update();
    horizontalHeader()->viewport()->update();
}

void SheetGrid::selectionChanged(const QItemSelection &chosen, const QItemSelection &before)
{
    CellGrid::selectionChanged(chosen, before);
    emit rangeChanged();
}

/// Tab goes through the cells and out behind the last one.
bool SheetGrid::focusNextPrevChild(bool next)
{
    const QModelIndex to = currentIndex().isValid() ? afterTab(next) : QModelIndex();
    if (!to.isValid())
        return CellGrid::focusNextPrevChild(next);
    goOn(to, runColumn());
    return true;
}
