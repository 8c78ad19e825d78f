// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/program/functions.h"
#include "shell/program/idleclock.h"

#include <QClipboard>
#include <QList>
#include <QPointer>
#include <QSet>
#include <QWidget>

struct Program;

/// Covers the windows that the password guards, with all that belongs to them, when nobody is at the desk or
/// somebody says so, and uncovers them when the password was given.
class WindowGuard final : public QObject
{
    Q_OBJECT
public:
    explicit WindowGuard(Program &program, QObject *parent = nullptr);

    /// Covers at once. Boxes that are open stay open, covered; menus close.
    void lock();

    /// Minutes without key or mouse, as the setting has them: 1, 5, 10 or 30, and 10 for anything else.
    static int idleMinutes(const Program &program);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void startClock();
    bool isGuarded(Function function) const;
    std::optional<Function> guardedOwner(const QWidget &window) const;
    void cover(QWidget &window);
    void unlock(QWidget &asking);
    bool askFor(QWidget &asking);
    void noteClipboard(QClipboard::Mode mode);
    void clearClipboard();

    Program &m_program;
    IdleLimit m_idle;
    QList<QPointer<QWidget>> m_covered;
    QSet<QClipboard::Mode> m_copied; ///< what a guarded window has put there
    bool m_isAsking = false;
};
