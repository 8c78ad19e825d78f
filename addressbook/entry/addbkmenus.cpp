// Menus, toolbar and buttons of the address book's screen, and which of them can be used when.

#include "addressbook/entry/entrywindow.h"

#include "addressbook/entry/namelistmodel.h"
#include "addressbook/model/entrylines.h"
#include "addressbook/model/messages.h"
#include "shell/controls/buttonrow.h"
#include "shell/controls/controls.h"
#include "shell/core/framelines.h"

#include <QMenu>
#include <QMenuBar>

using namespace Qt::Literals::StringLiterals;

void ADDBKVIEW::makeMenus()
{
    makeOptionsMenu();
    QMenu *edit = m_editMenu = addMenu(u"mE"_s, u"&Edit"_s);
    m_editCopyAction = addCommand(edit, u"mECopy"_s, u"&Copy"_s, &ADDBKVIEW::copyShown);
    m_editModifyAction = addCommand(edit, u"mEMod1"_s, u"&Make Modifications"_s, &ADDBKVIEW::modifyOrSave);
    QMenu *utilities = addMenu(u"mU"_s, u"&Utilities"_s);
    m_backupAction = addCommand(utilities, u"mUB"_s, u"&Backup Files to Disk"_s, &ADDBKVIEW::openBackup);
    m_restoreAction = addCommand(utilities, u"mUR"_s, u"&Restore Files from Disk"_s, &ADDBKVIEW::openBackup);
    menuBar()->addAction(addCommand(nullptr, u"mH"_s, u"&Help"_s, &ADDBKVIEW::showHelp));
}

void ADDBKVIEW::makeOptionsMenu()
{
    QMenu *menu = addMenu(u"mO"_s, u"&Options"_s);
    m_panelColorAction = addCommand(menu, u"mOC"_s, u"Panel C&olor"_s, &ADDBKVIEW::choosePanelColor);
    addCommand(menu, u"mOTC"_s, u"&Text Color"_s, &ADDBKVIEW::chooseTextColor);
    m_viewAction = addCommand(menu, u"mOV"_s, u"&View"_s, &ADDBKVIEW::viewSelected);
    menu->addSeparator();
    m_clearAction = addCommand(menu, u"mOClr"_s, u"&Clear Current Data"_s, &ADDBKVIEW::clearData);
    m_saveNewAction = addCommand(menu, u"mONS"_s, u"&Save && New Screen"_s, &ADDBKVIEW::saveAndNew);
    m_copyAction = addCommand(menu, u"mOCopy"_s, u"Cop&y"_s, &ADDBKVIEW::copyShown);
    m_deleteAction = addCommand(menu, u"mODel"_s, u"Delete &File"_s, &ADDBKVIEW::deleteShown);
    m_printAction = addCommand(menu, u"mOPrt"_s, u"&Print File"_s, &ADDBKVIEW::printShown);
    m_modifyAction = addCommand(menu, u"mOMod"_s, u"&Make Modifications"_s, &ADDBKVIEW::modifyOrSave);
    menu->addSeparator();
    m_viewScreenAction = addCommand(menu, u"mOVS"_s, u"&View Screen"_s, &ADDBKVIEW::viewSelected);
    m_entryScreenAction = addCommand(menu, u"mOES"_s, u"E&ntry Screen"_s, &ADDBKVIEW::switchMode);
    addCommand(menu, u"mOW"_s, u"Print &Worksheet"_s, &ADDBKVIEW::printWorksheet);
    menu->addSeparator();
    QAction *exit = makeAction(u"mOEx"_s, u"E&xit"_s, this);
    connect(exit, &QAction::triggered, this, &QWidget::close);
    menu->addAction(exit);
}

void ADDBKVIEW::makeToolbar()
{
    addTool(m_copyAction, "copy"_L1, u"Copy"_s);
    addTool(m_printAction, "print"_L1, u"Print File"_s);
    addToolSeparator();
    addTool(m_panelColorAction, "palette"_L1, u"Panel Color"_s);
    addTool(m_backupAction, "backup-command"_L1, u"Backup"_s);
    // An action with an icon would show it in the menu bar in place of its word.
    addTool(addCommand(nullptr, u"toolHelp"_s, u"Help"_s, &ADDBKVIEW::showHelp), "help"_L1, u"Help"_s);
}

QWidget *ADDBKVIEW::makeButtonRow()
{
    m_buttonRow = named(new ButtonRow(this), u"buttonRow"_s);
    const auto make = [this](const QString &name, const QString &caption, void (ADDBKVIEW::*command)(),
                             ButtonKind kind = ButtonKind::Plain) {
        QPushButton *button = makeButton(name, caption, m_buttonRow, kind);
        connect(button, &QPushButton::clicked, this, command);
        return button;
    };
    m_saveNewButton = make(u"Command1"_s, u"&Save && New Screen"_s, &ADDBKVIEW::saveAndNew, ButtonKind::Main);
    m_clearButton = make(u"Command2"_s, u"&Clear Current Data"_s, &ADDBKVIEW::clearData);
    m_deleteButton = make(u"Command3"_s, u"Delete &File"_s, &ADDBKVIEW::deleteShown);
    m_modifyButton =
        make(u"Command4"_s, u"&Make Modifications"_s, &ADDBKVIEW::modifyOrSave, ButtonKind::Main);
    m_printButton = make(u"Command5"_s, u"&Print Options"_s, &ADDBKVIEW::showPrintOptions);
    m_switchButton = make(u"Command6"_s, u"&View Screen"_s, &ADDBKVIEW::switchMode);
    m_pictureButton = make(u"Command7"_s, u"&Load Picture"_s, &ADDBKVIEW::loadPicture);
    m_exitButton = makeButton(u"Command8"_s, u"E&xit"_s, m_buttonRow);
    connect(m_exitButton, &QPushButton::clicked, this, &QWidget::close);
    for (QPushButton *button : {m_clearButton, m_deleteButton, m_pictureButton, m_printButton})
        m_buttonRow->addLeft(button);
    for (QPushButton *button : {m_switchButton, m_modifyButton, m_saveNewButton, m_exitButton})
        m_buttonRow->addRight(button);
    return m_buttonRow;
}

/// Which commands can be used now; the others say why they cannot.
void ADDBKVIEW::refreshCommands()
{
    const bool isEntry = m_mode == Mode::Entry;
    const QString entryOnly = isEntry ? QString() : AddressLines::onEntryScreenOnly();
    setUnavailable(m_clearAction, entryOnly);
    setUnavailable(m_saveNewAction, entryOnly);
    setUnavailable(m_viewScreenAction, m_mode == Mode::View ? AddressLines::alreadyThere() : QString());
    setUnavailable(m_entryScreenAction, isEntry ? AddressLines::alreadyThere() : QString());

    const QString shownOnly = isEmptyShown() ? AddressLines::bookIsEmpty() : QString();
    for (QAction *action : {m_copyAction, m_editCopyAction, m_printAction})
        setUnavailable(action, shownOnly);

    const QString unchangeable = isEntry                ? AddressLines::onViewScreenOnly()
                                 : !shownOnly.isEmpty() ? shownOnly
                                 : m_mayChange          ? QString()
                                 : m_record == 0        ? AddressMessages::lineWithoutNumber()
                                                        : AddressMessages::lineOfAnotherEntry();
    for (QAction *action : {m_deleteAction, m_modifyAction, m_editModifyAction})
        setUnavailable(action, unchangeable);
    for (QPushButton *button : {m_deleteButton, m_modifyButton})
        setUnavailable(button, unchangeable);
    setUnavailable(m_pictureButton, isEntry ? QString() : unchangeable);

    const bool hasBackup = program().functions.has(Function::Backup);
    const QString noBackup = hasBackup ? QString() : FrameLines::backupNotThere();
    setUnavailable(m_backupAction, noBackup);
    setUnavailable(m_restoreAction, noBackup);
    setUnavailable(m_restoreButton, noBackup);
    refreshButtons();
}

void ADDBKVIEW::refreshButtons()
{
    const bool isEntry = m_mode == Mode::Entry;
    m_saveNewButton->setVisible(isEntry);
    m_clearButton->setVisible(isEntry);
    m_deleteButton->setVisible(!isEntry);
    m_modifyButton->setVisible(!isEntry);
    m_printButton->setVisible(!isEntry);
    m_switchButton->setText(isEntry ? u"&View Screen"_s : u"E&ntry Screen"_s);
    const QString modify = m_mode == Mode::Modify ? u"&Save Modifications"_s : u"&Make Modifications"_s;
    m_modifyButton->setText(modify);
    m_modifyAction->setText(modify);
    m_editModifyAction->setText(modify);
    m_buttonRow->rearrange();
}
