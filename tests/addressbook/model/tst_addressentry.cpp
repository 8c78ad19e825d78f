// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/model/addressentry.h"
#include "tests/addressbook/model/addressrecords.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestAddressEntry : public QObject
{
    Q_OBJECT

private slots:
    void writesItsFieldsInOrder();
    void readsWhatAnEarlierProgramWrote();
    void readsRecordsCutAnywhere();
    void knowsWhetherItHasAPicture();
    void tellsTheFullName_data();
    void tellsTheFullName();
};

void TestAddressEntry::writesItsFieldsInOrder()
{
    AddressEntry entry;
    entry.texts = {u"Müller"_s,   u"Karl"_s,    u"Sep-06-1944"_s, u"36 Maple Avenue"_s, u"Apt. 26"_s,
                   u"Fairview"_s, u"OH"_s,      u"44126"_s,       u"555-0112"_s,        u"555-0113"_s,
                   u"555-0114"_s, u"k@e.org"_s, u"May-01-1970"_s};
    entry.picture = u"C:\\Pictures\\karl.jpg"_s;
    const QByteArray bytes = addressLayout.encode(entry);
    QCOMPARE(bytes, entryBytes({"M\xFCller", "Karl", "Sep-06-1944", "36 Maple Avenue", "Apt. 26", "Fairview",
                                "OH", "44126", "555-0112", "555-0113", "555-0114", "k@e.org", "May-01-1970"},
                               "C:\\Pictures\\karl.jpg"));
    QCOMPARE(bytes.size(), 724);
    entry[City] = QString(41, u'c');
    QCOMPARE(addressLayout.encode(entry).mid(200, 41), QByteArray(40, 'c') + 'O');
}

void TestAddressEntry::readsWhatAnEarlierProgramWrote()
{
    const AddressEntry entry = addressLayout.decode(entryBytes({"  Lind", "Anne", "", "14 Orchard Lane"}));
    QCOMPARE(entry[LastName], u"  Lind"_s);
    QCOMPARE(entry[Address1], u"14 Orchard Lane"_s);
    QCOMPARE(entry[AnniversaryDate], QString());
    QCOMPARE(entry.picture, noPicture);
    QVERIFY(addressLayout.decode(neverWritten(724)).isEmpty());
}

void TestAddressEntry::readsRecordsCutAnywhere()
{
    const QByteArray whole =
        entryBytes({"Lind", "Anne", "x", "x", "x", "x", "x", "x", "x", "x", "x", "x", "x"}, "photo.jpg");
    for (qsizetype length = 0; length <= whole.size(); ++length) {
        const AddressEntry entry = addressLayout.decode(whole.first(length));
        QCOMPARE(entry[LastName], u"Lind"_s.left(length));
        QCOMPARE(entry[AnniversaryDate].isEmpty(), length <= 480);
        QCOMPARE(entry.hasPicture(), length > 520);
    }
}

void TestAddressEntry::knowsWhetherItHasAPicture()
{
    AddressEntry entry;
    entry.picture = u"C:\\Pictures\\a.jpg"_s;
    QVERIFY(entry.hasPicture());
    for (const QString &none : {u"**"_s, u" ** "_s, QString(), u"   "_s}) {
        entry.picture = none;
        QVERIFY2(!entry.hasPicture(), qPrintable(none));
    }
}

void TestAddressEntry::tellsTheFullName_data()
{
    QTest::addColumn<QString>("last");
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("fullName");
    QTest::newRow("both names") << u"Lind"_s << u"Anne"_s << u"Anne Lind"_s;
    QTest::newRow("outer blanks") << u" Lind "_s << u" Anne "_s << u"Anne Lind"_s;
    QTest::newRow("no first name") << u"Lind"_s << QString() << u"Lind"_s;
    QTest::newRow("no last name") << u" "_s << u"Anne"_s << u"Anne"_s;
    QTest::newRow("no name") << QString() << QString() << QString();
}

void TestAddressEntry::tellsTheFullName()
{
    QFETCH(QString, last);
    QFETCH(QString, first);
    AddressEntry entry;
    entry[LastName] = last;
    entry[FirstName] = first;
    QTEST(entry.fullName(), "fullName");
}

QTEST_GUILESS_MAIN(TestAddressEntry)
#include "tst_addressentry.moc"
