// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/sheettools.h"

#include <QFile>
#include <QTemporaryDir>

#include <cmath>

using namespace Qt::Literals::StringLiterals;
using namespace SheetTools;

namespace {

constexpr QSizeF letter(8.5, 11);
constexpr QRgb red = qRgb(200, 0, 0);

} // namespace

class TestPagePicture final : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void putsPicturesToTheHundredthOfAnInch_data();
    void putsPicturesToTheHundredthOfAnInch();
    void keepsTheAspectOfPictures();
    void leavesAnEmptyPlaceForPicturesThatCannotBeRead_data();
    void leavesAnEmptyPlaceForPicturesThatCannotBeRead();
    void turnsPicturesAsTheCameraWasHeld();

private:
    QString picture(QSize size) const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

QString TestPagePicture::picture(QSize size) const
{
    const QString path = m_folder->filePath(u"picture.png"_s);
    QImage image(size, QImage::Format_RGB32);
    image.fill(red);
    image.save(path);
    return path;
}

void TestPagePicture::putsPicturesToTheHundredthOfAnInch_data()
{
    QTest::addColumn<QPointF>("corner");
    QTest::newRow("the first place") << QPointF(0.25, 0.8);
    QTest::newRow("the last place") << QPointF(6.25, 8.8);
    QTest::newRow("an odd hundredth") << QPointF(3.33, 5.67);
}

void TestPagePicture::putsPicturesToTheHundredthOfAnInch()
{
    QFETCH(QPointF, corner);
    constexpr double dotsPerInch = 200;
    const Page page = Page(u"Pictures"_s).placePicture({corner, QSizeF(1.5, 1.5)}, picture({900, 900}));
    const QImage onScreen = PagePainter(page, {}, bodyFont()).image(0, dotsPerInch);
    QCOMPARE(onScreen.size(), (letter * dotsPerInch).toSize());
    const QRectF ink = inkOf(onScreen, red, dotsPerInch);
    QVERIFY(std::abs(ink.left() - corner.x()) <= 0.01);
    QVERIFY(std::abs(ink.top() - corner.y()) <= 0.01);
    QVERIFY(std::abs(ink.width() - 1.5) <= 0.01);
    QVERIFY(std::abs(ink.height() - 1.5) <= 0.01);

    const QString prefix = m_folder->filePath(u"paper"_s);
    output(u"pdftoppm"_s, {u"-r"_s, u"200"_s, u"-png"_s, u"-singlefile"_s,
                           savePdf(m_folder->filePath(u"page.pdf"_s), page), prefix});
    const QImage onPaper(prefix + u".png"_s);
    const int row = qRound((corner.y() + 0.75) * dotsPerInch);
    int first = 0;
    while (first < onPaper.width() &&
           qRed(onPaper.pixel(first, row)) - qGreen(onPaper.pixel(first, row)) < 100)
        ++first;
    QVERIFY(std::abs(first / dotsPerInch - corner.x()) <= 0.01);
}

void TestPagePicture::keepsTheAspectOfPictures()
{
    constexpr double dotsPerInch = 100;
    const Page page = Page().placePicture({1, 2, 3, 3}, picture({60, 20}));
    const QRectF ink = inkOf(PagePainter(page, {}, bodyFont()).image(0, dotsPerInch), red, dotsPerInch);
    QCOMPARE(ink.topLeft(), QPointF(1, 2));
    QVERIFY(std::abs(ink.width() - 3) <= 0.02);
    QVERIFY(std::abs(ink.height() - 1) <= 0.02);
}

void TestPagePicture::leavesAnEmptyPlaceForPicturesThatCannotBeRead_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("no file") << QByteArray();
    QTest::newRow("noise") << QByteArray("BM noise that begins as a picture would \xff\xd8\xff\x00\x01", 44);
    QTest::newRow("a picture cut off")
        << QByteArray::fromHex("89504e470d0a1a0a0000000d49484452000003e8000003e808");
    QTest::newRow("a picture larger than the memory") << QByteArray::fromHex(
        "424d3600000000000000360000002800000000ffff7f00ffff7f01001800000000000000000000000000");
}

void TestPagePicture::leavesAnEmptyPlaceForPicturesThatCannotBeRead()
{
    QFETCH(QByteArray, bytes);
    const QString path = m_folder->filePath(u"broken.jpg"_s);
    if (!bytes.isEmpty()) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
    Page page;
    for (const QString &name : {path, m_folder->path(), QString()})
        page.placePicture({4, 4, 2, 2}, name).picture(name, {2, 2});
    const QImage image = PagePainter(page, {}, bodyFont()).image(0, 100);
    QVERIFY(isBlank(image, {4.1, 4.1, 1.8, 1.8}, 100));
    QVERIFY(!isBlank(image, {3.98, 3.98, 2.04, 2.04}, 100));
}

void TestPagePicture::turnsPicturesAsTheCameraWasHeld()
{
    // A picture that lies on its side, with the mark of a camera held upright before its data.
    QImage image(40, 20, QImage::Format_RGB32);
    image.fill(qRgb(200, 0, 0));
    const QString path = m_folder->filePath(u"upright.jpg"_s);
    image.save(path, "JPG", 100);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QByteArray bytes = file.readAll();
    bytes.insert(2, QByteArray::fromHex("ffe10022457869660000" // an Exif part of 34 bytes
                                        "4d4d002a00000008"     // big endian, its directory at 8
                                        "0001"
                                        "0112"
                                        "0003"
                                        "00000001"
                                        "0006"
                                        "0000"
                                        "00000000"));
    file.seek(0);
    file.write(bytes);
    file.close();

    constexpr double dotsPerInch = 100;
    const Page page = Page().placePicture({1, 1, 2, 2}, path);
    const QImage sheet = PagePainter(page, {}, bodyFont()).image(0, dotsPerInch);
    QVERIFY(isBlank(sheet, {2.1, 1, 1, 2}, dotsPerInch));
    QVERIFY(!isBlank(sheet, {1, 2.8, 0.9, 0.1}, dotsPerInch));
}

QTEST_MAIN(TestPagePicture)
#include "tst_pagepicture.moc"
