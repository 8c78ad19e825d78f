// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/model/indexline.h"
#include "addressbook/model/namelist.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestNameList : public QObject
{
    Q_OBJECT

private slots:
    void keepsItsLinesApart();
    void searchesAnywhereAndWithoutCase_data();
    void searchesAnywhereAndWithoutCase();
    void searchesLongLists_data();
    void searchesLongLists();
    void listsWithinBytesItIsGiven();
};

namespace {

NameList listOf(const QStringList &lines)
{
    NameList list;
    for (const QString &line : lines)
        list.append(line);
    return list;
}

} // namespace

void TestNameList::keepsItsLinesApart()
{
    NameList list = listOf({IndexLine::make(u"Müller", u"Karl", 14),
                            {},
                            IndexLine::make(u"Lind", u"Anne", 3),
                            IndexLine::make(u"Ångström", u"Bjørn", 23)});
    QCOMPARE(list.name(0), u"Müller, Karl"_s);
    QCOMPARE(list.line(1), QString());
    QCOMPARE(list.recordAt(1), 0);
    QCOMPARE(list.recordAt(2), 3);
    QCOMPARE(list.positionOf(23), 3);
    QCOMPARE(list.positionOf(0), -1);

    list.removeAt(0);
    list.removeAt(1);
    list.removeAt(7);
    list.removeAt(-1);
    list.append(IndexLine::make(u"Müller-Lind", u"Karl", 14));
    QCOMPARE(list.count(), 3);
    QCOMPARE(list.line(0), QString());
    QCOMPARE(list.line(1), IndexLine::make(u"Ångström", u"Bjørn", 23));
    QCOMPARE(list.name(2), u"Müller-Lind, Karl"_s);
    QCOMPARE(list.line(3), QString());
    QCOMPARE(list.recordAt(-1), 0);
}

void TestNameList::searchesAnywhereAndWithoutCase_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("position");
    QTest::newRow("start of a line") << u"quill"_s << 0;
    QTest::newRow("inside a line") << u"ILL"_s << 0;
    QTest::newRow("the first of several") << u"miller"_s << 1;
    QTest::newRow("accents keep their case alike") << u"MÜLLER"_s << 3;
    QTest::newRow("composed of two") << u"mu\u0308ller"_s << 3;
    QTest::newRow("ring and stroke") << u"åNGSTRÖM, BJØRN"_s << 4;
    QTest::newRow("a capital beyond Latin-1") << u"\u0178"_s << 5;
    QTest::newRow("a letter without a capital") << u"stra\u00DF"_s << 5;
    QTest::newRow("two letters are not one") << u"strass"_s << -1;
    QTest::newRow("the number") << u" 14"_s << 3;
    QTest::newRow("across two lines") << u"2Miller"_s << -1;
    QTest::newRow("blanks count") << u" Anne"_s << 1;
    QTest::newRow("no line has it") << u"Wintergreen"_s << -1;
    QTest::newRow("what no file can hold") << u"Ωmega"_s << -1;
    QTest::newRow("longer than a line") << QString(100, u'a') << -1;
    QTest::newRow("nothing") << QString() << 0;
}

void TestNameList::searchesAnywhereAndWithoutCase()
{
    QFETCH(QString, text);
    const NameList list =
        listOf({IndexLine::make(u"Quill", u"David", 2), IndexLine::make(u"Miller", u"Anne", 4),
                IndexLine::make(u"Miller", u"Anne", 8), IndexLine::make(u"Müller", u"Karl", 14),
                IndexLine::make(u"Ångström", u"Bjørn", 23), IndexLine::make(u"Straß", u"L\u00FF", 24)});
    QTEST(list.find(text), "position");
    QCOMPARE(NameList().find(text), -1);
}

void TestNameList::searchesLongLists_data()
{
    QTest::addColumn<int>("lines");
    QTest::addColumn<QList<int>>("matches");
    QTest::addColumn<int>("selected");
    QTest::newRow("2000 lines: the first") << 2000 << QList<int>{5, 700, 1999} << 5;
    QTest::newRow("2001 lines: the first") << 2001 << QList<int>{5, 2000} << 5;
    QTest::newRow("2002 lines: position 2001 is passed over") << 2002 << QList<int>{5, 2001} << 5;
    QTest::newRow("2003 lines: the match at 2002") << 2003 << QList<int>{5, 700, 2002} << 2002;
    QTest::newRow("2003 lines: no further match") << 2003 << QList<int>{700, 701} << 700;
    QTest::newRow("2003 lines: only position 2001") << 2003 << QList<int>{2001} << 2001;
    QTest::newRow("5000 lines: the first beyond the bound")
        << 5000 << QList<int>{5, 2001, 3000, 4999} << 3000;
    QTest::newRow("5000 lines: all beyond the bound") << 5000 << QList<int>{2002, 4000} << 2002;
    QTest::newRow("5000 lines: the last") << 5000 << QList<int>{4999} << 4999;
    QTest::newRow("5000 lines: none") << 5000 << QList<int>{} << -1;
}

void TestNameList::searchesLongLists()
{
    QFETCH(int, lines);
    QFETCH(QList<int>, matches);
    NameList list;
    for (int i = 0; i < lines; ++i)
        list.append(matches.contains(i) ? u"Lind, Anne" : u"Quill, David");
    QTEST(list.find(u"anne"), "selected");
}

void TestNameList::listsWithinBytesItIsGiven()
{
    NameList list("..Lind, Anne......Quill, David.."_ba + QByteArray(1000, '.'));
    list.list(2, 10);
    list.list(18, 12);
    list.list(0, 0);
    list.squeeze();
    list.append(u"Müller, Karl");
    QCOMPARE(list.line(0), u"Lind, Anne"_s);
    QCOMPARE(list.line(1), u"Quill, David"_s);
    QCOMPARE(list.line(2), QString());
    QCOMPARE(list.line(3), u"Müller, Karl"_s);
    QVERIFY(list.memoryUsed() < 300);
}

QTEST_GUILESS_MAIN(TestNameList)
#include "tst_namelist.moc"
