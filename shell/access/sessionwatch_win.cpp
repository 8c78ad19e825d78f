// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/access/sessionwatch.h"

#include <QAbstractNativeEventFilter>
#include <QCoreApplication>
#include <QWindow>

#include <qt_windows.h>

#include <wtsapi32.h>

namespace {

/// Locked, or left for another user's session; or the desk is seen from another computer no more.
bool isLeft(WPARAM what)
{
    return what == WTS_SESSION_LOCK || what == WTS_CONSOLE_DISCONNECT || what == WTS_REMOTE_DISCONNECT;
}

} // namespace

/// A window that is never seen: the system's messages need one to come to.
class SessionWatch::System final : public QAbstractNativeEventFilter
{
public:
    explicit System(SessionWatch &watch)
        : m_watch(watch)
    {
        m_window.create();
        WTSRegisterSessionNotification(handle(), NOTIFY_FOR_THIS_SESSION);
        // Computers that sleep lightly tell only whoever has asked for it.
        m_sleep = RegisterSuspendResumeNotification(handle(), DEVICE_NOTIFY_WINDOW_HANDLE);
        QCoreApplication::instance()->installNativeEventFilter(this);
    }
    ~System() override
    {
        QCoreApplication::instance()->removeNativeEventFilter(this);
        if (m_sleep)
            UnregisterSuspendResumeNotification(m_sleep);
        WTSUnRegisterSessionNotification(handle());
    }
    System(const System &) = delete;
    System &operator=(const System &) = delete;

    bool nativeEventFilter(const QByteArray & /*eventType*/, void *message, qintptr * /*result*/) override
    {
        const MSG &told = *static_cast<MSG *>(message);
        if (told.message == WM_WTSSESSION_CHANGE)
            m_watch.lockChanged(isLeft(told.wParam));
        else if (told.message == WM_POWERBROADCAST)
            m_watch.sleepChanged(told.wParam == PBT_APMSUSPEND);
        return false;
    }

private:
    HWND handle() const { return reinterpret_cast<HWND>(m_window.winId()); }

    SessionWatch &m_watch;
    QWindow m_window;
    HPOWERNOTIFY m_sleep = nullptr;
};

SessionWatch::SessionWatch(QObject *parent)
    : QObject(parent)
{}

SessionWatch::~SessionWatch() = default;

void SessionWatch::start()
{
    m_system = std::make_unique<System>(*this);
}

void SessionWatch::sleepChanged(bool isBeginning)
{
    if (isBeginning)
        emit left();
}

/// Other systems' word for a locked session.
void SessionWatch::hintChanged(const QString & /*what*/, const QVariantMap & /*values*/) {}

void SessionWatch::lockChanged(bool isLocked)
{
    if (isLocked)
        emit left();
}
