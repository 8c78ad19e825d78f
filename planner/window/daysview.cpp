// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/window/daysview.h"

#include "planner/window/daysmodel.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTimer>

#include <utility>

DaysView::DaysView(const HouseholdNotes &notes, QWidget *parent)
    : QWidget(parent)
    , m_notes(notes)
{}

void DaysView::setView(QAbstractItemView *view, DaysModel *model, NotePlace notePlace)
{
    m_view = view;
    m_model = model;
    m_notePlace = std::move(notePlace);
    view->installEventFilter(this);
    view->viewport()->installEventFilter(this);
    setFocusProxy(view);
    connect(view, &QAbstractItemView::clicked, this, &DaysView::open);
}

void DaysView::open(const QModelIndex &day)
{
    const QList<HouseholdNote> notes = m_model->notes(m_model->date(day));
    if (!notes.isEmpty() && m_notePlace(m_view->visualRect(day)).contains(m_clicked))
        m_notes.open(notes, m_view->viewport()->mapToGlobal(m_clicked), this);
    else
        emit dayOpened(m_model->date(day));
}

void DaysView::readNotes()
{
    if (std::exchange(m_isReading, true))
        return;
    QTimer::singleShot(0, this, [this] {
        m_isReading = false;
        m_model->setNotes(m_notes.inDays(m_model->first(), m_model->last()));
        notesShown();
    });
}

bool DaysView::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonRelease && watched == m_view->viewport())
        m_clicked = static_cast<QMouseEvent *>(event)->position().toPoint();
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    switch (static_cast<QKeyEvent *>(event)->key()) {
    case Qt::Key_PageUp:
        emit stepped(-1);
        return true;
    case Qt::Key_PageDown:
        emit stepped(1);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        emit dayOpened(date());
        return true;
    default:
        return QWidget::eventFilter(watched, event);
    }
}
