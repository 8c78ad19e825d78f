// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/model/messages.h"
#include "addressbook/shared/serialmodem.h"
#include "shell/core/settings.h"
#include "shell/core/settingskeys.h"

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTest>

#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

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

/// A person who dials, and the modem at the other end of the line: it answers what it hears.
class Caller final : public CallDesk
{
public:
    explicit Caller(const PseudoLine &line)
        : m_line(line)
    {}

    void setDialing(bool isDialing) override { isDialingShown = isDialing; }
    Answer ask(const Message &message) override
    {
        asked.append(message);
        heard.append(m_line.received());
        if (!heard.last().isEmpty())
            m_line.answer("\r\nOK\r\n");
        return Answer::Cancel;
    }
    void portNotSaved() override {}
    std::optional<QString> askPort(const QString &, int current) override
    {
        return QString::number(current + 1);
    }

    bool isDialingShown = false;
    QList<Message> asked;
    QList<QByteArray> heard;

private:
    const PseudoLine &m_line;
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
    void numbersTheDevices_data();
    void numbersTheDevices();
    void sendsBytesAsTheyAre();
    void opensAgainAfterClosing();
    void refusesWhatIsNoSerialLine_data();
    void refusesWhatIsNoSerialLine();
    void givesUpOnALineThatTakesNothing();
    void offersThePortsThatAreThere();
    void callsOverTheLine();
};

void TestSerialModem::numbersTheDevices_data()
{
    QTest::addColumn<int>("port");
    QTest::addColumn<QString>("device");
    QTest::newRow("first serial port") << 1 << QStringLiteral("/dev/ttyS0");
    QTest::newRow("last serial port") << 100 << QStringLiteral("/dev/ttyS99");
    QTest::newRow("first USB modem") << 101 << QStringLiteral("/dev/ttyACM0");
    QTest::newRow("third USB adapter") << 203 << QStringLiteral("/dev/ttyUSB2");
    QTest::newRow("no port") << 0 << QString();
    QTest::newRow("beyond all ports") << 301 << QString();
}

void TestSerialModem::numbersTheDevices()
{
    QFETCH(int, port);
    QTEST(SerialModem::deviceOf(port), "device");
}

void TestSerialModem::sendsBytesAsTheyAre()
{
    const PseudoLine line;
    SerialModem modem([&line](int port) { return port == 4 ? line.device() : QString(); });
    QVERIFY(!modem.open(1));
    QVERIFY(!modem.write("AT\r"));
    QVERIFY(modem.open(4));
    QVERIFY(modem.write("ATDT 555-1234;\r"));
    QCOMPARE(line.received(), QByteArray("ATDT 555-1234;\r"));

    const termios settings = line.settings();
    QCOMPARE(cfgetospeed(&settings), speed_t(B9600));
    QCOMPARE(cfgetispeed(&settings), speed_t(B9600));
    QCOMPARE(settings.c_cflag & CSIZE, tcflag_t(CS8));
    QCOMPARE(settings.c_cflag & (PARENB | CSTOPB), tcflag_t(0));
}

void TestSerialModem::opensAgainAfterClosing()
{
    const PseudoLine line;
    SerialModem modem([&line](int) { return line.device(); });
    for (int i = 0; i < 2; ++i) {
        QVERIFY(modem.open(1));
        QVERIFY(modem.write("ATH\r"));
        QCOMPARE(line.received(), QByteArray("ATH\r"));
        modem.close();
    }
}

void TestSerialModem::refusesWhatIsNoSerialLine_data()
{
    QTest::addColumn<QString>("device");
    QTest::newRow("nothing there") << QStringLiteral("/dev/no-such-line");
    QTest::newRow("a file") << QStringLiteral(QUILLERY_TEST_DATA "/household/expected.json");
    QTest::newRow("a folder") << QStringLiteral(QUILLERY_TEST_DATA);
    QTest::newRow("another device") << QStringLiteral("/dev/null");
    QTest::newRow("no name") << QString();
}

void TestSerialModem::refusesWhatIsNoSerialLine()
{
    QFETCH(QString, device);
    SerialModem modem([device](int) { return device; });
    QVERIFY(!modem.open(1));
}

void TestSerialModem::givesUpOnALineThatTakesNothing()
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

void TestSerialModem::offersThePortsThatAreThere()
{
    const PseudoLine line;
    const SerialModem modem([&line](int port) { return port == 101 ? line.device() : QString(); });
    QCOMPARE(modem.ports(), QStringList(QStringLiteral("101: ") + line.device().section(u'/', -1)));
}

void TestSerialModem::callsOverTheLine()
{
    const QTemporaryDir folder;
    const DataFolder data(folder.path());
    Settings settings(data);
    const PseudoLine line;
    Caller caller(line);
    SerialModem modem([&line](int port) { return port == 2 ? line.device() : QString(); });
    QCOMPARE(Dialling::call(QStringLiteral("555-1234"), modem, settings, caller), Dialling::Outcome::Called);
    QCOMPARE(caller.asked, QList<Message>({AddressMessages::portNotAvailable(1),
                                           AddressMessages::numberDialed(QStringLiteral("555-1234"))}));
    QCOMPARE(caller.heard, QList<QByteArray>({"", "ATDT 555-1234;\r"}));
    QCOMPARE(line.received(), QByteArray("ATH\r"));
    QCOMPARE(settings.number(SettingsKeys::modemPort), 2);
    QVERIFY(!caller.isDialingShown);
}

QTEST_GUILESS_MAIN(TestSerialModem)
#include "tst_serialmodem.moc"
