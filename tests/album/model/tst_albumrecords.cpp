// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/albumfile.h"
#include "album/model/photofile.h"
#include "album/model/phototexts.h"
#include "tests/album/model/albumbytes.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"

using namespace Qt::Literals::StringLiterals;

/// The records of `Photobk3.Fil` and `Photobk4.Fil`, byte by byte.
class TestAlbumRecords : public QObject
{
    Q_OBJECT
private slots:
    void keepsAPictureAsTheFileHasIt()
    {
        const QByteArray bytes =
            pictureBytes({{0, "PIC1"},
                          {4, "/home/anne/Bilder/Gro\xc3\x9fmutter.jpg"},
                          {516, "Anne and Karin at the lake"},
                          {836, "It was cold.\nWe laughed."},
                          {1796, "Lake"},
                          {1876, "summer; water"},
                          {2036, "Anne Lind; Karin"},
                          {2292, "\x02"_ba},
                          {2356, "1974~"},
                          {2388, "\x03\x01\x04\x02"_ba},
                          {2392, QByteArray("\xa0\x0f\0\0\xb8\x0b\0\0", 8)},
                          {2400, QByteArray("\x40\x42\x0f\0\0\0\0\0\xff\xff\xff\xff\xff\xff\xff\xff", 16)},
                          {2416, QByteArray(32, '\x5a')}});
        Photo photo;
        photo.record = 7;
        photo.path = u"/home/anne/Bilder/Gro\u00dfmutter.jpg"_s;
        photo.caption = u"Anne and Karin at the lake"_s;
        photo.story = u"It was cold.\nWe laughed."_s;
        photo.place = u"Lake"_s;
        photo.tags = u"summer; water"_s;
        photo.setPersons({{u"Anne Lind"_s, 2}, {u"Karin"_s, 0}});
        photo.date = PhotoDate::fromEdtf("1974~");
        photo.dateFrom = Photo::DateFrom::Typed;
        photo.turns = 1;
        photo.rating = 4;
        photo.bits = Photo::LeftOutOfShows;
        photo.width = 4000;
        photo.height = 3000;
        photo.size = 1000000;
        photo.fileTime = -1;
        photo.hash.fill(0x5a);
        QVERIFY(PhotoFile::encode(photo) == bytes);
        QVERIFY(PhotoFile::decode(7, bytes) == photo);
    }

    void keepsAnAlbumAndAPlace()
    {
        const PhotoAlbum album{.record = 3,
                               .order = 2048,
                               .cover = 258,
                               .sorting = PhotoAlbum::Sorting::ByName,
                               .into = PhotoAlbum::Into::Beside,
                               .name = u"Grandmother"_s,
                               .folder = u"/pictures/grandmother"_s};
        const QByteArray albumRecord = albumBytes({{0, "ALB1"},
                                                   {4, QByteArray("\0\x08\0\0\x02\x01\0\0\x22", 9)},
                                                   {16, "Grandmother"},
                                                   {112, "/pictures/grandmother"}});
        QVERIFY(AlbumFile::encode(album) == albumRecord);
        QVERIFY(AlbumFile::decodeAlbum(3, albumRecord) == album);
        QVERIFY(!AlbumFile::decodePlace(3, albumRecord));
        const PhotoPlace place{.record = 4, .album = 3, .photo = 7, .order = 1024};
        const QByteArray placeRecord =
            albumBytes({{0, "PLC1"}, {4, QByteArray("\x03\0\0\0\x07\0\0\0\0\x04\0\0", 12)}});
        QVERIFY(AlbumFile::encode(place) == placeRecord);
        QVERIFY(AlbumFile::decodePlace(4, placeRecord) == place);
    }

    void readsAnyBytes_data()
    {
        rows<QByteArray, bool>({{"nothing", {}, false},
                                {"a mark alone", "PIC1", true},
                                {"cut in the path", "PIC1/home/a", true},
                                {"noise", noiseOf(2560), false},
                                {"noise behind the mark", "PIC1" + noiseOf(2556), true},
                                {"deleted", pictureBytes({{0, "****"}}), false}});
    }
    void readsAnyBytes()
    {
        const auto [bytes, isPicture] = row<QByteArray, bool>();
        const std::optional<Photo> photo = PhotoFile::decode(1, bytes);
        QCOMPARE(photo.has_value(), isPicture);
        if (photo)
            QVERIFY(photo->rating <= 5 && photo->turns <= 3 &&
                    PhotoFile::encode(*photo).size() == PhotoFile::recordLength);
    }

    void cutsATextAtACharacterAndKnowsIt_data()
    {
        rows<QString, QString>(
            {{"what fits", u"lake"_s, u"lake"_s},
             {"exactly full", QString(20, u'a'), QString(20, u'a')},
             {"letters", QString(21, u'a'), QString(17, u'a') + u'\u2026'},
             {"accents", QString(11, u'\u00e9'), QString(8, u'\u00e9') + u'\u2026'},
             {"an accent by itself", u"aaaaaaaaaaaaaaaae\u0301aa"_s + u"bbb"_s, u"aaaaaaaaaaaaaaaa\u2026"_s},
             {"no half of a face", u"\U0001F600\U0001F600\U0001F600\U0001F600\U0001F600\U0001F600"_s,
              u"\U0001F600\U0001F600\U0001F600\U0001F600\u2026"_s}});
    }
    void cutsATextAtACharacterAndKnowsIt()
    {
        const auto [text, kept] = row<QString, QString>();
        QCOMPARE(PhotoTexts::cut(text, 20), kept);
        QCOMPARE(PhotoTexts::isCut(kept, 20), kept != text);
        QCOMPARE(PhotoTexts::fits(text, 20), kept == text);
    }

    void refusesPathsThatWouldComeOutAsOthers_data()
    {
        rows<QString, bool>({{"plain", u"/pictures/a.jpg"_s, true},
                             {"with a line end", u"/pictures/a\nb.jpg"_s, true},
                             {"not composed", u"/pictures/e\u0301.jpg"_s, true},
                             {"512 bytes", QString(512, u'a'), true},
                             {"513 bytes", QString(513, u'a'), false},
                             {"half of a pair", u"/pictures/"_s + QChar(0xD800), false},
                             {"none", {}, false}});
    }
    void refusesPathsThatWouldComeOutAsOthers()
    {
        const auto [path, fits] = row<QString, bool>();
        QCOMPARE(PhotoTexts::fitsPath(path), fits);
        Photo photo;
        photo.path = path;
        const std::optional<Photo> read = PhotoFile::decode(1, PhotoFile::encode(photo));
        QCOMPARE(read && read->path == path, fits || path.isEmpty());
    }

    void keepsListsOfNames()
    {
        Photo photo;
        photo.setTags({u"  summer "_s, u"a;b"_s, {}, u"summer"_s});
        QCOMPARE(photo.tags, u"summer; a,b"_s);
        QCOMPARE(photo.tagList(), QStringList({u"summer"_s, u"a,b"_s}));
        QList<PhotoPerson> many;
        for (int i = 1; i <= 18; ++i)
            many.append({u"P%1"_s.arg(i), i});
        photo.setPersons(many);
        QCOMPARE(photo.persons().at(15), (PhotoPerson{u"P16"_s, 16}));
        QCOMPARE(photo.persons().at(16), (PhotoPerson{u"P17"_s, 0})); // beyond those that can lead anywhere
    }
};

QTEST_APPLESS_MAIN(TestAlbumRecords)
#include "tst_albumrecords.moc"
