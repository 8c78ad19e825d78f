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
    void call(const QDBusMessage &message, QObject *receiver, std::function<void(Value)> take,
              std::function<void()> otherwise = {}) const
    {
        auto *watcher = new QDBusPendingCallWatcher(system.asyncCall(message), receiver);
        QObject::connect(watcher, &QDBusPendingCallWatcher::finished, receiver, [watcher, take, otherwise] {
            const QDBusPendingReply<Value> reply = *watcher;
            if (!reply.isError())
                take(reply.value());
            else if (otherwise)
                otherwise();
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

    /// Hears of the user's own session. Desktops start programs outside of it; these know its name. Where
    /// nothing helps, any session on this computer will do: it covers once too often.
    void watchSession(QObject *receiver)
    {
        const auto watch = [this, receiver](const QDBusObjectPath &path) { hear(path.path(), receiver); };
        const auto watchAny = [this, receiver] { hear({}, receiver); };
        QDBusMessage named = managerCall(u"GetSession"_s);
        named << qEnvironmentVariable("XDG_SESSION_ID");
        const auto watchNamed = [this, receiver, named, watch, watchAny] {
            call<QDBusObjectPath>(named, receiver, watch, watchAny);
        };
        QDBusMessage own = managerCall(u"GetSessionByPID"_s);
        own << quint32(QCoreApplication::applicationPid());
        call<QDBusObjectPath>(own, receiver, watch, watchNamed);
    }

    void hear(const QString &path, QObject *receiver)
    {
        system.connect(login(), path, u"org.freedesktop.login1.Session"_s, u"Lock"_s, receiver,
                       SIGNAL(left()));
        system.connect(login(), path, u"org.freedesktop.DBus.Properties"_s, u"PropertiesChanged"_s, receiver,
                       SLOT(hintChanged(QString, QVariantMap)));
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
        m_system->watchSession(this);
    }
    // Each desktop has its own, and none minds who listens.
    for (const QString &saver :
         {u"org.freedesktop.ScreenSaver"_s, u"org.gnome.ScreenSaver"_s, u"org.cinnamon.ScreenSaver"_s,
          u"org.mate.ScreenSaver"_s, u"org.xfce.ScreenSaver"_s})
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

/// Of a session that is locked without having been asked to by the system.
void SessionWatch::hintChanged(const QString & /*what*/, const QVariantMap &values)
{
    lockChanged(values.value(u"LockedHint"_s).toBool());
}

void SessionWatch::lockChanged(bool isLocked)
{
    if (isLocked)
        emit left();
}
