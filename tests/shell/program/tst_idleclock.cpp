// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/program/idleclock.h"

#include <QSignalSpy>
#include <QTest>
#include <QWidget>

using namespace std::chrono_literals;

class TestIdleClock : public QObject
{
    Q_OBJECT
private slots:
    void beginsAnewWithEachKey()
    {
        const IdleClock clock;
        QWidget window;
        QTest::qWait(20);
        QVERIFY(clock.idleFor() >= 20ms);
        QElapsedTimer since;
        since.start();
        QTest::keyClick(&window, Qt::Key_A);
        QVERIFY(clock.idleFor() <= std::chrono::milliseconds(since.elapsed()));
    }

    void tellsWhenNobodyWasThere()
    {
        const IdleClock clock;
        IdleLimit limit(clock);
        const QSignalSpy reached(&limit, &IdleLimit::reached);
        limit.start(10ms);
        QTRY_VERIFY(reached.size() >= 2);
        limit.start(1h);
        const qsizetype before = reached.size();
        QTest::qWait(30);
        QCOMPARE(reached.size(), before);
    }
};

QTEST_MAIN(TestIdleClock)
#include "tst_idleclock.moc"
