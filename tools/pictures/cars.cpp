// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/pictures/albums.h"
#include "tools/pictures/picturesession.h"

void Albums::cars(const Camera &camera)
{
    PictureSession session(camera);
    session.open(Function::CarLog);
    session.take("cars-due");
    session.trigger("mVInfo");
    session.take("cars-information");
}
