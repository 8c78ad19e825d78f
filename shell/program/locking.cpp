// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/program/locking.h"

#include "shell/controls/activitybar.h"
#include "shell/program/covering.h"
#include "shell/program/program.h"

#include <QObject>
#include <QPointer>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

/// What can be locked by itself, whatever the password guards.
class Lockables final : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;

    static Lockables &of(Program &program)
    {
        auto *known = program.changes.findChild<Lockables *>();
        return known ? *known : *new Lockables(&program.changes);
    }

    void add(const QObject *owner, std::function<bool()> isLockable)
    {
        m_all.emplace_back(owner, std::move(isLockable));
    }

    static void showIn(Program &program, ActivityBar &bar)
    {
        bar.offerLock(program.state.protectedAreas.isAnyProtected() || of(program).isAny());
    }

private:
    bool isAny()
    {
        std::erase_if(m_all, [](const auto &each) { return !each.first; });
        return std::ranges::any_of(m_all, [](const auto &each) { return each.second(); });
    }

    std::vector<std::pair<QPointer<const QObject>, std::function<bool()>>> m_all;
};

} // namespace

void Locking::offer(Program &program, ActivityBar &bar)
{
    const auto show = [&program, &bar] { Lockables::showIn(program, bar); };
    QObject::connect(&program.changes, &ProgramSignals::guardsChanged, &bar, show);
    QObject::connect(&bar, &ActivityBar::lockRequested, &program.changes, &ProgramSignals::lockRequested);
    show();
}

void Locking::offerAlso(Program &program, ActivityBar &bar, std::function<bool()> isLockable)
{
    Lockables::of(program).add(&bar, std::move(isLockable));
    Lockables::showIn(program, bar);
}

bool Locking::maySee(QWidget &window, Program &program)
{
    const QPointer<QWidget> asked(&window);
    if (Covering::isCovered(window))
        emit program.changes.uncoverRequested(&window);
    return asked && !Covering::isCovered(window);
}

#include "locking.moc"
