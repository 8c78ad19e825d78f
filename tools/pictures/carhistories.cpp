// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/pictures/albums.h"
#include "tools/pictures/picturesession.h"

#include <QComboBox>
#include <QFile>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A file of fill-ups in the preview.
void takeFile(PictureSession &session)
{
    const QString path = session.program().folder.filePath(u"fill-ups.csv"_s);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write("Date;Odometer;Gallons;Cost\n"
                                                       "31.08.2026;82820;7,8;26,52\n"
                                                       "14.09.2026;83110;9,4;31,90\n"
                                                       "28.09.2026;83402;9,1;30,85\n"
                                                       "soon;83700;9,0;30,00\n") < 1)
        qFatal("the file of fill-ups cannot be written");
    file.close();
    session.box([&] { session.trigger("mUBringIn"); },
                [&] {
                    session.fill("fileNameEdit", path);
                    session.key(Qt::Key_Return);
                });
    session.take("car-import");
    session.click("carImportClose");
}

void takeCosts(PictureSession &session)
{
    session.click("fuelCosts");
    auto &charts = session.find<QComboBox>("costsChart");
    session.take("car-costs");
    charts.setCurrentIndex(1);
    session.take("car-costs-kinds");
    charts.setCurrentIndex(4);
    session.take("car-odometer");
    session.click("costsClose");
}

void takePages(PictureSession &session)
{
    session.trigger("mVFuel");
    session.trigger("mOPrt");
    session.take("car-preview");
    session.takePage("car-page-fuel");
    session.key(Qt::Key_Escape);
    session.trigger("mOPCosts");
    session.takePage("car-page-costs");
    session.key(Qt::Key_Escape);
    session.trigger("mOPBuyer");
    session.takePage("car-page-record");
    session.key(Qt::Key_Escape);
    session.trigger("mOPAll");
    session.takePage("car-page-all");
    session.key(Qt::Key_Escape);
}

} // namespace

void Albums::carHistories(const Camera &camera)
{
    PictureSession session(camera);
    session.open(Function::CarLog);
    session.trigger("mVMaint");
    session.take("car-maintenance");
    session.clickRow("maintenanceList", 2, 2);
    session.key(Qt::Key_F2);
    session.takeAtOnce("car-maintenance-typing");
    session.key(Qt::Key_Escape);
    session.trigger("mVRep");
    session.clickRow("Grid3", 0, 1);
    session.take("car-repairs-calendar");
    session.key(Qt::Key_Escape);
    session.key(Qt::Key_Escape);
    session.trigger("mVFuel");
    session.clickRow("fuelEntry", 0, 2);
    session.type(u"84260"_s);
    session.key(Qt::Key_Tab);
    session.type(u"41.1"_s);
    session.key(Qt::Key_Tab);
    session.type(u"139.74"_s);
    session.take("car-fuel-typing");
    session.key(Qt::Key_Return);
    session.take("car-fuel");
    session.click("fuelCalculator");
    session.fill("calculatorCurrent", u"84560"_s);
    session.fill("calculatorUsed", u"6.2+4.1"_s);
    session.fill("calculatorCost", u"35.02"_s);
    session.click("calculatorCalculate");
    session.fill("calculatorDistance", u"420"_s);
    session.take("car-calculators");
    session.click("calculatorClose");
    takeFile(session);
    takeCosts(session);
    takePages(session);
}
