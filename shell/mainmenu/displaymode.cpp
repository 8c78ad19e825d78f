// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/mainmenu/displaymode.h"

#include "shell/core/settingskeys.h"
#include "shell/frame/windowplace.h"
#include "shell/program/sharedprocedures.h"

#include <QAction>
#include <QScopedValueRollback>
#include <QScreen>
#include <QTimer>
#include <QWidget>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int settlingMilliseconds = 100;

} // namespace

DisplayMode::DisplayMode(Program &program, QWidget *window, QAction *fullScreen, QAction *smallerScreen)
    : QObject(window)
    , m_program(program)
    , m_window(window)
    , m_fullScreen(fullScreen)
    , m_smallerScreen(smallerScreen)
{
    m_fullScreen->setCheckable(true);
    m_smallerScreen->setCheckable(true);
}

void DisplayMode::load()
{
    WindowPlace::keepOnScreen(*m_window);
    const QScopedValueRollback switching(m_switching, true);
    const bool smaller = m_program.settings.text(SettingsKeys::smallerScreen) == "Yes"_L1;
    setMode(smaller ? ScreenMode::Smaller : ScreenMode::FullScreen);
    // A desktop without a window manager maximises nothing: the size fills the screen in any case.
    m_window->resize(smaller ? rememberedSize() : m_window->screen()->availableSize());
    m_window->setWindowState(smaller ? Qt::WindowNoState : Qt::WindowMaximized);
}

void DisplayMode::useFullScreen()
{
    const QScopedValueRollback switching(m_switching, true);
    write(ScreenMode::FullScreen);
    m_window->setWindowState(Qt::WindowMaximized);
}

void DisplayMode::useSmallerScreen()
{
    const QScopedValueRollback switching(m_switching, true);
    write(ScreenMode::Smaller);
    m_window->setWindowState(Qt::WindowNoState);
    m_window->resize(rememberedSize());
}

void DisplayMode::useDefaultSize()
{
    const QScopedValueRollback switching(m_switching, true);
    setMode(ScreenMode::Smaller);
    m_window->setWindowState(Qt::WindowNoState);
    const QSize size = HINFO1::minimumTwips / HINFO1::twipsPerPixel;
    m_window->resize(size);
    tellUnless(HINFO1::saveMainWindowSize(m_program, false, size));
}

void DisplayMode::toggle()
{
    if (m_fullScreen->isChecked())
        useSmallerScreen();
    else
        useFullScreen();
}

void DisplayMode::windowStateChanged(Qt::WindowStates before)
{
    const Qt::WindowStates now = m_window->windowState();
    const bool restored = before.testFlag(Qt::WindowMaximized) && !now.testFlag(Qt::WindowMaximized);
    if (m_switching || !restored || now.testFlag(Qt::WindowMinimized))
        return;
    if (m_program.settings.text(SettingsKeys::smallerScreen) == "Yes"_L1)
        return;
    write(ScreenMode::Smaller);
    // A window that was never smaller is restored to the whole screen: give it its remembered size, but only
    // when the window manager has done its part.
    QTimer::singleShot(settlingMilliseconds, m_window, [this] {
        if (m_window->width() >= m_window->screen()->availableSize().width())
            m_window->resize(rememberedSize());
    });
}

void DisplayMode::save()
{
    const bool maximized = m_window->windowState().testFlag(Qt::WindowMaximized);
    setMode(maximized ? ScreenMode::FullScreen : ScreenMode::Smaller);
    tellUnless(HINFO1::saveMainWindowSize(m_program, maximized, m_window->size()));
}

void DisplayMode::tellUnless(bool isSaved)
{
    if (!isSaved)
        emit notSaved();
}

void DisplayMode::setMode(ScreenMode mode)
{
    m_program.state.screenMode = mode;
    m_fullScreen->setChecked(mode == ScreenMode::FullScreen);
    m_smallerScreen->setChecked(mode == ScreenMode::Smaller);
}

void DisplayMode::write(ScreenMode mode)
{
    setMode(mode);
    const QString text = mode == ScreenMode::Smaller ? u"Yes"_s : u"No"_s;
    tellUnless(m_program.settings.setText(SettingsKeys::smallerScreen, text));
}

QSize DisplayMode::rememberedSize() const
{
    const QSize twips(m_program.settings.number(SettingsKeys::windowWidth),
                      m_program.settings.number(SettingsKeys::windowHeight));
    const QSize size = twips.expandedTo(HINFO1::minimumTwips) / HINFO1::twipsPerPixel;
    return WindowPlace::hasScreen() ? size.boundedTo(WindowPlace::room(*m_window)) : size;
}
