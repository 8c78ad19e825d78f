// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/rows.h"
#include "tests/support/sheettools.h"
#include "tests/support/testfiles.h"
#include "tests/support/testpictures.h"

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
    void init() { m_files = std::make_unique<TestFolder>(); }

    void putsPicturesToTheHundredthOfAnInch_data()
    {
        const QRectF first(0.25, 0.8, 1.5, 1.5), last(6.25, 8.8, 1.5, 1.5), odd(3.33, 5.67, 1.5, 1.5);
        rows<QSize, QRectF, QRectF>({
            {"the first place", {900, 900}, first, first},
            {"the last place", {900, 900}, last, last},
            {"an odd hundredth", {900, 900}, odd, odd},
            {"a picture that is wider than high", {600, 200}, {1, 2, 3, 3}, {1, 2, 3, 1}},
        });
    }

    void putsPicturesToTheHundredthOfAnInch()
    {
        if (!hasPdfTools())
            QSKIP("needs poppler's tools");
        const auto [size, place, expected] = row<QSize, QRectF, QRectF>();
        constexpr double dotsPerInch = 200;
        const QString path = makePicture(m_files->path(u"picture.png"_s), size, red);
        const Page page = Page(u"Pictures"_s).placePicture(place, path);
        const QImage onScreen = PagePainter(page, {}, bodyFont()).image(0, dotsPerInch);
        QCOMPARE(onScreen.size(), (letter * dotsPerInch).toSize());
        const QRectF ink = inkOf(onScreen, red, dotsPerInch);
        for (const double off : {ink.left() - expected.left(), ink.top() - expected.top(),
                                 ink.width() - expected.width(), ink.height() - expected.height()})
            QVERIFY2(std::abs(off) <= 0.01, qPrintable(QString::number(off)));

        const QString prefix = m_files->path(u"paper"_s);
        output(u"pdftoppm"_s, {u"-r"_s, u"200"_s, u"-png"_s, u"-singlefile"_s,
                               savePdf(m_files->path(u"page.pdf"_s), page), prefix});
        const QImage onPaper(prefix + u".png"_s);
        const int middle = qRound(expected.center().y() * dotsPerInch);
        int first = 0;
        while (first < onPaper.width() &&
               qRed(onPaper.pixel(first, middle)) - qGreen(onPaper.pixel(first, middle)) < 100)
            ++first;
        QVERIFY(std::abs(first / dotsPerInch - expected.left()) <= 0.01);
    }

    void leavesAnEmptyPlaceForPicturesThatCannotBeRead_data()
    {
        rows<QByteArray>({
            {"nothing in it", {}},
            {"noise", {"BM noise that begins as a picture would \xff\xd8\xff\x00\x01", 44}},
            {"a picture cut off", QByteArray::fromHex("89504e470d0a1a0a0000000d49484452000003e8000003e808")},
            {"a picture larger than the memory",
             QByteArray::fromHex("424d3600000000000000360000002800000000ffff7f00ffff7f0100180000000000"
                                 "0000000000000000000000")},
        });
    }

    void leavesAnEmptyPlaceForPicturesThatCannotBeRead()
    {
        const auto [bytes] = row<QByteArray>();
        m_files->put(u"broken.jpg"_s, bytes);
        Page page;
        for (const QString &name :
             {m_files->path(u"broken.jpg"_s), m_files->path({}), m_files->path(u"none.jpg"_s), QString()})
            page.placePicture({4, 4, 2, 2}, name).picture(name, {2, 2});
        const QImage image = PagePainter(page, {}, bodyFont()).image(0, 100);
        QVERIFY(isBlank(image, {4.1, 4.1, 1.8, 1.8}, 100));
        QVERIFY(!isBlank(image, {3.98, 3.98, 2.04, 2.04}, 100));
    }

    void turnsPicturesAsTheCameraWasHeld()
    {
        // A picture that lies on its side, with the mark of a camera held upright before its data.
        const QString path = makePicture(m_files->path(u"upright.jpg"_s), {40, 20}, red);
        QByteArray bytes = m_files->bytes(u"upright.jpg"_s);
        bytes.insert(2, QByteArray::fromHex("ffe10022457869660000" // an Exif part of 34 bytes
                                            "4d4d002a00000008"     // big endian, its directory at 8
                                            "0001" // with one entry, which tells how it was held
                                            "01120003000000010006000000000000"));
        m_files->put(u"upright.jpg"_s, bytes);

        constexpr double dotsPerInch = 100;
        const Page page = Page().placePicture({1, 1, 2, 2}, path);
        const QImage sheet = PagePainter(page, {}, bodyFont()).image(0, dotsPerInch);
        QVERIFY(isBlank(sheet, {2.1, 1, 1, 2}, dotsPerInch));
        QVERIFY(!isBlank(sheet, {1, 2.8, 0.9, 0.1}, dotsPerInch));
    }

private:
    std::unique_ptr<TestFolder> m_files;
};

QTEST_MAIN(TestPagePicture)
#include "tst_pagepicture.moc"
