// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/pictures/albums.h"
#include "tools/pictures/picturesession.h"

using namespace Qt::Literals::StringLiterals;

void Albums::password(const Camera &camera)
{
    PictureSession session(camera);
    session.openMainMenu();
    session.open(Function::PasswordControl);
    session.take("password-control-not-set");
    session.click("setPassword");
    session.fill("Text1_1", u"Klavier"_s);
    session.fill("Text1_2", u"Klavier"_s);
    session.take("password-control-set-password");
    session.click("passwordOk");
    session.box([&] { session.click("Check1_0"); },
                [&] {
                    session.take("password-control-other-way");
                    session.click("answerYes");
                });
    session.click("Check1_2");
    session.take("password-control");
    session.click("Command1");
    session.close();

    session.openMainMenu();
    session.take("main-menu-protected");
    session.box([&] { session.click("card_addressBook"); },
                [&] {
                    session.type(u"Violine"_s);
                    session.take("password-prompt");
                });
}
