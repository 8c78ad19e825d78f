// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/access/sessionwatch.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusUnixFileDescriptor>

#include <functional>

using namespace Qt::Literals::StringLiterals;

namespace {

QString login()
{
    return u"org.freedesktop.login1"_s;
}

QDBusMessage managerCall(const QString &method)
{
    return QDBusMessage::createMethodCall(login(), u"/org/freedesktop/login1"_s,
                                          u"org.freedesktop.login1.Manager"_s, method);
}

} // namespace

/// The buses of system and session, and what holds the sleep back until all is covered.
class SessionWatch::System
{
public:
    template <typename Value>
    void call(const QDBusMessage &message, QObject *receiver, std::function<void(Value)> take) const
    {
        auto *watcher = new QDBusPendingCallWatcher(system.asyncCall(message), receiver);
        QObject::connect(watcher, &QDBusPendingCallWatcher::finished, receiver, [watcher, take] {
            const QDBusPendingReply<Value> reply = *watcher;
            if (!reply.isError())
                take(reply.value());
            watcher->deleteLater();
        });
    }

    void delaySleep(QObject *receiver)
    {
        QDBusMessage inhibit = managerCall(u"Inhibit"_s);
        inhibit << u"sleep"_s << u"Quillery"_s << u"Covers what the password guards"_s << u"delay"_s;
        call<QDBusUnixFileDescriptor>(inhibit, receiver,
                                      [this](const QDBusUnixFileDescriptor &given) { delay = given; });
    }

    QDBusConnection system = QDBusConnection::systemBus();
    QDBusConnection session = QDBusConnection::sessionBus();
    QDBusUnixFileDescriptor delay;
};

SessionWatch::SessionWatch(QObject *parent)
    : QObject(parent)
{}

SessionWatch::~SessionWatch() = default;

void SessionWatch::start()
{
    m_system = std::make_unique<System>();
    QDBusConnection &system = m_system->system;
    if (system.isConnected()) {
        system.connect(login(), u"/org/freedesktop/login1"_s, u"org.freedesktop.login1.Manager"_s,
                       u"PrepareForSleep"_s, this, SLOT(sleepChanged(bool)));
        m_system->delaySleep(this);
        QDBusMessage ownSession = managerCall(u"GetSessionByPID"_s);
        ownSession << quint32(QCoreApplication::applicationPid());
        m_system->call<QDBusObjectPath>(ownSession, this, [this](const QDBusObjectPath &path) {
            m_system->system.connect(login(), path.path(), u"org.freedesktop.login1.Session"_s, u"Lock"_s,
                                     this, SIGNAL(left()));
        });
    }
    // Each desktop has its own, and none minds who listens.
    for (const QString &saver : {u"org.freedesktop.ScreenSaver"_s, u"org.gnome.ScreenSaver"_s,
                                 u"org.cinnamon.ScreenSaver"_s, u"org.mate.ScreenSaver"_s})
        m_system->session.connect({}, {}, saver, u"ActiveChanged"_s, this, SLOT(lockChanged(bool)));
}

void SessionWatch::sleepChanged(bool isBeginning)
{
    if (!isBeginning) {
        m_system->delaySleep(this);
        return;
    }
    emit left();
    m_system->delay = {}; // now it may
}

void SessionWatch::lockChanged(bool isLocked)
{
    if (isLocked)
        emit left();
}
