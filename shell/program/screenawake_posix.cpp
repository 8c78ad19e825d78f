// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/program/screenawake.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

using namespace Qt::Literals::StringLiterals;

namespace {

QDBusMessage saverCall(const QString &method)
{
    const QString saver = u"org.freedesktop.ScreenSaver"_s;
    return QDBusMessage::createMethodCall(saver, u"/org/freedesktop/ScreenSaver"_s, saver, method);
}

void release(const QDBusPendingReply<uint> &held)
{
    if (held.isError())
        return;
    QDBusMessage call = saverCall(u"UnInhibit"_s);
    call << held.value();
    QDBusConnection::sessionBus().asyncCall(call);
}

} // namespace

/// The desktop's promise, by whose number it is given back. It ends with the program at the latest.
class ScreenAwake::System
{
public:
    QDBusPendingReply<uint> held;
};

ScreenAwake::ScreenAwake(const QString &reason)
    : m_system(std::make_unique<System>())
{
    QDBusMessage call = saverCall(u"Inhibit"_s);
    call << u"Quillery"_s << reason;
    m_system->held = QDBusConnection::sessionBus().asyncCall(call);
}

ScreenAwake::~ScreenAwake()
{
    const QDBusPendingReply<uint> held = m_system->held;
    if (held.isFinished()) {
        release(held);
        return;
    }
    auto *answer = new QDBusPendingCallWatcher(held, QCoreApplication::instance());
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, answer, [answer] {
        release(*answer);
        answer->deleteLater();
    });
}
