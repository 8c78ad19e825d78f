// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "addressbook/model/dialling.h"

#include <functional>
#include <memory>

#include <QWidget>

class QLabel;
struct Program;

/// A call from a window: the boxes on the screen around the modem's work.
class Dialler final : private CallDesk
{
public:
    using MakeModem = std::function<std::unique_ptr<Modem>()>;

    /// `dialing` is the label "Dialing...", shown while a call is being set up. Without `makeModem`, calls go
    /// over the machine's serial ports.
    Dialler(Program &program, QWidget *window, QLabel *dialing, MakeModem makeModem);

    /// Dials `number` and waits until the person has taken the call or given up. False when another port was
    /// typed and could not be stored for the next call.
    [[nodiscard]] bool call(const QString &number);

private:
    void setDialing(bool isDialing) override;
    Answer ask(const Message &message) override;
    std::optional<QString> askPort(const QString &prompt, int current) override;
    void portNotSaved() override { m_isPortSaved = false; }

    Program &m_program;
    QWidget *m_window;
    QLabel *m_dialing;
    MakeModem m_makeModem;
    bool m_isPortSaved = true;
};
