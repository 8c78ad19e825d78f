// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/shared/serialmodem.h"

#include <qt_windows.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int lastPort = 256;
constexpr DWORD patience = 1000; ///< milliseconds

HANDLE handleOf(qintptr handle)
{
    return reinterpret_cast<HANDLE>(handle);
}

/// 9600 bits a second, no parity, 8 data bits, 1 stop bit; no handshake, and no write that waits for ever.
bool setLine(HANDLE handle)
{
    DCB line{};
    line.DCBlength = sizeof line;
    if (!GetCommState(handle, &line))
        return false;
    line.BaudRate = CBR_9600;
    line.ByteSize = 8;
    line.Parity = NOPARITY;
    line.StopBits = ONESTOPBIT;
    line.fBinary = TRUE;
    line.fParity = FALSE;
    line.fOutxCtsFlow = FALSE;
    line.fOutxDsrFlow = FALSE;
    line.fDtrControl = DTR_CONTROL_ENABLE;
    line.fRtsControl = RTS_CONTROL_ENABLE;
    line.fOutX = FALSE;
    line.fInX = FALSE;
    COMMTIMEOUTS times{};
    times.ReadIntervalTimeout = MAXDWORD;
    times.WriteTotalTimeoutConstant = patience;
    return SetCommState(handle, &line) && SetCommTimeouts(handle, &times);
}

} // namespace

QString SerialModem::deviceOf(int port)
{
    return port >= 1 && port <= lastPort ? u"\\\\.\\COM"_s + QString::number(port) : QString();
}

bool SerialModem::openDevice(const QString &device)
{
    HANDLE handle = CreateFileW(reinterpret_cast<const wchar_t *>(device.utf16()),
                                GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return false;
    if (!setLine(handle)) {
        CloseHandle(handle);
        return false;
    }
    m_handle = reinterpret_cast<qintptr>(handle);
    return true;
}

bool SerialModem::write(QByteArrayView text)
{
    if (m_handle == -1)
        return false;
    while (!text.isEmpty()) {
        DWORD taken = 0;
        if (!WriteFile(handleOf(m_handle), text.data(), DWORD(text.size()), &taken, nullptr) || taken == 0)
            return false;
        text = text.sliced(taken);
    }
    return true;
}

void SerialModem::close()
{
    if (m_handle == -1)
        return;
    CloseHandle(handleOf(m_handle));
    m_handle = -1;
}

QStringList SerialModem::ports() const
{
    QStringList lines;
    wchar_t target[512];
    for (int port = 1; port <= lastPort; ++port) {
        const QString name = u"COM"_s + QString::number(port);
        if (QueryDosDeviceW(reinterpret_cast<const wchar_t *>(name.utf16()), target,
                            DWORD(std::size(target))))
            lines.append(QString::number(port) + u": "_s + name);
    }
    return lines;
}
