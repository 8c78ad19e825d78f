// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/message.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

class Settings;

/// A telephone modem on a serial line at 9600 bits, no parity, 8 data bits, 1 stop bit.
class Modem
{
public:
    virtual ~Modem() = default;

    /// Opens serial port `port` (from 1); false when there is none or it is taken.
    virtual bool open(int port) = 0;
    /// False when the line did not take all of it.
    [[nodiscard]] virtual bool write(QByteArrayView text) = 0;
    /// Does nothing when no port is open.
    virtual void close() = 0;
    /// The ports that are there, one line each, for the question for another port: "33: ttyUSB0".
    virtual QStringList ports() const { return {}; }
};

/// What a call says to and asks from the person at the screen.
class CallDesk
{
public:
    virtual ~CallDesk() = default;

    /// Shows or hides "Dialing...".
    virtual void setDialing(bool isDialing) = 0;
    virtual Answer ask(const Message &message) = 0;
    /// A number typed under `prompt`; nothing when cancelled.
    virtual std::optional<QString> askPort(const QString &prompt, int current) = 0;
    /// The port that was typed serves this call, but could not be stored for the next one.
    virtual void portNotSaved() = 0;
};

/// Dialling a number through a modem, and hanging up again.
namespace Dialling {

enum class Outcome {
    NoNumber, ///< nothing to dial; the line was not touched
    NoPort,   ///< no port could be opened, and the person gave up
    Called    ///< dialled, and hung up again
};

/// The whole call: dials, waits at the message, hangs up. A port that cannot be opened is reported and
/// another one asked for, which is stored for the next time.
Outcome call(const QString &number, Modem &modem, Settings &settings, CallDesk &desk);

/// The stored serial port: 1 when none, or none above 0, is stored.
int port(const Settings &settings);

/// "ATDT ", the number as it stands but for control characters, ";" and a carriage return.
QByteArray dialCommand(QStringView number);

QByteArray hangUpCommand();

} // namespace Dialling
