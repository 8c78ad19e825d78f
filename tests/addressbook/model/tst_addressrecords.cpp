// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/model/addressrecords.h"
#include "tests/addressbook/model/addressrecords.h"
#include "tests/support/failingdisk.h"
#include "tests/support/rows.h"

#include <QDir>
#include <QLoggingCategory>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString entriesName = u"Addbk1.Fil"_s;
const QString indexName = u"Addbk2.Fil"_s;

/// Both files of a book.
struct Book {
    QByteArray entries = neverWritten(724);
    QByteArray lines = neverWritten(60);

    /// "Lind, Anne, Ashford" stands in the next record; "*" has been deleted there.
    Book &operator<<(const QByteArray &text)
    {
        const auto record = int(entries.size() / 724) + 1;
        if (text == "*") {
            entries += entryBytes({"*****"}, "");
            lines += lineBytes("#####" + QByteArray(40, ' '));
            return *this;
        }
        const QByteArrayList parts = text.split(',');
        entries += entryBytes({parts[0], parts[1], "", "", "", parts[2]});
        lines += lineBytes(lineOf(parts[0] + ", " + parts[1], record));
        return *this;
    }
};

Book bookOf(const QByteArrayList &texts)
{
    Book book;
    for (const QByteArray &text : texts)
        book << text;
    return book;
}

void put(const TestFolder &folder, const Book &book)
{
    folder.put(entriesName, book.entries);
    folder.put(indexName, book.lines);
}

QStringList keysOf(const FunctionRecords &records)
{
    QStringList keys;
    for (const FunctionRecord &record : records.all())
        keys.append(record.key);
    return keys;
}

} // namespace

/// Entries of a copy beside those of the household: what is told of them, and the bytes when they come back.
class TestAddressRecords : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_here = std::make_unique<TestFolder>();
        m_there = std::make_unique<TestFolder>();
    }

    void tellsOfEntries()
    {
        Book book = bookOf({"Lind,Anne,Ashford", "*", "Holm,Nils,Lund", "Lind,Anne,Malmo"});
        put(*m_there, book);
        AddressRecords there(m_there->folder());
        QCOMPARE(keysOf(there), (QStringList{u"Anne Lind"_s, u"Nils Holm"_s, u"Anne Lind\n5"_s}));
        QCOMPARE(there.lines(u"Anne Lind\n5"_s),
                 (QStringList{u"Last Name: Lind"_s, u"First Name: Anne"_s, u"City: Malmo"_s}));
        QCOMPARE(there.lines(u"Tom Lind"_s), QStringList());
        QCOMPARE(there.counted(1), u"1 address"_s);
        QCOMPARE(there.counted(1204), u"1,204 addresses"_s);
        const auto content = there.all().front().content;
        book.entries[724 + 5 * 40] = 'B';
        put(*m_there, book);
        QVERIFY(there.all().front().content != content);
    }

    void readsWhatADamagedCopyHas_data()
    {
        const Book book = bookOf({"Lind,Anne,Ashford", "*", "Holm,Nils,Lund"});
        const QStringList both{u"Anne Lind"_s, u"Nils Holm"_s};
        rows<QByteArray, QByteArray, QStringList>({
            {"no index", book.entries, {}, both},
            {"an index cut in its line", book.entries, book.lines.left(90), both},
            {"an entry cut behind its names", book.entries.left(3 * 724 + 90), book.lines, both},
            {"an entry cut to nothing", book.entries.left(3 * 724), book.lines, both.first(1)},
            {"no entries", {}, book.lines, {}},
            {"noise", noiseOf(3 * 724), noiseOf(100), {}},
        });
    }
    void readsWhatADamagedCopyHas()
    {
        const auto [entries, lines, keys] = row<QByteArray, QByteArray, QStringList>();
        put(*m_there, {entries, lines});
        AddressRecords there(m_there->folder());
        if (!keys.isEmpty() || entries.isEmpty())
            QCOMPARE(keysOf(there), keys);
        for (const QString &key : keysOf(there))
            there.lines(key);
        QVERIFY(QDir(m_here->folder().path()).isEmpty()); // nothing is made by reading
    }

    void bringsBack_data()
    {
        const QByteArrayList there{"Lind,Anne,Ashford", "Holm,Nils,Lund", "Lind,Anne,Malmo"};
        using Texts = QByteArrayList;
        rows<Texts, QStringList, Texts>({
            {"into its own record, which is free",
             {"*", "Holm,Nils,Lund"},
             {u"Anne Lind"_s},
             {"Lind,Anne,Ashford", "Holm,Nils,Lund"}},
            {"into a free one, since another has its own",
             {"Ortega,Jose,Lund", "Holm,Nils,Lund", "*"},
             {u"Anne Lind"_s},
             {"Ortega,Jose,Lund", "Holm,Nils,Lund", "Lind,Anne,Ashford"}},
            {"several behind the end",
             {"Ortega,Jose,Lund"},
             {u"Nils Holm"_s, u"Anne Lind"_s},
             {"Ortega,Jose,Lund", "Lind,Anne,Ashford", "Holm,Nils,Lund"}},
            {"in place of what the entry is now",
             {"Lind,Anne,Lund", "Holm,Nils,Umea"},
             {u"Nils Holm"_s},
             {"Lind,Anne,Lund", "Holm,Nils,Lund"}},
            {"the second of a name",
             {"Lind,Anne,Ashford"},
             {u"Anne Lind\n4"_s},
             {"Lind,Anne,Ashford", "Lind,Anne,Malmo"}},
        });
    }
    void bringsBack()
    {
        const auto [here, keys, expected] = row<QByteArrayList, QStringList, QByteArrayList>();
        put(*m_here, bookOf(here));
        put(*m_there, bookOf({"Lind,Anne,Ashford", "Holm,Nils,Lund", "Lind,Anne,Malmo"}));
        AddressRecords records(m_here->folder());
        const RecordsBack back = records.bringBack(AddressRecords(m_there->folder()), keys);
        QCOMPARE(QSet<QString>(back.keys.begin(), back.keys.end()), QSet<QString>(keys.begin(), keys.end()));
        QVERIFY(back.refusal.isEmpty() && back.step);
        const QByteArray entries = m_here->bytes(entriesName);
        QCOMPARE(entries, bookOf(expected).entries);
        for (int record = 2; record <= expected.size() + 1; ++record) {
            const QByteArrayList parts = expected[record - 2].split(',');
            const QByteArray line = lineOf(parts[0] + ", " + parts[1], record);
            QCOMPARE(m_here->bytes(indexName).mid((record - 1) * 60 + 2, line.size()), line);
        }
        QCOMPARE(back.step->undo(), ChangeResult::Done);
        QCOMPARE(m_here->bytes(entriesName).left(bookOf(here).entries.size()), bookOf(here).entries);
        QCOMPARE(back.step->redo(), ChangeResult::Done);
        QCOMPARE(m_here->bytes(entriesName), entries);
        QVERIFY(keysOf(records).contains(keys.first().section(u'\n', 0, 0)));
    }

    void isAllOrNothing()
    {
        put(*m_there, bookOf(QByteArrayList{"Lind,Anne,Ashford", "Holm,Nils,Lund"}));
        QLoggingCategory::setFilterRules(u"*.warning=false"_s);
        const Book book = bookOf(QByteArrayList{"Ortega,Jose,Lund", "Lind,Anne,Lund"});
        failAtEachStep(
            m_here->folder(), [&] { put(*m_here, book); },
            [&] {
                AddressRecords records(m_here->folder());
                return records.bringBack(AddressRecords(m_there->folder()), {u"Anne Lind"_s, u"Nils Holm"_s})
                    .refusal.isEmpty();
            },
            [&] { return QByteArray(m_here->bytes(entriesName) + m_here->bytes(indexName)); });
        const DataFolder readOnly(m_here->folder().path(), u"It is for reading only"_s);
        AddressRecords records(readOnly);
        QCOMPARE(records.bringBack(AddressRecords(m_there->folder()), {u"Anne Lind"_s}).refusal,
                 readOnly.whyReadOnly());
    }

private:
    std::unique_ptr<TestFolder> m_here;
    std::unique_ptr<TestFolder> m_there;
};

QTEST_GUILESS_MAIN(TestAddressRecords)
#include "tst_addressrecords.moc"
