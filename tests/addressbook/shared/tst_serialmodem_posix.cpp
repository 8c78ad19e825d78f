// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/shared/serialmodem.h"
#include "tests/support/rows.h"

#include <QElapsedTimer>

#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

/// A serial line whose other end the test holds.
class PseudoLine
{
public:
    PseudoLine()
        : m_master(posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK))
    {
        if (m_master < 0 || grantpt(m_master) != 0 || unlockpt(m_master) != 0)
            return;
        m_device = QString::fromLocal8Bit(ptsname(m_master));
        m_keepOpen = open(ptsname(m_master), O_RDWR | O_NOCTTY);
    }
    /// A machine can be without pseudo-terminals: a bare chroot is.
    bool isThere() const { return !m_device.isEmpty(); }
    ~PseudoLine()
    {
        close(m_keepOpen);
        close(m_master);
    }
    Q_DISABLE_COPY_MOVE(PseudoLine)

    const QString &device() const { return m_device; }
    QByteArray received() const
    {
        std::array<char, 4096> buffer;
        const ssize_t length = read(m_master, buffer.data(), buffer.size());
        return QByteArray(buffer.data(), length > 0 ? length : 0);
    }
    void answer(QByteArrayView text) const
    {
        if (write(m_master, text.data(), std::size_t(text.size())) != text.size())
            qFatal("the pseudo-terminal takes nothing");
    }
    termios settings() const
    {
        termios line{};
        tcgetattr(m_keepOpen, &line);
        return line;
    }

private:
    int m_master;
    int m_keepOpen = -1;
    QString m_device;
};

class TestSerialModem : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        if (!PseudoLine().isThere())
            QSKIP("no pseudo-terminals here");
    }

    void numbersTheDevices()
    {
        QCOMPARE(SerialModem::deviceOf(1), u"/dev/ttyS0"_s);
        QCOMPARE(SerialModem::deviceOf(100), u"/dev/ttyS99"_s);
        QCOMPARE(SerialModem::deviceOf(101), u"/dev/ttyACM0"_s);
        QCOMPARE(SerialModem::deviceOf(203), u"/dev/ttyUSB2"_s);
        QCOMPARE(SerialModem::deviceOf(0), QString());
        QCOMPARE(SerialModem::deviceOf(301), QString());
    }

    /// The modem's answers do not come back to it, and a line that was closed is opened again.
    void sendsBytesAsTheyAre()
    {
        const PseudoLine line;
        SerialModem modem([&line](int port) { return port == 4 ? line.device() : QString(); });
        QVERIFY(!modem.open(1));
        QVERIFY(!modem.write("AT\r"));
        for (int call = 0; call < 2; ++call) {
            QVERIFY(modem.open(4));
            QVERIFY(modem.write("ATDT 555-1234;\r"));
            QCOMPARE(line.received(), "ATDT 555-1234;\r"_ba);
            line.answer("\r\nOK\r\n");
            QVERIFY(modem.write("ATH\r"));
            QCOMPARE(line.received(), "ATH\r"_ba);
            modem.close();
        }

        const termios settings = line.settings();
        QCOMPARE(cfgetospeed(&settings), speed_t(B9600));
        QCOMPARE(cfgetispeed(&settings), speed_t(B9600));
        QCOMPARE(settings.c_cflag & CSIZE, tcflag_t(CS8));
        QCOMPARE(settings.c_cflag & (PARENB | CSTOPB), tcflag_t(0));
    }

    void refusesWhatIsNoSerialLine_data()
    {
        rows<QString>({
            {"nothing there", u"/dev/no-such-line"_s},
            {"a file", QStringLiteral(QUILLERY_TEST_DATA "/household/expected.json")},
            {"a folder", QStringLiteral(QUILLERY_TEST_DATA)},
            {"another device", u"/dev/null"_s},
            {"no name", {}},
        });
    }

    void refusesWhatIsNoSerialLine()
    {
        const auto [device] = row<QString>();
        SerialModem modem([name = device](int) { return name; });
        QVERIFY(!modem.open(1));
    }

    void givesUpOnALineThatTakesNothing()
    {
        const PseudoLine line;
        QElapsedTimer timer;
        timer.start();
        {
            SerialModem modem([&line](int) { return line.device(); });
            QVERIFY(modem.open(1));
            QVERIFY(!modem.write(QByteArray(1 << 20, 'x')));
        }
        QVERIFY(timer.elapsed() < 10'000);
    }

    void offersThePortsThatAreThere()
    {
        const PseudoLine line;
        const SerialModem modem([&line](int port) { return port == 101 ? line.device() : QString(); });
        QCOMPARE(modem.ports(), QStringList(u"101: "_s + line.device().section(u'/', -1)));
    }
};

QTEST_GUILESS_MAIN(TestSerialModem)
#include "tst_serialmodem_posix.moc"
