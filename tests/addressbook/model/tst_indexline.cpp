// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/model/addressentry.h"
#include "addressbook/model/indexline.h"
#include "storage/ansitext.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;

class TestIndexLine : public QObject
{
    Q_OBJECT
private slots:
    void isMade()
    {
        const auto make = IndexLine::make;
        QCOMPARE(make(u"  Miller ", u" Anne  ", 12), u"Miller, Anne                                   12"_s);
        QCOMPARE(make(u"   ", u"Anne", 3), u", Anne                                         3"_s);
        QCOMPARE(make(u"Miller", u"", 3), u"Miller,                                        3"_s);
        // Names of 41 characters leave six blanks, longer ones five.
        const QString a20(20, u'a'), b19(19, u'b'), a40(40, u'a');
        QCOMPARE(make(a20, b19, 7), QString(a20 + u", " + b19 + u"      7"));
        QCOMPARE(make(a20, a20, 7), QString(a20 + u", " + a20 + u"     7"));
        QCOMPARE(make(a40, a40, 50001), QString(a40 + u", " + a40 + u"     50001"));
    }

    void leadsToARecord_data()
    {
        const QString names(42, u'a');
        rows<QString, int>({
            {"blanks before the number", names + u"     12", 12},
            {"right at character 43", names + u"12", 12},
            {"one character early", names.chopped(1) + u"12", 2},
            {"digits that end", names + u" 2nd     21", 2},
            {"a letter first", names + u" a12", 0},
            {"a minus", names + u" -12", 0},
            {"a point", names + u" 1.5", 1},
            {"other digits of Unicode", names + u" \u0661", 0},
            {"nothing there", names, 0},
            {"only blanks there", QString(58, u' '), 0},
            {"short", u"Miller, Anne 12"_s, 0},
            {"sixteen digits", names + u"9999999999999999", std::numeric_limits<int>::max()},
            {"just beyond an int", names + u"2147483648", std::numeric_limits<int>::max()},
        });
    }

    void leadsToARecord()
    {
        const auto [line, record] = row<QString, int>();
        QCOMPARE(IndexLine::record(line), record);
        const QByteArray bytes = AnsiText::encode(line);
        QCOMPARE(IndexLine::record(QByteArrayView(bytes)), record);
    }

    void bearsAName()
    {
        const auto name = [](const QString &line) { return IndexLine::name(line).toString(); };
        const QString longName = u"Featherstone-Brookfield, Louis Vera Xenia 2nd"_s;
        QCOMPARE(name(longName + u"     21"), longName);
        QCOMPARE(name(IndexLine::make(u"Ward", u"Apt 7", 12)), u"Ward, Apt 7"_s);
        QCOMPARE(name(IndexLine::make(u"Miller", u"", 3)), u"Miller,"_s);
        QCOMPARE(name(u"Miller, Anne2  "_s), u"Miller, Anne2"_s); // without a number
        QCOMPARE(name(u"12"_s), u"12"_s);
        QCOMPARE(name({}), QString());
    }

    void marksDeletedEntries()
    {
        QVERIFY(IndexLine::isDeleted(u"####"));
        QVERIFY(!IndexLine::isDeleted(u"###"));
        QVERIFY(!IndexLine::isDeleted(u" #####"));
    }

    void belongsToItsEntryOnly()
    {
        AddressEntry entry;
        entry[LastName] = u"Lind "_s;
        entry[FirstName] = u" Anne"_s;
        QVERIFY(IndexLine::belongs(IndexLine::make(u"Lind", u"Anne", 13), entry)); // whatever the number
        QVERIFY(!IndexLine::belongs(IndexLine::make(u"Lind", u"Anna", 12), entry));
        QVERIFY(!IndexLine::belongs(IndexLine::make(u"Lind", u"Anne 2", 12), entry));
        QVERIFY(!IndexLine::belongs(IndexLine::make(u"lind", u"Anne", 12), entry));
        QVERIFY(!IndexLine::belongs({}, entry));
    }

    void fitsWhileTheNumberKeepsItsColumn()
    {
        QVERIFY(!IndexLine::fits(QString(20, u'a'), QString(21, u'b')));
        QVERIFY(IndexLine::fits(QString(20, u'a').leftJustified(29), QString(20, u'b')));
    }
};

QTEST_GUILESS_MAIN(TestIndexLine)
#include "tst_indexline.moc"
