// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frame/menufocus.h"

#include <QApplication>
#include <QEvent>
#include <QMenuBar>

namespace {

constexpr int settled = 100; ///< ms after which the bar is done with a key

} // namespace

MenuFocus::MenuFocus(QMenuBar *bar)
    : QObject(bar)
    , m_bar(bar)
{
    m_wait.setSingleShot(true);
    m_wait.setInterval(settled);
    bar->installEventFilter(this);
    connect(&m_wait, &QTimer::timeout, this, &MenuFocus::giveBack);
    connect(qApp, &QApplication::focusChanged, this, [this](const QWidget *, QWidget *now) { follow(now); });
}

void MenuFocus::follow(QWidget *now)
{
    if (!now || now == m_bar)
        m_wait.start();
    else if (m_bar->window()->isAncestorOf(now))
        m_last = now;
}

bool MenuFocus::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress)
        m_wait.start();
    return QObject::eventFilter(watched, event);
}

void MenuFocus::giveBack()
{
    const QWidget *focus = QApplication::focusWidget();
    const bool isWalked = m_bar->activeAction() || QApplication::activePopupWidget();
    // A window behind another one comes back to what it has chosen itself meanwhile.
    const QWidget *chosen = m_bar->window()->focusWidget();
    const bool isOpen = m_bar->isActiveWindow() || !chosen || chosen == m_bar;
    const bool isPossible = isOpen && m_last && m_last->isVisible();
    if ((!focus || focus == m_bar) && !isWalked && isPossible)
        m_last->setFocus();
}
