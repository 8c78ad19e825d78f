// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/model/addresssearch.h"

#include "addressrecords.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;

class TestAddressSearch : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_temporary = std::make_unique<QTemporaryDir>();
        m_folder = std::make_unique<DataFolder>(m_temporary->path());
        const QByteArray josephine =
            entryBytes({"Holm", "Josephine", "May-03-1948", "12 Mill Lane", "", "Bristol", "England",
                        "BS1 4ND", "555-0142", "(0117) 55 23", "", "jo@holm.example", "Jun-12-1970"});
        const QByteArray jonas = entryBytes({"Holmberg", "Jonas", "", "", "", "", "", "", "555-0199"});
        const QByteArray deleted = entryBytes({"*****Holm"});
        write(neverWritten(724) + josephine + deleted + jonas,
              neverWritten(60) + lineBytes(lineOf("Holm, Josephine", 2)) + lineBytes("#####") +
                  lineBytes(lineOf("Holmberg, Jonas", 4)));
    }

    void findsPeopleByAnything_data()
    {
        const QString address = u"12 Mill Lane, Bristol, England, BS1 4ND"_s;
        const auto josephine = [](const QString &context) {
            return QList<SearchHit>{{u"Josephine Holm"_s, context, {.record = 2}}};
        };
        const SearchHit jonas{u"Jonas Holmberg"_s, u"555-0199"_s, {.record = 4}};
        rows<QString, QList<SearchHit>>({
            {"whole names before others", u"holm"_s, josephine(address) + QList{jonas}},
            {"words in any order", u"holm jos"_s, josephine(address)},
            {"a town", u"bristol"_s, josephine(address)},
            {"a number as it stands", u"555-0142"_s, josephine(u"Home Phone: 555-0142"_s)},
            {"a number by its digits", u"5550142"_s, josephine(u"Home Phone: 555-0142"_s)},
            {"a number with other separators", u"0117-5523"_s, josephine(u"Mobile Phone: (0117) 55 23"_s)},
            {"an address of mail", u"jo@"_s, josephine(u"jo@holm.example"_s)},
            {"a date", u"may-03"_s, josephine(u"Date of Birth: May-03-1948"_s)},
            {"nobody", u"leeds"_s, {}},
            {"nothing typed", u"  "_s, {}},
        });
    }
    void findsPeopleByAnything()
    {
        const auto [text, expected] = row<QString, QList<SearchHit>>();
        AddressSearch search(*m_folder);
        QCOMPARE(search.matches(text, 10), QList<SearchHit>());
        readAll(search);
        QCOMPARE(search.matches(text, 10), expected);
        QCOMPARE(search.matches(text, 1), expected.first(std::min<qsizetype>(1, expected.size())));
    }

    void readsAChangedBookAgain()
    {
        AddressSearch search(*m_folder);
        readAll(search);
        write(neverWritten(724) + entryBytes({"Lind", "Anne"}),
              neverWritten(60) + lineBytes(lineOf("Lind, Anne", 2)));
        readAll(search);
        QCOMPARE(search.matches(u"lind", 10).size(), 1);
        QCOMPARE(search.matches(u"holm", 10).size(), 0);
    }

    void makesNoFiles()
    {
        const QTemporaryDir empty;
        const DataFolder folder(empty.path());
        AddressSearch search(folder);
        readAll(search);
        QCOMPARE(search.matches(u"holm", 10), QList<SearchHit>());
        QVERIFY(QDir(empty.path()).isEmpty());
    }

private:
    static void readAll(AddressSearch &search)
    {
        while (search.prepare()) {}
    }
    void write(const QByteArray &entries, const QByteArray &lines) const
    {
        QVERIFY(makeFile(m_temporary->filePath(u"Addbk1.Fil"_s), entries));
        QVERIFY(makeFile(m_temporary->filePath(u"Addbk2.Fil"_s), lines));
    }

    std::unique_ptr<QTemporaryDir> m_temporary;
    std::unique_ptr<DataFolder> m_folder;
};

QTEST_GUILESS_MAIN(TestAddressSearch)
#include "tst_addresssearch.moc"
