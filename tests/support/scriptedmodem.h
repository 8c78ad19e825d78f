// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "addressbook/model/dialling.h"

#include <QList>

/// The telephone line of a test: what works on it, and what was done to it.
struct TelephoneLine {
    QList<int> workingPorts{3};
    QStringList offeredPorts;
    bool takesText = true;
    QStringList log; ///< "open 3", what was sent, "close"
};

/// A modem on that line, which outlives it.
class ScriptedModem final : public Modem
{
public:
    explicit ScriptedModem(TelephoneLine &line)
        : m_line(line)
    {}
    bool open(int port) override
    {
        m_line.log << QStringLiteral("open %1").arg(port);
        return m_line.workingPorts.contains(port);
    }
    bool write(QByteArrayView text) override
    {
        m_line.log << QString::fromLatin1(text);
        return m_line.takesText;
    }
    void close() override { m_line.log << QStringLiteral("close"); }
    QStringList ports() const override { return m_line.offeredPorts; }

private:
    TelephoneLine &m_line;
};
