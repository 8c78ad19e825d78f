// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/model/addressviewer.h"
#include "tests/addressbook/model/addressrecords.h"
#include "tests/support/household.h"
#include "tests/support/rows.h"

#include <QDir>
#include <QJsonArray>

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
        rows<QString, int, int>({
            {"a day", u"Apr-21-1997;21-apr-1997;21 April;21April97;21/04/1997;04/21/1997;1997-04-21"_s, 421,
             421},
            {"the month behind the year", u"1990 Dec 3"_s, 1203, 1203},
            {"a month of four letters", u"Sept 3, 1990"_s, 903, 903},
            {"in the order of the style", u"03/04/1990;03/04;3.4.90"_s, 304, 403},
            {"only one order fits", u"31-12-99"_s, 1231, 1231},
            {"a month alone", u"about April 1997;04/1997"_s, 400, 400},
            {"a month where days come first", u"0/5/1990"_s, 0, 500},
            {"none", u"13/13/1990;1997;19970421;99999999999999999999/4;Mayor;sometime;"_s, 0, 0},
        });
    }

    void readsTheDayOfTheYear()
    {
        const auto [texts, usa, other] = row<QString, int, int>();
        for (const QString &text : texts.split(u';')) {
            for (const auto &[style, number] :
                 {std::pair(DateStyle::Usa, usa), std::pair(DateStyle::Other, other)}) {
                const DayOfYear day = DayOfYear::of(text, style);
                QVERIFY2(day.month * 100 + day.day == number, qPrintable(text));
            }
        }
    }

    void readsATypedMonth()
    {
        const std::pair<int, QString> typed[]{{4, u"Apr; aPRIL ;4;04"_s},
                                              {9, u"Sep."_s},
                                              {12, u"12"_s},
                                              {0, u"13;0;Ju;Aprils;0000004;\u0664;  "_s}};
        for (const auto &[month, texts] : typed)
            for (const QString &text : texts.split(u';'))
                QVERIFY2(DayOfYear::monthTyped(text) == month, qPrintable(text));
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

    /// Cut anywhere, full of noise, or counting beyond their end.
    void survivesBadFiles()
    {
        const QByteArray lines = neverWritten(60) + lineBytes(lineOf("Lind, Anne", 2));
        const QByteArray entry = neverWritten(724) + person("Lind", "Anne", "a@example.org");
        const QByteArray noise = noiseOf(300 * 724);
        QList<std::pair<QByteArray, QByteArray>> all{
            {{}, {}}, {noise, noise}, {lines, noise}, {QByteArray(60 * 20, '\xFF'), entry}};
        for (int length = 1; length < 120; length += 7)
            all.append({lines.left(length), entry});
        for (int length = 724; length < 1448; length += 61)
            all.append({lines, entry.left(length)});
        for (const auto &[index, entries] : all) {
            m_files.put(u"Addbk2.Fil"_s, index);
            m_files.put(u"Addbk1.Fil"_s, entries);
            const AddressBook book(m_files.folder());
            const NameList names = book.loadNames();
            for (int i = 0; i < names.count(); ++i)
                book.open(names.line(i));
            book.forEachLive([](int, const AddressEntry &) { return true; });
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
