// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/recordnames.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// Names in the records of disks: what is written, and that nothing else is read.
class TestRecordNames : public QObject
{
    Q_OBJECT

private slots:
    void writes_data();
    void writes();
    void refuses_data();
    void refuses();
};

void TestRecordNames::writes_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("plain") << u" a:b 1.Fil"_s << QByteArray(" a:b 1.Fil");
    QTest::newRow("folder") << u"Pictures/x.jpg"_s << QByteArray("Pictures/x.jpg");
    QTest::newRow("umlaut") << u"\u00e4"_s << QByteArray("%C3%A4");
    QTest::newRow("percent and quotes") << u"5% \"o'"_s << QByteArray("5%25 %22o%27");
    QTest::newRow("line break") << u"a\nb"_s << QByteArray("a%0Ab");
}

void TestRecordNames::writes()
{
    QFETCH(const QString, name);
    QFETCH(const QByteArray, text);
    QCOMPARE(RecordNames::encoded(name), text);
    QCOMPARE(RecordNames::decoded(text), name);
}

void TestRecordNames::refuses_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("cut") << QByteArray("a%4");
    QTest::newRow("small letters") << QByteArray("a%c3%a4");
    QTest::newRow("no number") << QByteArray("a%ZZ");
    QTest::newRow("half a letter") << QByteArray("a%C3");
    QTest::newRow("raw byte") << QByteArray("a\xc3\xa4");
}

void TestRecordNames::refuses()
{
    QFETCH(const QByteArray, text);
    QVERIFY(!RecordNames::decoded(text));
}

QTEST_GUILESS_MAIN(TestRecordNames)
#include "tst_recordnames.moc"
