// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/look/systemlook.h"
#include "shell/program/screenawake.h"
#include "tests/support/privatebus.h"
#include "tests/support/rows.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QTest>
#include <QThread>

#include <atomic>

using namespace Qt::Literals::StringLiterals;

/// What a desktop offers to programs: its screen saver.
class Saver : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.ScreenSaver")
public:
    std::atomic_int held = 0;

public slots:
    uint Inhibit(const QString &program, const QString &reason)
    {
        if (program == "Quillery"_L1 && !reason.isEmpty())
            ++held;
        return number;
    }
    void UnInhibit(uint given) { held -= given == number ? 1 : 0; }

private:
    static constexpr uint number = 4711;
};

/// And its settings.
class Portal : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")
public:
    QString key;
    QVariant value;

public slots:
    QDBusVariant Read(const QString &group, const QString &asked)
    {
        if (asked == key && group.startsWith("org."_L1))
            return QDBusVariant(QVariant::fromValue(QDBusVariant(value)));
        sendErrorReply(u"org.freedesktop.portal.Error.NotFound"_s);
        return {};
    }
};

/// On a bus of its own, with the desktop on a thread of its own.
class TestScreenAwake : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        if (PrivateBus::program().isEmpty())
            QSKIP("there is no dbus-daemon");
        const QByteArray address = m_bus.start();
        m_saver.moveToThread(&m_desktop);
        m_portal.moveToThread(&m_desktop);
        m_desktop.start();
        QDBusConnection bus = QDBusConnection::connectToBus(QString::fromLatin1(address), u"desktop"_s);
        QVERIFY(
            bus.registerObject(u"/org/freedesktop/ScreenSaver"_s, &m_saver, QDBusConnection::ExportAllSlots));
        QVERIFY(bus.registerObject(u"/org/freedesktop/portal/desktop"_s, &m_portal,
                                   QDBusConnection::ExportAllSlots));
        QVERIFY(bus.registerService(u"org.freedesktop.ScreenSaver"_s));
        QVERIFY(bus.registerService(u"org.freedesktop.portal.Desktop"_s));
    }

    void cleanupTestCase()
    {
        m_desktop.quit();
        m_desktop.wait();
        m_bus.stop();
    }

    void keepsTheScreenOnWhileItLives()
    {
        {
            const ScreenAwake awake(u"Slide show"_s);
            QTRY_COMPARE(m_saver.held.load(), 1);
        }
        QTRY_COMPARE(m_saver.held.load(), 0);
        delete new ScreenAwake(u"Gone before the answer came"_s);
        QTest::qWait(100);
        QTRY_COMPARE(m_saver.held.load(), 0);
    }

    void knowsWhoWantsLessMotion_data()
    {
        rows<QString, QVariant, bool>({
            {"animations", u"enable-animations"_s, true, false},
            {"no animations", u"enable-animations"_s, false, true},
            {"slow ones", u"AnimationDurationFactor"_s, u"0.5"_s, false},
            {"instant ones", u"AnimationDurationFactor"_s, u"0"_s, true},
            {"a desktop without a word on it", u"color-scheme"_s, 1, false},
        });
    }

    void knowsWhoWantsLessMotion()
    {
        const auto [key, value, isLess] = row<QString, QVariant, bool>();
        m_portal.key = key;
        m_portal.value = value;
        QCOMPARE(SystemLook::wantsLessMotion(), isLess);
    }

private:
    PrivateBus m_bus;
    QThread m_desktop;
    Saver m_saver;
    Portal m_portal;
};

QTEST_GUILESS_MAIN(TestScreenAwake)
#include "tst_screenawake_posix.moc"
