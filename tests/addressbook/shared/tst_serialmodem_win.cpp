// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/shared/serialmodem.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;

class TestSerialModem : public QObject
{
    Q_OBJECT
private slots:
    void numbersTheDevices()
    {
        QCOMPARE(SerialModem::deviceOf(1), u"\\\\.\\COM1"_s);
        QCOMPARE(SerialModem::deviceOf(256), u"\\\\.\\COM256"_s);
        QCOMPARE(SerialModem::deviceOf(0), QString());
        QCOMPARE(SerialModem::deviceOf(257), QString());
    }

    void refusesWhatIsNoSerialLine_data()
    {
        rows<QString>({
            {"nothing there", u"\\\\.\\COM255"_s},
            {"a file", QStringLiteral(QUILLERY_TEST_DATA "/household/expected.json")},
            {"a folder", QStringLiteral(QUILLERY_TEST_DATA)},
            {"no name", {}},
        });
    }

    void refusesWhatIsNoSerialLine()
    {
        const auto [device] = row<QString>();
        SerialModem modem([name = device](int) { return name; });
        QVERIFY(!modem.open(1));
        QVERIFY(!modem.write("AT\r"));
    }

    void offersThePortsThatAreThere()
    {
        for (const QString &port : SerialModem().ports())
            QCOMPARE(port, port.section(u':', 0, 0) + u": COM"_s + port.section(u':', 0, 0));
    }
};

QTEST_GUILESS_MAIN(TestSerialModem)
#include "tst_serialmodem_win.moc"
