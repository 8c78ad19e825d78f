// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/model/addressentry.h"
#include "addressbook/model/indexline.h"
#include "storage/ansitext.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestIndexLine : public QObject
{
    Q_OBJECT

private slots:
    void isMade_data();
    void isMade();
    void leadsToARecord_data();
    void leadsToARecord();
    void bearsAName_data();
    void bearsAName();
    void marksDeletedEntries();
    void belongsToItsEntryOnly_data();
    void belongsToItsEntryOnly();
    void fitsWhileTheNumberKeepsItsColumn();
};

void TestIndexLine::isMade_data()
{
    QTest::addColumn<QString>("last");
    QTest::addColumn<QString>("first");
    QTest::addColumn<int>("record");
    QTest::addColumn<QString>("line");
    QTest::newRow("short name") << u"Miller"_s << u"Anne"_s << 12
                                << u"Miller, Anne                                   12"_s;
    QTest::newRow("outer blanks") << u"  Miller "_s << u" Anne  "_s << 12
                                  << u"Miller, Anne                                   12"_s;
    QTest::newRow("only blanks") << u"   "_s << u"Anne"_s << 3
                                 << u", Anne                                         3"_s;
    QTest::newRow("no first name") << u"Miller"_s << QString() << 3
                                   << u"Miller,                                        3"_s;
    QTest::newRow("41 characters: six blanks") << QString(20, u'a') << QString(19, u'b') << 7
                                               << QString(20, u'a') + u", " + QString(19, u'b') + u"      7";
    QTest::newRow("42 characters: five blanks") << QString(20, u'a') << QString(20, u'b') << 7
                                                << QString(20, u'a') + u", " + QString(20, u'b') + u"     7";
    QTest::newRow("82 characters: five blanks")
        << QString(40, u'a') << QString(40, u'b') << 50001
        << QString(40, u'a') + u", " + QString(40, u'b') + u"     50001";
}

void TestIndexLine::isMade()
{
    QFETCH(QString, last);
    QFETCH(QString, first);
    QFETCH(int, record);
    QTEST(IndexLine::make(last, first, record), "line");
}

void TestIndexLine::leadsToARecord_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<int>("record");
    QTest::newRow("column 48") << QString(47, u'a') + u"12" << 0;
    QTest::newRow("blanks before the number") << QString(42, u'a') + u"     12" << 12;
    QTest::newRow("right at character 43") << QString(42, u'a') + u"12" << 12;
    QTest::newRow("one character early") << QString(41, u'a') + u"12" << 2;
    QTest::newRow("digits that end") << QString(42, u'a') + u" 2nd     21" << 2;
    QTest::newRow("a letter first") << QString(42, u'a') + u" a12" << 0;
    QTest::newRow("a minus") << QString(42, u'a') + u" -12" << 0;
    QTest::newRow("a point") << QString(42, u'a') + u" 1.5" << 1;
    QTest::newRow("other digits of Unicode") << QString(42, u'a') + u" \u0661" << 0;
    QTest::newRow("nothing there") << QString(42, u'a') << 0;
    QTest::newRow("only blanks there") << QString(58, u' ') << 0;
    QTest::newRow("short") << u"Miller, Anne 12"_s << 0;
    QTest::newRow("empty") << QString() << 0;
    QTest::newRow("sixteen digits") << QString(42, u'a') + u"9999999999999999"
                                    << std::numeric_limits<int>::max();
    QTest::newRow("just beyond an int")
        << QString(42, u'a') + u"2147483648" << std::numeric_limits<int>::max();
}

void TestIndexLine::leadsToARecord()
{
    QFETCH(QString, line);
    QTEST(IndexLine::record(line), "record");
    const QByteArray bytes = AnsiText::encode(line);
    QTEST(IndexLine::record(QByteArrayView(bytes)), "record");
}

void TestIndexLine::bearsAName_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("name");
    QTest::newRow("short name") << IndexLine::make(u"Miller", u"Anne", 12) << u"Miller, Anne"_s;
    QTest::newRow("long name") << IndexLine::make(u"Featherstone-Brookfield", u"Louis Vera Xenia 2nd", 21)
                               << u"Featherstone-Brookfield, Louis Vera Xenia 2nd"_s;
    QTest::newRow("a number in the name") << IndexLine::make(u"Ward", u"Apt 7", 12) << u"Ward, Apt 7"_s;
    QTest::newRow("no first name") << IndexLine::make(u"Miller", u"", 3) << u"Miller,"_s;
    QTest::newRow("no number") << u"Miller, Anne2  "_s << u"Miller, Anne2"_s;
    QTest::newRow("only a number") << u"12"_s << u"12"_s;
    QTest::newRow("empty") << QString() << QString();
}

void TestIndexLine::bearsAName()
{
    QFETCH(QString, line);
    QTEST(IndexLine::name(line).toString(), "name");
}

void TestIndexLine::marksDeletedEntries()
{
    QCOMPARE(IndexLine::deletionMark(), u"#####                                        "_s);
    QVERIFY(IndexLine::isDeleted(u"####"));
    QVERIFY(IndexLine::isDeleted(IndexLine::deletionMark()));
    QVERIFY(!IndexLine::isDeleted(u"###"));
    QVERIFY(!IndexLine::isDeleted(u" #####"));
}

void TestIndexLine::belongsToItsEntryOnly_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<bool>("belongs");
    QTest::newRow("its own") << IndexLine::make(u"Lind", u"Anne", 12) << true;
    QTest::newRow("its own, with another number") << IndexLine::make(u"Lind", u"Anne", 13) << true;
    QTest::newRow("another first name") << IndexLine::make(u"Lind", u"Anna", 12) << false;
    QTest::newRow("a longer name") << IndexLine::make(u"Lind", u"Anne 2", 12) << false;
    QTest::newRow("another case") << IndexLine::make(u"lind", u"Anne", 12) << false;
    QTest::newRow("empty") << QString() << false;
}

void TestIndexLine::belongsToItsEntryOnly()
{
    QFETCH(QString, line);
    AddressEntry entry;
    entry[LastName] = u"Lind "_s;
    entry[FirstName] = u" Anne"_s;
    QTEST(IndexLine::belongs(line, entry), "belongs");
}

void TestIndexLine::fitsWhileTheNumberKeepsItsColumn()
{
    QVERIFY(IndexLine::fits(QString(20, u'a'), QString(20, u'b')));
    QVERIFY(!IndexLine::fits(QString(20, u'a'), QString(21, u'b')));
    QVERIFY(IndexLine::fits(QString(20, u'a').leftJustified(29), QString(20, u'b')));
}

QTEST_GUILESS_MAIN(TestIndexLine)
#include "tst_indexline.moc"
