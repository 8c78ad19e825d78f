// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frame/workviews.h"

#include "shell/controls/taskpanel.h"
#include "shell/controls/workscroll.h"

#include <QCoreApplication>
#include <QEvent>

WorkViews::WorkViews(QWidget *parent)
    : QStackedWidget(parent)
{
    connect(this, &QStackedWidget::currentChanged, this, [this] {
        updateGeometry();
        if (WorkScroll *scroll = WorkScroll::around(this))
            scroll->startAtTop();
        emit changed(currentWidget());
    });
}

WorkViews::~WorkViews()
{
    qDeleteAll(m_aside);
}

void WorkViews::addHome(QWidget *home)
{
    m_homes.append(home);
    if (!m_home)
        m_home = home;
    home->setParent(this);
}

/// The home comes to the front when the views are given their style, and not again with each move of theirs
/// on the way into the window.
bool WorkViews::event(QEvent *event)
{
    if (event->type() == QEvent::Polish && !currentWidget())
        bring(m_home);
    return QStackedWidget::event(event);
}

void WorkViews::addView(QWidget *view)
{
    keepAside(view);
}

/// Each widget asks for its style when it is made, and would get it before the window is painted.
void WorkViews::keepAside(QWidget *view)
{
    view->setParent(nullptr);
    QCoreApplication::removePostedEvents(view, QEvent::PolishRequest);
    for (QWidget *part : view->findChildren<QWidget *>())
        QCoreApplication::removePostedEvents(part, QEvent::PolishRequest);
    m_aside.append(view);
}

void WorkViews::bring(QWidget *view)
{
    m_aside.removeOne(view);
    if (indexOf(view) < 0) {
        addWidget(view);
        // The move leaves the colours of the panel behind where that was given its style before.
        if (!view->testAttribute(Qt::WA_SetPalette))
            view->setPalette({});
    }
    setCurrentWidget(view);
}

void WorkViews::addPanel(TaskPanel *panel)
{
    keepAside(panel);
    connect(panel, &TaskPanel::left, this, &WorkViews::goHome);
}

void WorkViews::setHome(QWidget *home)
{
    const bool wasHome = m_homes.contains(currentWidget());
    m_home = home;
    if (wasHome)
        bring(home);
}

void WorkViews::open(QWidget *view)
{
    if (isHome() && view != m_home)
        m_focusAtHome = window()->focusWidget();
    bring(view);
}

void WorkViews::goHome()
{
    if (isHome())
        return;
    // Who is at work in another part of the window, a list beside the views say, stays there.
    const QWidget *focused = window()->focusWidget();
    const bool isElsewhere = focused && focused->isVisible() && !isAncestorOf(focused);
    bring(m_home);
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
