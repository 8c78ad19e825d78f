#include "addressbook/entry/entrywindow.h"

#include "addressbook/entry/addressform.h"
#include "addressbook/entry/namelistmodel.h"
#include "addressbook/entry/namelistview.h"
#include "addressbook/entry/picturepanel.h"
#include "addressbook/model/entrylines.h"
#include "addressbook/model/indexline.h"
#include "addressbook/model/messages.h"
#include "shell/controls/activitybar.h"
#include "shell/controls/buttonrow.h"
#include "shell/controls/controls.h"
#include "shell/core/framelines.h"
#include "shell/pictures/enlargedpicture.h"
#include "shell/pictures/pictureframe.h"

#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QScopedValueRollback>
#include <QStackedWidget>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

/// An entry that nobody has typed into.
AddressEntry blankEntry()
{
    AddressEntry entry;
    entry.picture = noPicture;
    return entry;
}

/// "Miller, Anne", as the name list writes it.
QString listName(const AddressEntry &entry)
{
    const QString last = entry[LastName].trimmed();
    const QString first = entry[FirstName].trimmed();
    return first.isEmpty() ? last : QString(last + u", "_s + first);
}

} // namespace

bool ADDBKVIEW::isModified() const
{
    return m_mode != Mode::View && typedEntry() != m_loaded;
}

/// What the boxes hold. A text that nobody touched stays as the file has it, even where a box cannot show all
/// of it.
AddressEntry ADDBKVIEW::typedEntry() const
{
    AddressEntry entry;
    entry.texts = m_form->texts();
    for (std::size_t i = 0; i < entry.texts.size(); ++i) {
        if (entry.texts[i] == m_shownTexts[i])
            entry.texts[i] = m_loaded.texts[i];
    }
    entry.picture = m_picture;
    return entry;
}

void ADDBKVIEW::setMode(Mode mode)
{
    // A page on the screen would hide what is typed into from now on.
    closePreview();
    m_mode = mode;
    const bool isEntry = mode == Mode::Entry;
    setWindowTitle(isEntry ? u"Family/Friends Data Entry Screen"_s : u"Family/Friends Data View Screen"_s);
    activity().setActivity(isEntry ? u"Entry Screen"_s : u"View Screen"_s);
    m_form->setLocked(mode == Mode::View);
    m_form->setRequiredShown(mode != Mode::View);
    refreshTitle();
    refreshCommands();
    refreshModified();
    showPage(isEmptyShown() ? m_emptyPage : m_entryPage);
}

bool ADDBKVIEW::isEmptyShown() const
{
    return m_mode != Mode::Entry && m_names->names().isEmpty();
}

void ADDBKVIEW::refreshTitle()
{
    QString title = m_mode == Mode::Entry ? u"New entry"_s : listName(m_loaded);
    if (title.isEmpty())
        title = m_list->currentIndex().data().toString();
    m_title->setText(title);
    m_chip->setText(m_mode == Mode::Entry ? u"Entry"_s : m_mode == Mode::Modify ? u"Modify"_s : u"View"_s);
}

void ADDBKVIEW::refreshCount()
{
    m_count->setText(m_names->names().countCaption());
}

void ADDBKVIEW::refreshModified()
{
    m_buttonRow->setWords(isModified() ? FrameLines::unsavedChanges() : QString());
    refreshNameHint();
}

void ADDBKVIEW::refreshNameHint()
{
    const bool fits = IndexLine::fits(m_form->box(LastName)->text(), m_form->box(FirstName)->text());
    m_form->setNameHint(m_mode == Mode::View || fits ? QString() : AddressMessages::nameTooLong());
}

void ADDBKVIEW::showPage(QWidget *page)
{
    m_pages->setCurrentWidget(page);
    // Alt+E belongs to "Enter Picture Into Program" while the panel of pictures is open.
    m_editMenu->setTitle(page == m_picturePanel ? u"Edit"_s : u"&Edit"_s);
}

void ADDBKVIEW::leavePanel()
{
    const bool wasEnlarged = m_pages->currentWidget() == m_enlarged;
    showPage(isEmptyShown() ? m_emptyPage : m_entryPage);
    if (wasEnlarged && m_form->enlargeButton()->isVisible())
        m_form->enlargeButton()->setFocus();
    else
        (m_mode == Mode::View ? static_cast<QWidget *>(m_list) : m_form->box(LastName))->setFocus();
}

void ADDBKVIEW::showEntry(const AddressEntry &entry)
{
    m_loaded = entry;
    m_picture = entry.picture;
    m_form->setTexts(entry.texts);
    m_shownTexts = m_form->texts();
    activity().say(std::exchange(m_toSay, {}));
    showPicture();
    refreshTitle();
    refreshModified();
}

void ADDBKVIEW::showPicture()
{
    AddressEntry shown;
    shown.picture = m_picture;
    PictureFrame *frame = m_form->picture();
    frame->clear();
    if (!shown.hasPicture())
        return;
    const QString path = m_pictures.locate(m_picture);
    if (path.isEmpty() || !frame->setPicture(path))
        activity().say(AddressLines::pictureNotFound(m_picture));
}

void ADDBKVIEW::loadNames()
{
    const QScopedValueRollback<bool> still(m_isFollowing, false);
    m_names->setNames(m_book.loadNames());
    refreshCount();
}

int ADDBKVIEW::selectedRow() const
{
    const QModelIndexList rows = m_list->selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.first().row();
}

void ADDBKVIEW::selectRow(int row)
{
    const QScopedValueRollback<bool> still(m_isFollowing, false);
    if (row < 0) {
        m_list->selectionModel()->clear();
        return;
    }
    m_list->setCurrentIndex(m_names->index(row));
    m_list->scrollTo(m_names->index(row));
}

void ADDBKVIEW::selectionMoved()
{
    if (!m_isFollowing || m_isAsking || selectedRow() < 0)
        return;
    if (!isModified()) {
        showSelected();
        return;
    }
    // The question waits until the list has done with the click: an answer may have to take the selection
    // back.
    m_isAsking = true;
    QMetaObject::invokeMethod(this, &ADDBKVIEW::followSelection, Qt::QueuedConnection);
}

void ADDBKVIEW::followSelection()
{
    const QPersistentModelIndex wanted = m_names->index(selectedRow());
    const bool mayGo = mayReplaceShown();
    m_isAsking = false;
    selectRow(mayGo ? wanted.row() : m_shown.row());
    if (mayGo)
        showSelected();
}

void ADDBKVIEW::showSelected()
{
    const int row = selectedRow();
    const QString line = m_names->names().line(row);
    const AddressBook::Found found = m_book.open(line);
    m_shown = m_names->index(row);
    m_record = found.record;
    m_mayChange = found.mayChange;
    m_mode = Mode::View;
    showEntry(found.entry);
    setMode(Mode::View);
    if (found.record == 0 && !line.isEmpty())
        activity().say(AddressMessages::lineWithoutNumber());
    else if (found.record == 0 || found.entry.isEmpty())
        activity().say(AddressMessages::entryNotFound());
    else if (!found.mayChange)
        activity().say(AddressMessages::lineOfAnotherEntry());
}

void ADDBKVIEW::showNothing()
{
    m_shown = QPersistentModelIndex();
    m_record = 0;
    m_mayChange = false;
    m_mode = Mode::View;
    showEntry(blankEntry());
    setMode(Mode::View);
    activity().say(AddressLines::nothingSaved());
    m_emptyPage->setFocus(); // its main button
}

bool ADDBKVIEW::showRecord(int record)
{
    if (m_names->names().positionOf(record) < 0)
        return false;
    closePreview();
    if (mayReplaceShown()) {
        // Only now: what was saved has moved its line to the end of the list.
        const int row = m_names->names().positionOf(record);
        if (row < 0)
            return true; // its own line has outgrown the list: the saved entry is shown
        selectRow(row);
        showSelected();
        m_list->setFocus();
    }
    return true;
}

void ADDBKVIEW::searchNames()
{
    const int row = m_names->names().find(m_searchBox->text());
    if (row < 0) {
        ask(AddressMessages::noMatch());
        focusSearchBox();
        return;
    }
    m_list->setFocus();
    m_list->setCurrentIndex(m_names->index(row));
}

void ADDBKVIEW::focusSearchBox()
{
    m_searchBox->setFocus();
    m_searchBox->selectAll();
}

void ADDBKVIEW::viewSelected()
{
    if (m_names->names().isEmpty()) {
        ask(AddressMessages::nothingToView());
        return;
    }
    if (selectedRow() < 0) {
        ask(AddressMessages::nameNotSelected());
        focusSearchBox();
        return;
    }
    const QPersistentModelIndex wanted = m_names->index(selectedRow());
    if (!mayReplaceShown())
        return;
    if (wanted.isValid())
        selectRow(wanted.row());
    showSelected();
    m_list->setFocus();
}

void ADDBKVIEW::switchMode()
{
    if (m_mode == Mode::Entry)
        viewSelected();
    else if (mayReplaceShown())
        startEntry();
}

void ADDBKVIEW::startEntry()
{
    selectRow(-1);
    m_shown = QPersistentModelIndex();
    m_record = 0;
    m_mayChange = false;
    m_mode = Mode::Entry;
    showEntry(blankEntry());
    setMode(Mode::Entry);
    activity().say(AddressLines::onlyLastName());
    m_form->box(LastName)->setFocus();
}

void ADDBKVIEW::keyPressEvent(QKeyEvent *event)
{
    const bool isOverWork =
        m_pages->currentWidget() != m_entryPage && m_pages->currentWidget() != m_emptyPage;
    if (event->key() == Qt::Key_Escape && isOverWork && !isPreviewShown())
        leavePanel();
    else
        FunctionWindow::keyPressEvent(event);
}

bool ADDBKVIEW::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_searchBox && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Escape && !m_searchBox->text().isEmpty()) {
            m_searchBox->clear();
            return true;
        }
        if (key == Qt::Key_Down) {
            m_list->setFocus();
            return true;
        }
    }
    return FunctionWindow::eventFilter(watched, event);
}

void ADDBKVIEW::resizeEvent(QResizeEvent *event)
{
    FunctionWindow::resizeEvent(event);
    placeSplitter();
}
