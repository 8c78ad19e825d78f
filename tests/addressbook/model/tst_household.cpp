// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/model/addressbook.h"
#include "tests/addressbook/model/addressrecords.h"
#include "tests/support/household.h"

#include <QJsonArray>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

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

/// The address book of a household that has been kept for years, against what a reader of it must see.
class TestHousehold : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        m_folder = std::make_unique<DataFolder>(m_dir->path());
        for (const QString &name : {u"Addbk1.Fil"_s, u"Addbk2.Fil"_s, u"GColor4.Fil"_s})
            QVERIFY(QFile::copy(householdPath(name), m_dir->filePath(name)));
    }

    void listsTheNames()
    {
        const NameList names = book().loadNames();
        const QJsonArray rows = m_expected["viewer"_L1]["State"_L1].toArray();
        QStringList lines;
        QVariantList records;
        for (int i = 0; i < names.count(); ++i) {
            lines << names.line(i);
            records << names.recordAt(i);
            QCOMPARE(names.name(i), rows[i][0].toString());
        }
        QCOMPARE(lines, m_expected["name_list"_L1].toVariant().toStringList());
        QCOMPARE(QJsonArray::fromVariantList(records), m_expected["record_numbers"_L1].toArray());
        QCOMPARE(names.countCaption(), m_expected["count_caption"_L1].toString());
        QCOMPARE(book().nextFreeRecord(), m_expected["next_new_record"_L1].toInt());
    }

    void readsEveryEntry()
    {
        const QJsonObject entries = m_expected["entries"_L1].toObject();
        QVERIFY(entries.size() > 30);
        for (auto it = entries.begin(); it != entries.end(); ++it)
            QVERIFY2(book().read(it.key().toInt()) == entryOf(it->toObject()), qPrintable(it.key()));
    }

    void searchesAsBefore()
    {
        const NameList names = book().loadNames();
        for (const auto key : {"name_search_selects"_L1, "name_search_first_match"_L1}) {
            const QJsonObject searches = m_expected[key].toObject();
            QVERIFY(!searches.isEmpty());
            for (auto it = searches.begin(); it != searches.end(); ++it)
                QVERIFY2(names.line(names.find(it.key())) == it->toString(), qPrintable(it.key()));
        }
    }

    void keepsEveryOtherByte()
    {
        QByteArray entries = bytes(u"Addbk1.Fil"_s), lines = bytes(u"Addbk2.Fil"_s);
        const auto replace = [](QByteArray &whole, qsizetype at, const QByteArray &part) {
            whole.replace(at, part.size(), part);
        };
        AddressEntry karl = book().read(14);
        karl[HomePhone] = u"(440) 555-0999"_s;
        QVERIFY(book().saveChanged(14, karl).isSaved);
        replace(entries, 13 * 724 + 320, "(440) 555-0999");

        // The last record of the index stays as short as it is.
        AddressEntry elisabeth = book().read(49);
        elisabeth[FirstName] = u"Eliza"_s;
        QVERIFY(book().saveChanged(49, elisabeth).isSaved);
        replace(entries, 48 * 724 + 40, "Eliza    ");
        replace(lines, 48 * 60 + 2, "Calloway, Eliza    ");

        // A new entry fills the gap.
        AddressEntry zoe;
        zoe[LastName] = u"Äst"_s;
        zoe[FirstName] = u"Zoë"_s;
        QCOMPARE(book().saveNew(zoe).line, u"Äst, Zoë                                       24"_s);
        replace(entries, 23 * 724, entryBytes({"\xC4st", "Zo\xEB"}));
        replace(lines, 23 * 60, "1" + QByteArray(1, '\0') + lineOf("\xC4st, Zo\xEB", 24));
        QCOMPARE(book().nextFreeRecord(), 28);

        QVERIFY(book().remove(8));
        replace(entries, 7 * 724, padded("*****", 724));
        replace(lines, 7 * 60, QByteArray("\x2D\0#####", 7) + QByteArray(40, ' '));
        QCOMPARE(book().loadNames().countCaption(), u" 40 - Entries "_s);
        QCOMPARE(book().nextFreeRecord(), 8);
        QVERIFY(bytes(u"Addbk1.Fil"_s) == entries);
        QCOMPARE(bytes(u"Addbk2.Fil"_s), lines);
    }

private:
    AddressBook book() const { return AddressBook(*m_folder); }
    QByteArray bytes(const QString &name) const { return contentOf(m_dir->filePath(name)); }

    const QJsonObject m_expected = expectedOf(u"address_book"_s);
    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<DataFolder> m_folder;
};

QTEST_GUILESS_MAIN(TestHousehold)
#include "tst_household.moc"
