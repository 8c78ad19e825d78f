// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/access/sessionwatch.h"

#include <QAbstractNativeEventFilter>
#include <QCoreApplication>
#include <QWindow>

#include <qt_windows.h>

#include <wtsapi32.h>

/// A window that is never seen: the system's messages need one to come to.
class SessionWatch::System final : public QAbstractNativeEventFilter
{
public:
    explicit System(SessionWatch &watch)
        : m_watch(watch)
    {
        m_window.create();
        WTSRegisterSessionNotification(handle(), NOTIFY_FOR_THIS_SESSION);
        QCoreApplication::instance()->installNativeEventFilter(this);
    }
    ~System() override
    {
        QCoreApplication::instance()->removeNativeEventFilter(this);
        WTSUnRegisterSessionNotification(handle());
    }
    System(const System &) = delete;
    System &operator=(const System &) = delete;

    bool nativeEventFilter(const QByteArray & /*eventType*/, void *message, qintptr * /*result*/) override
    {
        const MSG &told = *static_cast<MSG *>(message);
        if (told.message == WM_WTSSESSION_CHANGE)
            m_watch.lockChanged(told.wParam == WTS_SESSION_LOCK);
        else if (told.message == WM_POWERBROADCAST)
            m_watch.sleepChanged(told.wParam == PBT_APMSUSPEND);
        return false;
    }

private:
    HWND handle() const { return reinterpret_cast<HWND>(m_window.winId()); }

    SessionWatch &m_watch;
    QWindow m_window;
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

void SessionWatch::lockChanged(bool isLocked)
{
    if (isLocked)
        emit left();
}
