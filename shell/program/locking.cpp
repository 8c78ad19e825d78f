// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/program/locking.h"

#include "shell/controls/activitybar.h"
#include "shell/program/covering.h"
#include "shell/program/program.h"

#include <utility>

void Locking::offer(Program &program, ActivityBar &bar)
{
    const auto show = [&program, &bar] { bar.offerLock(program.state.protectedAreas.isAnyProtected()); };
    QObject::connect(&program.changes, &ProgramSignals::guardsChanged, &bar, show);
    QObject::connect(&bar, &ActivityBar::lockRequested, &program.changes, &ProgramSignals::lockRequested);
    show();
}

void Locking::offerAlso(Program &program, ActivityBar &bar, std::function<bool()> isLockable)
{
    const auto show = [&program, &bar, isLockable = std::move(isLockable)] {
        bar.offerLock(program.state.protectedAreas.isAnyProtected() || isLockable());
    };
    QObject::connect(&program.changes, &ProgramSignals::guardsChanged, &bar, show);
    show();
}

bool Locking::maySee(QWidget &window, Program &program)
{
    const QPointer<QWidget> asked(&window);
    if (Covering::isCovered(window))
        emit program.changes.uncoverRequested(&window);
    return asked && !Covering::isCovered(window);
}
