// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProcess>
#include <QStandardPaths>
#include <QTest>

/// A message bus for one test alone, in the place of the session's.
class PrivateBus
{
public:
    ~PrivateBus() { stop(); }

    static QString program() { return QStandardPaths::findExecutable(QStringLiteral("dbus-daemon")); }

    /// Starts the bus and names it as the session's; its address.
    QByteArray start()
    {
        m_process.start(program(), {QStringLiteral("--session"), QStringLiteral("--nofork"),
                                    QStringLiteral("--print-address")});
        if (!m_process.waitForReadyRead())
            QTest::qFail("the bus does not start", __FILE__, __LINE__);
        const QByteArray address = m_process.readLine().trimmed();
        qputenv("DBUS_SESSION_BUS_ADDRESS", address);
        return address;
    }
    void stop()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

private:
    QProcess m_process;
};
