// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frame/workviews.h"

#include "shell/controls/taskpanel.h"
#include "shell/controls/workscroll.h"

#include <QScrollBar>

WorkViews::WorkViews(QWidget *parent)
    : QStackedWidget(parent)
{
    connect(this, &QStackedWidget::currentChanged, this, [this] {
        updateGeometry();
        if (WorkScroll *scroll = WorkScroll::around(this))
            scroll->verticalScrollBar()->setValue(0);
        emit changed(currentWidget());
    });
}

void WorkViews::addHome(QWidget *home)
{
    m_homes.append(home);
    if (!m_home)
        m_home = home;
    addWidget(home);
}

void WorkViews::addView(QWidget *view)
{
    addWidget(view);
}

void WorkViews::addPanel(TaskPanel *panel)
{
    addWidget(panel);
    connect(panel, &TaskPanel::left, this, &WorkViews::goHome);
}

void WorkViews::setHome(QWidget *home)
{
    const bool wasHome = m_homes.contains(currentWidget());
    m_home = home;
    if (wasHome)
        setCurrentWidget(home);
}

void WorkViews::open(QWidget *view)
{
    if (isHome() && view != m_home)
        m_focusAtHome = window()->focusWidget();
    setCurrentWidget(view);
}

void WorkViews::goHome()
{
    if (isHome())
        return;
    // Who is at work in another part of the window, a list beside the views say, stays there.
    const QWidget *focused = window()->focusWidget();
    const bool isElsewhere = focused && focused->isVisible() && !isAncestorOf(focused);
    setCurrentWidget(m_home);
    QWidget *before = m_focusAtHome;
    m_focusAtHome = nullptr;
    if (isElsewhere)
        return;
    if (before && before->isVisible() && before->isEnabled())
        before->setFocus();
    else
        m_home->setFocus();
}

bool WorkViews::leave()
{
    if (isHome())
        return false;
    if (auto *panel = qobject_cast<TaskPanel *>(currentWidget()))
        panel->leave();
    else
        goHome();
    return true;
}

QSize WorkViews::minimumSizeHint() const
{
    const QSize least = QStackedWidget::minimumSizeHint();
    return currentWidget() ? QSize(least.width(), currentWidget()->minimumSizeHint().height()) : least;
}
