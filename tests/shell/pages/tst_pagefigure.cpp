// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/rows.h"
#include "tests/support/sheettools.h"
#include "tests/support/testfiles.h"
#include "tests/support/testpictures.h"

#include <cmath>

using namespace Qt::Literals::StringLiterals;
using namespace SheetTools;

namespace {

constexpr double dotsPerInch = 100;
constexpr QRgb red = qRgb(200, 0, 0);

} // namespace

class TestPageFigure final : public QObject
{
    Q_OBJECT
private slots:
    void init() { m_files = std::make_unique<TestFolder>(); }

    void isAsLargeAsItsPlaceAndItsDotsAllow_data()
    {
        rows<QSize, QSizeF, QSizeF>({
            {"wider than high", {1200, 600}, {4, 3}, {4, 2}},
            {"higher than wide", {600, 1200}, {4, 3}, {1.5, 3}},
            {"of few dots", {200, 100}, {4, 3}, {2, 1}},
            {"a place wider than the page", {3000, 300}, {20, 3}, {7.5, 0.75}},
        });
    }

    void isAsLargeAsItsPlaceAndItsDotsAllow()
    {
        const auto [dots, within, expected] = row<QSize, QSizeF, QSizeF>();
        const QString path = makePicture(m_files->path(u"picture.png"_s), dots, QColor(red));
        const PagePainter painter(Page().figure(path, within, u"The caption"_s), {}, bodyFont());
        const QRectF ink = inkOf(painter.image(0, dotsPerInch), red, dotsPerInch);
        QVERIFY2(std::abs(ink.width() - expected.width()) < 0.03, qPrintable(QString::number(ink.width())));
        QVERIFY2(std::abs(ink.height() - expected.height()) < 0.03,
                 qPrintable(QString::number(ink.height())));
        QVERIFY(std::abs(ink.center().x() - 4.25) < 0.03);
    }

    void neverStandsOnAnotherSheetThanItsCaption()
    {
        const QString path = makePicture(m_files->path(u"picture.png"_s), {400, 300}, QColor(red));
        for (int before = 20; before < 50; ++before) {
            Page page;
            for (int i = 0; i < before; ++i)
                page.line(u"a line"_s);
            const PagePainter painter(page.figure(path, {4, 3}, u"The caption"_s), {}, bodyFont());
            const int last = painter.sheetCount() - 1;
            QVERIFY(painter.text(last).contains(u"The caption"_s));
            // Both stand below the last line that comes before them, and the picture is no less than two
            // thirds of its size.
            const QRectF ink = inkOf(painter.image(last, dotsPerInch), red, dotsPerInch);
            QVERIFY2(ink.height() > 1.95, qPrintable(QString::number(before)));
            QVERIFY2(ink.bottom() < 10.35, qPrintable(QString::number(before)));
        }
    }

    void aPictureThatIsNotThereIsNamed_data()
    {
        rows<QByteArray>({{"missing", {}}, {"no picture", "not a picture"}});
    }

    void aPictureThatIsNotThereIsNamed()
    {
        if (!hasPdfTools())
            QSKIP("needs poppler's tools");
        const auto [content] = row<QByteArray>();
        const QString path = m_files->path(u"ferry.jpg"_s);
        if (!content.isEmpty())
            m_files->put(u"ferry.jpg"_s, content);
        const Page page = Page().figure(path, {4, 3}, u"At the quay"_s);
        const QString text = pdfSheets(savePdf(m_files->path(u"page.pdf"_s), page)).constFirst();
        QVERIFY(text.contains(u"ferry.jpg"_s) && text.contains(u"At the quay"_s));
    }

private:
    std::unique_ptr<TestFolder> m_files;
};

QTEST_MAIN(TestPageFigure)
#include "tst_pagefigure.moc"
