// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/pictures/albums.h"
#include "tools/pictures/picturesession.h"

using namespace Qt::Literals::StringLiterals;

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
    session.key(Qt::Key_Tab);
    session.type(u"41.1"_s);
    session.key(Qt::Key_Tab);
    session.key(Qt::Key_Tab);
    session.type(u"139.74"_s);
    session.take("car-fuel-typing");
    session.key(Qt::Key_Return);
    session.take("car-fuel");
}
