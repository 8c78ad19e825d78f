// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/slideorder.h"

#include <QSet>
#include <QTest>

class TestSlideOrder : public QObject
{
    Q_OBJECT
private slots:
    void goesRoundAndBack()
    {
        SlideOrder order({3, 5, 9}, SlideOrder::Kind::AsTheyStand, 5);
        QCOMPARE(walk(order, 4), QList<int>({5, 9, 3, 5}));
        order.toFirst();
        QCOMPARE(order.previous(), 9);
        order.back();
        QCOMPARE(order.current(), 9);
        QCOMPARE(order.next(), 3);
    }

    void shufflesEachRoundAnew()
    {
        QList<int> all;
        for (int i = 1; i <= 20; ++i)
            all << i;
        SlideOrder order(all, SlideOrder::Kind::Shuffled, 7, 1);
        QCOMPARE(order.current(), 7);
        QList<QList<int>> rounds;
        for (int round = 0; round < 3; ++round) {
            rounds << walk(order, 20);
            QCOMPARE(QSet<int>(rounds.last().cbegin(), rounds.last().cend()).size(), 20);
            QVERIFY(rounds.last().last() != order.current());
        }
        QVERIFY(rounds.at(0) != rounds.at(1));
        order.back();
        QCOMPARE(order.current(), rounds.last().last());
    }

    void leavesOutWhatCannotBeShown()
    {
        SlideOrder order({1, 2, 3}, SlideOrder::Kind::AsTheyStand);
        order.forward();
        order.leaveOut(2);
        QCOMPARE(walk(order, 3), QList<int>({3, 1, 3}));
        order.leaveOut(3);
        order.leaveOut(1);
        QVERIFY(order.isEmpty());
        order.forward();
        order.back();
        QCOMPARE(order.current(), 0);
        QCOMPARE(order.next(), 0);
    }

private:
    static QList<int> walk(SlideOrder &order, int steps)
    {
        QList<int> seen;
        for (int i = 0; i < steps; ++i) {
            seen << order.current();
            order.forward();
        }
        return seen;
    }
};

QTEST_APPLESS_MAIN(TestSlideOrder)
#include "tst_slideorder.moc"
