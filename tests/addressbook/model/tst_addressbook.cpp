// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/model/addressbook.h"
#include "addressbook/model/indexline.h"
#include "tests/addressbook/model/addressrecords.h"
#include "tests/support/failingdisk.h"
#include "tests/support/household.h"
#include "tests/support/rows.h"

#include <QDir>
#include <QJsonArray>
#include <QLoggingCategory>
#include <QScopeGuard>

using namespace Qt::Literals::StringLiterals;

namespace {

AddressEntry anneLind()
{
    AddressEntry entry;
    entry[LastName] = u"Lind"_s;
    entry[FirstName] = u"Anne"_s;
    entry[City] = u"Ashford"_s;
    return entry;
}

const QByteArray lindBytes = entryBytes({"Lind", "Anne", "", "", "", "Ashford"});
const QByteArray first724(724, '\0');
const QByteArray first60(60, '\0');

QStringList linesOf(const NameList &names)
{
    QStringList lines;
    for (int i = 0; i < names.count(); ++i)
        lines << names.line(i);
    return lines;
}

/// The keys of an entry in the file of expectations, in the order of the fields.
constexpr std::array<QLatin1StringView, AddressFieldCount> entryKeys{
    "last"_L1, "first"_L1,      "birth"_L1,        "address1"_L1, "address2"_L1, "city"_L1,       "state"_L1,
    "zip"_L1,  "home_phone"_L1, "mobile_phone"_L1, "fax"_L1,      "email"_L1,    "anniversary"_L1};

AddressEntry entryOf(const QJsonObject &expected)
{
    AddressEntry entry;
    for (std::size_t i = 0; i < entryKeys.size(); ++i)
        entry.texts[i] = expected[entryKeys[i]].toString();
    entry.picture = expected["picture"_L1].toString();
    return entry;
}

} // namespace

class TestAddressBook : public QObject
{
    Q_OBJECT
private slots:
    void init() { m_files = std::make_unique<TestFolder>(); }

    void tellsOfItsNameAndPicture()
    {
        AddressEntry entry;
        QVERIFY(entry.fullName().isEmpty() && !entry.hasPicture());
        entry[LastName] = u" Lind "_s;
        QCOMPARE(entry.fullName(), u"Lind"_s);
        entry[FirstName] = u" Anne "_s;
        QCOMPARE(entry.fullName(), u"Anne Lind"_s);
        entry[LastName] = u" "_s;
        QCOMPARE(entry.fullName(), u"Anne"_s);
        for (const QString &none : {u"**"_s, u" ** "_s, u"   "_s}) {
            entry.picture = none;
            QVERIFY2(!entry.hasPicture(), qPrintable(none));
        }
        entry.picture = u"C:\\Pictures\\a.jpg"_s;
        QVERIFY(entry.hasPicture());
    }

    void savesAnEntryOnceAfterADiskThatRefusedMore()
    {
        const auto filters = qScopeGuard([] { QLoggingCategory::setFilterRules({}); });
        QLoggingCategory::setFilterRules(u"*.warning=false"_s);
        for (int refused = 1; refused <= 8; ++refused) {
            init();
            AddressBook names = book();
            AddressBook::SaveResult result;
            {
                const FailingDisk disk(DiskFailure::TheEnd, refused);
                result = names.saveNew(anneLind());
                if (!result.isSaved) // which the disk refuses, too
                    QCOMPARE(names.saveNew(anneLind(), result.record).record, result.record);
            }
            if (result.isSaved)
                continue;
            AddressEntry changed = anneLind();
            changed[FirstName] = u"Anna"_s;
            QVERIFY(names.saveNew(changed, result.record).isSaved);
            QCOMPARE(names.loadNames().count(), 1);
            QCOMPARE(names.read(2)[FirstName], u"Anna"_s);
        }
    }

    void loadsTheLinesThatCount()
    {
        QVERIFY(book().loadNames().isEmpty());
        QVERIFY(QFile::exists(m_files->path(u"Addbk2.Fil"_s)));
        m_files->put(u"Addbk2.Fil"_s, lineBytes("never a name") + neverWritten(60) +
                                          lineBytes(lineOf("M\xFCller, Karl", 3)) +
                                          lineBytes("#####" + QByteArray(40, ' ')) + neverWritten(60) +
                                          lineBytes("####anything") + lineBytes("a line of its own") +
                                          lineBytes(lineOf("Lind, Anne", 8)).first(52));
        const NameList names = book().loadNames();
        QCOMPARE(
            linesOf(names),
            (QStringList{QString(), u"Müller, Karl                                   3"_s,
                         u"a line of its own"_s, u"Lind, Anne                                     8"_s}));
        QCOMPARE(names.countCaption(), u" 4 - Entries "_s);
    }

    /// A book that has been kept for years, against what a reader of it must see.
    void readsTheHousehold()
    {
        putHousehold();
        const QJsonObject expected = expectedOf(u"address_book"_s);
        const NameList names = book().loadNames();
        const QJsonArray viewed = expected["viewer"_L1]["State"_L1].toArray();
        QVariantList records;
        for (int i = 0; i < names.count(); ++i) {
            records << names.recordAt(i);
            QCOMPARE(names.name(i), viewed[i][0].toString());
        }
        QCOMPARE(linesOf(names), expected["name_list"_L1].toVariant().toStringList());
        QCOMPARE(QJsonArray::fromVariantList(records), expected["record_numbers"_L1].toArray());
        QCOMPARE(names.countCaption(), expected["count_caption"_L1].toString());
        QCOMPARE(book().nextFreeRecord(), expected["next_new_record"_L1].toInt());
        const QJsonObject all = expected["entries"_L1].toObject();
        QVERIFY(all.size() > 30);
        for (auto it = all.begin(); it != all.end(); ++it)
            QVERIFY2(book().read(it.key().toInt()) == entryOf(it->toObject()), qPrintable(it.key()));
        for (const auto key : {"name_search_selects"_L1, "name_search_first_match"_L1}) {
            const QJsonObject searches = expected[key].toObject();
            QVERIFY(!searches.isEmpty());
            for (auto it = searches.begin(); it != searches.end(); ++it)
                QVERIFY2(names.line(names.find(it.key())) == it->toString(), qPrintable(it.key()));
        }
    }

    void keepsEveryOtherByte()
    {
        putHousehold();
        QByteArray newEntries = entries(), newLines = lines();
        const auto replace = [](QByteArray &whole, qsizetype at, const QByteArray &part) {
            whole.replace(at, part.size(), part);
        };
        AddressEntry karl = book().read(14);
        karl[HomePhone] = u"(440) 555-0999"_s;
        QVERIFY(book().saveChanged(14, karl).isSaved);
        replace(newEntries, 13 * 724 + 320, "(440) 555-0999");

        // The last record of the index stays as short as it is.
        AddressEntry elisabeth = book().read(49);
        elisabeth[FirstName] = u"Eliza"_s;
        QVERIFY(book().saveChanged(49, elisabeth).isSaved);
        replace(newEntries, 48 * 724 + 40, "Eliza    ");
        replace(newLines, 48 * 60 + 2, "Calloway, Eliza    ");

        // A new entry fills the gap.
        AddressEntry zoe;
        zoe[LastName] = u"Äst"_s;
        zoe[FirstName] = u"Zoë"_s;
        QCOMPARE(book().saveNew(zoe).line, u"Äst, Zoë                                       24"_s);
        replace(newEntries, 23 * 724, entryBytes({"\xC4st", "Zo\xEB"}));
        replace(newLines, 23 * 60, "1" + QByteArray(1, '\0') + lineOf("\xC4st, Zo\xEB", 24));
        QCOMPARE(book().nextFreeRecord(), 28);

        QVERIFY(book().remove(8, now).has_value());
        replace(newEntries, 7 * 724, padded("*****", 724));
        replace(newLines, 7 * 60, QByteArray("\x2D\0#####", 7) + QByteArray(40, ' '));
        QCOMPARE(book().loadNames().countCaption(), u" 40 - Entries "_s);
        QCOMPARE(book().nextFreeRecord(), 8);
        QVERIFY(entries() == newEntries);
        QCOMPARE(lines(), newLines);
    }

    void keepsToItsRecords()
    {
        put(first724 + lindBytes + neverWritten(724), first60 + lineBytes(lineOf("Lind, Anne", 2)));
        const auto before = std::pair(entries(), lines());
        QCOMPARE(book().read(2)[City], u"Ashford"_s);
        QCOMPARE(book().read(2).picture, noPicture);
        QVERIFY(book().read(3).isEmpty());
        for (const int record : {-1, 0, 1, 50002, std::numeric_limits<int>::max()}) {
            QVERIFY(book().read(record).isEmpty());
            QCOMPARE(book().saveChanged(record, anneLind()).record, 0);
            QVERIFY(!book().remove(record, now).has_value());
        }
        QVERIFY(book().read(4).isEmpty());
        QCOMPARE(std::pair(entries(), lines()), before);
    }

    void choosesTheFreeRecord_data()
    {
        const QByteArray deleted = entryBytes({"*****"}), a39(39, 'a');
        rows<QByteArray, int>({
            {"empty file", {}, 2},
            {"only the unused record", first724, 2},
            {"behind the last", first724 + lindBytes, 3},
            {"deleted", first724 + lindBytes + deleted + lindBytes, 3},
            {"four asterisks do", first724 + entryBytes({"****Lind"}), 2},
            {"three do not", first724 + entryBytes({"*** Lind"}), 3},
            {"never written", first724 + lindBytes + neverWritten(724) + lindBytes, 3},
            {"a name of blanks is taken", first724 + entryBytes({""}), 3},
            {"a name of 40 characters counts as free", first724 + entryBytes({a39 + 'a'}), 2},
            {"39 characters are taken", first724 + entryBytes({a39}), 3},
            {"39 characters behind a blank are taken", first724 + entryBytes({' ' + a39}), 3},
            {"cut behind the last name", first724 + lindBytes.first(40), 3},
            {"cut within the last name", first724 + lindBytes.first(39), 2},
            {"first record cut", "abc", 2},
        });
    }

    void choosesTheFreeRecord()
    {
        const auto [content, record] = row<QByteArray, int>();
        m_files->put(u"Addbk1.Fil"_s, content);
        QCOMPARE(book().nextFreeRecord(), record);
    }

    void aFullBookTakesTheRecordBehindIt()
    {
        m_files->put(u"Addbk1.Fil"_s, first724 + lindBytes.repeated(49999));
        QCOMPARE(book().nextFreeRecord(), 50001);
        const AddressBook::SaveResult result = book().saveNew(anneLind());
        QCOMPARE(result.record, 50001);
        QCOMPARE(entries().size(), 50001 * 724);

        const QByteArray full = entries();
        const AddressBook::SaveResult refused = book().saveNew(anneLind());
        QVERIFY(refused.isBookFull && !refused.isSaved);
        QVERIFY(entries() == full);
        QVERIFY(book().remove(50001, now).has_value());
        QCOMPARE(book().nextFreeRecord(), 50001);
    }

    void removesLinesThatLeadNowhere_data()
    {
        rows<QByteArray, QByteArray, bool>({
            {"to a record that was never written", lineOf("Lind, Anne", 9), neverWritten(724), true},
            {"to a deleted entry", lineOf("Lind, Anne", 2), entryBytes({"*****"}, ""), true},
            {"without a number", "Lind, Anne", neverWritten(724), true},
            {"an empty one", "", neverWritten(724), true},
            {"nowhere, in the place of an entry", lineOf("Lind, Anne", 9), lindBytes, false},
            {"to its entry", lineOf("Lind, Anne", 2), lindBytes, false},
        });
    }

    void removesLinesThatLeadNowhere()
    {
        const auto [line, entry, isStray] = row<QByteArray, QByteArray, bool>();
        put(first724 + entry, first60 + lineBytes(line) + lineBytes(lineOf("Quill, David", 3)));
        QCOMPARE(book().loadNames().count(), 2);
        const QString text = QString::fromLatin1(line);
        QCOMPARE(book().open(text).isStray, isStray);
        QCOMPARE(book().removeStray(text).has_value(), isStray);
        QCOMPARE(book().loadNames().count(), isStray ? 1 : 2);
        QCOMPARE(entries(), first724 + entry);
        QByteArray left = lineBytes(line);
        if (isStray)
            left.replace(0, 47,
                         lineBytes(padded("#####", 45)).first(47)); // bytes behind the text mean nothing
        QCOMPARE(lines().mid(60), left + lineBytes(lineOf("Quill, David", 3)));
    }

    void opensWhatALineLeadsTo_data()
    {
        rows<QString, int, QString, bool>({
            {"its entry", IndexLine::make(u"Lind", u"Anne", 2), 2, u"Lind"_s, true},
            {"no number", u"Lind, Anne"_s, 0, {}, false},
            {"another entry", u"Featherstone-Brookfield, Louis Vera Xenia 2nd     21"_s, 2, u"Lind"_s, false},
            {"a deleted entry", IndexLine::make(u"Quill", u"David", 3), 3, {}, false},
            {"no entry", IndexLine::make(u"Quill", u"David", 9), 9, {}, false},
            {"no record", IndexLine::make(u"", u"", 99999), 99999, {}, false},
            {"the unused record", IndexLine::make(u"", u"", 1), 1, {}, false},
        });
    }

    void opensWhatALineLeadsTo()
    {
        const auto [line, record, lastName, mayChange] = row<QString, int, QString, bool>();
        put(first724 + lindBytes + entryBytes({"*****"}), {});
        const AddressBook::Found found = book().open(line);
        QCOMPARE(found.record, record);
        QCOMPARE(found.entry[LastName], lastName);
        QCOMPARE(found.mayChange, mayChange);
    }

    void keepsTheLineOfANameTooLong()
    {
        put(first724 + lindBytes, first60 + lineBytes(lineOf("Lind, Anne", 2)));
        const QString a20(20, u'a'), b30(30, u'b');
        AddressEntry entry = anneLind();
        entry[LastName] = a20;
        entry[FirstName] = b30 + u'b'; // 59 characters with the number
        const AddressBook::SaveResult tooLong = book().saveChanged(2, entry);
        QVERIFY(tooLong.isSaved && tooLong.isLineTooLong);
        QCOMPARE(entries().mid(724, 20), QByteArray(20, 'a'));
        // The list still bears the old name; it stands in the entry's own record, so it is no other's.
        QVERIFY(book().open(u"Lind, Anne                                     2").mayChange);
        QVERIFY(!book().open(u"Lind, Anna                                     2").mayChange);

        entry[FirstName] = b30;
        const AddressBook::SaveResult fits = book().saveChanged(2, entry);
        QVERIFY(fits.isSaved && !fits.isLineTooLong);
        QCOMPARE(fits.line, a20 + u", " + b30 + u"     2");
        QVERIFY(lines().contains("aaa, bbb"));
    }

    void findsItsFilesUnderAnySpelling()
    {
        m_files->put(u"ADDBK1.FIL"_s, first724);
        m_files->put(u"addbk2.fil"_s, first60);
        QVERIFY(book().saveNew(anneLind()).isSaved);
        QCOMPARE(m_files->bytes(u"ADDBK1.FIL"_s), first724 + lindBytes);
        QCOMPARE(book().loadNames().count(), 1);
        QCOMPARE(QDir(m_files->path({})).entryList(QDir::Files).size(), 2);
    }

    void visitsLiveEntries()
    {
        const QByteArray longName(45, 'b');
        put(first724 + lindBytes + entryBytes({"*****"}) + neverWritten(724) + entryBytes({"Quill"}) +
                entryBytes({longName.first(40), "x"}) + entryBytes({"unlisted"}) +
                entryBytes({"behind the index"}),
            first60 + lineBytes(lineOf("Lind, Anne", 2)) + lineBytes("deleted entry, line left over") +
                lineBytes("line without entry") + lineBytes("#####") + lineBytes(longName + ", x     6") +
                neverWritten(60));
        for (const bool goesOn : {true, false}) {
            QList<int> visited;
            book().forEachLive([&visited, goesOn](int record, const AddressEntry &) {
                visited << record;
                return goesOn;
            });
            QCOMPARE(visited, goesOn ? QList<int>({2, 6}) : QList<int>{2});
        }
    }

    void survivesFoldersInPlaceOfFiles()
    {
        QVERIFY(QDir(m_files->path({})).mkdir(u"Addbk1.Fil"_s));
        QVERIFY(QDir(m_files->path({})).mkdir(u"Addbk2.Fil"_s));
        QLoggingCategory::setFilterRules(u"*.warning=false"_s);
        const auto speakAgain = qScopeGuard([] { QLoggingCategory::setFilterRules({}); });
        QCOMPARE(book().loadNames().count(), 0);
        QVERIFY(book().read(2).isEmpty());
        QVERIFY(!book().saveNew(anneLind()).isSaved);
        QVERIFY(!book().saveChanged(2, anneLind()).isSaved);
        QVERIFY(!book().remove(2, now).has_value());
    }

private:
    const QDateTime now{QDate(2026, 11, 21), QTime(10, 24)};

    AddressBook book() const { return AddressBook(m_files->folder()); }
    void put(const QByteArray &entries, const QByteArray &lines) const
    {
        m_files->put(u"Addbk1.Fil"_s, entries);
        m_files->put(u"Addbk2.Fil"_s, lines);
    }
    void putHousehold() const
    {
        put(contentOf(householdPath(u"Addbk1.Fil"_s)), contentOf(householdPath(u"Addbk2.Fil"_s)));
    }
    QByteArray entries() const { return m_files->bytes(u"Addbk1.Fil"_s); }
    QByteArray lines() const { return m_files->bytes(u"Addbk2.Fil"_s); }

    std::unique_ptr<TestFolder> m_files;
};

QTEST_GUILESS_MAIN(TestAddressBook)
#include "tst_addressbook.moc"
