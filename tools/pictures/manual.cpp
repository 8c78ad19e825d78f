// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/pictures/albums.h"
#include "tools/pictures/picturesession.h"

using namespace Qt::Literals::StringLiterals;

void Albums::manual(const Camera &camera)
{
    PictureSession session(camera);
    session.open(Function::AddressBook);
    session.key(Qt::Key_F1);
    session.use("HelpViewer");
    session.take("manual");
    session.fill("search", u"birthday"_s);
    session.take("manual-search");
}
