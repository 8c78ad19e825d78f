// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QTimer>

#include <algorithm>

/// The longest time that the event loop took for one turn, since it was made.
class Heartbeat
{
public:
    /// Beats every `interval` milliseconds: 0 keeps a core busy, where nothing else is to have it.
    explicit Heartbeat(int interval)
    {
        QObject::connect(&m_timer, &QTimer::timeout, [this] {
            m_longest = std::max(m_longest, m_clock.nsecsElapsed());
            m_clock.start();
        });
        m_clock.start();
        m_timer.start(interval);
    }

    double milliseconds() const { return double(m_longest) / 1e6; }

private:
    QTimer m_timer;
    QElapsedTimer m_clock;
    qint64 m_longest = 0;
};
