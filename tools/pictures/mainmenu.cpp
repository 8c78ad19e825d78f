// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/pictures/albums.h"
#include "tools/pictures/picturesession.h"

#include "shell/mainmenu/splash.h"

void Albums::mainMenu(const Camera &camera)
{
    PictureSession session(camera);
    Splash1 splash(session.program());
    splash.open();
    session.takeWidget("splash", splash);
    splash.close();

    session.openMainMenu();
    session.take("main-menu");
    session.focus("todayList");
    session.take("main-menu-today");
    session.trigger("mOBC");
    session.take("background-selector");
    session.key(Qt::Key_Escape);
    session.click("StatusBar1_RestoreSide");
    session.take("main-menu-side-toolbars");
    session.box([&] { session.trigger("Toolbar2_3"); }, [&] { session.take("customize-toolbar"); });
    session.box([&] { session.trigger("Toolbar2_2"); }, [&] { session.take("family-name"); });
    session.box([&] { session.trigger("Toolbar3_2"); }, [&] { session.take("about"); });
    session.trigger("Toolbar2_4");
    session.take("main-menu-no-top-toolbar");
    session.trigger("Toolbar2_5");
    session.take("main-menu-no-toolbars");
}
