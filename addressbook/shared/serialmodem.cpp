// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/shared/serialmodem.h"

#include <utility>

SerialModem::SerialModem(DeviceTable devices)
    : m_devices(std::move(devices))
{}

SerialModem::~SerialModem()
{
    close();
}

bool SerialModem::open(int port)
{
    close();
    const QString device = m_devices(port);
    return !device.isEmpty() && openDevice(device);
}
