// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/model/entryurls.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;

class TestEntryUrls : public QObject
{
    Q_OBJECT
private slots:
    void leadsWhereTheTextsSay_data()
    {
        rows<AddressField, QString, QString>({
            {"e-mail", Email, u" anne@lind.example "_s, u"mailto:anne@lind.example"_s},
            {"the first of two", Email, u"anne@lind.example, bo@lind.example"_s,
             u"mailto:anne@lind.example"_s},
            {"in words", Email, u"Anne <a.b+c@lind.example>."_s, u"mailto:a.b+c@lind.example"_s},
            {"question mark", Email, u"a?cc=x@lind.example"_s, u"mailto:a%3Fcc=x@lind.example"_s},
            {"no e-mail", Email, u"at home"_s, {}},
            {"telephone", HomePhone, u"(440) 555-0100"_s, u"tel:4405550100"_s},
            {"abroad", HomePhone, u"+47 (0)22 55 01 00"_s, u"tel:+4722550100"_s},
            {"with a word", HomePhone, u"440.555.0100 work"_s, u"tel:4405550100"_s},
            {"letters for digits", HomePhone, u"1-800-FLOWERS"_s, {}},
            {"two numbers", HomePhone, u"555-0100 or 555-0101"_s, {}},
            {"no number", HomePhone, u"ask Anne"_s, {}},
            {"web", Address2, u"see www.lind.example/anne."_s, u"http://www.lind.example/anne"_s},
            {"web with a scheme", Fax, u"HTTPS://lind.example"_s, u"https://lind.example"_s},
            {"no other scheme", Fax, u"file://www"_s, {}},
            {"town", City, u"Lund & Co"_s, u"https://www.openstreetmap.org/search?query=Lund%20%26%20Co"_s},
            {"a country is no place", State, u"OH"_s, {}},
        });
    }

    void leadsWhereTheTextsSay()
    {
        const auto [field, text, expected] = row<AddressField, QString, QString>();
        AddressEntry entry;
        entry[field] = text;
        QString found;
        for (const QUrl &url : {EntryUrls::mail(entry[Email]), EntryUrls::call(entry[HomePhone]),
                                EntryUrls::web(entry), EntryUrls::map(entry)})
            found += url.toString(QUrl::FullyEncoded);
        QCOMPARE(found, expected);
    }
};

QTEST_GUILESS_MAIN(TestEntryUrls)
#include "tst_entryurls.moc"
