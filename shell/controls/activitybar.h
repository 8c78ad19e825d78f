// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/clock.h"
#include "shell/core/programstate.h"

#include <QKeySequence>
#include <QStatusBar>

#include <functional>

class ElidedLabel;
class QHBoxLayout;
class QLabel;
class QProgressBar;
class QPushButton;
class QTimer;
class QToolButton;

/// The status bar of every window: current activity, the restore panels as links, a quiet message, progress,
/// date and clock (`Label4`).
class ActivityBar final : public QStatusBar
{
    Q_OBJECT
public:
    ActivityBar(const Clock &clock, const DateStyle &dateStyle, QWidget *parent = nullptr);

    /// The first panel.
    void setActivity(const QString &activity);
    QString activity() const;

    /// A panel "For reading only" with the reason; an empty one hides it.
    void showReadOnly(const QString &reason);

    /// A quiet line that stays until the next action; it never takes the place of the activity.
    void say(const QString &message);
    QString message() const;
    /// Says something that no other message takes the place of for a while.
    void announce(const QString &notice);
    QString notice() const { return m_notice; }
    /// Puts "Undo" behind the message until another one is said.
    void offerUndo();
    /// The same with a link that leads to what the message tells of.
    void offerWay(const QString &words, std::function<void()> go);

    /// "Lock Now" at the right.
    void offerLock(bool offered);
    void offerTopToolbar(bool offered);
    void offerSideToolbars(bool offered);

    /// Progress of a long walk; `total` 0 hides it. `stoppable` also shows "Stop".
    void showProgress(int done, int total, bool stoppable = false);
    /// The access key of "Stop"; none while it is not shown.
    QKeySequence stopKey() const;

    /// Starts the clock: nothing ticks before, nor while the bar is not seen.
    void startClock();
    void refreshClock();

signals:
    void restoreTopToolbarRequested();
    void lockRequested();
    void undoRequested();
    void restoreSideToolbarsRequested();
    void stopRequested();
    /// The clock has passed midnight, or the bar comes back on another day.
    void dayBegan();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    QToolButton *makeLink(const QString &name, const QString &text);
    void addToRow(QHBoxLayout &row);
    void showMessage();
    void waitForNextMinute();

    const Clock &m_clock;
    const DateStyle &m_dateStyle;
    QDate m_day; ///< that the bar shows
    QLabel *m_activity;
    QLabel *m_readOnly;
    QToolButton *m_restoreTop;
    QToolButton *m_restoreSide;
    ElidedLabel *m_message;
    QToolButton *m_way;
    std::function<void()> m_go; ///< where it leads
    QToolButton *m_undo;
    QToolButton *m_lock;
    QString m_notice;
    QString m_said; ///< what the message shows when no control explains itself
    QProgressBar *m_progress;
    QPushButton *m_stop;
    QLabel *m_date;
    QLabel *m_time;
    QTimer *m_timer;
    bool m_clockRuns = false;
};
