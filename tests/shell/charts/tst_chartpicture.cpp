// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/charts/chartpicture.h"
#include "tests/support/failingdisk.h"
#include "tests/support/testfiles.h"
#include "tests/support/testprogram.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QImage chart(const QColor &color)
{
    QImage image(1980, 880, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

bool shows(const QString &path, const QColor &color)
{
    const QImage image(path);
    return image.size() == QSize(1980, 880) && qAbs(image.pixelColor(900, 400).red() - color.red()) < 4;
}

} // namespace

/// The picture file of the totals' chart.
class TestChartPicture final : public QObject
{
    Q_OBJECT
private slots:
    void replacesTheFileOfTheHousehold()
    {
        const TestProgram test;
        test.setBytes(u"CHARTXXX.JPG"_s, "an old one");
        ChartPicture picture(test.folder);
        QCOMPARE(spelt(picture.store(chart(Qt::white))), spelt(test.path(u"CHARTXXX.JPG"_s)));
        QVERIFY(shows(test.path(u"CHARTXXX.JPG"_s), Qt::white));
        QVERIFY(picture.store({}).isEmpty());
        QVERIFY(shows(test.path(u"CHARTXXX.JPG"_s), Qt::white));
    }

    void aHouseholdForReadingOnlyStaysAsItIs()
    {
        const TestProgram test(TestProgram::Empty, u"for reading only"_s);
        ChartPicture picture(test.folder);
        const QString path = picture.store(chart(Qt::black));
        QVERIFY(shows(path, Qt::black));
        QVERIFY(!path.startsWith(test.folder.path()) && !test.folder.exists(u"Chartxxx.jpg"_s));
    }

    void aFullDiskIsNoReasonNotToPrint()
    {
        const TestProgram test;
        ChartPicture picture(test.folder);
        const FailingDisk disk(DiskFailure::OneStep, 1);
        QVERIFY(shows(picture.store(chart(Qt::red)), Qt::red));
        QVERIFY(!test.folder.exists(u"Chartxxx.jpg"_s));
    }
};

QTEST_MAIN(TestChartPicture)
#include "tst_chartpicture.moc"
