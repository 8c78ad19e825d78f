// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/entry/entrywindow.h"

#include "addressbook/entry/addressform.h"
#include "addressbook/entry/addresspicture.h"
#include "addressbook/entry/bookchanges.h"
#include "addressbook/entry/entrybuttons.h"
#include "addressbook/entry/entrylabels.h"
#include "addressbook/entry/sameaddresslink.h"
#include "addressbook/model/entrylines.h"
#include "addressbook/model/indexline.h"
#include "addressbook/model/messages.h"
#include "shell/controls/activitybar.h"
#include "shell/controls/emptypage.h"
#include "shell/core/framelines.h"
#include "shell/core/helpcontexts.h"
#include "shell/frame/commonkeys.h"
#include "shell/frame/picturetaker.h"
#include "shell/frame/sidesplitter.h"
#include "shell/frame/undostack.h"
#include "shell/frame/workviews.h"

#include <QApplication>
#include <QClipboard>
#include <QMenu>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

WindowTraits traits()
{
    return {u"ADDBKVIEW"_s,
            u"Family/Friends Data View Screen"_s,
            u"View Screen"_s,
            {SettingsKeys::addressEntryColor, SettingsKeys::addressEntryProgramColor,
             SettingsKeys::addressEntryTextColor},
            HelpContext::AddressBook};
}

} // namespace

ADDBKVIEW::ADDBKVIEW(Program &program, QWidget *parent, Dialler::MakeModem makeModem,
                     EntryLinks::OpenAddress openAddress)
    : FunctionWindow(program, traits(), parent)
    , m_book(program.folder)
    , m_list(new EntryList({[this] { return isModified(); }, [this] { return mayReplaceShown(); }},
                           program.store, this))
    , m_editor(new EntryEditor(program, this))
    , m_changes(new BookChanges(program,
                                {m_book, *m_list, *m_editor, undoStack(),
                                 [this](int record) { openBook(m_list->shownRow(), record); },
                                 [this] { return mayReplaceShown(); },
                                 [this](TaskPanel *panel) { openPanel(panel); }},
                                this))
    , m_dialler(program, this, m_editor->form().dialingLabel(), std::move(makeModem))
    , m_views(new WorkViews(this))
    , m_emptyPage(new EmptyPage("address-book"_L1, u"Nobody is in the address book yet"_s,
                                u"Type the first entry, or take in addresses you already have."_s, this))
    , m_picturePanel(new PicturePanel(program, addressPictureUse(), PicturePanel::systemDrives, this))
    , m_printOptions(new PrintOptions(program, m_book, *m_list, *m_editor, this))
    , m_labels(new EntryLabels(program, activity(), *m_list, m_views, this))
{
    setWork(new SideSplitter(u"leftPaneSplitter"_s, m_list, makeWorkPanel(),
                             [](QSize window) { return window.width() < 1200 ? 212 : 272; }));
    makeMenus();
    connectParts(new EntryLinks(m_editor->form(), std::move(openAddress)));
    setViews(m_views);
    finishFrame();
    openBook(0);
}

QWidget *ADDBKVIEW::makeWorkPanel()
{
    QWidget *panel = makePanel(u"Panel3D1"_s, m_views);
    m_views->addHome(m_editor);
    m_views->addHome(m_emptyPage);
    m_views->addPanel(m_picturePanel);
    m_views->addPanel(m_printOptions);
    addEnlargedPicture(*m_editor, *m_views, program().folder);
    return panel;
}

void ADDBKVIEW::makeMenus()
{
    QMenu *options = addMenu(u"mO"_s, u"&Options"_s);
    QMenu *edit = addMenu(u"mE"_s, u"&Edit"_s);
    addUtilitiesMenu();
    addHelpEntry();
    addCommands(options, edit);
    // Alt+E belongs to "Enter Picture Into Program" while the panel of pictures is open.
    connect(m_views, &WorkViews::changed, edit, [this, edit](const QWidget *view) {
        edit->setTitle(view == m_picturePanel ? u"Edit"_s : u"&Edit"_s);
    });
}

void ADDBKVIEW::addCommands(QMenu *options, QMenu *edit)
{
    namespace Keys = CommonKeys;
    const auto entryOnly = [this] { return isNew() ? QString() : AddressLines::onEntryScreenOnly(); };
    const auto noneShown = [this] { return whyNothingShown(); };
    const auto fixed = [this] { return whyUnchangeable(); };
    const auto kept = [this] { return m_editor->isStray() ? QString() : whyUnchangeable(); };
    const auto viewed = [this] { return mode() == Mode::View ? AddressLines::alreadyThere() : QString(); };
    const auto entered = [this] { return isNew() ? AddressLines::alreadyThere() : QString(); };
    const auto add = [this, options](const QString &name, const QString &caption, void (ADDBKVIEW::*run)(),
                                     Commands::Reason unless = {}, const QKeySequence &key = {}) {
        return commands().add(
            options, name, caption, [this, run] { (this->*run)(); }, std::move(unless), key);
    };
    options->addActions({standard(Standard::PanelColor), standard(Standard::TextColor)});
    add(u"mOV"_s, u"&View"_s, &ADDBKVIEW::viewSelected);
    options->addSeparator();
    QAction *clear = add(u"mOClr"_s, u"&Clear Current Data"_s, &ADDBKVIEW::clearData, entryOnly);
    QAction *saveNew =
        add(u"mONS"_s, u"&Save && New Screen"_s, &ADDBKVIEW::saveAndNew, entryOnly, Keys::save);
    QAction *copy = add(u"mOCopy"_s, u"Cop&y"_s, &ADDBKVIEW::copyShown, noneShown);
    QAction *remove = add(u"mODel"_s, u"Delete &File"_s, &ADDBKVIEW::deleteShown, kept);
    QAction *print = add(u"mOPrt"_s, u"&Print File"_s, &ADDBKVIEW::printShown, noneShown, Keys::print);
    m_modify = add(u"mOMod"_s, u"&Make Modifications"_s, &ADDBKVIEW::modifyOrSave, fixed);
    options->addSeparator();
    add(u"mOVS"_s, u"&View Screen"_s, &ADDBKVIEW::viewSelected, viewed, Keys::views[0]);
    QAction *enter = add(u"mOES"_s, u"E&ntry Screen"_s, &ADDBKVIEW::switchMode, entered, Keys::newEntry);
    add(u"mOW"_s, u"Print &Worksheet"_s, &ADDBKVIEW::printWorksheet);
    m_labels->addCommand(commands(), options);
    options->addSeparator();
    options->addAction(standard(Standard::Exit));
    addEditCommands(edit, copy, remove);
    addEntryTools(commands(), copy, print, *m_labels);
    for (const Standard tool : {Standard::PanelColor, Standard::Backup, Standard::Help})
        addStandardTool(tool);
    makeButtons(clear, saveNew, remove);
    addEmptyButtons(*m_emptyPage, commands(), enter, standard(Standard::Restore));
    for (QAction *command : {clear, saveNew, remove, m_modify, enter, m_otherScreen})
        commands().writing(command);
}

void ADDBKVIEW::addEditCommands(QMenu *edit, QAction *copy, QAction *remove)
{
    m_changes->addCommands(edit, commands(), *m_views);
    commands().repeat(copy, edit, u"mECopy"_s, u"&Copy"_s);
    commands().repeat(m_modify, edit, u"mEMod1"_s);
    commands().setKeyIn(m_list, remove, CommonKeys::remove);
    const auto search = [this] {
        closePreview();
        m_list->startSearch();
    };
    commands().add(
        edit, u"mEFind"_s, u"&Find"_s, search, [this] { return whyNothingShown(); }, CommonKeys::search);
}

void ADDBKVIEW::makeButtons(QAction *clear, QAction *saveNew, QAction *remove)
{
    Commands &can = commands();
    QAction *picture = can.writing(can.add(
        nullptr, u"loadPicture"_s, u"&Load Picture"_s, [this] { loadPicture(); },
        [this] { return isNew() ? QString() : whyUnchangeable(); }));
    QAction *printOptions =
        can.add(nullptr, u"showPrintOptions"_s, u"&Print Options"_s, [this] { showPrintOptions(); });
    m_otherScreen = can.add(nullptr, u"otherScreen"_s, u"&View Screen"_s, [this] { switchMode(); });
    addEntryButtons(
        *m_editor, can,
        {clear, remove, picture, printOptions, m_otherScreen, m_modify, saveNew, standard(Standard::Exit)});
    const auto *taker = new PictureTaker(program(), m_editor->form().picture(), addressPictureUse(), *picture,
                                         {[this] { return m_editor->typed().fullName(); },
                                          [this](const QString &path) { m_editor->setPicture(path); }});
    connect(taker, &PictureTaker::said, m_editor, &EntryEditor::said);
}

void ADDBKVIEW::connectParts(EntryLinks *links)
{
    connect(links, &EntryLinks::said, m_editor, &EntryEditor::said);
    new SameAddressLink(m_book, *m_list, *m_editor, this);
    connect(m_list, &EntryList::rowShown, this, &ADDBKVIEW::showLine);
    connect(m_list, &EntryList::nothingFound, this, [this] {
        activity().say({});
        ask(AddressMessages::noMatch());
    });
    connect(m_list, &EntryList::matchFound, this, [this](int row, int number, int count) {
        activity().say(AddressLines::matchOf(number, count));
        m_toSay = row == m_list->shownRow() ? QString() : activity().message();
    });
    connect(m_editor, &EntryEditor::changed, this, &ADDBKVIEW::refreshScreen);
    connect(m_editor, &EntryEditor::said, &activity(), &ActivityBar::say);
    connect(m_changes, &BookChanges::said, &activity(), &ActivityBar::say);
    connect(&m_editor->form(), &AddressForm::dialRequested, this, [this](const QString &number) {
        if (!m_dialler.call(number))
            activity().say(FrameLines::settingNotSaved());
    });
    connect(m_picturePanel, &PicturePanel::pictureEntered, this, &ADDBKVIEW::takePicture);
    connect(m_picturePanel, &PicturePanel::pictureDeleted, this, [this] { takePicture(noPicture); });
    connect(m_picturePanel, &PicturePanel::said, &activity(), &ActivityBar::say);
}

QString ADDBKVIEW::whyUnchangeable() const
{
    return isEmptyShown() ? whyNothingShown() : m_editor->whyUnchangeable();
}

QString ADDBKVIEW::whyNothingShown() const
{
    return isEmptyShown() ? AddressLines::bookIsEmpty() : QString();
}

void ADDBKVIEW::refreshScreen()
{
    closePreview(); // it would hide what is typed into from now on
    setWindowTitle(isNew() ? u"Family/Friends Data Entry Screen"_s : u"Family/Friends Data View Screen"_s);
    activity().setActivity(isNew() ? u"Entry Screen"_s : u"View Screen"_s);
    const bool isModifying = mode() == Mode::Modify;
    commands().setCaption(m_modify, isModifying ? u"&Save Modifications"_s : u"&Make Modifications"_s);
    m_modify->setShortcut(isModifying ? CommonKeys::save : CommonKeys::change);
    commands().setCaption(m_otherScreen, isNew() ? u"&View Screen"_s : u"E&ntry Screen"_s);
    m_editor->rearrangeButtons();
    m_views->setHome(isEmptyShown() ? static_cast<QWidget *>(m_emptyPage) : m_editor);
    m_views->goHome();
    commands().refresh();
}

void ADDBKVIEW::openBook(int row, int record)
{
    m_list->setNames(m_book.loadNames());
    const int found = m_list->names().positionOf(record);
    if (m_list->names().isEmpty()) {
        m_list->showNone();
        m_editor->show({});
        activity().say(AddressLines::nothingSaved());
        m_emptyPage->setFocus();
    } else {
        m_list->showRow(found >= 0 ? found : std::clamp(row, 0, m_list->names().count() - 1));
        m_list->setFocus();
    }
}

void ADDBKVIEW::showLine(int row)
{
    const QString line = m_list->names().line(row);
    activity().say({});
    m_editor->show(m_book.open(line), line);
    if (!m_toSay.isEmpty()) // rather than what the editor says of the picture
        activity().say(std::exchange(m_toSay, {}));
}

bool ADDBKVIEW::showRecord(int record)
{
    if (m_list->names().positionOf(record) < 0)
        return false;
    closePreview();
    m_list->showRecord(record);
    return true;
}

Message ADDBKVIEW::leaveQuestion() const
{
    return AddressMessages::saveChanges();
}

bool ADDBKVIEW::mayReplaceShown()
{
    const bool wasModified = isModified();
    const bool mayGo = mayReplace(leaveQuestion());
    // What a save told stays when another entry takes the screen.
    if (!mayGo || (wasModified && !isModified()))
        m_toSay = mayGo ? activity().message() : QString();
    return mayGo;
}

void ADDBKVIEW::viewSelected()
{
    if (m_list->names().isEmpty()) {
        ask(AddressMessages::nothingToView());
    } else if (m_list->selectedRow() < 0) {
        ask(AddressMessages::nameNotSelected());
        m_list->startSearch();
    } else if (m_list->showSelected()) {
        m_list->setFocus();
    }
}

void ADDBKVIEW::switchMode()
{
    if (isNew())
        viewSelected();
    else if (mayReplaceShown())
        startEntry();
}

void ADDBKVIEW::startEntry()
{
    m_list->showNone();
    m_toSay.clear();
    m_editor->startNew();
    activity().say(AddressLines::onlyLastName());
    m_editor->form().box(LastName)->setFocus();
}

/// A new entry that was saved is shown as the entry that it now is: saved once more it would be there twice.
bool ADDBKVIEW::save()
{
    if (!isLastNameGiven())
        return false;
    const AddressBook::SaveResult result = m_editor->save(m_book);
    if (result.isBookFull)
        ask(AddressMessages::bookFull());
    if (!result.isSaved)
        return false;
    m_list->replaceShown(result.line);
    m_editor->lock();
    m_changes->saved(result);
    return true;
}

bool ADDBKVIEW::isLastNameGiven()
{
    const QString name = m_editor->form().box(LastName)->text();
    if (IndexLine::isLastName(name))
        return true;
    if (name.isEmpty())
        ask(AddressMessages::lastNameMissing());
    else
        activity().say(AddressMessages::markedName());
    closePreview();
    m_views->goHome();
    m_editor->form().box(LastName)->setFocus();
    return false;
}

void ADDBKVIEW::saveAndNew()
{
    if (!save())
        return;
    const QString said = activity().message();
    startEntry();
    m_list->showNoneButSaved();
    activity().say(said);
    undoStack().offer();
}

void ADDBKVIEW::clearData()
{
    if (ask(AddressMessages::clearCurrentData()) == Answer::Yes)
        startEntry();
}

void ADDBKVIEW::modifyOrSave()
{
    if (mode() == Mode::View) {
        m_editor->modify();
        m_editor->form().box(LastName)->setFocus();
        return;
    }
    const bool wasTyping = m_editor->form().isAncestorOf(QApplication::focusWidget());
    if (save() && wasTyping)
        m_list->setFocus();
}

void ADDBKVIEW::deleteShown()
{
    if (ask(AddressMessages::deleteEntry(m_editor->names())) == Answer::Yes)
        m_changes->removeShown();
}

void ADDBKVIEW::copyShown()
{
    QApplication::clipboard()->setText(AddressPages::clipboardText(m_editor->typed()));
    ask(AddressMessages::dataCopied());
}

void ADDBKVIEW::showPrintOptions()
{
    openPanel(m_printOptions);
    m_printOptions->start();
}

void ADDBKVIEW::openPanel(TaskPanel *panel)
{
    closePreview();
    m_views->open(panel);
}

void ADDBKVIEW::loadPicture()
{
    openPanel(m_picturePanel);
    m_picturePanel->start(m_editor->hasPicture());
}

void ADDBKVIEW::takePicture(const QString &path)
{
    m_editor->setPicture(path);
    m_views->goHome();
    m_editor->form().box(LastName)->setFocus();
}
