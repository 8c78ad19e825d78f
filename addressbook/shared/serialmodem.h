// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "addressbook/model/dialling.h"

#include <functional>

/// A modem on one of the machine's serial ports. Nothing waits for longer than a moment: a line that takes no
/// characters counts as failed.
class SerialModem final : public Modem
{
public:
    /// Gives the device of a port number; empty when the number stands for none.
    using DeviceTable = std::function<QString(int port)>;

    explicit SerialModem(DeviceTable devices = deviceOf);
    ~SerialModem() override;
    Q_DISABLE_COPY_MOVE(SerialModem)

    bool open(int port) override;
    [[nodiscard]] bool write(QByteArrayView text) override;
    void close() override;
    QStringList ports() const override;

    /// Windows: COM1 to COM256. Elsewhere: 1 to 100 are the serial ports /dev/ttyS0 to /dev/ttyS99, 101 to
    /// 200 the modems /dev/ttyACM0 to /dev/ttyACM99, 201 to 300 the adapters /dev/ttyUSB0 to /dev/ttyUSB99.
    static QString deviceOf(int port);

private:
    bool openDevice(const QString &device);

    DeviceTable m_devices;
    qintptr m_handle = -1;
};
