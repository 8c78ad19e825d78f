// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frame/undostack.h"

#include "shell/controls/activitybar.h"
#include "shell/core/framelines.h"
#include "shell/frame/commands.h"
#include "shell/frame/commonkeys.h"
#include "shell/program/program.h"

#include <QMenu>
#include <QScopedValueRollback>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A step of ten years of days is some megabytes.
constexpr std::size_t mostSteps = 100;
constexpr qsizetype longestTitle = 60;

/// "&Undo: Deleted: Josephine Holm" as a menu shows it.
QString caption(const QString &verb, const std::vector<std::shared_ptr<UndoStep>> &steps)
{
    if (steps.empty())
        return verb;
    QString title = steps.back()->title;
    if (title.size() > longestTitle)
        title = title.left(longestTitle - 1) + u'\u2026';
    return verb + u" \u201c"_s + title.replace(u'&', u"&&"_s) + u'\u201d';
}

} // namespace

UndoStack::UndoStack(Program &program, Commands &commands, ActivityBar &activity,
                     std::function<bool()> mayReplace, QWidget *window)
    : QObject(window)
    , m_program(program)
    , m_commands(commands)
    , m_activity(activity)
    , m_mayReplace(std::move(mayReplace))
{
    connect(&activity, &ActivityBar::undoRequested, this, &UndoStack::undo);
}

void UndoStack::addCommands(QMenu *menu)
{
    const auto none = [](const Steps &steps, const QString &reason) {
        return steps.empty() ? reason : QString();
    };
    m_undo = m_commands.writing(m_commands.add(
        menu, u"mEUndo"_s, u"&Undo"_s, [this] { undo(); },
        [this, none] { return none(m_done, FrameLines::nothingToUndo()); }, CommonKeys::undo));
    m_redo = m_commands.writing(m_commands.add(
        menu, u"mERedo"_s, u"Re&do"_s, [this] { redo(); },
        [this, none] { return none(m_undone, FrameLines::nothingToRedo()); }, CommonKeys::redo));
}

void UndoStack::push(UndoStep step)
{
    m_undone.clear();
    m_done.push_back(std::make_shared<UndoStep>(std::move(step)));
    if (m_done.size() > mostSteps)
        m_done.erase(m_done.begin());
    refresh();
}

void UndoStack::push(const QString &title, RecordChange change, std::function<void()> show)
{
    if (!change.isEmpty())
        push(title, std::make_shared<RecordChange>(std::move(change)), std::move(show));
}

void UndoStack::push(const QString &title, const std::shared_ptr<FileChange> &change,
                     std::function<void()> show)
{
    // Where somebody else has written since, their work is shown in place of what this window knew.
    const auto shown = [show = std::move(show)](ChangeResult result) {
        if (result != ChangeResult::Refused)
            show();
        return result;
    };
    push({title, [this, change, shown] { return shown(change->undo(m_program.folder)); },
          [this, change, shown] { return shown(change->redo(m_program.folder)); }});
}

void UndoStack::offer()
{
    if (!m_done.empty())
        m_activity.offerUndo();
}

void UndoStack::clear()
{
    m_done.clear();
    m_undone.clear();
    refresh();
}

void UndoStack::forgetTyped()
{
    for (Steps *steps : {&m_done, &m_undone})
        std::erase_if(*steps, [](const auto &step) { return step->kind == UndoStep::Typed; });
    refresh();
}

void UndoStack::undo()
{
    go(m_done, m_undone, &UndoStep::undo, u"Undone: "_s);
}

void UndoStack::redo()
{
    go(m_undone, m_done, &UndoStep::redo, u"Done again: "_s);
}

void UndoStack::go(Steps &from, Steps &to, Way way, const QString &done)
{
    if (from.empty() || m_isAtWork || m_program.folder.isReadOnly())
        return;
    const QScopedValueRollback<bool> busy(m_isAtWork, true);
    const std::shared_ptr<UndoStep> step = from.back();
    // An answer to save puts a step of its own above this one.
    if (step->kind == UndoStep::Written && !m_mayReplace())
        return;
    const ChangeResult result = ((*step).*way)();
    // Typed text may give way again to what a step of typing left.
    if (result == ChangeResult::Done || (result == ChangeResult::Outdated && step->kind == UndoStep::Written))
        std::erase(from, step);
    if (result == ChangeResult::Done)
        to.push_back(step);
    refresh();
    switch (result) {
    case ChangeResult::Done:
        m_activity.say(done + step->title);
        break;
    case ChangeResult::Outdated:
        m_activity.say(step->kind == UndoStep::Typed ? FrameLines::typedSince(step->title)
                                                     : FrameLines::changedSince(step->title));
        break;
    case ChangeResult::Refused:
        m_activity.say(FrameLines::refused(m_program.folder, FrameLines::undoRefused(step->title)));
        break;
    }
}

void UndoStack::refresh()
{
    if (!m_undo)
        return;
    m_commands.setCaption(m_undo, caption(u"&Undo"_s, m_done));
    m_commands.setCaption(m_redo, caption(u"Re&do"_s, m_undone));
    m_commands.refresh();
}
