// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/access/sessionwatch.h"
#include "tests/support/privatebus.h"
#include "tests/support/rows.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusUnixFileDescriptor>
#include <QSignalSpy>
#include <QTest>

#include <poll.h>
#include <unistd.h>

#include <array>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto own = "/org/freedesktop/login1/session/own"_L1;
constexpr auto other = "/org/freedesktop/login1/session/other"_L1;
constexpr auto manager = "/org/freedesktop/login1"_L1;

} // namespace

/// The system's login service, as far as the watch asks it.
class Login : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.login1.Manager")
public:
    ~Login() override { ::close(m_held); }

    bool knowsProcesses = true;
    int asked = 0; ///< how often it was

    /// Whether somebody holds the sleep back.
    bool isDelayed() const
    {
        pollfd end{m_held, 0, 0};
        return m_held >= 0 && ::poll(&end, 1, 0) == 0;
    }

public slots:
    QDBusObjectPath GetSessionByPID(uint process)
    {
        return found(knowsProcesses && process == uint(QCoreApplication::applicationPid()));
    }
    QDBusObjectPath GetSession(const QString &session) { return found(session == "3"_L1); }
    QDBusUnixFileDescriptor Inhibit(const QString &what, const QString &, const QString &,
                                    const QString &mode)
    {
        ++asked;
        std::array<int, 2> pipe{};
        if (what != "sleep"_L1 || mode != "delay"_L1 || ::pipe(pipe.data()) != 0)
            return {};
        ::close(std::exchange(m_held, pipe[0]));
        QDBusUnixFileDescriptor given;
        given.giveFileDescriptor(pipe[1]);
        return given;
    }

private:
    QDBusObjectPath found(bool isKnown)
    {
        ++asked;
        if (isKnown)
            return QDBusObjectPath(own);
        sendErrorReply(u"org.freedesktop.login1.NoSessionForPID"_s);
        return {};
    }

    int m_held = -1;
};

/// On a bus of its own, which stands for those of system and session.
class TestSessionWatch : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        if (PrivateBus::program().isEmpty())
            QSKIP("there is no dbus-daemon");
        const QByteArray address = m_bus.start();
        qputenv("DBUS_SYSTEM_BUS_ADDRESS", address);
        QDBusConnection service = bus();
        QVERIFY(service.registerObject(manager, &m_login, QDBusConnection::ExportAllSlots));
        QVERIFY(service.registerService(u"org.freedesktop.login1"_s));
    }

    void cleanupTestCase() { m_bus.stop(); }

    void hearsWhenTheDeskIsLeft_data()
    {
        const QString session = u"org.freedesktop.login1.Session"_s;
        const QString properties = u"org.freedesktop.DBus.Properties"_s;
        const auto told = [](const QString &path, const QString &interface, const QString &name,
                             const QVariantList &values = {}) {
            QDBusMessage signal = QDBusMessage::createSignal(path, interface, name);
            signal.setArguments(values);
            return signal;
        };
        const auto hint = [&](const QString &path, bool isLocked) {
            return told(path, properties, u"PropertiesChanged"_s,
                        {session, QVariantMap{{u"LockedHint"_s, isLocked}}, QStringList()});
        };
        const auto saver = [&](const QString &desktop, bool isActive) {
            return told(u"/ScreenSaver"_s, u"org.%1.ScreenSaver"_s.arg(desktop), u"ActiveChanged"_s,
                        {isActive});
        };
        rows<QDBusMessage, bool>({
            {"the session is to be locked", told(own, session, u"Lock"_s), true},
            {"somebody else's", told(other, session, u"Lock"_s), false},
            {"the session is locked", hint(own, true), true},
            {"it is not any more", hint(own, false), false},
            {"somebody else's is locked", hint(other, true), false},
            {"sleep begins", told(manager, u"org.freedesktop.login1.Manager"_s, u"PrepareForSleep"_s, {true}),
             true},
            {"sleep ends", told(manager, u"org.freedesktop.login1.Manager"_s, u"PrepareForSleep"_s, {false}),
             false},
            {"a screen saver", saver(u"freedesktop"_s, true), true},
            {"it gives way", saver(u"freedesktop"_s, false), false},
            {"gnome", saver(u"gnome"_s, true), true},
            {"xfce", saver(u"xfce"_s, true), true},
        });
    }

    void hearsWhenTheDeskIsLeft()
    {
        const auto [message, isLeft] = row<QDBusMessage, bool>();
        for (const bool knowsProcesses : {true, false}) {
            m_login.knowsProcesses = knowsProcesses;
            qputenv("XDG_SESSION_ID", knowsProcesses ? "" : "3");
            QCOMPARE(timesLeft(message), isLeft ? 1 : 0);
        }
    }

    void hearsOfAnySessionWhereItsOwnIsNotKnown()
    {
        m_login.knowsProcesses = false;
        qunsetenv("XDG_SESSION_ID");
        QCOMPARE(timesLeft(QDBusMessage::createSignal(other, u"org.freedesktop.login1.Session"_s, u"Lock"_s)),
                 1);
    }

    void holdsTheSleepBackUntilAllIsCovered()
    {
        SessionWatch watch;
        bool wasDelayed = false;
        connect(&watch, &SessionWatch::left, this, [&] { wasDelayed = m_login.isDelayed(); });
        start(watch);
        QVERIFY(m_login.isDelayed());
        const auto sleep = [](bool isBeginning) {
            QDBusMessage signal = QDBusMessage::createSignal(manager, u"org.freedesktop.login1.Manager"_s,
                                                             u"PrepareForSleep"_s);
            signal.setArguments({isBeginning});
            bus().send(signal);
        };
        sleep(true);
        QTRY_VERIFY(!m_login.isDelayed());
        QVERIFY(wasDelayed);
        sleep(false);
        QTRY_VERIFY(m_login.isDelayed());
    }

private:
    static QDBusConnection bus()
    {
        return QDBusConnection::connectToBus(qEnvironmentVariable("DBUS_SYSTEM_BUS_ADDRESS"), u"login"_s);
    }

    /// How often a watch says that the desk is left when `message` is sent; a screen saver's word afterwards
    /// shows that it was heard.
    int timesLeft(const QDBusMessage &message)
    {
        SessionWatch watch;
        QSignalSpy left(&watch, &SessionWatch::left);
        start(watch);
        bus().send(message);
        QDBusMessage last =
            QDBusMessage::createSignal(u"/Last"_s, u"org.mate.ScreenSaver"_s, u"ActiveChanged"_s);
        last.setArguments({true});
        bus().send(last);
        [&] { QTRY_VERIFY(left.size() >= 1); }();
        settle();
        return int(left.size()) - 1;
    }

    /// Until all that it asks was answered, and the bus knows what it wants to hear.
    void start(SessionWatch &watch)
    {
        m_login.asked = 0;
        watch.start();
        [&] { QTRY_COMPARE(m_login.asked, m_login.knowsProcesses ? 2 : 3); }();
        settle();
    }
    static void settle()
    {
        for (int round = 0; round < 2; ++round) {
            QDBusConnection::systemBus().interface()->registeredServiceNames();
            QCoreApplication::processEvents();
        }
        QDBusConnection::systemBus().interface()->registeredServiceNames();
    }

    PrivateBus m_bus;
    Login m_login;
};

QTEST_GUILESS_MAIN(TestSessionWatch)
#include "tst_sessionwatch_posix.moc"
