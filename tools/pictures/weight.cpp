// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/pictures/albums.h"
#include "tools/pictures/picturesession.h"
#include "weight/model/personfiles.h"

#include <QFile>
#include <QPainter>
#include <QPainterPath>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A picture of a person, drawn: in front of a wall of this colour, and so broad.
QString paintedPerson(const DataFolder &folder, const QString &name, const QColor &wall, int breadth)
{
    QImage image(640, 860, QImage::Format_RGB32);
    image.fill(wall);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(u"#9C8F7C"_s));
    painter.drawRect(0, 780, 640, 80);
    painter.setBrush(QColor(u"#3C4F86"_s));
    painter.drawRoundedRect(320 - breadth / 3, 540, 2 * breadth / 3, 270, 30, 30);
    painter.setBrush(QColor(u"#A8402E"_s));
    painter.drawRoundedRect(320 - breadth / 2, 270, breadth, 330, 70, 70);
    painter.setBrush(QColor(u"#E8C39E"_s));
    painter.drawEllipse(QPoint(320, 180), 76, 92);
    painter.setBrush(QColor(u"#5B4632"_s));
    painter.drawChord(QRect(240, 80, 160, 190), 10 * 16, 160 * 16);
    painter.end();
    if (!image.save(folder.filePath(u"Pictures/"_s + name)))
        qFatal("the picture of a person cannot be written");
    return name; // found in the household's pictures
}

/// A household in which one has photos, and one has reached the goal.
void furnish(const DataFolder &folder)
{
    PersonFiles files(folder);
    WeightSheet nils = files.read(u"Nils Holm 2026"_s).sheet;
    nils.beginningPicture = paintedPerson(folder, u"Nils before.jpg"_s, QColor(u"#CFE1E8"_s), 330);
    nils.currentPicture = paintedPerson(folder, u"Nils now.jpg"_s, QColor(u"#DDE3C8"_s), 250);
    nils.field(WeightSheet::CurrentPhotoDate) = u"August 10, 2026"_s;
    WeightSheet karin = files.read(u"Karin Holm"_s).sheet;
    for (const auto &[date, weight] : {std::pair(u"09/06/2026"_s, u"148.5"_s),
                                       {u"10/11/2026"_s, u"143.2"_s},
                                       {u"11/15/2026"_s, u"139.6"_s}})
        karin.weighIns.append({date, weight});
    if (!files.save(u"Nils Holm 2026"_s, nils) || !files.save(u"Karin Holm"_s, karin))
        qFatal("a person cannot be written");
}

/// The first person's file is noise, and the second's counts too few of its rows.
void damage(const DataFolder &folder)
{
    QFile noise(folder.filePath(u"Karin Holm.Fil"_s));
    QFile miscounted(folder.filePath(u"Nils Holm 2026.Fil"_s));
    if (!noise.open(QIODevice::WriteOnly | QIODevice::Truncate) || noise.write("?") < 1 ||
        !miscounted.open(QIODevice::ReadWrite) || miscounted.write("\"40\"") < 1)
        qFatal("the file of a person cannot be written");
}

void takeDamage(const Camera &camera)
{
    PictureSession session(camera);
    damage(session.program().folder);
    session.open(Function::WeightTracker);
    session.take("weight-trouble");
    session.trigger("mOPrt");
    session.take("weight-print-none");
    session.key(Qt::Key_Escape);
    session.clickRow("Combo1", 1);
    session.take("weight-uncounted");
    session.fill("weighInWeight", u"191.4"_s);
    session.box([&] { session.key(Qt::Key_Return); }, [&] { session.take("weight-uncounted-question"); });
}

} // namespace

void Albums::weight(const Camera &camera)
{
    {
        PictureSession session(camera);
        session.open(Function::WeightTracker);
        session.take("weight-none-yet");
        session.clickRow("Combo1", 1);
        session.take("weight-household");
    }
    takeDamage(camera);
    PictureSession session(camera);
    furnish(session.program().folder);
    session.open(Function::WeightTracker);
    session.take("weight-reached");
    session.clickRow("Combo1", 1);
    session.fill("weighInWeight", u"191.4"_s);
    session.take("weight-typing");
    session.key(Qt::Key_Return);
    session.take("weight-added");
    session.trigger("mVPlan");
    session.take("weight-plan");
    session.trigger("mVPhotos");
    session.take("weight-photos");
    session.click("thenAndNow");
    session.take("weight-then-and-now");
    session.key(Qt::Key_Escape);
    session.click("photo2");
    session.take("weight-picture");
    session.key(Qt::Key_Escape);
    session.box([&] { session.trigger("mODel"); }, [&] { session.take("weight-delete"); });
    session.trigger("mONew");
    session.take("weight-new");
    session.box([&] { session.click("Command11"); }, [&] { session.take("weight-new-refused"); });
}
