// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/cellgrid.h"

#include "shell/controls/celldelegate.h"
#include "shell/look/theme.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>

#include <algorithm>

namespace {

constexpr int leastRowHeight = 28;

bool isTab(const QKeyEvent &key)
{
    return key.key() == Qt::Key_Tab || key.key() == Qt::Key_Backtab;
}

bool isPassedOver(const QModelIndex &cell)
{
    return !cell.flags().testFlag(Qt::ItemIsEditable) || cell.data(GridCell::passedRole).toBool();
}

} // namespace

CellGrid::CellGrid(QWidget *parent)
    : QTableView(parent)
{
    setCells(new CellDelegate(this));
    setAlternatingRowColors(true);
    setSelectionMode(ContiguousSelection);
    setEditTriggers(AnyKeyPressed | EditKeyPressed | DoubleClicked);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerItem);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setFont(TypeScale::body());
}

void CellGrid::setCells(CellDelegate *cells)
{
    delete m_cells;
    m_cells = cells;
    setItemDelegate(cells);
    connect(cells, &CellDelegate::refused, this, &CellGrid::said);
}

void CellGrid::setEntry()
{
    m_isEntry = true;
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAlternatingRowColors(false);
}

bool CellGrid::isInUse() const
{
    const QWidget *focus = window()->focusWidget();
    return focus && (focus == this || isAncestorOf(focus));
}

void CellGrid::setPlainRows()
{
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(usualRowHeight());
    verticalHeader()->setDefaultSectionSize(usualRowHeight());
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
}

int CellGrid::usualRowHeight()
{
    return std::max(leastRowHeight, QFontMetrics(QApplication::font()).height() + 8);
}

void CellGrid::finishEdit()
{
    m_cells->finish();
}

void CellGrid::type(const QModelIndex &index)
{
    setCurrentIndex(index);
    edit(index, AllEditTriggers, nullptr);
}

bool CellGrid::edit(const QModelIndex &index, EditTrigger trigger, QEvent *event)
{
    if (trigger == AnyKeyPressed || trigger == EditKeyPressed || trigger == DoubleClicked) {
        if (index.isValid() && !index.flags().testFlag(Qt::ItemIsEditable))
            emit refused();
    }
    const bool wasOpen = state() == EditingState;
    if (!wasOpen)
        m_isTypedOver = trigger == AnyKeyPressed;
    const bool isOpen = QTableView::edit(index, trigger, event);
    if (isOpen && !wasOpen && trigger == DoubleClicked)
        m_cells->openByMouse();
    else if (isOpen && !wasOpen && trigger != AnyKeyPressed && trigger != AllEditTriggers)
        m_cells->goToEnd();
    return isOpen;
}

bool CellGrid::isEnter(const QKeyEvent &key)
{
    return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
}

bool CellGrid::isWayOut(const QKeyEvent &key) const
{
    switch (key.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
        return !m_isEntry;
    case Qt::Key_Left:
    case Qt::Key_Right:
        return m_isTypedOver && key.modifiers() == Qt::NoModifier;
    default:
        return false;
    }
}

/// The next cell of the row, or with -1 the one before, in which one types.
QModelIndex CellGrid::beside(int step) const
{
    const QModelIndex from = currentIndex();
    QModelIndex to = from.siblingAtColumn(from.column() + step);
    while (to.isValid() && (isColumnHidden(to.column()) || isPassedOver(to)))
        to = from.siblingAtColumn(to.column() + step);
    return to;
}

QModelIndex CellGrid::target(const QKeyEvent &key) const
{
    const QModelIndex from = currentIndex();
    const int step = key.modifiers().testFlag(Qt::ShiftModifier) ? -1 : 1;
    switch (key.key()) {
    case Qt::Key_Left:
        return from.siblingAtColumn(from.column() - 1);
    case Qt::Key_Right:
        return from.siblingAtColumn(from.column() + 1);
    case Qt::Key_Up:
        return from.siblingAtRow(from.row() - 1);
    case Qt::Key_Down:
        return from.siblingAtRow(from.row() + 1);
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return m_isEntry ? beside(step) : from.siblingAtRow(from.row() + step);
    case Qt::Key_Tab:
        return beside(step);
    case Qt::Key_Backtab:
        return beside(-1);
    default:
        return {};
    }
}

void CellGrid::goTo(const QModelIndex &to)
{
    if (m_isEntry)
        type(to);
    else
        setCurrentIndex(to);
}

bool CellGrid::walk(const QKeyEvent &key)
{
    const bool isStep = isEnter(key) || isTab(key);
    if (key.modifiers().testFlag(Qt::AltModifier) || !(isStep || isWayOut(key)))
        return false;
    if (!currentIndex().isValid())
        setCurrentIndex(model()->index(0, 0));
    const bool isShifted = key.modifiers().testFlag(Qt::ShiftModifier);
    const QModelIndex to = target(key);
    if (to.isValid() && isStep) {
        goTo(to);
    } else if (to.isValid()) {
        setCurrentIndex(to);
    } else if (m_isEntry && isEnter(key) && !isShifted) {
        emit entered();
    } else if (isTab(key)) {
        setFocus();
        QTableView::focusNextPrevChild(key.key() == Qt::Key_Tab && !isShifted);
    }
    return true;
}

void CellGrid::keyPressEvent(QKeyEvent *event)
{
    const bool mayType = currentIndex().isValid() && state() != EditingState;
    if (!(mayType && isEnter(*event) && walk(*event)))
        QTableView::keyPressEvent(event);
}

/// In the row of what is new, one click is enough, as in a box.
void CellGrid::mouseReleaseEvent(QMouseEvent *event)
{
    QTableView::mouseReleaseEvent(event);
    const QModelIndex index = indexAt(event->pos());
    if (m_isEntry && event->button() == Qt::LeftButton && index.isValid() && state() != EditingState)
        edit(index, DoubleClicked, nullptr);
}

/// Coming back to the window chooses no cell where none was current.
void CellGrid::focusInEvent(QFocusEvent *event)
{
    if (event->reason() != Qt::ActiveWindowFocusReason || currentIndex().isValid())
        QTableView::focusInEvent(event);
    viewport()->update();
}

void CellGrid::focusOutEvent(QFocusEvent *event)
{
    QTableView::focusOutEvent(event);
    viewport()->update();
}

/// A box whose row has moved is no longer the view's: its own words would be said on the console.
void CellGrid::commitData(QWidget *editor)
{
    if (!m_cells->isOpenIn(editor))
        return;
    const QScopedValueRollback<bool> committing(m_isCommitting, true);
    QTableView::commitData(editor);
}

void CellGrid::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint)
{
    if (m_cells->isOpenIn(editor))
        QTableView::closeEditor(editor, hint);
    else if (state() == EditingState)
        setState(NoState);
}

void CellGrid::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QTableView::currentChanged(current, previous);
    viewport()->update();
    emit currentMoved();
}

/// Tab walks through the cells of the row and out behind its last one: out behind the last row would take
/// thousands of steps.
bool CellGrid::focusNextPrevChild(bool next)
{
    if (m_isCommitting) { // the box goes with its row: no key has led anywhere
        setFocus();
        return true;
    }
    const QModelIndex to = beside(next ? 1 : -1);
    if (!to.isValid())
        return QTableView::focusNextPrevChild(next);
    goTo(to);
    return true;
}
