// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QTimer>

#include <functional>

/// Does long work in slices of a few milliseconds, so that the window stays responsive and a stop takes
/// effect at once.
class SlicedWork final : public QObject
{
    Q_OBJECT
public:
    /// One step of the work; false when nothing is left.
    using Step = std::function<bool()>;

    explicit SlicedWork(QObject *parent);

    void start(Step step);
    /// The work ends behind the step that it is in.
    void stop();
    bool isRunning() const { return m_timer.isActive(); }

signals:
    /// A slice is over: progress can be shown.
    void progressed();
    void finished(bool wasStopped);

private:
    void work();
    void end(bool wasStopped);

    QTimer m_timer;
    Step m_step;
    bool m_isStopped = false;
    bool m_isFirst = false;
};
