// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/access/windowguard.h"

#include "shell/access/gate.h"
#include "shell/access/passwordcheck.h"
#include "shell/access/passwordprompt.h"
#include "shell/access/taskpreview.h"
#include "shell/controls/activitybar.h"
#include "shell/core/settingskeys.h"
#include "shell/frame/commonkeys.h"
#include "shell/program/covering.h"
#include "shell/program/functionfaces.h"
#include "shell/program/program.h"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>

#include <algorithm>
#include <utility>

namespace {

constexpr int mostPopups = 16;

/// Menus, lists and completers: whatever stands open beside its window. A tool tip would go by itself, but a
/// moment too late.
void closePopups()
{
    for (int popup = 0; popup < mostPopups && QApplication::activePopupWidget(); ++popup)
        QApplication::activePopupWidget()->close();
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->windowType() == Qt::ToolTip)
            window->hide();
    }
}

/// The window that opened `window`; null for one that stands by itself.
const QWidget *openerOf(const QWidget &window)
{
    return window.parentWidget() ? window.parentWidget()->window() : nullptr;
}

/// The password prompt and what it opens tell nothing.
bool isPrompt(const QWidget &window)
{
    const QWidget *opener = openerOf(window);
    return qobject_cast<const Form32 *>(&window) || (opener && isPrompt(*opener));
}

bool isPromptShown()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    return std::ranges::any_of(windows, [](const QWidget *window) {
        return window->isVisible() && qobject_cast<const Form32 *>(window);
    });
}

/// A box of the system's own, which cannot be covered.
bool isForeign(const QWidget &window)
{
    return window.testAttribute(Qt::WA_DontShowOnScreen);
}

} // namespace

WindowGuard::WindowGuard(Program &program, QObject *parent)
    : QObject(parent)
    , m_program(program)
    , m_idle(program.idle)
{
    qApp->installEventFilter(this);
    connect(&m_idle, &IdleLimit::reached, this, &WindowGuard::lock);
    connect(&program.changes, &ProgramSignals::lockRequested, this, &WindowGuard::lock);
    connect(&program.changes, &ProgramSignals::guardsChanged, this, &WindowGuard::startClock);
    connect(&program.changes, &ProgramSignals::uncoverRequested, this,
            [this](QWidget *window) { unlock(*window); });
    connect(QApplication::clipboard(), &QClipboard::changed, this, &WindowGuard::noteClipboard);
    startClock();
}

int WindowGuard::idleMinutes(const Program &program)
{
    const int minutes = program.settings.number(SettingsKeys::idleMinutes);
    return std::ranges::find(SettingsKeys::idleMinutesOffered, minutes) ==
                   SettingsKeys::idleMinutesOffered.end()
               ? SettingsKeys::usualIdleMinutes
               : minutes;
}

void WindowGuard::startClock()
{
    m_idle.start(std::chrono::minutes(idleMinutes(m_program)));
}

bool WindowGuard::isGuarded(Function function) const
{
    if (function != Function::PasswordControl)
        return FunctionFaces::of(function).isGuarded(m_program.state.protectedAreas);
    return PasswordCheck(m_program.folder, PasswordCost::interactive(), &m_program.gate.memory()).state() !=
           PasswordCheck::State::NotSet;
}

/// The guarded function that `window` belongs to, through however many boxes; none where nothing guards it.
std::optional<Function> WindowGuard::guardedOwner(const QWidget &window) const
{
    if (const std::optional<Function> function = m_program.functions.functionOf(window))
        return isGuarded(*function) ? function : std::nullopt;
    const QWidget *opener = openerOf(window);
    return opener ? guardedOwner(*opener) : std::nullopt;
}

void WindowGuard::lock()
{
    m_program.gate.forgetPassed();
    closePopups();
    const QWidgetList all = QApplication::topLevelWidgets();
    const QList<QPointer<QWidget>> windows(all.begin(), all.end());
    for (const QPointer<QWidget> &window : windows) {
        if (!window) // gone with another one
            continue;
        auto *box = qobject_cast<QDialog *>(window);
        if (box && box->isVisible() && isPrompt(*box))
            box->reject(); // with what was typed there
        else if (window->isVisible() && guardedOwner(*window))
            cover(*window);
    }
    clearClipboard();
}

void WindowGuard::cover(QWidget &window)
{
    if (Covering::isCovered(window))
        return;
    if (auto *box = qobject_cast<QDialog *>(&window); box && isForeign(window)) {
        box->reject();
        return;
    }
    Covering::cover(window, [this, &window] { unlock(window); });
    TaskPreview::setHidden(window, true);
    m_covered.append(&window);
}

/// One right answer uncovers all.
void WindowGuard::unlock(QWidget &asking)
{
    if (m_isAsking || !Covering::isCovered(asking))
        return;
    const QPointer<QWidget> window(&asking);
    if (!askFor(asking))
        return;
    const QList<QPointer<QWidget>> covered = std::exchange(m_covered, {});
    for (const QPointer<QWidget> &each : covered) {
        if (!each)
            continue;
        Covering::uncover(*each);
        TaskPreview::setHidden(*each, false);
    }
    const QString notice = m_program.gate.takeNotice(m_program);
    if (auto *bar = window ? window->findChild<ActivityBar *>() : nullptr; bar && !notice.isEmpty())
        bar->announce(notice);
}

bool WindowGuard::askFor(QWidget &asking)
{
    m_isAsking = true;
    const std::optional<Function> function = guardedOwner(asking);
    const bool isRight =
        !function || (*function == Function::PasswordControl
                          ? m_program.gate.mayOpenPasswordControl(m_program, &asking)
                          : m_program.gate.mayUncover(m_program, FunctionFaces::of(*function).area, &asking));
    m_isAsking = false;
    return isRight;
}

bool WindowGuard::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress &&
        QKeySequence(static_cast<QKeyEvent *>(event)->keyCombination()) == CommonKeys::lock) {
        emit m_program.changes.lockRequested();
        return true;
    }
    // What a covered window has to say meanwhile is not read before the password was given.
    if (event->type() == QEvent::Show && !m_covered.isEmpty()) {
        auto *box = qobject_cast<QDialog *>(watched);
        const QWidget *opener = box ? openerOf(*box) : nullptr;
        // Where there is no prompt, the gate tells why: nobody could uncover that.
        const bool isOfGate = box && (isPrompt(*box) || (m_isAsking && !isPromptShown()));
        if (opener && Covering::isCovered(*opener) && !isOfGate)
            cover(*box);
    }
    return false;
}

/// Other programs have nothing to copy while a window of ours is in front.
void WindowGuard::noteClipboard(QClipboard::Mode mode)
{
    const QWidget *window = QApplication::activeWindow();
    if (window && guardedOwner(*window))
        m_copied.insert(mode);
    else
        m_copied.remove(mode);
}

void WindowGuard::clearClipboard()
{
    const QSet<QClipboard::Mode> modes = std::exchange(m_copied, {});
    for (const QClipboard::Mode mode : modes)
        QApplication::clipboard()->clear(mode);
}
