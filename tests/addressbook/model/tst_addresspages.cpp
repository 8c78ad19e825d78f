// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/model/addresspages.h"
#include "tests/support/pageitems.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const PageContext context{{}, DateStyle::Usa, QDate(2026, 11, 21), {}};

AddressPages::Source times(int count, const AddressEntry &entry)
{
    return [count, entry](const auto &visit) {
        for (int i = 0; i < count && visit(entry); ++i) {}
    };
}

} // namespace

class TestAddressPages : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_anne.texts = {u"Lind"_s,       u"Anne"_s,     u"Nov-24-1978"_s, u"14 Orchard Lane"_s,
                        u"Upper Flat"_s, u"Ashford"_s,  u"Northland"_s,   u"75944"_s,
                        u"555-0142"_s,   u"555-0187"_s, u"555-0190"_s,    u"a@example.org"_s,
                        u"Jun-12-2004"_s};
        m_anne.picture = u"C:\\Pictures\\anne.jpg"_s;
    }

    void printsAnEntry()
    {
        const Page page = AddressPages::entryPage(m_anne, u"/home/anne.jpg"_s, context);
        const QStringList lines = page.toText().split(u'\n', Qt::SkipEmptyParts);
        QCOMPARE(lines,
                 (QStringList{u"Information For Anne Lind"_s, u"Date of Birth: Nov-24-1978"_s,
                              u"Address:  14 Orchard Lane, Upper Flat, Ashford, Northland, 75944"_s,
                              u"Home Phone: 555-0142"_s, u"Mobile Phone: 555-0187"_s, u"Fax:     555-0190"_s,
                              u"Email:  a@example.org"_s, u"Anniversary Date:  Jun-12-2004"_s, u"Quillery"_s,
                              u"Printed on 11/21/2026"_s}));
        QCOMPARE(itemsOf<PageItem::Picture>(page).at(0).path, u"/home/anne.jpg"_s);
        QVERIFY(itemsOf<PageItem::Picture>(AddressPages::entryPage(m_anne, {}, context)).empty());
    }

    void sharesASheetOutEvenly_data()
    {
        rows<int, int, qsizetype>({
            {"two, even", 2, 4, 1},
            {"two, odd", 2, 5, 2},
            {"four, one sheet", 4, 4, 0},
            {"four, one more", 4, 5, 1},
            {"eight", 8, 40, 4},
            {"no entry", 4, 0, 0},
        });
    }

    void sharesASheetOutEvenly()
    {
        const auto [perSheet, entries, breaks] = row<int, int, qsizetype>();
        QStringList sought;
        const auto find = [&sought](const QString &stored) {
            sought << stored;
            return u"/found.jpg"_s;
        };
        const Page page =
            AddressPages::cards(AddressPages::PerSheet(perSheet), times(entries, m_anne), find, context);
        QCOMPARE(itemsOf<PageItem::Break>(page).size(), breaks);
        QCOMPARE(int(itemsOf<PageItem::PlacedPicture>(page).size()), entries);
        QCOMPARE(sought, QStringList(entries, m_anne.picture));
        QCOMPARE(page.isEmpty(), entries == 0);
        QVERIFY(page.isClosed());
    }

    void keepsCardsApart_data()
    {
        const QSizeF letter(8.5, 11), a4(8.27, 11.69);
        rows<PageSetup>({{"letter", {letter, PageSetup::Portrait}},
                         {"letter, landscape", {letter, PageSetup::Landscape}},
                         {"A4", {a4, PageSetup::Portrait}},
                         {"A4, landscape", {a4, PageSetup::Landscape}}});
    }

    void keepsCardsApart()
    {
        const auto [setup] = row<PageSetup>();
        const QRectF usable = QRectF({}, setup.sheet()).adjusted(0.49, 1.0, -0.49, -0.9);
        for (const int perSheet : {2, 4, 8}) {
            const Page page = AddressPages::cards(AddressPages::PerSheet(perSheet), times(perSheet, m_anne),
                                                  [](const QString &stored) { return stored; },
                                                  {setup, context.style, context.today, {}});
            QList<QRectF> places;
            for (const auto &text : itemsOf<PageItem::PlacedText>(page))
                places << text.place;
            for (const auto &picture : itemsOf<PageItem::PlacedPicture>(page))
                places << picture.place;
            // Every text of every card has found room: the name and nine more.
            QCOMPARE(places.size(), perSheet * 11);
            for (qsizetype i = 0; i < places.size(); ++i) {
                QVERIFY(usable.contains(places[i]));
                QVERIFY(places[i].width() > 0.95 || places[i].height() > 1.2);
                for (qsizetype j = i + 1; j < places.size(); ++j)
                    QVERIFY(!places[i].adjusted(0.001, 0.001, -0.001, -0.001).intersects(places[j]));
            }
        }
    }

    void copiesLabelsWithValues()
    {
        m_anne[Address2].clear();
        m_anne[Fax].clear();
        QCOMPARE(AddressPages::clipboardText(m_anne),
                 u"Last Name: Lind\nFirst Name: Anne\nDate of Birth: Nov-24-1978\nAddress: 14 Orchard Lane\n"
                 u"City: Ashford\nState/Country: Northland\nPostal Zip/Code: 75944\nHome Phone: 555-0142\n"
                 u"Mobile Phone: 555-0187\nEmail Address: a@example.org\nAnniversary Date: Jun-12-2004"_s);
        m_anne[Address2] = u"Upper Flat"_s;
        QVERIFY(AddressPages::clipboardText(m_anne).contains(u"14 Orchard Lane\nUpper Flat\nCity:"_s));
        QCOMPARE(AddressPages::clipboardText({}), QString());
    }

private:
    AddressEntry m_anne;
};

QTEST_GUILESS_MAIN(TestAddressPages)
#include "tst_addresspages.moc"
