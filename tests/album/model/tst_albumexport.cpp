// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/albumexport.h"
#include "album/model/alike.h"
#include "album/model/cardimport.h"
#include "album/model/kepttexts.h"
#include "album/model/photooffile.h"
#include "album/model/photoshelf.h"
#include "tests/support/failingdisk.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"
#include "tests/support/testphotographs.h"
#include "tests/support/testpictures.h"

#include <QImageReader>
#include <QLinearGradient>
#include <QPainter>
#include <QSignalSpy>

using namespace Qt::Literals::StringLiterals;
using namespace TestPhotographs;

namespace {

const QDate today(2026, 11, 23);

/// Something with light and dark parts, by which pictures are known.
QImage drawn(QSize size, bool isOther = false)
{
    QImage image(size, QImage::Format_RGB32);
    QLinearGradient light(0, 0, size.width(), isOther ? size.height() : 0);
    light.setColorAt(0, Qt::black);
    light.setColorAt(0.3, isOther ? Qt::black : Qt::white);
    light.setColorAt(0.7, Qt::darkBlue);
    light.setColorAt(1, isOther ? Qt::white : Qt::lightGray);
    QPainter painter(&image);
    painter.fillRect(image.rect(), light);
    painter.fillRect(QRect(0, 0, size.width() / 3, size.height() / 4), isOther ? Qt::white : Qt::darkRed);
    return image;
}

QImage upright(const QString &path)
{
    QImageReader reader(path);
    reader.setAutoTransform(true);
    return reader.read();
}

} // namespace

class TestAlbumExport : public QObject
{
    Q_OBJECT

    std::unique_ptr<TestFolder> m_data;
    std::unique_ptr<PhotoShelf> m_shelf;

    int add(const QString &path, const QString &caption = {})
    {
        Photo photo = PhotoOfFile::read(path, today);
        photo.path = m_shelf->storedPath(path);
        photo.caption = caption;
        return m_shelf->addPhotos({photo}).value(0);
    }
    AlbumExport::Result exported(AlbumExport::Wish wish)
    {
        AlbumExport albumExport(*m_shelf);
        AlbumExport::Result result;
        QSignalSpy finished(&albumExport, &AlbumExport::finished);
        connect(&albumExport, &AlbumExport::finished, this,
                [&](const AlbumExport::Result &all) { result = all; });
        wish.folder = m_data->path(u"out"_s);
        wish.today = today;
        if (!QDir().mkpath(wish.folder))
            QTest::qFail("no folder", __FILE__, __LINE__);
        albumExport.start(wish);
        if (!finished.wait(10000))
            QTest::qFail("it does not end", __FILE__, __LINE__);
        return result;
    }
    QStringList given() const { return QDir(m_data->path(u"out"_s)).entryList(QDir::Files, QDir::Name); }

private slots:
    void init()
    {
        m_data = std::make_unique<TestFolder>();
        m_shelf = std::make_unique<PhotoShelf>(m_data->folder());
        m_shelf->load();
    }

    void originalsComeInTheirOrderWithTheirCaptions()
    {
        const QString lake = makePicture(m_data->path(u"lake.jpg"_s), {64, 48});
        const QString drawing = makePicture(m_data->path(u"a drawing.bmp"_s), {16, 12});
        const QByteArray original = contentOf(lake);
        const int second = add(lake, u"Anne at the lake"_s);
        const int first = add(drawing, u"By Karin"_s);
        m_data->put(u"gone.jpg"_s, "x");
        const int gone = add(m_data->path(u"gone.jpg"_s));
        QVERIFY(QFile::remove(m_data->path(u"gone.jpg"_s)));

        const AlbumExport::Result result = exported({.records = {first, second, gone}});
        QCOMPARE(result.written, 2);
        QCOMPARE(result.failed, QStringList{m_data->path(u"gone.jpg"_s)});
        QCOMPARE(contentOf(lake), original);
        QCOMPARE(contentOf(m_data->path(u"out/001 a drawing.bmp"_s)), contentOf(drawing));
        if (KeptTexts::isBuiltIn()) {
            const QStringList files{u"001 a drawing.bmp"_s, u"001 a drawing.bmp.xmp"_s, u"002 lake.jpg"_s};
            QCOMPARE(given(), files);
            const QString path = m_data->path(u"out/002 lake.jpg"_s);
            QCOMPARE(KeptTexts::read(path, today).texts.caption, u"Anne at the lake"_s);
        }
        QCOMPARE(exported({.records = {first}}).written, 1); // over nothing that is there
        QVERIFY(given().contains(u"001 a drawing 2.bmp"_s));
    }

    void smallerOnesAreJpegsAsTheAlbumTurnsThem()
    {
        const int record = add(makePicture(m_data->path(u"wide.png"_s), {400, 100}), u"Wide"_s);
        QVERIFY(m_shelf->change({record}, u"Turned"_s, [](Photo &photo) { photo.turns = 1; }));
        QCOMPARE(exported({.records = {record}, .longerSide = 200}).written, 1);
        const QImage image(m_data->path(u"out/001 wide.jpg"_s));
        QCOMPARE(image.size(), QSize(50, 200));
        if (KeptTexts::isBuiltIn()) {
            const QString path = m_data->path(u"out/001 wide.jpg"_s);
            QCOMPARE(KeptTexts::read(path, today).texts.caption, u"Wide"_s);
        }
    }

    void originalsAreTurnedAsInTheAlbum_data()
    {
        rows<QString, int, int>({{"to the right", u"lake.jpg"_s, 1, 1},
                                 {"to the right, and by the camera", u"lake.jpg"_s, 1, 6},
                                 {"half around, and mirrored by the camera", u"lake.jpg"_s, 2, 5},
                                 {"a format without a mark", u"lake.png"_s, 3, 1}});
    }
    void originalsAreTurnedAsInTheAlbum()
    {
        const auto [name, turns, orientation] = row<QString, int, int>();
        QImage image(64, 48, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter(&image).fillRect(0, 0, 32, 24, Qt::red);
        const QString path = m_data->path(name);
        QVERIFY(name.endsWith(u"png") ? image.save(path)
                                      : !save(path, photograph(image, orientation)).isEmpty());
        const int record = add(path);
        QVERIFY(m_shelf->change({record}, u"Turned"_s,
                                [turns = turns](Photo &photo) { photo.turns = quint8(turns); }));
        QCOMPARE(exported({.records = {record}}).written, 1);
        const QImage shown = upright(path).transformed(QTransform().rotate(90 * turns));
        const QImage given = upright(m_data->path(u"out/001 lake.jpg"_s));
        QCOMPARE(given.size(), shown.size());
        for (const QPoint &corner : {QPoint(2, 2), QPoint(45, 2), QPoint(2, 45), QPoint(45, 45)})
            QCOMPARE(qGreen(given.pixel(corner)) < 100, qGreen(shown.pixel(corner)) < 100);
    }

    void theDiskMayFailAtAnyStep()
    {
        const QString lake = makePicture(m_data->path(u"lake.jpg"_s), {64, 48});
        const int record = add(lake, u"Anne"_s);
        const QByteArray original = contentOf(lake);
        for (int step = 1; step <= 4; ++step) {
            const FailingDisk disk(DiskFailure::OneStep, step);
            const AlbumExport::Result result = exported({.records = {record}});
            QCOMPARE(result.written + result.failed.size(), qsizetype(1));
            QCOMPARE(contentOf(lake), original);
            QVERIFY(given().isEmpty() || result.written == 1);
        }
    }

    void cardsTellWhatIsNewOnThem()
    {
        const QString here = makePicture(m_data->path(u"here.jpg"_s), {16, 12}, Qt::red);
        add(here);
        QVERIFY(QDir().mkpath(m_data->path(u"media/CANON/DCIM/100"_s)));
        QVERIFY(QDir().mkpath(m_data->path(u"media/STICK/Pictures"_s)));
        QVERIFY(QFile::copy(here, m_data->path(u"media/CANON/DCIM/100/IMG_1.jpg"_s)));
        const QString fresh = makePicture(m_data->path(u"media/CANON/DCIM/100/IMG_2.jpg"_s), {20, 12});
        CardImport cards(*m_shelf);
        QSignalSpy finished(&cards, &CardImport::finished);
        const QString media = m_data->path(u"media"_s);
        cards.start({{media}, {u"/"_s, media + u"/CANON"_s, media + u"/STICK"_s}});
        QVERIFY(finished.wait(10000));
        QCOMPARE(cards.cards().size(), std::size_t(1));
        const CardImport::Card expected{u"CANON"_s, media + u"/CANON/DCIM"_s, {fresh}, 1};
        QCOMPARE(cards.cards().front(), expected);
    }

    void picturesThatAreThereTwiceAreFound()
    {
        const QString path = m_data->path(u"large.png"_s);
        QVERIFY(drawn({640, 480}).save(path));
        QVERIFY(QFile::copy(path, m_data->path(u"copy.png"_s)));
        QVERIFY(drawn({320, 240}).save(m_data->path(u"small.jpg"_s)));
        QVERIFY(drawn({640, 480}).transformed(QTransform().rotate(90)).save(m_data->path(u"turned.jpg"_s)));
        QVERIFY(drawn({640, 480}, true).save(m_data->path(u"other.jpg"_s)));
        const int large = add(path);
        const int copy = add(m_data->path(u"copy.png"_s));
        const int small = add(m_data->path(u"small.jpg"_s));
        const int turned = add(m_data->path(u"turned.jpg"_s));
        add(m_data->path(u"other.jpg"_s));
        Alike alike(*m_shelf, nullptr);
        QSignalSpy finished(&alike, &Alike::finished);
        alike.start();
        QVERIFY(finished.wait(10000));
        const std::vector<AlikePictures> expected{{{large, copy}, true}, {{large, turned, small}, false}};
        QCOMPARE(alike.groups(), expected);
    }
};

QTEST_GUILESS_MAIN(TestAlbumExport)
#include "tst_albumexport.moc"
