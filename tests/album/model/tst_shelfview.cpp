// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/photoshelf.h"
#include "album/model/shelfview.h"
#include "tests/album/model/albumbytes.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"

using namespace Qt::Literals::StringLiterals;

namespace {

using Kind = ShelfView::Kind;
using Sorting = PhotoAlbum::Sorting;

const QDate today(2026, 11, 21);

QByteArray picture(const QByteArray &path, const QByteArray &date = {}, const QByteArray &bits = {})
{
    return pictureBytes({{0, "PIC1"}, {4, path}, {2356, date}, {2391, bits}});
}

} // namespace

/// Which pictures a view has, and in which order.
class TestShelfView : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_test.put(u"Photobk3.Fil"_s, picture("z/IMG_10.jpg", "2019-11-21T08:00:00") + // 1
                                          picture("z/IMG_9.jpg", "2019-11-21T08:00:00") +
                                          picture("b.jpg", "1974~") +                                    // 3
                                          picture("C.jpg", "197X") + picture("a.jpg", {}, "\x04") +      // 5
                                          picture("d.jpg", "2026-11-21") + picture("e.jpg", "../1950") + // 7
                                          picture("f.jpg", "nobody knows") + picture("g.jpg", "1982-24"));
        m_test.put(u"Photobk4.Fil"_s, albumBytes({{0, "ALB1"}, {16, "Grandmother"}}) +
                                          albumBytes({{0, "PLC1"}, {4, "\x01"}, {8, "\x06"}, {12, "\x01"}}) +
                                          albumBytes({{0, "PLC1"}, {4, "\x01"}, {8, "\x03"}, {12, "\x02"}}) +
                                          // of an album that is gone
                                          albumBytes({{0, "PLC1"}, {4, "\x07"}, {8, "\x01"}, {12, "\x01"}}));
    }

    void showsItsPicturesInOrder_data()
    {
        rows<ShelfView, Sorting, QList<int>>(
            {{"all by date", {Kind::All}, Sorting::ByDate, {7, 4, 3, 9, 2, 1, 6, 5, 8}},
             {"all by name", {Kind::All}, Sorting::ByName, {5, 3, 4, 6, 7, 8, 9, 2, 1}},
             {"by hand where nobody ordered them", {Kind::OnThisDay}, Sorting::ByHand, {2, 1}},
             {"in no album", {Kind::NoAlbum}, Sorting::ByDate, {7, 4, 9, 2, 1, 5, 8}},
             {"without a date", {Kind::NoDate}, Sorting::ByDate, {5, 8}},
             {"missing", {Kind::Missing}, Sorting::ByDate, {5}},
             {"a year", {Kind::Year, 2019}, Sorting::ByDate, {2, 1}},
             {"a winter in its year", {Kind::Year, 1982}, Sorting::ByDate, {9}},
             {"a decade", {Kind::Decade, 1970}, Sorting::ByDate, {4}},
             {"an album by hand", {Kind::Album, 1}, Sorting::ByHand, {6, 3}},
             {"an album by date", {Kind::Album, 1}, Sorting::ByDate, {3, 6}},
             {"no album", {Kind::Album, 9}, Sorting::ByHand, {}}});
    }
    void showsItsPicturesInOrder()
    {
        const auto [view, sorting, pictures] = row<ShelfView, Sorting, QList<int>>();
        PhotoShelf shelf(m_test.folder());
        shelf.load();
        QCOMPARE(ShelfViews::pictures(shelf, view, sorting, today), pictures);
        if (view.kind != Kind::Year && view.kind != Kind::Decade && view.kind != Kind::Album)
            QCOMPARE(ShelfViews::count(shelf, view.kind, today), int(pictures.size()));
    }

    void listsYearsAndDecades()
    {
        PhotoShelf shelf(m_test.folder());
        shelf.load();
        QStringList titles;
        for (const ShelfViews::Period &period : ShelfViews::periods(shelf))
            titles.append(u"%1: %2"_s.arg(period.title).arg(period.count));
        QCOMPARE(titles,
                 QStringList({u"2026: 1"_s, u"2019: 2"_s, u"1982: 1"_s, u"1974: 1"_s, u"The 1970s: 1"_s}));
    }

private:
    TestFolder m_test;
};

QTEST_APPLESS_MAIN(TestShelfView)
#include "tst_shelfview.moc"
