// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/lowwindow.h"

#include <QEvent>
#include <QMainWindow>

LowWindow::LowWindow(QWidget *part)
    : QObject(part)
    , m_part(part)
{
    part->installEventFilter(this);
    watchWindow();
}

bool LowWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_window && event->type() == QEvent::Resize)
        look();
    // Parts are often made before they have a window.
    if (watched == m_part && (event->type() == QEvent::ParentChange || event->type() == QEvent::Polish ||
                              event->type() == QEvent::Show))
        watchWindow();
    return QObject::eventFilter(watched, event);
}

void LowWindow::watchWindow()
{
    if (QWidget *window = m_part->window(); window != m_window) {
        // A part that has no window yet counts as one of its own, and stays watched in any case.
        if (m_window && m_window != m_part)
            m_window->removeEventFilter(this);
        m_window = window;
        window->installEventFilter(this);
    }
    look();
}

void LowWindow::look()
{
    const bool isLow = qobject_cast<QMainWindow *>(m_window) && m_window->height() < below;
    if (isLow == m_isLow)
        return;
    m_isLow = isLow;
    emit changed(isLow);
}
