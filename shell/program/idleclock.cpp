// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/program/idleclock.h"

#include <QCoreApplication>
#include <QEvent>

IdleClock::IdleClock(QObject *parent)
    : QObject(parent)
{
    m_used.start();
    if (QCoreApplication *application = QCoreApplication::instance())
        application->installEventFilter(this);
}

/// Sees every event of the program: what is not of a hand at the desk must pass quickly.
bool IdleClock::eventFilter(QObject * /*watched*/, QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::MouseMove:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::Wheel:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TabletMove:
    case QEvent::TabletPress:
    case QEvent::InputMethod:
    case QEvent::NonClientAreaMouseMove:
    case QEvent::NonClientAreaMouseButtonPress:
        // Windows that come and go under a mouse at rest make events, too, but those do not come from
        // outside.
        if (event->spontaneous())
            m_used.start();
        break;
    default:
        break;
    }
    return false;
}

IdleLimit::IdleLimit(const IdleClock &clock, QObject *parent)
    : QObject(parent)
    , m_clock(clock)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &IdleLimit::look);
}

void IdleLimit::start(std::chrono::milliseconds limit)
{
    if (m_timer.isActive() && limit == m_limit)
        return; // nobody came back by that
    m_limit = limit;
    m_timer.start(limit);
}

void IdleLimit::look()
{
    const std::chrono::milliseconds left = m_limit - m_clock.idleFor();
    m_timer.start(left.count() > 0 ? left : m_limit);
    if (left.count() <= 0)
        emit reached();
}
