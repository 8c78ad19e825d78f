// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/model/addressviewer.h"
#include "tests/addressbook/model/addressrecords.h"
#include "tests/support/household.h"

#include <QDir>
#include <QJsonArray>
#include <QRandomGenerator>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestAddressViewer : public QObject
{
    Q_OBJECT

private slots:
    void showsTheHousehold_data();
    void showsTheHousehold();
    void narrowsTheHouseholdByMonth_data();
    void narrowsTheHouseholdByMonth();
    void searchesTheHousehold();
    void readsTheDayOfTheYear_data();
    void readsTheDayOfTheYear();
    void readsATypedMonth_data();
    void readsATypedMonth();
    void followsTheLinesToTheirRecords();
    void readsOnlyTheFirstRows();
    void searchesNamesAndInformation_data();
    void searchesNamesAndInformation();
    void bringsARemovedRowBack();
    void sortsAndReturnsToRecordOrder_data();
    void sortsAndReturnsToRecordOrder();
    void handsOutTheEntriesShown();
    void survivesBadFiles_data();
    void survivesBadFiles();
    void makesNoFiles_data();
    void makesNoFiles();

private:
    const QJsonObject m_expected = expectedOf(u"address_book"_s);
    const DataFolder m_household{householdPath()};
};

namespace {

using Column = AddressViewer::Column;

constexpr DisplayRange everyone;

QStringList namesOf(const AddressViewer &viewer)
{
    QStringList names;
    for (int row = 0; row < viewer.count(); ++row)
        names << viewer.name(row);
    return names;
}

QStringList rowsOf(const AddressViewer &viewer)
{
    QStringList rows;
    for (int row = 0; row < viewer.count(); ++row)
        rows << viewer.name(row) + u'|' + viewer.information(row);
    return rows;
}

/// An entry with these names, e-mail address and date of birth.
QByteArray person(const QByteArray &last, const QByteArray &first, const QByteArray &email,
                  const QByteArray &birth = {})
{
    return entryBytes({last, first, birth, "", "", "", "", "", "", "", "", email});
}

/// Four persons in records 2 to 5.
void putFour(const TestFolder &files)
{
    files.put(u"Addbk2.Fil"_s, neverWritten(60) + lineBytes(lineOf("Zabel, Ida", 2)) +
                                   lineBytes(lineOf("\xC5ngstr\xF6m, Bo", 3)) +
                                   lineBytes(lineOf("abel, Jo", 4)) + lineBytes(lineOf("Oto, Al", 5)));
    files.put(u"Addbk1.Fil"_s, neverWritten(724) + person("Zabel", "Ida", "ida@x.org", "Dec-01-1970") +
                                   person("\xC5ngstr\xF6m", "Bo", "", "Jan-31-1999") +
                                   person("abel", "Jo", "JO@X.ORG", "some day") +
                                   person("Oto", "Al", "al@y.org", "Jan-02-2001"));
}

} // namespace

void TestAddressViewer::showsTheHousehold_data()
{
    QTest::addColumn<int>("choice");
    const QStringList choices{u"Address"_s,    u"State"_s,         u"Home Phone"_s,    u"Mobile Phone"_s,
                              u"Fax Number"_s, u"Email Address"_s, u"Date of Birth"_s, u"Anniversary Date"_s};
    for (qsizetype i = 0; i < choices.size(); ++i)
        QTest::newRow(qPrintable(choices[i])) << int(i);
}

void TestAddressViewer::showsTheHousehold()
{
    QFETCH(int, choice);
    AddressViewer viewer(m_household, DateStyle::Usa);
    viewer.load(Information(choice), everyone);
    QStringList expected;
    for (const QJsonValue &row :
         m_expected["viewer"_L1][QString::fromLatin1(QTest::currentDataTag())].toArray())
        expected << row[0].toString() + u'|' + row[1].toString();
    QCOMPARE(expected.size(), 40);
    QCOMPARE(rowsOf(viewer), expected);
    QCOMPARE(u"No. Of Names: "_s + QString::number(viewer.count()),
             m_expected["viewer_count_caption"_L1].toString());
}

void TestAddressViewer::narrowsTheHouseholdByMonth_data()
{
    QTest::addColumn<DateStyle>("style");
    QTest::addColumn<DisplayRange::Kind>("kind");
    QTest::addColumn<QJsonObject>("expected");
    const QJsonValue months = m_expected["names_by_month"_L1];
    QTest::newRow("birth, USA") << DateStyle::Usa << DisplayRange::BirthMonth
                                << months["USA"_L1]["birth"_L1].toObject();
    QTest::newRow("birth, OTHER") << DateStyle::Other << DisplayRange::BirthMonth
                                  << months["OTHER"_L1]["birth"_L1].toObject();
    QTest::newRow("anniversary, USA")
        << DateStyle::Usa << DisplayRange::AnniversaryMonth << months["USA"_L1]["anniversary"_L1].toObject();
    QTest::newRow("anniversary, OTHER") << DateStyle::Other << DisplayRange::AnniversaryMonth
                                        << months["OTHER"_L1]["anniversary"_L1].toObject();
}

void TestAddressViewer::narrowsTheHouseholdByMonth()
{
    QFETCH(DateStyle, style);
    QFETCH(DisplayRange::Kind, kind);
    QFETCH(QJsonObject, expected);
    AddressViewer viewer(m_household, style);
    QCOMPARE(expected.size(), 12);
    for (auto it = expected.begin(); it != expected.end(); ++it) {
        // The choice of information has no part in it.
        viewer.load(Information::HomePhone, {kind, DayOfYear::monthTyped(it.key())});
        QCOMPARE(namesOf(viewer), it->toVariant().toStringList());
        QCOMPARE(viewer.nameCount(), viewer.count());
    }
}

void TestAddressViewer::searchesTheHousehold()
{
    AddressViewer viewer(m_household, DateStyle::Usa);
    const QJsonObject counts = m_expected["viewer_name_search_counts"_L1].toObject();
    QVERIFY(!counts.isEmpty());
    for (const Information information : {Information::HomePhone, Information::Pictures}) {
        viewer.load(information, everyone);
        for (auto it = counts.begin(); it != counts.end(); ++it) {
            viewer.search(it.key());
            QCOMPARE(viewer.count(), it->toInt());
        }
    }
    viewer.search({});
    QCOMPARE(viewer.count(), 40);
    for (const QJsonValue &picture : m_expected["pictures"_L1].toArray())
        QVERIFY(
            rowsOf(viewer).contains(picture["name"_L1].toString() + u'|' + picture["path"_L1].toString()));
}

void TestAddressViewer::readsTheDayOfTheYear_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("usa");
    QTest::addColumn<int>("other");
    const auto row = [](const QString &text, int usa, int other) {
        QTest::newRow(qPrintable(text)) << text << usa << other;
    };
    row(u"Apr-21-1997"_s, 421, 421);
    row(u"21-apr-1997"_s, 421, 421);
    row(u"21 April"_s, 421, 421);
    row(u"21April97"_s, 421, 421);
    row(u"Sept 3, 1990"_s, 903, 903);
    row(u"1990 Dec 3"_s, 1203, 1203);
    row(u"about April 1997"_s, 400, 400);
    row(u"03/04/1990"_s, 304, 403);
    row(u"03/04"_s, 304, 403);
    row(u"3.4.90"_s, 304, 403);
    row(u"21/04/1997"_s, 421, 421);
    row(u"04/21/1997"_s, 421, 421);
    row(u"1997-04-21"_s, 421, 421);
    row(u"04/1997"_s, 400, 400);
    row(u"31-12-99"_s, 1231, 1231);
    row(u"13/13/1990"_s, 0, 0);
    row(u"0/5/1990"_s, 0, 500);
    row(u"1997"_s, 0, 0);
    row(u"19970421"_s, 0, 0);
    row(u"99999999999999999999/4"_s, 0, 0);
    row(u"Mayor"_s, 0, 0);
    row(u"sometime"_s, 0, 0);
    row(QString(), 0, 0);
}

void TestAddressViewer::readsTheDayOfTheYear()
{
    QFETCH(QString, text);
    const auto number = [&text](DateStyle style) {
        const DayOfYear day = DayOfYear::of(text, style);
        return day.month * 100 + day.day;
    };
    QTEST(number(DateStyle::Usa), "usa");
    QTEST(number(DateStyle::Other), "other");
}

void TestAddressViewer::readsATypedMonth_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("month");
    QTest::newRow("three letters") << u"Apr"_s << 4;
    QTest::newRow("whole, any case") << u" aPRIL "_s << 4;
    QTest::newRow("with a full stop") << u"Sep."_s << 9;
    QTest::newRow("a number") << u"4"_s << 4;
    QTest::newRow("with a zero") << u"04"_s << 4;
    QTest::newRow("twelve") << u"12"_s << 12;
    QTest::newRow("thirteen") << u"13"_s << 0;
    QTest::newRow("zero") << u"0"_s << 0;
    QTest::newRow("two letters") << u"Ju"_s << 0;
    QTest::newRow("too many letters") << u"Aprils"_s << 0;
    QTest::newRow("a long number") << u"0000004"_s << 0;
    QTest::newRow("other digits") << u"\u0664"_s << 0;
    QTest::newRow("nothing") << u"  "_s << 0;
}

void TestAddressViewer::readsATypedMonth()
{
    QFETCH(QString, text);
    QTEST(DayOfYear::monthTyped(text), "month");
}

void TestAddressViewer::followsTheLinesToTheirRecords()
{
    const TestFolder files;
    const QByteArray tooLong = "Featherstone-Brookfield, Louis Vera Xenia X2nd     5";
    files.put(u"Addbk2.Fil"_s, lineBytes(lineOf("In record one", 3)) + neverWritten(60) +
                                   lineBytes(lineOf("Backwards", 4)) + lineBytes(lineOf("Same again", 4)) +
                                   lineBytes("#####" + QByteArray(40, ' ')) + lineBytes("") +
                                   lineBytes(lineOf("Past the end", 50001)) + lineBytes("No number") +
                                   lineBytes(tooLong) + lineBytes(lineOf("Short record", 5)));
    files.put(u"Addbk1.Fil"_s, neverWritten(724) + entryBytes({"*****"}) +
                                   entryBytes({"A", "", "", "1 Elm St", "", "Town", "", "7"}) +
                                   entryBytes({"B", "", "", "", "Flat 2", "", "WI"}) +
                                   entryBytes({"C", "", "", "9 Oak"}).left(3 * 40 + 5));
    AddressViewer viewer(files.folder(), DateStyle::Usa);
    viewer.load(Information::Address, everyone);
    QCOMPARE(rowsOf(viewer),
             QStringList({u"In record one|1 Elm St, Town, 7"_s, u"Backwards|Flat 2, WI"_s,
                          u"Same again|Flat 2, WI"_s, u"Past the end|"_s, u"No number|"_s,
                          u"Featherstone-Brookfield, Louis Vera Xenia X2nd|"_s, u"Short record|9 Oak"_s}));
    QCOMPARE(viewer.record(0), 3);
    QCOMPARE(viewer.record(4), 0);
}

void TestAddressViewer::readsOnlyTheFirstRows()
{
    const TestFolder files;
    putFour(files);
    AddressViewer viewer(files.folder(), DateStyle::Usa);
    viewer.load(Information::EmailAddress, everyone, 2);
    QCOMPARE(rowsOf(viewer), QStringList({u"Zabel, Ida|ida@x.org"_s, u"Ångström, Bo|"_s}));
    QVERIFY(viewer.isLongerThan(2));
    QVERIFY(!viewer.isLongerThan(50));
}

void TestAddressViewer::searchesNamesAndInformation_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("names");
    QTest::newRow("inside a name") << u"ABEL"_s << QStringList{u"Zabel, Ida"_s, u"abel, Jo"_s};
    QTest::newRow("in the information") << u"@x"_s << QStringList{u"Zabel, Ida"_s, u"abel, Jo"_s};
    QTest::newRow("letters with accents") << u"åNGSTRÖ"_s << QStringList{u"Ångström, Bo"_s};
    QTest::newRow("composed of two") << u"A\u030Angstr"_s << QStringList{u"Ångström, Bo"_s};
    QTest::newRow("blanks around it") << u"  oto "_s << QStringList{u"Oto, Al"_s};
    QTest::newRow("not over both") << u"Alal@"_s << QStringList();
    QTest::newRow("letters that no file holds") << u"日本"_s << QStringList();
    QTest::newRow("longer than any row") << QString(500, u'x') << QStringList();
    QTest::newRow("the end of a row") << u"ida@x.org"_s << QStringList{u"Zabel, Ida"_s};
}

void TestAddressViewer::searchesNamesAndInformation()
{
    QFETCH(QString, text);
    const TestFolder files;
    putFour(files);
    AddressViewer viewer(files.folder(), DateStyle::Usa);
    viewer.load(Information::EmailAddress, everyone);
    viewer.search(u"zabel"_s); // a search starts from all names, not from the last one's
    viewer.search(text);
    QTEST(namesOf(viewer), "names");
    QCOMPARE(viewer.nameCount(), 4);
    viewer.load(Information::EmailAddress, everyone);
    QTEST(namesOf(viewer), "names");
}

void TestAddressViewer::bringsARemovedRowBack()
{
    const TestFolder files;
    putFour(files);
    AddressViewer viewer(files.folder(), DateStyle::Usa);
    viewer.load(Information::EmailAddress, everyone);
    viewer.removeRow(1);
    viewer.search(u"a"_s);
    viewer.search({});
    QCOMPARE(namesOf(viewer), QStringList({u"Zabel, Ida"_s, u"abel, Jo"_s, u"Oto, Al"_s}));
    QCOMPARE(viewer.nameCount(), 3);
    viewer.load(Information::EmailAddress, everyone);
    QCOMPARE(viewer.count(), 4);
}

void TestAddressViewer::sortsAndReturnsToRecordOrder_data()
{
    QTest::addColumn<Information>("information");
    QTest::addColumn<Column>("column");
    QTest::addColumn<bool>("descending");
    QTest::addColumn<QString>("order");
    const auto email = Information::EmailAddress, birth = Information::BirthDate;
    QTest::newRow("names as a telephone book") << email << Column::Name << false << u"aÅOZ"_s;
    QTest::newRow("from the end") << email << Column::Name << true << u"ZOÅa"_s;
    QTest::newRow("empty cells last") << email << Column::Information << false << u"OZaÅ"_s;
    QTest::newRow("also from the end") << email << Column::Information << true << u"aZOÅ"_s;
    QTest::newRow("dates within the year") << birth << Column::Information << false << u"aOÅZ"_s;
}

void TestAddressViewer::sortsAndReturnsToRecordOrder()
{
    QFETCH(Information, information);
    QFETCH(Column, column);
    QFETCH(bool, descending);
    const TestFolder files;
    putFour(files);
    AddressViewer viewer(files.folder(), DateStyle::Usa);
    viewer.load(information, everyone);
    const auto initials = [&viewer] {
        QString all;
        for (const QString &name : namesOf(viewer))
            all += name.front();
        return all;
    };
    viewer.sort(AddressViewer::Order{column, descending});
    QTEST(initials(), "order");
    viewer.load(information, everyone);
    QTEST(initials(), "order");
    viewer.sort({});
    QCOMPARE(initials(), u"ZÅaO"_s);
}

void TestAddressViewer::handsOutTheEntriesShown()
{
    const TestFolder files;
    putFour(files);
    AddressViewer viewer(files.folder(), DateStyle::Usa);
    viewer.load(Information::State, everyone);
    viewer.sort(AddressViewer::Order{});
    QStringList emails;
    viewer.forEachShown([&emails](int row, const AddressEntry &entry) {
        emails << QString::number(row) + entry[Email];
        return row < 2;
    });
    QCOMPARE(emails, QStringList({u"0JO@X.ORG"_s, u"1"_s, u"2al@y.org"_s}));
}

void TestAddressViewer::survivesBadFiles_data()
{
    QTest::addColumn<QByteArray>("index");
    QTest::addColumn<QByteArray>("entries");
    QByteArray noise(300 * 724, '\0');
    QRandomGenerator generator(4);
    for (char &byte : noise)
        byte = char(generator.bounded(256));
    const QByteArray lines = neverWritten(60) + lineBytes(lineOf("Lind, Anne", 2));
    const QByteArray entry = neverWritten(724) + person("Lind", "Anne", "a@example.org");
    QTest::newRow("empty") << QByteArray() << QByteArray();
    QTest::newRow("noise") << noise << noise;
    QTest::newRow("noise in the entries") << lines << noise;
    QTest::newRow("counts beyond the end") << QByteArray(60 * 20, '\xFF') << entry;
    for (int length = 1; length < 120; length += 7)
        QTest::addRow("index cut at %d", length) << lines.left(length) << entry;
    for (int length = 724; length < 1448; length += 61)
        QTest::addRow("entries cut at %d", length) << lines << entry.left(length);
}

void TestAddressViewer::survivesBadFiles()
{
    QFETCH(QByteArray, index);
    QFETCH(QByteArray, entries);
    const TestFolder files;
    files.put(u"Addbk2.Fil"_s, index);
    files.put(u"Addbk1.Fil"_s, entries);
    AddressViewer viewer(files.folder(), DateStyle::Other);
    for (int choice = 0; choice < informationCount; ++choice) {
        viewer.load(Information(choice), everyone);
        viewer.search(u"e"_s);
        viewer.sort(AddressViewer::Order{Column::Information, true});
        QVERIFY(rowsOf(viewer).size() <= 3700);
        viewer.load(Information(choice), {DisplayRange::BirthMonth, 4});
        viewer.forEachShown([](int, const AddressEntry &) { return true; });
    }
    QCOMPARE(files.bytes(u"Addbk2.Fil"_s), index);
    QCOMPARE(files.bytes(u"Addbk1.Fil"_s), entries);
}

void TestAddressViewer::makesNoFiles_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<int>("rows");
    QTest::newRow("nothing") << QString() << 0;
    QTest::newRow("a folder in place of the lines") << u"Addbk2.Fil"_s << 0;
    QTest::newRow("a folder in place of the entries") << u"Addbk1.Fil"_s << 4;
}

void TestAddressViewer::makesNoFiles()
{
    QFETCH(QString, folder);
    QFETCH(int, rows);
    const TestFolder files;
    if (rows > 0) {
        putFour(files);
        QVERIFY(QFile::remove(files.folder().filePath(folder)));
    }
    if (!folder.isEmpty()) {
        QVERIFY(QDir(files.folder().path()).mkdir(folder));
        expectWarning("Cannot read");
    }
    AddressViewer viewer(files.folder(), DateStyle::Usa);
    const QStringList before = QDir(files.folder().path()).entryList();
    viewer.load(Information::State, everyone);
    viewer.forEachShown([](int, const AddressEntry &) { return true; });
    QCOMPARE(viewer.count(), rows);
    QCOMPARE(QDir(files.folder().path()).entryList(), before);
}

QTEST_GUILESS_MAIN(TestAddressViewer)
#include "tst_addressviewer.moc"
