// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/shared/dialler.h"

#include "addressbook/model/messages.h"
#include "addressbook/shared/serialmodem.h"
#include "shell/program/program.h"

#include <QLabel>

#include <utility>

Dialler::Dialler(Program &program, QWidget *window, QLabel *dialing, MakeModem makeModem)
    : m_program(program)
    , m_window(window)
    , m_dialing(dialing)
    , m_makeModem(std::move(makeModem))
{
    if (!m_makeModem)
        m_makeModem = [] { return std::make_unique<SerialModem>(); };
}

bool Dialler::call(const QString &number)
{
    const std::unique_ptr<Modem> modem = m_makeModem();
    m_isPortSaved = true;
    Dialling::call(number, *modem, m_program.settings, *this);
    return m_isPortSaved;
}

void Dialler::setDialing(bool isDialing)
{
    m_dialing->setVisible(isDialing);
    // The line may take a moment to open; the words must be on the screen before that.
    if (isDialing)
        m_dialing->repaint();
}

Answer Dialler::ask(const Message &message)
{
    return m_program.dialogs.ask(m_window, message);
}

std::optional<QString> Dialler::askPort(const QString &prompt, int current)
{
    return m_program.dialogs.input(m_window, AddressMessages::telephoneNumberMissing().title, prompt,
                                   QString::number(current));
}
