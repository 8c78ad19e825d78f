// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/photopeople.h"
#include "album/model/photosearch.h"
#include "album/model/photoshelf.h"
#include "tests/album/model/albumbytes.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QDate today(2026, 11, 21);

} // namespace

/// Finding pictures by what is said of them, and who the people in them are.
class TestPhotoSearch : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_test.put(
            u"Photobk3.Fil"_s,
            pictureBytes(
                {{0, "PIC1"}, {4, "/p/IMG_1974.jpg"}, {516, "Anne at the lake"}, {2356, "2019-07-04"}}) +
                pictureBytes({{0, "PIC1"},
                              {4, "/p/scan.png"},
                              {836, "\xc3\x89lan at Caf\xc3\xa9 Stra\xc3\x9f"
                                    "e"},
                              {1796, "Berlin"},
                              {2036, "Karin; Anne Lind"},
                              {2356, "1974~"}}) +
                pictureBytes(
                    {{0, "PIC1"}, {4, "/lake/other.jpg"}, {1876, "summer; garden"}, {2356, "1982-07"}}));
        m_test.put(u"Photobk4.Fil"_s, albumBytes({{0, "ALB1"}, {16, "Grandmother"}}) +
                                          albumBytes({{0, "PLC1"}, {4, "\x01"}, {8, "\x03"}}));
    }

    void findsEachWordSomewhere_data()
    {
        rows<QString, QList<int>>({{"nothing is all", u" "_s, {1, 2, 3}},
                                   {"a caption", u"LAKE"_s, {1}},
                                   {"no folder", u"/p"_s, {}},
                                   {"accents", u"elan strasse"_s, {2}},
                                   {"two fields", u"anne berlin"_s, {2}},
                                   {"in two pictures", u"anne"_s, {1, 2}},
                                   {"not over the end of a field", u"berlinkarin"_s, {}},
                                   {"a tag", u"gard"_s, {3}},
                                   {"an album", u"grandm"_s, {3}},
                                   {"an album and a text", u"other grandmother"_s, {3}},
                                   {"an album and another's text", u"anne grandmother"_s, {}},
                                   {"a file name, and a date", u"1974"_s, {1, 2}},
                                   {"a season", u"summer 82"_s, {3}},
                                   {"a date and a word", u"about 1974 karin"_s, {2}},
                                   {"a decade", u"the 1980s"_s, {3}},
                                   {"a date and another's word", u"lake 1982"_s, {}},
                                   {"what nobody said", u"zebra"_s, {}}});
    }
    void findsEachWordSomewhere()
    {
        const auto [text, found] = row<QString, QList<int>>();
        PhotoShelf shelf(m_test.folder());
        shelf.load();
        PhotoSearch search(shelf);
        QCOMPARE(search.pictures(text, DateStyle::Usa, today), found);
    }

    void followsWhatChanges()
    {
        PhotoShelf shelf(m_test.folder());
        shelf.load();
        PhotoSearch search(shelf);
        const auto found = [&](const QString &text) { return search.pictures(text, DateStyle::Usa, today); };
        QCOMPARE(found(u"lake"_s), QList<int>{1});
        QVERIFY(shelf.change({1, 2}, u"Caption"_s, [](Photo &photo) {
            photo.caption = u"At the sea, long ago, all of us"_s;
            photo.date = PhotoDate::fromEdtf("1999");
        }));
        QCOMPARE(found(u"lake"_s), QList<int>());
        QCOMPARE(found(u"sea"_s), QList<int>({1, 2}));
        QCOMPARE(found(u"garden"_s), QList<int>{3});
        QCOMPARE(found(u"July 1999"_s), QList<int>({1, 2}));
        QVERIFY(shelf.removePhotos({2}));
        QCOMPARE(found(u"sea"_s), QList<int>{1});
    }

    void tellsHowOldSomebodyWas_data()
    {
        rows<QByteArray, QString>({{"years", "1982-11-24", u"4 years old"_s},
                                   {"the day before a birthday", "1982-11-23", u"3 years old"_s},
                                   {"months", "1979-02-24", u"3 months old"_s},
                                   {"days", "1978-11-25", u"1 day old"_s},
                                   {"a year", "1984", u"5 or 6 years old"_s},
                                   {"about a year", "1984~", u"about 5 or 6 years old"_s},
                                   {"a summer", "1982-22", u"3 years old"_s},
                                   {"a decade", "198X", u"1 to 11 years old"_s},
                                   {"the year of birth", "1978", u"less than 1 year old"_s},
                                   {"before", "1977", {}},
                                   {"since", "1984/..", {}},
                                   {"nothing known", "", {}}});
    }
    void tellsHowOldSomebodyWas()
    {
        const auto [edtf, age] = row<QByteArray, QString>();
        QCOMPARE(PhotoPeople::age(QDate(1978, 11, 24), PhotoDate::fromEdtf(edtf)), age);
    }

    void linksNobodyWhoBearsAnotherName()
    {
        Photo photo;
        photo.setPersons({{u"Anne Lind"_s, 2}, {u"Karin"_s, 3}, {u"Tom"_s, 0}});
        photo.date = PhotoDate::fromEdtf("1982-11-24");
        const QList<KnownPerson> persons{{u"Anne Lind"_s, 2, QDate(1978, 11, 24)},
                                         {u"Somebody Else"_s, 3, {}}};
        QCOMPARE(PhotoPeople::linked(photo, persons),
                 QList<PhotoPerson>({{u"Anne Lind"_s, 2}, {u"Karin"_s, 0}, {u"Tom"_s, 0}}));
        QCOMPARE(PhotoPeople::words(photo, persons), u"Anne Lind (4 years old), Karin, Tom"_s);
        // While a password keeps the names back, nothing of them is told.
        QCOMPARE(PhotoPeople::words(photo, {}), u"Anne Lind, Karin, Tom"_s);
    }

    void offersWhomOneMayMean()
    {
        const QList<KnownPerson> persons{
            {u"Karin Anders"_s, 2, {}}, {u"Anne Lind"_s, 3, {}}, {u"Anne Lind"_s, 4, {}}};
        QCOMPARE(PhotoPeople::offered(u"an"_s, persons, {u"Anton"_s, u"anne lind"_s}, 9),
                 QList<PhotoPerson>(
                     {{u"Anne Lind"_s, 3}, {u"Anne Lind"_s, 4}, {u"Anton"_s, 0}, {u"Karin Anders"_s, 2}}));
        QCOMPARE(PhotoPeople::offered(u"an"_s, persons, {}, 1).size(), 1);
        QCOMPARE(PhotoPeople::ofName(u"karin  anders"_s, persons), (PhotoPerson{u"Karin Anders"_s, 2}));
        QCOMPARE(PhotoPeople::ofName(u"Anne Lind"_s, persons).record, 0); // two of them
    }

private:
    TestFolder m_test;
};

QTEST_APPLESS_MAIN(TestPhotoSearch)
#include "tst_photosearch.moc"
