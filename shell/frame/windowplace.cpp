// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frame/windowplace.h"

#include <QElapsedTimer>
#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QTimer>
#include <QWidget>
#include <QWindow>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QSize smallestSize(800, 600);
/// What a window manager adds at most, for windows that have no frame yet.
constexpr QSize likelyFrame(16, 40);
/// Window managers take their time to put the frame on, and nothing tells.
constexpr int settlingMilliseconds = 2000;
constexpr int framingMilliseconds[] = {0, 120, 500, settlingMilliseconds};

/// Fits a window to its screen as long as it settles: when it was shown, left the whole screen, or when the
/// screen has changed. Afterwards it stands where the user puts it.
class ScreenKeeper final : public QObject
{
public:
    explicit ScreenKeeper(QWidget &window)
        : QObject(&window)
        , m_window(window)
    {
        window.installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        switch (event->type()) {
        case QEvent::Show:
            connect(m_window.screen(), &QScreen::availableGeometryChanged, this, &ScreenKeeper::settle,
                    Qt::UniqueConnection);
            settle();
            break;
        case QEvent::WindowStateChange:
            settle();
            break;
        case QEvent::Resize:
        case QEvent::Move:
            if (m_settling.isValid() && !m_settling.hasExpired(settlingMilliseconds))
                fitIn(0);
            break;
        default:
            break;
        }
        return QObject::eventFilter(watched, event);
    }

private:
    void settle()
    {
        m_settling.start();
        for (const int milliseconds : framingMilliseconds)
            fitIn(milliseconds);
    }
    void fitIn(int milliseconds)
    {
        QTimer::singleShot(milliseconds, this, [this] { WindowPlace::fitScreen(m_window); });
    }

    QWidget &m_window;
    QElapsedTimer m_settling;
};

} // namespace

bool WindowPlace::hasScreen()
{
    return QGuiApplication::platformName() != "offscreen"_L1;
}

QSize WindowPlace::room(const QWidget &window)
{
    const QSize screen = window.screen()->availableSize();
    return hasScreen() ? screen - likelyFrame : screen;
}

void WindowPlace::open(QWidget &window, QSize openingSize, const QByteArray &stored)
{
    const QSize most = room(window);
    window.setMinimumSize(smallestSize.boundedTo(most));
    window.resize(openingSize.boundedTo(most));
    if (!window.restoreGeometry(stored))
        window.move(window.screen()->availableGeometry().center() - window.rect().center());
    fitScreen(window);
    keepOnScreen(window);
}

void WindowPlace::fitScreen(QWidget &window)
{
    if (window.windowState().testAnyFlags(Qt::WindowMaximized | Qt::WindowFullScreen | Qt::WindowMinimized))
        return;
    const QMargins frame = window.windowHandle() ? window.windowHandle()->frameMargins() : QMargins();
    const QScreen *here = QGuiApplication::screenAt(window.geometry().center());
    const QRect screen = (here ? here : window.screen())->availableGeometry();
    const QSize most = screen.marginsRemoved(frame).size();
    window.setMinimumSize(window.minimumSize().boundedTo(most));
    window.resize(window.size().boundedTo(most));
    const QRect outside = window.geometry().marginsAdded(frame);
    const QPoint place(
        std::clamp(outside.x(), screen.left(), std::max(screen.left(), screen.right() + 1 - outside.width())),
        std::clamp(outside.y(), screen.top(),
                   std::max(screen.top(), screen.bottom() + 1 - outside.height())));
    // Before the frame is there, a move to where it stands would shift a window by its frame, each time it
    // opens.
    if (place != outside.topLeft())
        window.move(place);
}

void WindowPlace::keepOnScreen(QWidget &window)
{
    if (hasScreen())
        new ScreenKeeper(window);
}
