// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/shared/serialmodem.h"

#include <QDir>
#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int patience = 1000; ///< milliseconds

/// A kind of port: the number that its first one has here, and what its device files are called.
struct PortFamily {
    int firstPort;
    QLatin1StringView name;
};
constexpr int familySize = 100;
constexpr std::array<PortFamily, 3> families{{{1, "ttyS"_L1}, {101, "ttyACM"_L1}, {201, "ttyUSB"_L1}}};

/// 9600 bits a second, no parity, 8 data bits, 1 stop bit, bytes as they are; a modem's carrier does not
/// matter.
bool setLine(int handle)
{
    termios line{};
    if (tcgetattr(handle, &line) != 0)
        return false;
    cfmakeraw(&line);
    line.c_cflag &= ~tcflag_t(PARENB | CSTOPB | CSIZE | CRTSCTS);
    line.c_cflag |= CS8 | CREAD | CLOCAL;
    line.c_cc[VMIN] = 0;
    line.c_cc[VTIME] = 0;
    return cfsetispeed(&line, B9600) == 0 && cfsetospeed(&line, B9600) == 0 &&
           tcsetattr(handle, TCSANOW, &line) == 0;
}

bool waitForRoom(int handle)
{
    pollfd room{handle, POLLOUT, 0};
    int ready = 0;
    do
        ready = poll(&room, 1, patience);
    while (ready < 0 && errno == EINTR);
    return ready > 0 && (room.revents & POLLOUT);
}

/// Gives the line a moment to send what it was given; what is stuck then is dropped, since closing would wait
/// for it.
void drain(int handle)
{
    for (int waited = 0; waited < patience; waited += 20) {
        int pending = 0;
        if (ioctl(handle, TIOCOUTQ, &pending) != 0 || pending == 0)
            return;
        usleep(20 * 1000);
    }
    tcflush(handle, TCOFLUSH);
}

/// Built-in ports have a node whether or not the machine has the part; its type tells.
bool isPresent(const QString &name)
{
    QFile type(u"/sys/class/tty/"_s + name + u"/type"_s);
    return !name.startsWith("ttyS"_L1) || (type.open(QIODevice::ReadOnly) && type.readAll().trimmed() != "0");
}

} // namespace

QString SerialModem::deviceOf(int port)
{
    for (const PortFamily &family : families) {
        if (port >= family.firstPort && port < family.firstPort + familySize)
            return u"/dev/"_s + family.name + QString::number(port - family.firstPort);
    }
    return {};
}

bool SerialModem::openDevice(const QString &device)
{
    const int handle =
        ::open(QFile::encodeName(device).constData(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    if (handle < 0)
        return false;
    if (!setLine(handle) || ioctl(handle, TIOCEXCL) != 0) {
        ::close(handle);
        return false;
    }
    m_handle = handle;
    return true;
}

bool SerialModem::write(QByteArrayView text)
{
    if (m_handle < 0)
        return false;
    while (!text.isEmpty()) {
        const ssize_t taken = ::write(int(m_handle), text.data(), size_t(text.size()));
        if (taken > 0) {
            text = text.sliced(taken);
            continue;
        }
        const bool mayWait = taken == 0 || errno == EINTR || errno == EAGAIN;
        if (!mayWait || !waitForRoom(int(m_handle)))
            return false;
    }
    return true;
}

void SerialModem::close()
{
    if (m_handle < 0)
        return;
    drain(int(m_handle));
    ioctl(int(m_handle), TIOCNXCL);
    ::close(int(m_handle));
    m_handle = -1;
}

QStringList SerialModem::ports() const
{
    QStringList lines;
    for (int port = 1; port < families.back().firstPort + familySize; ++port) {
        const QString device = m_devices(port);
        const QString name = device.section(u'/', -1);
        if (!device.isEmpty() && QFile::exists(device) && isPresent(name))
            lines.append(QString::number(port) + u": "_s + name);
    }
    return lines;
}
