// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/model/addressviewer.h"
#include "tests/addressbook/model/addressrecords.h"
#include "tests/support/household.h"
#include "tests/support/rows.h"

#include <QDir>
#include <QJsonArray>
#include <QRandomGenerator>

using namespace Qt::Literals::StringLiterals;

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

QString initialsOf(const AddressViewer &viewer)
{
    QString initials;
    for (const QString &name : namesOf(viewer))
        initials += name.front();
    return initials;
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

class TestAddressViewer : public QObject
{
    Q_OBJECT

private slots:
    void showsTheHousehold()
    {
        const QStringList choices{u"Address"_s,       u"State"_s,           u"Home Phone"_s,
                                  u"Mobile Phone"_s,  u"Fax Number"_s,      u"Email Address"_s,
                                  u"Date of Birth"_s, u"Anniversary Date"_s};
        AddressViewer viewer(m_household, DateStyle::Usa);
        for (qsizetype i = 0; i < choices.size(); ++i) {
            viewer.load(Information(i), everyone);
            QStringList expected;
            for (const QJsonValue &row : m_expected["viewer"_L1][choices[i]].toArray())
                expected << row[0].toString() + u'|' + row[1].toString();
            QCOMPARE(expected.size(), 40);
            QVERIFY2(rowsOf(viewer) == expected, qPrintable(choices[i]));
        }
    }

    void narrowsTheHouseholdByMonth()
    {
        for (const auto &[style, styleName] :
             {std::pair(DateStyle::Usa, "USA"_L1), std::pair(DateStyle::Other, "OTHER"_L1)}) {
            AddressViewer viewer(m_household, style);
            for (const auto &[kind, kindName] :
                 {std::pair(DisplayRange::BirthMonth, "birth"_L1),
                  std::pair(DisplayRange::AnniversaryMonth, "anniversary"_L1)}) {
                const QJsonObject months = m_expected["names_by_month"_L1][styleName][kindName].toObject();
                QCOMPARE(months.size(), 12);
                for (auto it = months.begin(); it != months.end(); ++it) {
                    // The choice of information has no part in it.
                    viewer.load(Information::HomePhone, {kind, DayOfYear::monthTyped(it.key())});
                    QVERIFY2(namesOf(viewer) == it->toVariant().toStringList(),
                             qPrintable(styleName + u' ' + kindName + u' ' + it.key()));
                    QCOMPARE(viewer.nameCount(), viewer.count());
                }
            }
        }
    }

    void searchesTheHousehold()
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
            QVERIFY(rowsOf(viewer).contains(picture["name"_L1].toString() + u'|' +
                                            picture["path"_L1].toString()));
    }

    void readsTheDayOfTheYear_data()
    {
        rows<int, int>({{"Apr-21-1997", 421, 421},
                        {"21-apr-1997", 421, 421},
                        {"21 April", 421, 421},
                        {"21April97", 421, 421},
                        {"Sept 3, 1990", 903, 903},
                        {"1990 Dec 3", 1203, 1203},
                        {"about April 1997", 400, 400},
                        {"03/04/1990", 304, 403},
                        {"03/04", 304, 403},
                        {"3.4.90", 304, 403},
                        {"21/04/1997", 421, 421},
                        {"04/21/1997", 421, 421},
                        {"1997-04-21", 421, 421},
                        {"04/1997", 400, 400},
                        {"31-12-99", 1231, 1231},
                        {"13/13/1990", 0, 0},
                        {"0/5/1990", 0, 500},
                        {"1997", 0, 0},
                        {"19970421", 0, 0},
                        {"99999999999999999999/4", 0, 0},
                        {"Mayor", 0, 0},
                        {"sometime", 0, 0},
                        {"", 0, 0}});
    }

    void readsTheDayOfTheYear()
    {
        const auto [usa, other] = row<int, int>();
        const auto number = [](DateStyle style) {
            const DayOfYear day = DayOfYear::of(QString::fromLatin1(QTest::currentDataTag()), style);
            return day.month * 100 + day.day;
        };
        QCOMPARE(number(DateStyle::Usa), usa);
        QCOMPARE(number(DateStyle::Other), other);
    }

    void readsATypedMonth_data()
    {
        const char *const digitOfAnotherScript = "\u0664";
        rows<int>({{"Apr", 4},
                   {" aPRIL ", 4},
                   {"Sep.", 9},
                   {"4", 4},
                   {"04", 4},
                   {"12", 12},
                   {"13", 0},
                   {"0", 0},
                   {"Ju", 0},
                   {"Aprils", 0},
                   {"0000004", 0},
                   {digitOfAnotherScript, 0},
                   {"  ", 0}});
    }

    void readsATypedMonth()
    {
        const auto [month] = row<int>();
        QCOMPARE(DayOfYear::monthTyped(QString::fromUtf8(QTest::currentDataTag())), month);
    }

    void followsTheLinesToTheirRecords()
    {
        const QByteArray tooLong = "Featherstone-Brookfield, Louis Vera Xenia X2nd     5";
        m_files.put(u"Addbk2.Fil"_s, lineBytes(lineOf("In record one", 3)) + neverWritten(60) +
                                         lineBytes(lineOf("Backwards", 4)) +
                                         lineBytes(lineOf("Same again", 4)) +
                                         lineBytes("#####" + QByteArray(40, ' ')) + lineBytes("") +
                                         lineBytes(lineOf("Past the end", 50001)) + lineBytes("No number") +
                                         lineBytes(tooLong) + lineBytes(lineOf("Short record", 5)));
        m_files.put(u"Addbk1.Fil"_s, neverWritten(724) + entryBytes({"*****"}) +
                                         entryBytes({"A", "", "", "1 Elm St", "", "Town", "", "7"}) +
                                         entryBytes({"B", "", "", "", "Flat 2", "", "WI"}) +
                                         entryBytes({"C", "", "", "9 Oak"}).left(3 * 40 + 5));
        AddressViewer viewer(m_files.folder(), DateStyle::Usa);
        viewer.load(Information::Address, everyone);
        QCOMPARE(rowsOf(viewer), QStringList({u"In record one|1 Elm St, Town, 7"_s, u"Backwards|Flat 2, WI"_s,
                                              u"Same again|Flat 2, WI"_s, u"Past the end|"_s, u"No number|"_s,
                                              u"Featherstone-Brookfield, Louis Vera Xenia X2nd|"_s,
                                              u"Short record|9 Oak"_s}));
        QCOMPARE(viewer.record(0), 3);
        QCOMPARE(viewer.record(4), 0);
    }

    void searchesNamesAndInformation_data()
    {
        rows<QString, QString>({
            {"inside a name", u"ABEL"_s, u"Za"_s},
            {"in the information", u"@x"_s, u"Za"_s},
            {"letters with accents", u"åNGSTRÖ"_s, u"Å"_s},
            {"blanks around it", u"  oto "_s, u"O"_s},
            {"not over both", u"Alal@"_s, {}},
            {"letters that no file holds", u"日本"_s, {}},
            {"the end of a row", u"ida@x.org"_s, u"Z"_s},
        });
    }

    void searchesNamesAndInformation()
    {
        const auto [text, found] = row<QString, QString>();
        AddressViewer viewer = viewerOfFour(Information::EmailAddress);
        viewer.search(u"zabel"_s); // a search starts from all names, not from the last one's
        viewer.search(text);
        QCOMPARE(initialsOf(viewer), found);
        QCOMPARE(viewer.nameCount(), 4);
        viewer.load(Information::EmailAddress, everyone);
        QCOMPARE(initialsOf(viewer), found);
    }

    void bringsARemovedRowBack()
    {
        AddressViewer viewer = viewerOfFour(Information::EmailAddress);
        viewer.removeRow(1);
        viewer.search(u"a"_s);
        viewer.search({});
        QCOMPARE(initialsOf(viewer), u"ZaO"_s);
        QCOMPARE(viewer.nameCount(), 3);
        viewer.load(Information::EmailAddress, everyone);
        QCOMPARE(viewer.count(), 4);
    }

    void sortsAndReturnsToRecordOrder_data()
    {
        using Order = AddressViewer::Order;
        rows<Information, Order, QString>({
            {"names as a telephone book", Information::EmailAddress, Order{Column::Name, false}, u"aÅOZ"_s},
            {"from the end", Information::EmailAddress, Order{Column::Name, true}, u"ZOÅa"_s},
            {"empty cells last", Information::EmailAddress, Order{Column::Information, false}, u"OZaÅ"_s},
            {"also from the end", Information::EmailAddress, Order{Column::Information, true}, u"aZOÅ"_s},
            {"dates within the year", Information::BirthDate, Order{Column::Information, false}, u"aOÅZ"_s},
        });
    }

    void sortsAndReturnsToRecordOrder()
    {
        const auto [information, order, initials] = row<Information, AddressViewer::Order, QString>();
        AddressViewer viewer = viewerOfFour(information);
        viewer.sort(order);
        QCOMPARE(initialsOf(viewer), initials);
        viewer.load(information, everyone);
        QCOMPARE(initialsOf(viewer), initials);
        viewer.sort({});
        QCOMPARE(initialsOf(viewer), u"ZÅaO"_s);
    }

    void handsOutTheEntriesShown()
    {
        AddressViewer viewer = viewerOfFour(Information::State);
        viewer.sort(AddressViewer::Order{});
        QStringList emails;
        viewer.forEachShown([&emails](int row, const AddressEntry &entry) {
            emails << QString::number(row) + entry[Email];
            return row < 2;
        });
        QCOMPARE(emails, QStringList({u"0JO@X.ORG"_s, u"1"_s, u"2al@y.org"_s}));
    }

    void survivesBadFiles_data()
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

    void survivesBadFiles()
    {
        QFETCH(QByteArray, index);
        QFETCH(QByteArray, entries);
        m_files.put(u"Addbk2.Fil"_s, index);
        m_files.put(u"Addbk1.Fil"_s, entries);
        AddressViewer viewer(m_files.folder(), DateStyle::Other);
        for (int choice = 0; choice < informationCount; ++choice) {
            viewer.load(Information(choice), everyone);
            viewer.search(u"e"_s);
            viewer.sort(AddressViewer::Order{Column::Information, true});
            QVERIFY(rowsOf(viewer).size() <= 3700);
            viewer.load(Information(choice), {DisplayRange::BirthMonth, 4});
            viewer.forEachShown([](int, const AddressEntry &) { return true; });
        }
        QCOMPARE(m_files.bytes(u"Addbk2.Fil"_s), index);
        QCOMPARE(m_files.bytes(u"Addbk1.Fil"_s), entries);
    }

    void makesMissingFiles_data()
    {
        rows<QString, int>({
            {"nothing", {}, 0},
            {"a folder in place of the lines", u"Addbk2.Fil"_s, 0},
            {"a folder in place of the entries", u"Addbk1.Fil"_s, 4},
        });
    }

    void makesMissingFiles()
    {
        const auto [folder, count] = row<QString, int>();
        const TestFolder files;
        if (count > 0) {
            putFour(files);
            QVERIFY(QFile::remove(files.folder().filePath(folder)));
        }
        if (!folder.isEmpty()) {
            QVERIFY(QDir(files.folder().path()).mkdir(folder));
            expectWarning("Cannot create");
        }
        AddressViewer viewer(files.folder(), DateStyle::Usa);
        viewer.load(Information::State, everyone);
        viewer.forEachShown([](int, const AddressEntry &) { return true; });
        QCOMPARE(viewer.count(), count);
        QVERIFY(viewer.count() == 0 || files.folder().exists(u"Addbk1.Fil"_s));
        QVERIFY(files.folder().exists(u"Addbk2.Fil"_s));
    }

private:
    AddressViewer viewerOfFour(Information information) const
    {
        putFour(m_files);
        AddressViewer viewer(m_files.folder(), DateStyle::Usa);
        viewer.load(information, everyone);
        return viewer;
    }

    const TestFolder m_files;
    const QJsonObject m_expected = expectedOf(u"address_book"_s);
    const DataFolder m_household{householdPath()};
};

QTEST_GUILESS_MAIN(TestAddressViewer)
#include "tst_addressviewer.moc"
