// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/model/dialling.h"

#include "addressbook/model/messages.h"
#include "shell/core/settings.h"
#include "shell/core/settingskeys.h"
#include "storage/ansitext.h"

#include <QScopeGuard>

#include <limits>
#include <tuple>

namespace {

QString dialable(QStringView number)
{
    QString text = AnsiText::trimmedBlanks(number).toString();
    // A line end would finish the command, and what follows would be one of its own.
    text.removeIf([](QChar character) { return character.category() == QChar::Other_Control; });
    return text;
}

bool dial(Modem &modem, int port, const QString &number)
{
    if (!modem.open(port))
        return false;
    if (modem.write(Dialling::dialCommand(number)))
        return true;
    modem.close();
    return false;
}

/// A port that the person names and the settings can hold; nothing when the question is cancelled.
std::optional<int> anotherPort(CallDesk &desk, const QStringList &ports, int current)
{
    QString prompt = (QStringList{AddressMessages::newPortPrompt()} + ports).join(u'\n');
    const QString again = prompt + u'\n' + AddressMessages::portOutOfRange();
    while (const std::optional<QString> typed = desk.askPort(prompt, current)) {
        bool isNumber = false;
        const int port = AnsiText::trimmedBlanks(*typed).toInt(&isNumber);
        if (isNumber && port >= 1 && port <= std::numeric_limits<qint16>::max())
            return port;
        prompt = again;
    }
    return std::nullopt;
}

} // namespace

Dialling::Outcome Dialling::call(const QString &number, Modem &modem, Settings &settings, CallDesk &desk)
{
    const QString text = dialable(number);
    if (text.isEmpty()) {
        desk.ask(AddressMessages::telephoneNumberMissing());
        return Outcome::NoNumber;
    }
    desk.setDialing(true);
    const auto hide = qScopeGuard([&desk] { desk.setDialing(false); });
    for (int current = port(settings); !dial(modem, current, text);) {
        desk.ask(AddressMessages::portNotAvailable(current));
        const std::optional<int> another = anotherPort(desk, modem.ports(), current);
        if (!another)
            return Outcome::NoPort;
        current = *another;
        if (!settings.setNumber(SettingsKeys::modemPort, current))
            desk.portNotSaved();
    }
    desk.ask(AddressMessages::numberDialed(text));
    // Where the line refuses the command, closing the port ends the call.
    std::ignore = modem.write(hangUpCommand());
    modem.close();
    return Outcome::Called;
}

int Dialling::port(const Settings &settings)
{
    const int stored = settings.number(SettingsKeys::modemPort);
    return stored > 0 ? stored : 1;
}

QByteArray Dialling::dialCommand(QStringView number)
{
    return "ATDT " + AnsiText::encode(dialable(number)) + ";\r";
}

QByteArray Dialling::hangUpCommand()
{
    return "ATH\r";
}
