// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/albumpages.h"
#include "album/model/photoshelf.h"
#include "tests/album/model/albumbytes.h"
#include "tests/support/pageitems.h"
#include "tests/support/rows.h"
#include "tests/support/sheettools.h"
#include "tests/support/testfiles.h"
#include "tests/support/testpictures.h"

using namespace Qt::Literals::StringLiterals;
using namespace SheetTools;

namespace {

using AlbumPages::Form;
using AlbumPages::Options;
using AlbumPages::PhotoSize;
using AlbumPages::Picture;
using PageItem::PlacedPicture;
using PageItem::PlacedRule;
using PageItem::PlacedText;

PageContext contextOf(QSizeF paper, PageSetup::Orientation orientation = PageSetup::Portrait)
{
    return {.setup = {.paper = paper, .orientation = orientation},
            .style = DateStyle::Usa,
            .today = QDate(2026, 11, 23),
            .family = u"Holm"_s};
}

QList<QRectF> placesOf(const Page &page)
{
    QList<QRectF> places;
    for (const PlacedPicture &picture : itemsOf<PlacedPicture>(page))
        places.append(picture.place);
    return places;
}

bool overlap(const QList<QRectF> &places)
{
    for (qsizetype i = 0; i < places.size(); ++i) {
        for (qsizetype j = i + 1; j < places.size(); ++j) {
            if (places[i].intersects(places[j]))
                return true;
        }
    }
    return false;
}

} // namespace

class TestAlbumPages : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { m_wide = makePicture(m_test.path(u"wide.png"_s), {40, 30}, Qt::blue); }

    void findsRoomForAllOnTheSheet_data()
    {
        rows<Form, int, QSizeF, PageSetup::Orientation, int>(
            {{"one", Form::Sheets, 1, PageMetrics::letter, PageSetup::Portrait, 1},
             {"two", Form::Sheets, 2, PageMetrics::a4, PageSetup::Portrait, 2},
             {"two across", Form::Sheets, 2, PageMetrics::a4, PageSetup::Landscape, 2},
             {"four", Form::Sheets, 4, PageMetrics::letter, PageSetup::Landscape, 4},
             {"six", Form::Sheets, 6, PageMetrics::a5, PageSetup::Portrait, 6},
             {"nine", Form::Sheets, 9, PageMetrics::letter, PageSetup::Portrait, 9},
             {"twenty", Form::Sheets, 20, PageMetrics::a5, PageSetup::Portrait, 20},
             {"twenty across", Form::Sheets, 20, PageMetrics::a5, PageSetup::Landscape, 20},
             {"contacts", Form::Contact, 1, PageMetrics::letter, PageSetup::Portrait, 30},
             {"contacts across", Form::Contact, 1, PageMetrics::a4, PageSetup::Landscape, 28}});
    }
    void findsRoomForAllOnTheSheet()
    {
        const auto [form, perSheet, paper, orientation, count] =
            row<Form, int, QSizeF, PageSetup::Orientation, int>();
        const PageContext context = contextOf(paper, orientation);
        const Options options{.form = form, .perSheet = perSheet};
        const Page full = AlbumPages::page(u"Lake"_s, pictures(count), options, context);
        QCOMPARE(sheetCount(full, context), 1);
        const QList<QRectF> places = placesOf(full);
        QCOMPARE(places.size(), count);
        QVERIFY(!overlap(places));
        const QRectF body = QRectF({}, context.setup.sheet()).adjusted(0.49, 0.99, -0.49, -0.99);
        for (const PlacedText &text : itemsOf<PlacedText>(full))
            QVERIFY(text.place.top() > 1 && text.place.bottom() < body.bottom() + 0.01);
        for (const QRectF &place : places) {
            QVERIFY(body.contains(place));
            QVERIFY(std::abs(place.width() / place.height() - 4.0 / 3) < 0.01); // whole, in its shape
            const QSizeF most = AlbumPages::placeSize(options, context.setup);
            QVERIFY(place.width() < most.width() + 0.01 && place.height() < most.height() + 0.01);
        }
        QCOMPARE(sheetCount(AlbumPages::page(u"Lake"_s, pictures(count + 1), options, context), context), 2);
    }

    void saysWhatIsAskedFor_data()
    {
        rows<bool, bool, QStringList>({{"both", true, true, {u"about 1974"_s, u"Anne and Karin"_s}},
                                       {"captions", true, false, {u"Anne and Karin"_s}},
                                       {"dates", false, true, {u"about 1974"_s}},
                                       {"neither", false, false, {}}});
    }
    void saysWhatIsAskedFor()
    {
        const auto [captions, dates, said] = row<bool, bool, QStringList>();
        const Options options{.perSheet = 4, .hasCaptions = captions, .hasDates = dates};
        const Page page = AlbumPages::page(u"Lake"_s, pictures(1), options, contextOf(PageMetrics::letter));
        QStringList texts;
        for (const PlacedText &text : itemsOf<PlacedText>(page))
            texts.append(text.text);
        QCOMPARE(texts, said);
    }

    void cutsPhotographsToTheirSize_data()
    {
        rows<PhotoSize, QSizeF, QSizeF, int>(
            {{"4 x 6 on Letter", PhotoSize::Inches4x6, PageMetrics::letter, {6, 4}, 2},
             {"5 x 7 on Letter", PhotoSize::Inches5x7, PageMetrics::letter, {7, 5}, 2},
             {"10 x 15 on A4", PhotoSize::Centimeters10x15, PageMetrics::a4, {150 / 25.4, 100 / 25.4}, 2},
             {"13 x 18 on A4", PhotoSize::Centimeters13x18, PageMetrics::a4, {180 / 25.4, 130 / 25.4}, 2},
             {"on paper of its size", PhotoSize::Inches4x6, {4, 6}, {4, 6}, 1},
             {"on a smaller one", PhotoSize::Inches5x7, {3.5, 5}, {3.5, 4.9}, 1}});
    }
    void cutsPhotographsToTheirSize()
    {
        const auto [size, paper, place, count] = row<PhotoSize, QSizeF, QSizeF, int>();
        const Options options{.form = Form::Photographs, .size = size};
        const PageContext context = contextOf(paper);
        const QSizeF found = AlbumPages::placeSize(options, context.setup);
        QVERIFY(std::abs(found.width() - place.width()) < 0.001 &&
                std::abs(found.height() - place.height()) < 0.001);
        std::vector<Picture> filled = pictures(count);
        for (Picture &picture : filled)
            picture.pixels = (place * 300).toSize();
        const Page page = AlbumPages::page(u"Lake"_s, filled, options, context);
        QCOMPARE(sheetCount(page, context), 1);
        const QList<QRectF> places = placesOf(page);
        QCOMPARE(places.size(), count);
        QVERIFY(!overlap(places));
        const QRectF sheet = QRectF({}, paper).adjusted(-0.01, -0.01, 0.01, 0.01);
        for (const QRectF &photo : places)
            QVERIFY(sheet.contains(photo) && std::abs(photo.width() - place.width()) < 0.01);
        // Eight marks around each, none of them on a photograph.
        const QList<PlacedRule> marks = itemsOf<PlacedRule>(page);
        QCOMPARE(marks.size(), 8 * count);
        for (const PlacedRule &mark : marks) {
            const QRectF ink = mark.place.adjusted(-0.01, -0.01, 0.01, 0.01);
            QVERIFY(
                std::ranges::none_of(places, [&ink](const QRectF &photo) { return photo.intersects(ink); }));
        }
    }

    void namesWhatCannotBeRead()
    {
        std::vector<Picture> broken = pictures(1);
        broken.front().path.clear();
        const Page page =
            AlbumPages::page(u"Lake"_s, broken, {.perSheet = 4}, contextOf(PageMetrics::letter));
        QVERIFY(itemsOf<PlacedPicture>(page).isEmpty());
        QCOMPARE(itemsOf<PlacedText>(page).constFirst().text, u"IMG_0.jpg cannot be shown"_s);
        broken.front().reason = u"This is no picture"_s;
        const Page book =
            AlbumPages::page(u"Lake"_s, broken, {.form = Form::Book}, contextOf(PageMetrics::letter));
        QVERIFY(book.toText().contains(u"IMG_0.jpg: This is no picture"_s));
    }

    void aBookBeginsWithItsCover()
    {
        const QString cover = makePicture(m_test.path(u"cover.png"_s), {40, 30}, Qt::red);
        std::vector<Picture> all = pictures(3);
        all[2].path = cover;
        const Page page = AlbumPages::page(u"Lake"_s, all, {.form = Form::Book, .cover = 2},
                                           contextOf(PageMetrics::letter));
        QCOMPARE(itemsOf<PlacedPicture>(page).constFirst().path, cover);
    }

    void tellsItsYearsInTheirOrder()
    {
        std::vector<Picture> all = pictures(4);
        all[0].chapter = u"2019"_s;
        all[1].chapter = u"The 1980s"_s;
        all[3].chapter = u"Without a date"_s;
        const Page page =
            AlbumPages::page(u"Lake"_s, all, {.form = Form::Book}, contextOf(PageMetrics::letter));
        QVERIFY(page.toText().contains(u"1974 to 2019"_s));
    }

    void makesABookWithChapters_data()
    {
        rows<int, int>({{"one a sheet", 1, 2 + 5}, {"four a sheet", 4, 2 + 2}});
    }
    void makesABookWithChapters()
    {
        const auto [perSheet, sheets] = row<int, int>();
        const PageContext context = contextOf(PageMetrics::letter);
        std::vector<Picture> all = pictures(5);
        all[3].chapter = all[4].chapter = u"The 1980s"_s;
        all[1].story = QStringList{u"It was cold."_s, u"We laughed."_s};
        all[2].where = u"Siljan, with Karl"_s;
        const Page page =
            AlbumPages::page(u"Grandmother"_s, all, {.form = Form::Book, .perBookSheet = perSheet}, context);
        QCOMPARE(sheetCount(page, context), sheets);
        const QString text = page.toText();
        for (const QString &words : {u"Holm"_s, u"Grandmother"_s, u"1974 to the 1980s"_s, u"5 pictures"_s,
                                     u"Contents"_s, u"1974\t3 pictures"_s, u"The 1980s\t2 pictures"_s,
                                     u"It was cold."_s, u"We laughed."_s, u"Anne and Karin"_s})
            QVERIFY2(text.contains(words), qPrintable(words));
        QVERIFY(text.contains(all[2].where));
    }

    void listsCaptionsWherePicturesStandInAnOrderOfTheirOwn()
    {
        std::vector<Picture> all = pictures(3);
        all[1].chapter = u"1999"_s;
        all[1].caption.clear();
        const PageContext context = contextOf(PageMetrics::a4);
        const Page page = AlbumPages::page(u"Lake"_s, all, {.form = Form::Book}, context);
        QCOMPARE(itemsOf<PageItem::Row>(page).size(), 2);
        QCOMPARE(itemsOf<PageItem::Section>(page).size(), 2);
    }

    void printsAnEmptyAlbum()
    {
        for (const Form form : {Form::Sheets, Form::Photographs, Form::Contact, Form::Book}) {
            const PageContext context = contextOf(PageMetrics::letter);
            QVERIFY(sheetCount(AlbumPages::page(u"Lake"_s, {}, {.form = form}, context), context) >= 1);
        }
    }

    void knowsWhatIsSaidOfPictures()
    {
        m_test.put(u"Photobk3.Fil"_s, pictureBytes({{0, "PIC1"},
                                                    {4, "/p/IMG_7.jpg"},
                                                    {516, "Lake"},
                                                    {836, "Cold.\n\nWe laughed."},
                                                    {1796, "Siljan"},
                                                    {2036, "Karl; Ilse; Anne"},
                                                    {2356, "1974~"}}) +
                                          pictureBytes({{0, "PIC1"}, {4, "b.jpg"}, {2356, "1970/1975"}}) +
                                          pictureBytes({{0, "PIC1"}, {4, "c.jpg"}}));
        PhotoShelf shelf(m_test.folder());
        shelf.load();
        const std::vector<Picture> known = AlbumPages::picturesOf(shelf, {1, 2, 3, 9}, DateStyle::Usa);
        QCOMPARE(known.size(), 3U);
        QCOMPARE(known[0].fileName, u"IMG_7.jpg"_s);
        QCOMPARE(known[0].date, u"about 1974"_s);
        QCOMPARE(known[0].where, u"Siljan, with Karl, Ilse and Anne"_s);
        QCOMPARE(known[0].story, QStringList({u"Cold."_s, u"We laughed."_s}));
        QCOMPARE(known[0].chapter, u"1974"_s);
        QCOMPARE(known[1].chapter, u"The 1970s"_s);
        QCOMPARE(known[2].chapter, u"Without a Date"_s);
    }

private:
    std::vector<Picture> pictures(int count) const
    {
        std::vector<Picture> pictures;
        for (int i = 0; i < count; ++i)
            pictures.push_back({.fileName = u"IMG_%1.jpg"_s.arg(i),
                                .caption = u"Anne and Karin"_s,
                                .date = u"about 1974"_s,
                                .chapter = u"1974"_s,
                                .path = m_wide,
                                .pixels = {40, 30}});
        return pictures;
    }

    static int sheetCount(const Page &page, const PageContext &context)
    {
        return PagePainter(page, context.setup, bodyFont()).sheetCount();
    }

    TestFolder m_test;
    QString m_wide;
};

QTEST_MAIN(TestAlbumPages)
#include "tst_albumpages.moc"
