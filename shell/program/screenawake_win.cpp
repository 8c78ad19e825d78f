// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/program/screenawake.h"

#include <qt_windows.h>

#include <string>

/// The power request, with the reason that "powercfg /requests" shows.
class ScreenAwake::System
{
public:
    HANDLE request = INVALID_HANDLE_VALUE;
};

ScreenAwake::ScreenAwake(const QString &reason)
    : m_system(std::make_unique<System>())
{
    std::wstring words = reason.toStdWString();
    REASON_CONTEXT context{};
    context.Version = POWER_REQUEST_CONTEXT_VERSION;
    context.Flags = POWER_REQUEST_CONTEXT_SIMPLE_STRING;
    context.Reason.SimpleReasonString = words.data();
    m_system->request = PowerCreateRequest(&context);
    if (m_system->request == INVALID_HANDLE_VALUE)
        return;
    PowerSetRequest(m_system->request, PowerRequestDisplayRequired);
    PowerSetRequest(m_system->request, PowerRequestSystemRequired);
}

ScreenAwake::~ScreenAwake()
{
    if (m_system->request != INVALID_HANDLE_VALUE)
        CloseHandle(m_system->request); // what it asked for ends with it
}
