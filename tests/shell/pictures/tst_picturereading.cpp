// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pages/pagepicture.h"
#include "shell/pictures/heifpictures.h"
#include "shell/pictures/pictureframe.h"
#include "shell/pictures/picturelines.h"
#include "shell/pictures/picturereading.h"
#include "tests/support/testphotographs.h"

#include <QImageReader>
#include <QLoggingCategory>
#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QSize uprightSize(160, 80);
constexpr int markSide = 30;

bool isRed(QRgb color)
{
    return qRed(color) > 200 && qBlue(color) < 60;
}

bool isBlue(QRgb color)
{
    return qBlue(color) > 200 && qRed(color) < 60;
}

/// Red at the top left, blue at the top right, and lying as it should.
bool isUpright(const QImage &image)
{
    const QSize size = image.size();
    return size.width() > size.height() && isRed(image.pixel(4, 4)) &&
           isBlue(image.pixel(size.width() - 5, 4));
}

/// A picture as it lies in the file: with marks in the corners `red` and `blue`, each "tl", "tr", "bl" or
/// "br".
QImage marked(QSize size, const QString &red, const QString &blue)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    const auto mark = [&](const QString &corner, const QColor &color) {
        painter.fillRect(corner[1] == u'l' ? 0 : size.width() - markSide,
                         corner[0] == u't' ? 0 : size.height() - markSide, markSide, markSide, color);
    };
    mark(red, Qt::red);
    mark(blue, Qt::blue);
    return image;
}

} // namespace

class TestPictureReading : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { QLoggingCategory::setFilterRules(u"qt.gui.imageio*=false"_s); }

    void turnsPicturesAsTheirCameraWasHeld_data()
    {
        QTest::addColumn<QString>("red");
        QTest::addColumn<QString>("blue");
        QTest::addRow("1") << u"tl"_s << u"tr"_s;
        QTest::addRow("2") << u"tr"_s << u"tl"_s;
        QTest::addRow("3") << u"br"_s << u"bl"_s;
        QTest::addRow("4") << u"bl"_s << u"br"_s;
        QTest::addRow("5") << u"tl"_s << u"bl"_s;
        QTest::addRow("6") << u"bl"_s << u"tl"_s;
        QTest::addRow("7") << u"br"_s << u"tr"_s;
        QTest::addRow("8") << u"tr"_s << u"br"_s;
    }

    void turnsPicturesAsTheirCameraWasHeld()
    {
        QFETCH(QString, red);
        QFETCH(QString, blue);
        const int orientation = QByteArray(QTest::currentDataTag()).toInt();
        const QSize size = orientation < 5 ? uprightSize : uprightSize.transposed();
        const QImage stored = marked(size, red, blue);
        const QString path = TestPhotographs::save(
            m_folder.filePath(u"held.jpg"_s),
            TestPhotographs::photograph(stored, orientation, stored.scaled(size * 3 / 4)));
        const ReadPicture picture = PictureReading::read(path, {100, 100});
        QCOMPARE(picture.pixels, uprightSize);
        QCOMPARE(picture.image.size(), QSize(100, 50));
        QVERIFY(isUpright(picture.image));
        QVERIFY(isUpright(PictureReading::preview(path)));
        QVERIFY(isUpright(PictureFile::read(path, {100, 100})));
        QVERIFY(isUpright(PagePicture::read(path, {100, 100}).image));
    }

    /// Drawn for this test: they lie on their side, say so for their own kind, and say it in the way of
    /// cameras too.
    void turnsPicturesOfTelephonesOnce()
    {
        if (!HeifPictures::areReadable())
            QSKIP("without libheif");
        for (const QString &name : {u"held.heic"_s, u"held.avif"_s, u"thumbnail.heic"_s}) {
            const QString path = QStringLiteral(QUILLERY_TEST_DATA) + u"/pictures/"_s + name;
            for (const QSize bound : {QSize(400, 400), QSize(100, 100), QSize(64, 64)}) {
                const ReadPicture picture = PictureReading::read(path, bound);
                QCOMPARE(picture.pixels, uprightSize);
                QCOMPARE(picture.image.size(),
                         uprightSize.scaled(bound.boundedTo({160, 160}), Qt::KeepAspectRatio));
                QVERIFY2(isUpright(picture.image) && !picture.isCut, qPrintable(name));
            }
            QVERIFY(isUpright(PagePicture::read(path, {100, 100}).image));
            const QImage preview = PictureReading::preview(path);
            QVERIFY(name == u"thumbnail.heic"_s ? isUpright(preview) : preview.isNull());
            QFile file(path);
            QVERIFY(file.open(QIODevice::ReadOnly));
            const QByteArray half = file.read(file.size() / 2);
            const ReadPicture cut = PictureReading::read(
                TestPhotographs::save(m_folder.filePath(u"cut.heic"_s), half), {100, 100});
            QVERIFY(cut.image.isNull());
            QCOMPARE(cut.reason, PictureLines::damagedPicture());
        }
    }

    /// Kinds of which Qt does not tell how the camera was held.
    void turnsPicturesInChunks()
    {
        const QByteArray exif("II*\0\x08\0\0\0\x01\0\x12\x01\x03\0\x01\0\0\0\x06\0\0\0\0\0\0\0", 26);
        const QImage stored = marked(uprightSize.transposed(), u"bl"_s, u"tl"_s);
        const auto bytesAs = [&](const char *kind) {
            QByteArray bytes;
            QBuffer buffer(&bytes);
            return stored.save(&buffer, kind) ? bytes : QByteArray();
        };
        QByteArray png = bytesAs("PNG");
        png.insert(33, QByteArray("\0\0\0\x1a", 4) + "eXIf" + exif + "\xb7\x48\x11\x29");
        QList<std::pair<QString, QByteArray>> rows{{u"held.png"_s, png}};
        if (QByteArray webp = bytesAs("WEBP"); !webp.isEmpty()) {
            // The simple form of the file has no place for it: a head that announces it comes before the
            // picture.
            const QByteArray head("VP8X\x0a\0\0\0\x08\0\0\0\x4f\0\0\x9f\0\0", 18);
            webp = webp.first(12) + head + webp.sliced(12) + "EXIF" + QByteArray("\x1a\0\0\0", 4) + exif;
            const auto length = quint32(webp.size() - 8);
            for (int i = 0; i < 4; ++i)
                webp[4 + i] = char(length >> 8 * i & 0xFF);
            rows.append({u"held.webp"_s, webp});
        }
        for (const auto &[name, bytes] : rows) {
            const QString path = TestPhotographs::save(m_folder.filePath(name), bytes);
            const ReadPicture picture = PictureReading::read(path, {100, 100});
            QCOMPARE(picture.pixels, uprightSize);
            QCOMPARE(picture.image.size(), QSize(100, 50));
            QVERIFY2(isUpright(picture.image) && !picture.isCut, qPrintable(name));
        }
    }

    void takesTheBarsOffAPreview()
    {
        const QImage stored = marked({300, 200}, u"tl"_s, u"tr"_s);
        QImage barred(160, 120, QImage::Format_RGB32);
        barred.fill(Qt::black);
        QPainter(&barred).drawImage(QRect(0, 7, 160, 106), stored);
        const QString path = TestPhotographs::save(m_folder.filePath(u"bars.jpg"_s),
                                                   TestPhotographs::photograph(stored, 1, barred));
        const QImage preview = PictureReading::preview(path);
        QCOMPARE(preview.size(), QSize(160, 106));
        QVERIFY(isUpright(preview));
    }

    void saysWhyAFileIsNoPicture()
    {
        const auto file = [this](const QString &name, const QByteArray &bytes) {
            return TestPhotographs::save(m_folder.filePath(name), bytes);
        };
        // A picture of 20,000 by 20,000 pixels that says no more than that.
        const QByteArray vast("\x89PNG\r\n\x1a\n\0\0\0\rIHDR\0\0\x4e\x20\0\0\x4e\x20\x08\x02\0\0\0\x6c\x12"
                              "\xd1\x6e\0\0\0\x10IDAT",
                              41);
        const QList<std::pair<QString, QString>> rows{
            {m_folder.filePath(u"none.jpg"_s), PictureLines::pictureNotFound()},
            {m_folder.path(), PictureLines::noFile()},
            {u"/dev/zero"_s,
             QFile::exists(u"/dev/zero"_s) ? PictureLines::noFile() : PictureLines::pictureNotFound()},
            {file(u"empty.jpg"_s, {}), PictureLines::emptyFile()},
            {file(u"text.jpg"_s, "Dear Karin,\n"), PictureLines::noPictureInside()},
            {file(u"noise.png"_s, QByteArray("\x89PNG\r\n\x1a\n", 8) + QByteArray(90, 'x')),
             PictureLines::damagedPicture()},
            {file(u"bird.webp"_s, QByteArray("RIFF\x1a\0\0\0WEBPVP8 \x0e\0\0\0", 20) + QByteArray(14, 'x')),
             QImageReader::supportedImageFormats().contains("webp")
                 ? PictureLines::damagedPicture()
                 : PictureLines::kindNotInstalled(u"WebP"_s)},
            {file(u"vast.png"_s, vast), PictureLines::tooLarge({20000, 20000})},
        };
        for (const auto &[path, reason] : rows) {
            const ReadPicture picture = PictureReading::read(path, {100, 100});
            QVERIFY2(picture.image.isNull(), qPrintable(path));
            QVERIFY2(picture.reason == reason, qPrintable(path + u": "_s + picture.reason));
        }
    }

    void showsACutPictureAsFarAsItGoes()
    {
        const QByteArray whole = TestPhotographs::jpeg(TestPhotographs::draw({400, 300}, 1));
        QByteArray png;
        QBuffer buffer(&png);
        QVERIFY(TestPhotographs::draw({400, 300}, 2).save(&buffer, "PNG"));
        const QList<std::tuple<const char *, QByteArray, bool>> rows{
            {"whole", whole, false},
            {"half", whole.first(whole.size() / 2), true},
            {"without its last byte", whole.chopped(1), true},
            {"filled up with zeros", whole.first(whole.size() / 2) + QByteArray(5000, '\0'), true},
            {"followed by a film", whole + "mpv2" + QByteArray(5000, '\xD8'), false},
            {"with a preview, half",
             TestPhotographs::photograph(TestPhotographs::draw({400, 300}, 1), 1,
                                         TestPhotographs::draw({160, 120}, 1))
                 .chopped(4000),
             true},
            {"half a PNG", png.first(png.size() / 2), true},
        };
        for (const auto &[what, bytes, isCut] : rows) {
            const QString path = TestPhotographs::save(m_folder.filePath(u"cut.jpg"_s), bytes);
            const ReadPicture picture = PictureReading::read(path, {200, 200});
            QVERIFY2(picture.image.size() == QSize(200, 150), what);
            QVERIFY2(picture.isCut == isCut, what);
        }
    }

    void showsNothingThatIsNotOfThePicture()
    {
        QImage drawn(400, 300, QImage::Format_RGB32);
        for (int y = 0; y < drawn.height(); ++y) {
            for (int x = 0; x < drawn.width(); ++x)
                drawn.setPixel(x, y, qRgb((x * x * 7 + y * 31) % 256, (x * y) % 251, (y * y + x) % 253));
        }
        QByteArray png;
        QBuffer buffer(&png);
        QVERIFY(drawn.save(&buffer, "PNG"));
        const QString half =
            TestPhotographs::save(m_folder.filePath(u"half.png"_s), png.first(png.size() / 2));
        const QImage cut = PictureReading::read(half, {400, 300}).image;
        QCOMPARE(cut.pixelColor(200, 299), QColor(Qt::lightGray));
        QCOMPARE(cut.pixelColor(200, 2), drawn.pixelColor(200, 2));

        if (!QImageReader::supportedImageFormats().contains("tiff"))
            return;
        // 4 by 4 dots of ink, as printers have them.
        const QByteArray inks =
            QByteArray("II*\0\x08\0\0\0\x09\0", 10) + QByteArray("\0\1\3\0\1\0\0\0\4\0\0\0", 12) +
            QByteArray("\1\1\3\0\1\0\0\0\4\0\0\0", 12) + QByteArray("\2\1\3\0\4\0\0\0\x7A\0\0\0", 12) +
            QByteArray("\3\1\3\0\1\0\0\0\1\0\0\0", 12) + QByteArray("\6\1\3\0\1\0\0\0\5\0\0\0", 12) +
            QByteArray("\x11\1\4\0\1\0\0\0\x82\0\0\0", 12) + QByteArray("\x15\1\3\0\1\0\0\0\4\0\0\0", 12) +
            QByteArray("\x16\1\3\0\1\0\0\0\4\0\0\0", 12) + QByteArray("\x17\1\4\0\1\0\0\0\x40\0\0\0", 12) +
            QByteArray(4, '\0') + QByteArray("\x08\0\x08\0\x08\0\x08\0", 8) + QByteArray(64, '\x40');
        const ReadPicture printed =
            PictureReading::read(TestPhotographs::save(m_folder.filePath(u"ink.tif"_s), inks), {100, 100});
        QVERIFY(printed.image.isNull() ? !printed.reason.isEmpty() : !printed.isCut);
    }

    /// Beyond what Qt reads by itself: the whole picture where there is memory for it, else as much as there
    /// is.
    void readsVeryLargePictures()
    {
        QByteArray vast = TestPhotographs::jpeg(TestPhotographs::draw({64, 64}, 1));
        const qsizetype frame = vast.indexOf("\xFF\xC0");
        vast.replace(frame + 5, 4, "\x27\x10\x4E\x20"); // 20,000 by 10,000, of which few pixels are there
        const QString path = TestPhotographs::save(m_folder.filePath(u"vast.jpg"_s), vast);
        const ReadPicture small = PictureReading::read(path, {200, 200});
        QCOMPARE(small.pixels, QSize(20000, 10000));
        QCOMPARE(small.image.size(), QSize(200, 100));
        QImage page(6000, 5700, QImage::Format_Grayscale8);
        page.fill(Qt::gray);
        const QString scan = m_folder.filePath(u"scan.png"_s);
        QVERIFY(page.save(scan));
        const ReadPicture read = PictureReading::read(scan, {300, 300});
        QVERIFY(read.image.isNull() ? read.reason == PictureLines::tooLarge({6000, 5700})
                                    : read.image.size() == QSize(300, 285));
        QCOMPARE(QImageReader::allocationLimit(), 128);
    }

    void showsTheFirstOfManyPictures()
    {
        QByteArray film("GIF89a\x02\0\x02\0\x80\0\0\xFF\0\0\0\0\xFF", 19);
        const QByteArray still("\x2C\0\0\0\0\x02\0\x02\0\0\x02\x02\x84\x51\0", 15);
        for (int i = 0; i < 100000; ++i)
            film += still;
        const ReadPicture picture = PictureReading::read(
            TestPhotographs::save(m_folder.filePath(u"film.gif"_s), film + ';'), {200, 200});
        QCOMPARE(picture.image.size(), QSize(2, 2));
        QVERIFY(isRed(picture.image.pixel(0, 0)));
    }

    void survivesAnyHeadOfAFile()
    {
        const QByteArray good = TestPhotographs::photograph(TestPhotographs::draw({40, 30}, 1), 6,
                                                            TestPhotographs::draw({16, 12}, 1));
        for (qsizetype i = 0; i < 120; ++i) {
            for (const char wrong : {'\0', '\x7F', '\xFF'}) {
                QByteArray bytes = good;
                bytes[i] = wrong;
                const QString path = TestPhotographs::save(m_folder.filePath(u"wrong.jpg"_s), bytes);
                static_cast<void>(PictureReading::preview(path));
                static_cast<void>(PictureReading::read(path, {100, 100}));
            }
            const QString path = TestPhotographs::save(m_folder.filePath(u"short.jpg"_s), good.first(i));
            QVERIFY(PictureReading::preview(path).isNull());
        }
    }

private:
    QTemporaryDir m_folder;
};

QTEST_MAIN(TestPictureReading)
#include "tst_picturereading.moc"
