// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/mainmenu/todaylist.h"

#include "shell/controls/controls.h"
#include "shell/look/theme.h"
#include "shell/mainmenu/todaydelegate.h"
#include "shell/mainmenu/todaymodel.h"

#include <QKeyEvent>

#include <utility>

using namespace Qt::Literals::StringLiterals;

TodayList::TodayList(TodayModel *model, QWidget *parent)
    : QListView(parent)
    , m_model(model)
    , m_delegate(new TodayDelegate(this))
{
    named(this, u"todayList"_s);
    setAccessibleName(u"Today and the next seven days"_s);
    setModel(model);
    setItemDelegate(m_delegate);
    setFlow(QListView::TopToBottom);
    setWrapping(true);
    setUniformItemSizes(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::NoSelection);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setMouseTracking(true);
    viewport()->setAttribute(Qt::WA_Hover);
    // Lines on the panel and not a box of their own.
    setStyleSheet(u"QListView { background: transparent; border: 0; padding: 0; }"
                  u"QListView:focus { background: transparent; border: 0; padding: 0; }"_s);
    viewport()->setAutoFillBackground(false);
}

int TodayList::rowHeight()
{
    return std::max(28, QFontMetrics(TypeScale::body()).height() + 8);
}

void TodayList::setColumns(int columns)
{
    m_columns = columns;
    arrange();
}

void TodayList::arrange()
{
    m_delegate->setColumnLength(std::max(1, height() / rowHeight()));
    setGridSize({width() / m_columns, rowHeight()});
    scheduleDelayedItemsLayout();
}

bool TodayList::isOnDay(const QModelIndex &index, const QPoint &place) const
{
    return index.isValid() && m_delegate->tellsDay(index) &&
           place.x() < visualRect(index).left() + TodayDelegate::dayWidth();
}

void TodayList::keyPressEvent(QKeyEvent *event)
{
    const QModelIndex before = currentIndex();
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        if (before.isValid())
            emit opened(before.row());
        return;
    default:
        QListView::keyPressEvent(event);
    }
    if (event->key() == Qt::Key_Up && currentIndex() == before)
        emit leftUpward();
}

void TodayList::mouseMoveEvent(QMouseEvent *event)
{
    const QModelIndex index = indexAt(event->pos());
    const int day = isOnDay(index, event->pos()) ? index.row() : -1;
    if (day != m_delegate->dayUnderMouse()) {
        m_delegate->setDayUnderMouse(day);
        viewport()->update();
    }
    viewport()->setCursor(index.isValid() ? Qt::PointingHandCursor : Qt::ArrowCursor);
    QListView::mouseMoveEvent(event);
}

void TodayList::mousePressEvent(QMouseEvent *event)
{
    m_pressed = event->button() == Qt::LeftButton ? indexAt(event->pos()) : QModelIndex();
    QListView::mousePressEvent(event);
}

void TodayList::mouseReleaseEvent(QMouseEvent *event)
{
    QListView::mouseReleaseEvent(event);
    const QModelIndex index = indexAt(event->pos());
    if (!index.isValid() || std::exchange(m_pressed, QModelIndex()) != index)
        return;
    if (isOnDay(index, event->pos()))
        emit dayOpened(m_model->line(index.row()).day);
    else
        emit opened(index.row());
}

void TodayList::leaveEvent(QEvent *event)
{
    m_delegate->setDayUnderMouse(-1);
    viewport()->update();
    QListView::leaveEvent(event);
}

void TodayList::focusInEvent(QFocusEvent *event)
{
    QListView::focusInEvent(event);
    if (!currentIndex().isValid())
        setCurrentIndex(m_model->index(0));
}

void TodayList::resizeEvent(QResizeEvent *event)
{
    QListView::resizeEvent(event);
    arrange();
}
