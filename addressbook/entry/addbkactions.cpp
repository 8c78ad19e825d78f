// Saving, deleting, printing, pictures and calls: the commands of the address book's screen.

#include "addressbook/entry/entrywindow.h"

#include "addressbook/entry/addressform.h"
#include "addressbook/entry/namelistmodel.h"
#include "addressbook/entry/namelistview.h"
#include "addressbook/entry/picturepanel.h"
#include "addressbook/entry/printoptions.h"
#include "addressbook/model/entrylines.h"
#include "addressbook/model/messages.h"
#include "shell/controls/activitybar.h"
#include "shell/controls/busycursor.h"
#include "shell/controls/controls.h"
#include "shell/core/framelines.h"
#include "shell/core/helpcontexts.h"
#include "shell/pictures/enlargedpicture.h"
#include "shell/pictures/pictureframe.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QScopedValueRollback>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

bool ADDBKVIEW::mayDiscard()
{
    return mayReplaceShown();
}

bool ADDBKVIEW::mayReplaceShown()
{
    if (!isModified())
        return true;
    // When the desktop session ends nobody can go back.
    const auto goingBack = qApp->isSavingSession() ? AddressMessages::GoingBack::Impossible
                                                   : AddressMessages::GoingBack::Possible;
    switch (ask(AddressMessages::saveChanges(goingBack))) {
    case Answer::Yes:
        if (!save())
            return false;
        // What a save told stays when another entry takes the screen.
        m_toSay = activity().message();
        return true;
    case Answer::No:
        return true;
    default:
        return false;
    }
}

/// A new entry that was saved is shown as the entry that it now is: saved once more it would be there twice.
bool ADDBKVIEW::save()
{
    if (m_mode != Mode::Entry)
        return saveChanged();
    if (!saveNew())
        return false;
    showSaved();
    return true;
}

void ADDBKVIEW::showSaved()
{
    selectRow(m_names->rowCount() - 1);
    m_shown = m_names->index(m_names->rowCount() - 1);
    m_mayChange = true;
    setMode(Mode::View);
}

bool ADDBKVIEW::isLastNameGiven()
{
    const QString name = m_form->box(LastName)->text();
    const bool isMark = name.startsWith("****"_L1) || name.trimmed().startsWith("####"_L1);
    if (!name.isEmpty() && !isMark)
        return true;
    if (isMark)
        activity().say(AddressMessages::markedName());
    else
        ask(AddressMessages::lastNameMissing());
    closePreview();
    showPage(m_entryPage);
    m_form->box(LastName)->setFocus();
    return false;
}

bool ADDBKVIEW::saveNew()
{
    if (!isLastNameGiven())
        return false;
    m_form->tidyDates();
    const AddressBook::SaveResult result = m_book.saveNew(typedEntry());
    takeSaved(result, -1);
    return result.isEntryWritten;
}

bool ADDBKVIEW::saveChanged()
{
    if (!isLastNameGiven())
        return false;
    m_form->tidyDates();
    const AddressBook::SaveResult result = m_book.saveChanged(m_record, typedEntry());
    takeSaved(result, m_shown.row());
    if (!result.isEntryWritten)
        return false;
    showSaved();
    return true;
}

/// What was saved counts as loaded from here on; its line moves to the end of the list.
void ADDBKVIEW::takeSaved(const AddressBook::SaveResult &result, int oldRow)
{
    if (!result.isEntryWritten) {
        activity().say(AddressMessages::saveFailed());
        return;
    }
    m_loaded = typedEntry();
    m_shownTexts = m_form->texts();
    m_record = result.record;
    const QScopedValueRollback<bool> still(m_isFollowing, false);
    m_names->removeAt(oldRow);
    m_names->append(result.line);
    refreshCount();
    refreshModified();
    if (result.isLineWritten)
        activity().say(AddressLines::saved(m_loaded.fullName()));
    else
        activity().say(result.isLineTooLong ? AddressMessages::lineTooLong()
                                            : AddressMessages::lineNotSaved());
}

void ADDBKVIEW::saveAndNew()
{
    if (!saveNew())
        return;
    const QString said = activity().message();
    startEntry();
    activity().say(said);
}

void ADDBKVIEW::clearData()
{
    if (ask(AddressMessages::clearCurrentData()) == Answer::Yes)
        startEntry();
}

void ADDBKVIEW::modifyOrSave()
{
    if (m_mode == Mode::View) {
        setMode(Mode::Modify);
        m_form->box(LastName)->setFocus();
        return;
    }
    const bool wasTyping = m_form->isAncestorOf(QApplication::focusWidget());
    if (saveChanged() && wasTyping)
        m_list->setFocus();
}

void ADDBKVIEW::deleteShown()
{
    const QString names = m_loaded.fullName();
    if (ask(AddressMessages::deleteEntry(names)) != Answer::Yes)
        return;
    const int row = m_shown.row();
    if (!m_book.remove(m_record)) {
        const bool isGone = m_book.read(m_record)[LastName] != m_loaded[LastName];
        activity().say(isGone ? AddressMessages::lineNotDeleted() : AddressMessages::deleteFailed());
        return;
    }
    closePreview();
    loadNames();
    if (m_names->names().isEmpty()) {
        showNothing();
    } else {
        selectRow(std::min(row, m_names->rowCount() - 1));
        showSelected();
        m_list->setFocus();
    }
    activity().say(AddressLines::deleted(names));
}

void ADDBKVIEW::copyShown()
{
    QApplication::clipboard()->setText(AddressPages::clipboardText(typedEntry()));
    ask(AddressMessages::dataCopied());
}

Page ADDBKVIEW::page(const PageSetup &) const
{
    const AddressEntry entry = typedEntry();
    const QString picture = entry.hasPicture() ? m_pictures.locate(entry.picture) : QString();
    return AddressPages::entryPage(entry, picture, program().state.dateStyle, clock().today());
}

void ADDBKVIEW::printShown()
{
    const QString names = typedEntry().fullName();
    showPreview([this](const PageSetup &setup) { return page(setup); }, names.isEmpty() ? u"Entry"_s : names);
}

void ADDBKVIEW::printWorksheet()
{
    const auto worksheet = [this](const PageSetup &) {
        return AddressPages::worksheet(program().state.dateStyle, clock().today());
    };
    showPreview(worksheet, u"Family and Friends Worksheet"_s);
}

void ADDBKVIEW::showPrintOptions()
{
    closePreview();
    m_printOptions->start(selectedRow(), m_names->rowCount());
    showPage(m_printOptions);
    m_printOptions->focusFirst();
}

/// The entries of lines of the list, one after another; lines that lead nowhere are left out.
AddressPages::Source ADDBKVIEW::entriesOf(int first, int count) const
{
    return [this, first, count](const std::function<bool(const AddressEntry &)> &visit) {
        AddressBook::Reader entries(m_book);
        const int end = std::min(first + count, m_names->rowCount());
        for (int row = first; row < end; ++row) {
            const int record = m_names->names().recordAt(row);
            if (record != 0 && !visit(entries.read(record)))
                return;
        }
    };
}

/// Whether more pictures would be printed than is recommended.
bool ADDBKVIEW::hasManyPictures(int first, int count) const
{
    constexpr int recommended = 16;
    int pictures = 0;
    entriesOf(first, count)([&pictures](const AddressEntry &entry) {
        pictures += entry.hasPicture();
        return pictures <= recommended;
    });
    return pictures > recommended;
}

void ADDBKVIEW::printCards(AddressPages::PerSheet perSheet)
{
    const PrintOptions::Range range = m_printOptions->range();
    if (hasManyPictures(range.first, range.count) && ask(AddressMessages::manyPictures()) != Answer::Ok)
        return;
    const auto cards = [this, range, perSheet](const PageSetup &setup) {
        const BusyCursor busy;
        const auto find = [this](const QString &stored) { return m_pictures.locate(stored); };
        return AddressPages::cards(perSheet, setup, entriesOf(range.first, range.count), find,
                                   program().state.dateStyle, clock().today());
    };
    showPreview(cards, u"Family and Friends"_s);
}

void ADDBKVIEW::loadPicture()
{
    closePreview();
    showPage(m_picturePanel);
    m_picturePanel->start(m_picture != noPicture && !m_picture.isEmpty());
}

/// A picture taken while the entry is locked opens the entry, so that it can be saved.
void ADDBKVIEW::takePicture(const QString &path)
{
    m_picture = path;
    if (m_mode == Mode::View)
        setMode(Mode::Modify);
    showPicture();
    refreshModified();
    leavePanel();
}

void ADDBKVIEW::enlargePicture()
{
    m_enlarged->enlarge(m_picture);
    showPage(m_enlarged);
    m_enlarged->setFocus();
}

void ADDBKVIEW::dial(const QString &number)
{
    if (!m_dialler->call(number))
        activity().say(FrameLines::settingNotSaved());
}

void ADDBKVIEW::openBackup()
{
    program().functions.open(Function::Backup, program());
}

void ADDBKVIEW::showHelp()
{
    emit program().changes.helpRequested(HelpContext::AddressBook);
}

void ADDBKVIEW::choosePanelColor()
{
    colors().choosePanelColor();
}

void ADDBKVIEW::chooseTextColor()
{
    colors().chooseTextColor();
}
