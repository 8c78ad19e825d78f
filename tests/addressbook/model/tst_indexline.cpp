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
    const QString a20(20, u'a'), a40(40, u'a');
    rows<QString, QString, int, QString>({
        {"outer blanks", u"  Miller "_s, u" Anne  "_s, 12,
         u"Miller, Anne                                   12"_s},
        {"only blanks", u"   "_s, u"Anne"_s, 3, u", Anne                                         3"_s},
        {"no first name", u"Miller"_s, {}, 3, u"Miller,                                        3"_s},
        {"41 characters: six blanks", a20, a20.chopped(1), 7, a20 + u", " + a20.chopped(1) + u"      7"},
        {"42 characters: five blanks", a20, a20, 7, a20 + u", " + a20 + u"     7"},
        {"82 characters: five blanks", a40, a40, 50001, a40 + u", " + a40 + u"     50001"},
    });
}

void TestIndexLine::isMade()
{
    const auto [last, first, record, line] = row<QString, QString, int, QString>();
    QCOMPARE(IndexLine::make(last, first, record), line);
}

void TestIndexLine::leadsToARecord_data()
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

void TestIndexLine::leadsToARecord()
{
    const auto [line, record] = row<QString, int>();
    QCOMPARE(IndexLine::record(line), record);
    const QByteArray bytes = AnsiText::encode(line);
    QCOMPARE(IndexLine::record(QByteArrayView(bytes)), record);
}

void TestIndexLine::bearsAName_data()
{
    rows<QString, QString>({
        {"long name", IndexLine::make(u"Featherstone-Brookfield", u"Louis Vera Xenia 2nd", 21),
         u"Featherstone-Brookfield, Louis Vera Xenia 2nd"_s},
        {"a number in the name", IndexLine::make(u"Ward", u"Apt 7", 12), u"Ward, Apt 7"_s},
        {"no first name", IndexLine::make(u"Miller", u"", 3), u"Miller,"_s},
        {"no number", u"Miller, Anne2  "_s, u"Miller, Anne2"_s},
        {"only a number", u"12"_s, u"12"_s},
        {"empty", {}, {}},
    });
}

void TestIndexLine::bearsAName()
{
    const auto [line, name] = row<QString, QString>();
    QCOMPARE(IndexLine::name(line).toString(), name);
}

void TestIndexLine::marksDeletedEntries()
{
    QVERIFY(IndexLine::isDeleted(u"####"));
    QVERIFY(!IndexLine::isDeleted(u"###"));
    QVERIFY(!IndexLine::isDeleted(u" #####"));
}

void TestIndexLine::belongsToItsEntryOnly_data()
{
    rows<QString, bool>({
        {"its own, with any number", IndexLine::make(u"Lind", u"Anne", 13), true},
        {"another first name", IndexLine::make(u"Lind", u"Anna", 12), false},
        {"a longer name", IndexLine::make(u"Lind", u"Anne 2", 12), false},
        {"another case", IndexLine::make(u"lind", u"Anne", 12), false},
        {"empty", {}, false},
    });
}

void TestIndexLine::belongsToItsEntryOnly()
{
    const auto [line, belongs] = row<QString, bool>();
    AddressEntry entry;
    entry[LastName] = u"Lind "_s;
    entry[FirstName] = u" Anne"_s;
    QCOMPARE(IndexLine::belongs(line, entry), belongs);
}

void TestIndexLine::fitsWhileTheNumberKeepsItsColumn()
{
    QVERIFY(!IndexLine::fits(QString(20, u'a'), QString(21, u'b')));
    QVERIFY(IndexLine::fits(QString(20, u'a').leftJustified(29), QString(20, u'b')));
}

QTEST_GUILESS_MAIN(TestIndexLine)
#include "tst_indexline.moc"
