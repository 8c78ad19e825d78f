// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <chrono>

/// Knows how long nobody has used a key or the mouse, in whichever window. One for the whole run.
class IdleClock final : public QObject
{
    Q_OBJECT
public:
    /// Begins with somebody at the desk.
    explicit IdleClock(QObject *parent = nullptr);

    std::chrono::milliseconds idleFor() const { return std::chrono::milliseconds(m_used.elapsed()); }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QElapsedTimer m_used;
};

/// Tells when nobody has been at the desk for a while. Dialogs, menus and walks do not hold it up.
class IdleLimit final : public QObject
{
    Q_OBJECT
public:
    /// Does not run before it is started. `clock` outlives it.
    explicit IdleLimit(const IdleClock &clock, QObject *parent = nullptr);

    /// From now on, or with another limit from now on.
    void start(std::chrono::milliseconds limit);
    void stop() { m_timer.stop(); }

signals:
    /// Nobody was there for the limit; again after each further stretch of that length.
    void reached();

private:
    void look();

    const IdleClock &m_clock;
    std::chrono::milliseconds m_limit{0};
    QTimer m_timer;
};
