// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/model/viewerpages.h"
#include "tests/addressbook/model/addressrecords.h"
#include "tests/support/pageitems.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const PageContext context{{}, DateStyle::Usa, QDate(2026, 11, 21), {}};

/// A line for each row, its cells parted by bars.
QString rowsOf(const Page &page)
{
    QStringList rows;
    for (const auto &row : itemsOf<PageItem::Row>(page))
        rows << row.cells.join(u'|');
    return rows.join(u'\n');
}

std::vector<ListedPicture> pictures(int count)
{
    return std::vector<ListedPicture>(std::size_t(count), {u"Lind, Anne"_s, u"/a.jpg"_s, {1024, 768}});
}

} // namespace

/// What the viewer prints, copies and exports.
class TestViewerPages : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_files = std::make_unique<TestFolder>();
        m_files->put(u"Addbk2.Fil"_s, neverWritten(60) + lineBytes(lineOf("Lind, Anne", 2)) +
                                          lineBytes(lineOf("M\xFCller, Karl", 3)) +
                                          lineBytes(lineOf("Holm, Mats", 4)));
        m_files->put(u"Addbk1.Fil"_s,
                     neverWritten(724) +
                         entryBytes({"Lind", "Anne", "", "14 Orchard\tLane", "", "Ashford", "NL", "75944",
                                     "555-0142"}) +
                         entryBytes({"M\xFCller", "Karl", "", "", "", "", "", "", "", "555-0187"}) +
                         entryBytes({"Holm", "Mats", "", "", "", "", "WI"}));
        m_viewer = std::make_unique<AddressViewer>(m_files->folder(), DateStyle::Usa);
        m_viewer->load(Information::State, {});
    }

    void headsTheColumns()
    {
        using ViewerPages::heading;
        QCOMPARE(heading(Information::Address, DateStyle::Usa),
                 u"Address, Address Line 2, City, State, Zip Code"_s);
        QCOMPARE(heading(Information::Address, DateStyle::Other),
                 u"Address, Address Line 2, Suburb, Town/City, Postal Code"_s);
        QCOMPARE(heading(Information::Pictures, DateStyle::Usa), QString());
    }

    void listsWhatIsShown_data()
    {
        rows<Information, bool, QString>({
            {"information", Information::State, false, u"Lind, Anne|NL\nMüller, Karl|\nHolm, Mats|WI"_s},
            {"telephones too", Information::State, true,
             u"Lind, Anne|    Phone: 555-0142|NL\nMüller, Karl|    Phone: 555-0187|\nHolm, Mats||WI"_s},
            {"home numbers in their column", Information::HomePhone, true,
             u"Lind, Anne|555-0142\nMüller, Karl|\nHolm, Mats|"_s},
            {"mobile numbers in their column", Information::MobilePhone, true,
             u"Lind, Anne|    Phone: 555-0142|\nMüller, Karl||555-0187\nHolm, Mats||"_s},
            {"pictures have no column", Information::Pictures, false,
             u"Lind, Anne\nMüller, Karl\nHolm, Mats"_s},
        });
    }

    void listsWhatIsShown()
    {
        const auto [information, telephones, shown] = row<Information, bool, QString>();
        m_viewer->load(information, {});
        ViewerPages::ListOptions options;
        options.hasTelephones = telephones;
        QCOMPARE(rowsOf(ViewerPages::list(*m_viewer, options, context)), shown);
    }

    void followsTheOptions()
    {
        for (const bool isChosen : {false, true}) {
            ViewerPages::ListOptions options;
            options.hasAsOf = options.isTwoColumns = options.hasGridLines = isChosen;
            const Page page = ViewerPages::list(*m_viewer, options, context);
            QCOMPARE(page.headRight(), isChosen ? u"As of  Saturday, November 21, 2026"_s : QString());
            const auto columns = itemsOf<PageItem::Columns>(page).constFirst();
            QCOMPARE(columns.across, isChosen ? 2 : 1);
            QCOMPARE(columns.lines, isChosen ? TableLines::Grid : TableLines::None);
            QCOMPARE(columns.headings, QStringList({u"Name"_s, u"State"_s}));
            QCOMPARE(page.printedLine(), u"Printed on 11/21/2026"_s);
        }
    }

    void saysWhenNothingIsLeft()
    {
        m_viewer->search(u"nobody"_s);
        QCOMPARE(rowsOf(ViewerPages::list(*m_viewer, {}, context)), u"No Matches were Found!"_s);
        m_viewer->load(Information::State, {DisplayRange::BirthMonth, 4});
        m_viewer->search({});
        QCOMPARE(rowsOf(ViewerPages::list(*m_viewer, {}, context)), u"No Names Found with Info..."_s);
    }

    void placesPicturesToTheHundredth()
    {
        const Page page = ViewerPages::pictureList(pictures(20), context);
        const auto placed = itemsOf<PageItem::PlacedPicture>(page);
        QCOMPARE(placed.size(), 20);
        for (int i = 0; i < 20; ++i) {
            const QPointF corner(0.25 + 2.0 * (i % 4), 0.8 + 2.0 * (i / 4));
            QVERIFY((placed[i].place.topLeft() - corner).manhattanLength() < 0.001);
        }
        const auto texts = itemsOf<PageItem::PlacedText>(page);
        QCOMPARE(texts[0].text, u"Family/Friends Picture List - Saturday, November 21, 2026"_s);
        QCOMPARE(texts[20].text, u"Lind, Anne"_s);
        // Under the last picture, with room for the closing lines below it.
        QVERIFY(texts[20].place.top() >= placed[19].place.bottom());
        QVERIFY(texts[20].place.bottom() <= 10.25);
        QCOMPARE(itemsOf<PageItem::Break>(page).size(), 1); // before the first sheet, where it does nothing
    }

    void placesPicturesOnOtherSheets_data()
    {
        rows<QSizeF, PageSetup::Orientation, int>({
            {"letter", QSizeF(8.5, 11), PageSetup::Portrait, 20},
            {"A4", QSizeF(8.27, 11.69), PageSetup::Portrait, 20},
            {"letter, landscape", QSizeF(8.5, 11), PageSetup::Landscape, 15},
            {"A4, landscape", QSizeF(8.27, 11.69), PageSetup::Landscape, 15},
            {"smaller than one place", QSizeF(1.5, 1.5), PageSetup::Portrait, 1},
        });
    }

    void placesPicturesOnOtherSheets()
    {
        const auto [paper, orientation, perSheet] = row<QSizeF, PageSetup::Orientation, int>();
        const PageSetup setup{paper, orientation};
        const Page page =
            ViewerPages::pictureList(pictures(perSheet + 1), {setup, context.style, context.today, {}});
        QCOMPARE(itemsOf<PageItem::Break>(page).size(), 2);
        const auto placed = itemsOf<PageItem::PlacedPicture>(page);
        QCOMPARE(placed.last().place.topLeft(), placed.first().place.topLeft());
        for (const auto &picture : placed)
            QVERIFY(perSheet == 1 || QRectF({}, setup.sheet()).contains(picture.place));
    }

    void scalesPictures_data()
    {
        rows<QSize, QSizeF>({
            {"16.54 % of its size", QSize(900, 560), QSizeF(1.550625, 0.964833)},
            {"as far as its place allows", QSize(4000, 3000), QSizeF(1.333333, 1)},
            {"a panorama", QSize(8000, 1000), QSizeF(1.8, 0.225)},
            {"not below an inch", QSize(64, 80), QSizeF(0.8, 1)},
            {"without a file", QSize(), QSizeF(1.8, 1)},
        });
    }

    void scalesPictures()
    {
        const auto [pixels, inches] = row<QSize, QSizeF>();
        const Page page = ViewerPages::pictureList({{u"A"_s, QString(), pixels}}, context);
        const QSizeF size = itemsOf<PageItem::PlacedPicture>(page).constFirst().place.size();
        QVERIFY(std::abs(size.width() - inches.width()) < 0.0001);
        QVERIFY(std::abs(size.height() - inches.height()) < 0.0001);
    }

    void exportsBytes()
    {
        m_viewer->load(Information::Address, {});
        QCOMPARE(
            ViewerPages::exportText(*m_viewer, DateStyle::Usa),
            "Name\tAddress, Address Line 2, City, State, Zip Code\r\n"
            "Lind, Anne\t14 Orchard Lane, Ashford, NL, 75944\r\nM\xFCller, Karl\t\r\nHolm, Mats\tWI\r\n");
    }

    void namesTheExport() { QCOMPARE(ViewerPages::exportName(u"a/b\\c:d\n?"_s), u"a-b-c-d--.xls"_s); }

private:
    std::unique_ptr<TestFolder> m_files;
    std::unique_ptr<AddressViewer> m_viewer;
};

QTEST_GUILESS_MAIN(TestViewerPages)
#include "tst_viewerpages.moc"
