// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/mainmenu/functionopener.h"

#include "shell/access/gate.h"
#include "shell/controls/activitybar.h"
#include "shell/mainmenu/listfile.h"
#include "shell/program/covering.h"
#include "shell/program/functionfaces.h"
#include "shell/program/locking.h"
#include "shell/program/program.h"
#include "shell/program/sharedprocedures.h"

#include <QAction>

#include <tuple>

using namespace Qt::Literals::StringLiterals;

namespace {

/// "Loading" in the status bar and the hourglass, until what was asked for is there.
class Loading
{
public:
    explicit Loading(ActivityBar &bar)
        : m_bar(bar)
        , m_before(bar.activity())
    {
        HINFO1::hourglassOn();
        m_bar.setActivity(u"Loading"_s);
    }
    ~Loading()
    {
        m_bar.setActivity(m_before);
        HINFO1::hourglassOff();
    }
    Loading(const Loading &) = delete;
    Loading &operator=(const Loading &) = delete;

private:
    ActivityBar &m_bar;
    QString m_before;
};

/// What a press does, by the effect of the button: one function object made of several.
template <typename... Effects>
struct Either : Effects... {
    using Effects::operator()...;
};
template <typename... Effects>
Either(Effects...) -> Either<Effects...>; // for compilers that do not find it by themselves

} // namespace

FunctionOpener::FunctionOpener(Program &program, ActivityBar &activity, QWidget *window)
    : m_program(program)
    , m_activity(activity)
    , m_window(window)
{}

void FunctionOpener::open(Function function) const
{
    if (function == Function::PasswordControl)
        openWhenAllowed(function,
                        [this] { return m_program.gate.mayOpenPasswordControl(m_program, m_window); });
    else
        open(function, FunctionFaces::of(function).area);
}

void FunctionOpener::open(Function function, const Place &place) const
{
    open(function, FunctionFaces::of(function).area, place);
}

void FunctionOpener::open(Function function, int area, const Place &place) const
{
    openWhenAllowed(
        function, [this, area] { return m_program.gate.mayOpen(m_program, area, m_window); }, place);
}

void FunctionOpener::openWhenAllowed(Function function, const std::function<bool()> &mayOpen,
                                     const Place &place) const
{
    if (!m_program.functions.has(function))
        return;
    m_activity.say({});
    QWidget *open = m_program.functions.window(function);
    // Uncovered with the password, it is not asked for once more.
    const bool isCovered = open && Covering::isCovered(*open);
    if (!(isCovered ? Locking::maySee(*open, m_program) : mayOpen()))
        return;
    const Loading loading(m_activity); // not before: nothing loads while the password is asked for
    const QWidget *window = m_program.functions.open(function, m_program, place);
    tellWrongAnswers(window ? window->findChild<ActivityBar *>() : nullptr);
}

/// Of the wrong answers before the right one; in the window that opened, or else here.
void FunctionOpener::tellWrongAnswers(ActivityBar *bar) const
{
    if (const QString notice = m_program.gate.takeNotice(m_program); !notice.isEmpty())
        (bar ? *bar : m_activity).announce(notice);
}

void FunctionOpener::press(const TopButtons::TopButton &button) const
{
    std::visit(Either{[this](const TopButtons::OpensFunction &effect) { open(effect.function, effect.area); },
                      [this](const TopButtons::SameAsEntry &effect) {
                          if (auto *same = m_window->findChild<QAction *>(QString::fromLatin1(effect.entry)))
                              same->trigger();
                      },
                      [this](const TopButtons::OtherEdition &effect) { openForeign(effect.area); },
                      [this](const TopButtons::ShowsListFile &effect) { showListFile(effect); },
                      [](const TopButtons::Gap &) {}},
               button.effect);
}

/// A function that another edition has: its guard is asked, and there is no window to show.
void FunctionOpener::openForeign(int area) const
{
    std::ignore = m_program.gate.mayOpen(m_program, area, m_window);
    tellWrongAnswers(nullptr);
}

void FunctionOpener::showListFile(const TopButtons::ShowsListFile &button) const
{
    const QString file = m_program.folder.existingFile({}, QString::fromLatin1(button.file));
    const bool isUsable = [&] {
        const Loading loading(m_activity);
        return ListFile::hasUsableLine(file);
    }();
    if (isUsable) {
        openForeign(button.area);
        return;
    }
    m_program.dialogs.ask(m_window, TopButtons::emptyListNotice(button));
}
