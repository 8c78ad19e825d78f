// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/window/cargrid.h"

#include "cars/window/carcelldelegate.h"
#include "cars/window/carheadings.h"
#include "shell/look/theme.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>
#include <numeric>

namespace {

constexpr int leastRowHeight = 28;

bool isEnter(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

} // namespace

CarGrid::CarGrid(const Program &program, const QString &name, DatePicker *picker, QWidget *parent)
    : QTableView(parent)
    , m_delegate(new CarCellDelegate(program, this, picker))
{
    setObjectName(name);
    setItemDelegate(m_delegate);
    setAlternatingRowColors(true);
    setSelectionMode(ContiguousSelection);
    setEditTriggers(AnyKeyPressed | EditKeyPressed | DoubleClicked);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerItem);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setFont(TypeScale::body());
    setHorizontalHeader(new CarHeadings(this));
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(rowHeight());
    verticalHeader()->setDefaultSectionSize(rowHeight());
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    connect(m_delegate, &CarCellDelegate::refused, this, &CarGrid::said);
}

bool CarGrid::isInUse() const
{
    const QWidget *focus = window()->focusWidget();
    return focus && (focus == this || isAncestorOf(focus));
}

int CarGrid::rowHeight()
{
    return std::max(leastRowHeight, QFontMetrics(QApplication::font()).height() + 8);
}

void CarGrid::setWidths(std::vector<Width> widths)
{
    m_widths = std::move(widths);
    fitColumns(viewport()->width());
}

void CarGrid::setEntry()
{
    m_isEntry = true;
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAlternatingRowColors(false);
}

void CarGrid::fitColumns(int room)
{
    const int count = int(m_widths.size());
    if (!model() || model()->columnCount() != count || count == 0)
        return;
    const QFontMetrics body(TypeScale::body());
    std::vector<int> widths;
    for (const Width &width : m_widths)
        widths.push_back(body.horizontalAdvance(width.longest) + 2 * inset + 2);
    int least = std::accumulate(widths.begin(), widths.end(), 0);
    for (int column = 0; column < count && least > room; ++column) {
        if (!m_widths[std::size_t(column)].grows)
            continue; // words are still known where they are cut, numbers and dates are not
        const int cut = std::min(least - room, widths[std::size_t(column)] * 2 / 5);
        widths[std::size_t(column)] -= cut;
        least -= cut;
    }
    const auto growing = int(std::ranges::count_if(m_widths, &Width::grows));
    int left = room - least;
    for (int column = 0, to = growing == 0 ? count : growing; column < count; ++column) {
        int &width = widths[std::size_t(column)];
        if (left < 0) {
            width = width * room / least; // narrower than its texts: they are cut, and show themselves
        } else if (growing == 0 || m_widths[std::size_t(column)].grows) {
            const int share = left / to--;
            width += share;
            left -= share;
        }
        setColumnWidth(column, width);
    }
}

void CarGrid::finishEdit()
{
    m_delegate->finish();
}

void CarGrid::type(const QModelIndex &index)
{
    setCurrentIndex(index);
    edit(index, AllEditTriggers, nullptr);
}

bool CarGrid::edit(const QModelIndex &index, EditTrigger trigger, QEvent *event)
{
    if (trigger == AnyKeyPressed || trigger == EditKeyPressed || trigger == DoubleClicked) {
        if (index.isValid() && !index.flags().testFlag(Qt::ItemIsEditable))
            emit refused();
    }
    const bool wasOpen = state() == EditingState;
    if (!wasOpen)
        m_isTypedOver = trigger == AnyKeyPressed;
    const bool isOpen = QTableView::edit(index, trigger, event);
    if (isOpen && !wasOpen && trigger != AnyKeyPressed && trigger != AllEditTriggers)
        m_delegate->goToEnd();
    return isOpen;
}

bool CarGrid::isWayOut(const QKeyEvent &key) const
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

QModelIndex CarGrid::target(const QKeyEvent &key) const
{
    const QModelIndex from = currentIndex();
    const bool shift = key.modifiers().testFlag(Qt::ShiftModifier);
    const auto beside = [&](int step) { return from.siblingAtColumn(from.column() + step); };
    switch (key.key()) {
    case Qt::Key_Left:
        return beside(-1);
    case Qt::Key_Right:
        return beside(1);
    case Qt::Key_Up:
        return from.siblingAtRow(from.row() - 1);
    case Qt::Key_Down:
        return from.siblingAtRow(from.row() + 1);
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return m_isEntry ? beside(shift ? -1 : 1) : from.siblingAtRow(from.row() + (shift ? -1 : 1));
    case Qt::Key_Tab:
        return beside(shift ? -1 : 1);
    case Qt::Key_Backtab:
        return beside(-1);
    default:
        return {};
    }
}

bool CarGrid::walk(const QKeyEvent &key)
{
    const bool isStep = isEnter(key.key()) || key.key() == Qt::Key_Tab || key.key() == Qt::Key_Backtab;
    if (key.modifiers().testFlag(Qt::AltModifier) || !(isStep || isWayOut(key)))
        return false;
    if (!currentIndex().isValid())
        setCurrentIndex(model()->index(0, 0));
    const QModelIndex to = target(key);
    if (to.isValid() && m_isEntry && isStep) {
        type(to);
    } else if (to.isValid()) {
        setCurrentIndex(to);
    } else if (m_isEntry && isEnter(key.key()) && !key.modifiers().testFlag(Qt::ShiftModifier)) {
        emit entered();
    } else if (key.key() == Qt::Key_Tab || key.key() == Qt::Key_Backtab) {
        setFocus();
        QTableView::focusNextPrevChild(key.key() == Qt::Key_Tab &&
                                       !key.modifiers().testFlag(Qt::ShiftModifier));
    }
    return true;
}

void CarGrid::keyPressEvent(QKeyEvent *event)
{
    const bool mayType = currentIndex().isValid() && state() != EditingState;
    if (mayType && isEnter(event->key()))
        walk(*event);
    else
        QTableView::keyPressEvent(event);
}

/// In the row of what is new, one click is enough, as in a box.
void CarGrid::mouseReleaseEvent(QMouseEvent *event)
{
    QTableView::mouseReleaseEvent(event);
    const QModelIndex index = indexAt(event->pos());
    if (m_isEntry && event->button() == Qt::LeftButton && index.isValid() && state() != EditingState)
        edit(index, EditKeyPressed, nullptr);
}

void CarGrid::resizeEvent(QResizeEvent *event)
{
    QTableView::resizeEvent(event);
    if (!m_isEntry)
        fitColumns(viewport()->width());
    emit roomChanged(viewport()->width());
}

/// Coming back to the window chooses no cell where none was current.
void CarGrid::focusInEvent(QFocusEvent *event)
{
    if (event->reason() != Qt::ActiveWindowFocusReason || currentIndex().isValid())
        QTableView::focusInEvent(event);
    viewport()->update();
}

void CarGrid::focusOutEvent(QFocusEvent *event)
{
    QTableView::focusOutEvent(event);
    viewport()->update();
}

void CarGrid::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QTableView::currentChanged(current, previous);
    viewport()->update();
    emit currentMoved();
}

/// Tab walks through the cells of the row and out behind its last one: out behind the last row would take
/// thousands of steps.
bool CarGrid::focusNextPrevChild(bool next)
{
    const QModelIndex current = currentIndex();
    const QModelIndex beside = current.siblingAtColumn(current.column() + (next ? 1 : -1));
    if (!current.isValid() || !beside.isValid())
        return QTableView::focusNextPrevChild(next);
    if (m_isEntry)
        type(beside);
    else
        setCurrentIndex(beside);
    return true;
}
