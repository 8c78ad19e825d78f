// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/model/carfiles.h"
#include "tools/pictures/albums.h"
#include "tools/pictures/picturesession.h"

#include <QDir>
#include <QPainter>
#include <QPainterPath>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A picture of a car, drawn: of this colour, in front of hills.
QString paintedCar(const DataFolder &folder, const QString &name, const QColor &color)
{
    QImage image(900, 640, QImage::Format_RGB32);
    image.fill(QColor(u"#CFE1E8"_s));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(u"#A9C4A0"_s));
    painter.drawEllipse(-200, 300, 900, 700);
    painter.setBrush(QColor(u"#8FB08A"_s));
    painter.drawEllipse(300, 340, 900, 700);
    painter.setBrush(QColor(u"#6F6A63"_s));
    painter.drawRect(0, 520, 900, 120);
    QPainterPath body;
    body.moveTo(110, 500);
    body.lineTo(110, 400);
    body.quadTo(130, 360, 230, 350);
    body.lineTo(330, 250);
    body.quadTo(360, 225, 420, 225);
    body.lineTo(600, 225);
    body.quadTo(650, 225, 690, 270);
    body.lineTo(750, 350);
    body.quadTo(810, 365, 810, 420);
    body.lineTo(810, 500);
    body.closeSubpath();
    painter.setBrush(color);
    painter.drawPath(body);
    painter.setBrush(QColor(u"#E9F2F5"_s));
    painter.drawPolygon(QPolygon{{300, 350}, {375, 268}, {475, 262}, {475, 350}});
    painter.drawPolygon(QPolygon{{500, 350}, {500, 262}, {600, 262}, {680, 350}});
    for (const int x : {230, 610}) {
        painter.setBrush(QColor(u"#2A2825"_s));
        painter.drawEllipse(x, 430, 130, 130);
        painter.setBrush(QColor(u"#C9C4BB"_s));
        painter.drawEllipse(x + 37, 467, 56, 56);
    }
    painter.end();
    const QString path = folder.filePath(u"Pictures/"_s + name);
    if (!image.save(path))
        qFatal("the picture of a car cannot be written");
    return name; // found in the household's pictures
}

/// A household whose cars have pictures, and of which one needs nothing and one something soon.
void furnish(const DataFolder &folder)
{
    CarFiles files(folder, DateStyle::Usa);
    const QList<QColor> colors{QColor(u"#2B6296"_s), QColor(u"#A8402E"_s), QColor(u"#D9A441"_s)};
    const QList<Vehicle> vehicles = files.vehicles();
    for (qsizetype i = 0; i < vehicles.size(); ++i) {
        const CarRecord before = files.read(vehicles[i].slot).record;
        CarRecord car = before;
        car.sheet.field(VehicleSheet::Picture) =
            paintedCar(folder, u"Car %1.jpg"_s.arg(i + 1), colors[i % colors.size()]);
        auto &actions = car.sheet.actions;
        if (i == 0) {
            actions[2] = {
                u"Inspect Brake Linings"_s, u"12000"_s, u"12"_s, u"75100"_s, u"12/04/2025"_s, u"60.00"_s};
            actions[3] = {u"Replace Air Filter"_s, u"15000"_s, {}, u"78191"_s, u"02/08/2025"_s, u"28.40"_s};
        } else {
            for (ScheduledAction &action : actions) {
                if (!action.date.isEmpty())
                    action.date = i == 1 ? u"06/02/2026"_s : u"06/11/2026"_s;
            }
        }
        if (!files.save(before, car))
            qFatal("a car cannot be written");
    }
}

/// A dozen cars, some with long names, of which the first has thousands of fill-ups.
void crowd(const DataFolder &folder)
{
    CarFiles files(folder, DateStyle::Usa);
    const QDateTime now(QDate(2026, 11, 21), QTime(10, 24));
    for (int i = 4; i <= 12; ++i) {
        CarRecord car = files.read(1).record;
        car.vehicle.name = i % 3 == 0 ? u"Grandmother's old coup\u00e9 with the rust below its doors"_s
                                      : u"Van number %1"_s.arg(i);
        if (i % 2 == 0) {
            for (ScheduledAction &action : car.sheet.actions)
                action = {};
        }
        if (!files.create(car, now).isDone)
            qFatal("a car cannot be made");
    }
    const CarRecord before = files.read(1).record;
    CarRecord car = before;
    for (int i = int(car.fuel.size()); i < 3000; ++i) {
        FuelRow row = car.fuel[i % 10];
        row.previous = QString::number(184'210 + 310 * i);
        row.current = QString::number(184'210 + 310 * (i + 1));
        row.date = QDate(2001, 1, 1).addDays(3 * i).toString(u"MM/dd/yyyy"_s);
        car.fuel.append(row);
    }
    car.sheet.field(VehicleSheet::Odometer) = u"1114210"_s;
    if (!files.save(before, car))
        qFatal("a car cannot be written");
}

void takeExtremes(const Camera &camera)
{
    {
        PictureSession session(camera);
        crowd(session.program().folder);
        session.open(Function::CarLog);
        session.take("cars-many");
        session.trigger("mVFuel");
        session.take("cars-many-fuel");
        session.clickRow("Combo1", 4);
        session.trigger("mVDue");
        session.take("cars-long-name");
    }
    PictureSession session(camera);
    QDir(session.program().folder.path()).remove(u"CARMNT1.FIL"_s);
    session.open(Function::CarLog);
    session.take("cars-empty");
}

void takeCreation(PictureSession &session)
{
    session.trigger("mONew");
    session.take("cars-new");
    session.fill("Text1_0", u"Grandmother's coupé"_s);
    session.fill("Text1_20", u"Volvo"_s);
    session.fill("Text1_21", u"P1800"_s);
    session.fill("Text1_22", u"61,300"_s);
    session.box([&] { session.trigger("createNext"); }, [&] { session.take("cars-new-asked"); });
}

} // namespace

void Albums::cars(const Camera &camera)
{
    {
        PictureSession session(camera);
        session.open(Function::CarLog);
        session.take("cars-household");
    }
    PictureSession session(camera);
    furnish(session.program().folder);
    session.open(Function::CarLog);
    session.take("cars-due");
    session.click("done_0");
    session.take("cars-done");
    session.click("doneCancel");
    session.trigger("mVInfo");
    session.take("cars-information");
    session.click("carPicture");
    session.take("cars-picture");
    session.key(Qt::Key_Escape);
    session.clickRow("Combo1", 1);
    session.trigger("mVDue");
    session.take("cars-due-soon");
    session.box([&] { session.trigger("mODel"); }, [&] { session.take("cars-delete"); });
    takeCreation(session);
    takeExtremes(camera);
}
