// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/entry/entrybuttons.h"

#include "addressbook/entry/addressform.h"
#include "addressbook/entry/entryeditor.h"
#include "addressbook/entry/entrylabels.h"
#include "shell/controls/emptypage.h"
#include "shell/frame/commands.h"
#include "shell/frame/workviews.h"
#include "shell/pictures/enlargedpicture.h"

using namespace Qt::Literals::StringLiterals;

void addEntryButtons(EntryEditor &editor, Commands &can, const EntryCommands &entry)
{
    using On = EntryEditor::On;
    using Side = TaskPanel::Side;
    const auto add = [&](QAction *command, const QString &name, const QString &caption, Side side,
                         On screen = On::BothScreens, ButtonKind kind = ButtonKind::Plain) {
        editor.addButton(can.button(command, name, caption, &editor, kind), side, screen);
    };
    add(entry.clear, u"Command2"_s, u"&Clear Current Data"_s, Side::Left, On::EntryScreen);
    add(entry.remove, u"Command3"_s, u"Delete &File"_s, Side::Left, On::ViewScreen);
    add(entry.picture, u"Command7"_s, u"&Load Picture"_s, Side::Left);
    add(entry.printOptions, u"Command5"_s, u"&Print Options"_s, Side::Left, On::ViewScreen);
    add(entry.otherScreen, u"Command6"_s, u"&View Screen"_s, Side::Right);
    add(entry.modify, u"Command4"_s, u"&Make Modifications"_s, Side::Right, On::ViewScreen, ButtonKind::Main);
    add(entry.saveNew, u"Command1"_s, u"&Save && New Screen"_s, Side::Right, On::EntryScreen,
        ButtonKind::Main);
    add(entry.exit, u"Command8"_s, u"E&xit"_s, Side::Right);
}

void addEntryTools(Commands &can, QAction *copy, QAction *print, EntryLabels &labels)
{
    can.tool(copy, "copy"_L1, u"Copy"_s);
    can.tool(print, "print"_L1, u"Print"_s);
    labels.addTool(can);
    can.separateTools();
}

void addEmptyButtons(EmptyPage &page, Commands &can, QAction *enter, QAction *restore)
{
    page.addButton(can.button(enter, u"emptyEntryScreen"_s, u"E&ntry Screen"_s, &page, ButtonKind::Main));
    page.addButton(can.button(restore, u"emptyRestore"_s, u"&Restore Files from Disk"_s, &page));
}

void addEnlargedPicture(EntryEditor &editor, WorkViews &views, const DataFolder &folder)
{
    auto *enlarged = new EnlargedPicture(folder, u"pictureNormal"_s, u"Normal"_s, &views);
    views.addPanel(enlarged);
    QObject::connect(editor.form().enlargeButton(), &QPushButton::clicked, enlarged,
                     [&editor, &views, enlarged] {
                         enlarged->enlarge(editor.picture());
                         views.open(enlarged);
                         enlarged->setFocus();
                     });
}
