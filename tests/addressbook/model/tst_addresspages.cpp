// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/model/addresspages.h"
#include "tests/support/pageitems.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const PageContext context{{}, DateStyle::Usa, QDate(2026, 11, 21), {}};

AddressPages::Entries times(int count, const AddressEntry &entry)
{
    return {count, [count, entry](int first, int wanted) {
                return std::vector<AddressEntry>(std::size_t(std::min(wanted, count - first)), entry);
            }};
}

QString asStored(const QString &stored)
{
    return stored;
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

    void leavesOutWhatIsEmpty()
    {
        AddressEntry karl;
        karl.texts = {u"Holm"_s, u"Karl"_s, {}, {}, {}, u"Lund"_s, {}, {}, {}, u"555-0100"_s};
        QCOMPARE(
            AddressPages::entryPage(karl, {}, context).toText().split(u'\n', Qt::SkipEmptyParts).mid(1, 2),
            (QStringList{u"Address:  Lund"_s, u"Mobile Phone: 555-0100"_s}));
    }

    void sharesASheetOutEvenly_data()
    {
        rows<int, int, int>({
            {"two, even", 2, 4, 2},
            {"two, odd", 2, 5, 3},
            {"four, one sheet", 4, 4, 1},
            {"four, one more", 4, 5, 2},
            {"eight", 8, 40, 5},
            {"no entry", 4, 0, 1},
        });
    }

    void sharesASheetOutEvenly()
    {
        const auto [perSheet, entries, count] = row<int, int, int>();
        const PageSheets sheets =
            AddressPages::cards(AddressPages::PerSheet(perSheet), times(entries, m_anne),
                                AddressPages::PicturePlaces::OnEachCard, asStored, context);
        QCOMPARE(sheets.count, count);
        int pictures = 0;
        for (int sheet = 0; sheet < count; ++sheet) {
            const Page page = sheets.make(sheet);
            const auto placed = int(itemsOf<PageItem::PlacedPicture>(page).size());
            QVERIFY(placed == perSheet || sheet + 1 == count);
            pictures += placed;
            QCOMPARE(page.isClosed(), sheet + 1 == count);
        }
        QCOMPARE(pictures, entries);
    }

    void keepsThePlaceOfAMissingPicture()
    {
        AddressEntry plain;
        plain[LastName] = u"Lind"_s;
        AddressEntry pictured = plain;
        pictured.picture = m_anne.picture;
        const auto nameAt = [](const AddressEntry &entry, int perSheet, PageSetup::Orientation orientation,
                               AddressPages::PicturePlaces places) {
            PageContext lying = context;
            lying.setup.orientation = orientation;
            const Page page = AddressPages::cards(AddressPages::PerSheet(perSheet), times(1, entry), places,
                                                  asStored, lying)
                                  .make(0);
            return itemsOf<PageItem::PlacedText>(page).at(0).place;
        };
        using AddressPages::PicturePlaces;
        for (const int perSheet : {2, 4, 8}) {
            for (const auto orientation : {PageSetup::Portrait, PageSetup::Landscape}) {
                const QRectF kept = nameAt(plain, perSheet, orientation, PicturePlaces::OnEachCard);
                QCOMPARE(kept, nameAt(m_anne, perSheet, orientation, PicturePlaces::OnEachCard));
                QVERIFY(kept != nameAt(plain, perSheet, orientation, PicturePlaces::None));
            }
        }
        const auto count = [](const AddressEntry &entry) {
            return AddressPages::countPictures(times(1000, entry));
        };
        QCOMPARE(count(plain), 0);
        QVERIFY(count(pictured) > AddressPages::recommendedPictures);
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
                                                  AddressPages::PicturePlaces::OnEachCard, asStored,
                                                  {setup, context.style, context.today, {}})
                                  .make(0);
            QList<QRectF> places;
            qsizetype texts = 0;
            for (const auto &text : itemsOf<PageItem::PlacedText>(page)) {
                places << text.place;
                texts += text.text.count(u'\n') + 1;
            }
            for (const auto &picture : itemsOf<PageItem::PlacedPicture>(page))
                places << picture.place;
            // Every text of every card has found room: the name and nine more.
            QCOMPARE(texts, perSheet * 10);
            for (qsizetype i = 0; i < places.size(); ++i) {
                QVERIFY(usable.contains(places[i]));
                QVERIFY(places[i].width() > 0.95 || places[i].height() > 1.2);
                for (qsizetype j = i + 1; j < places.size(); ++j)
                    QVERIFY(!places[i].adjusted(0.001, 0.001, -0.001, -0.001).intersects(places[j]));
            }
        }
    }

    void wrapsLongTextsWhereThereIsRoom()
    {
        AddressEntry leonora;
        leonora[LastName] = u"Lindqvist-Rosenbaum"_s;
        leonora[FirstName] = u"Leonora Clara Isidor"_s;
        leonora[Address1] = u"Mill Street, rear building, third floor"_s;
        leonora[City] = u"Ashford"_s;
        const Page page = AddressPages::cards(AddressPages::PerSheet::Eight, times(1, leonora),
                                              AddressPages::PicturePlaces::OnEachCard, asStored, context)
                              .make(0);
        const auto texts = itemsOf<PageItem::PlacedText>(page);
        QCOMPARE(texts.size(), 2);
        QVERIFY(texts[0].place.height() > 2 * PageMetrics::lineHeight(TextRole::Strong));
        QCOMPARE(texts[1].text, leonora[Address1] + u"\nAshford"_s);
        QVERIFY(texts[1].place.height() > 3 * PageMetrics::lineHeight(TextRole::Small));
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
