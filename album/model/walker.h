// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <atomic>
#include <functional>
#include <memory>

class QThread;

/// One long walk over files at a time, on a thread of its own: the window goes on meanwhile, and a stop takes
/// effect within a file.
class Walker final : public QObject
{
    Q_OBJECT
public:
    using Stop = std::atomic_bool;
    /// What is done there; ends early once it is told to stop.
    using Work = std::function<void(const Stop &isStopped)>;

    explicit Walker(QObject *parent);
    /// Stops the walk and waits for its end.
    ~Walker() override;

    /// Starts the walk; behind the one that runs, which is stopped. `then` follows on this thread, also after
    /// a stop.
    void start(Work work, std::function<void(bool wasStopped)> then);
    void stop();
    bool isRunning() const { return m_thread != nullptr; }

    /// For the walk: has `report` run on the thread of this object, before what follows the walk.
    void tell(std::function<void()> report);

private:
    void end(const std::function<void(bool)> &then);

    std::unique_ptr<QThread> m_thread;
    std::shared_ptr<Stop> m_isStopped;
    std::function<void()> m_next;
};
