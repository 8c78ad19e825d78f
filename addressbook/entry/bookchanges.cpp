// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/entry/bookchanges.h"

#include "addressbook/entry/entryeditor.h"
#include "addressbook/entry/entrylist.h"
#include "addressbook/model/entrylines.h"
#include "addressbook/model/indexline.h"
#include "addressbook/model/messages.h"
#include "shell/core/framelines.h"
#include "shell/frame/commands.h"
#include "shell/frame/trashpanel.h"
#include "shell/frame/undostack.h"
#include "shell/frame/workviews.h"
#include "shell/program/program.h"

#include <QMenu>
#include <QScopedValueRollback>

#include <utility>

using namespace Qt::Literals::StringLiterals;

BookChanges::BookChanges(Program &program, Desk desk, QObject *parent)
    : QObject(parent)
    , m_program(program)
    , m_desk(std::move(desk))
{
    connect(&m_desk.editor, &EntryEditor::changed, this, [this] {
        if (!m_desk.editor.isModified())
            m_desk.undo.forgetTyped();
    });
    connect(&m_desk.editor, &EntryEditor::pictureExchanged, this, &BookChanges::pictureExchanged);
}

void BookChanges::addCommands(QMenu *edit, Commands &commands, WorkViews &views)
{
    m_trash = new TrashPanel(m_program.state.dateStyle, &views);
    views.addPanel(m_trash);
    connect(m_trash, &TrashPanel::chosen, this, &BookChanges::bringBack);
    m_desk.undo.addCommands(edit);
    commands.writing(commands.add(edit, u"mEBack"_s, u"Bring &Back Deleted..."_s, [this] { openTrash(); }));
    edit->addSeparator();
}

void BookChanges::openTrash()
{
    m_trash->setItems(m_desk.book.deletedEntries(m_program.clock.now()));
    m_desk.openPanel(m_trash);
    m_trash->setFocus();
}

void BookChanges::bringBack(const Trash::Item &item)
{
    if (!m_desk.mayReplace())
        return;
    const AddressBook::SaveResult result = m_desk.book.bringBack(item);
    if (!result.isSaved) {
        emit said(result.isBookFull ? AddressLines::bookIsFull()
                                    : FrameLines::refused(m_program.folder, AddressMessages::saveFailed()));
        return;
    }
    m_desk.openBook(result.record);
    add(AddressLines::broughtBack(item.title), result.change, result.record);
}

void BookChanges::removeShown()
{
    const QString title = AddressLines::deleted(m_desk.editor.names());
    const int record = m_desk.editor.record();
    auto change = m_desk.editor.remove(m_desk.book, m_program.clock.now());
    if (!change) {
        emit said(FrameLines::refused(m_program.folder, AddressMessages::deleteFailed()));
        return;
    }
    m_desk.openBook(0);
    add(title, *std::move(change), record);
}

void BookChanges::saved(const AddressBook::SaveResult &result)
{
    const int record = result.record;
    if (result.change.isEmpty())
        return;
    m_desk.undo.push(AddressLines::saved(m_desk.editor.loaded().fullName()), result.change,
                     [this, record] { show(record); });
    m_desk.undo.offer();
}

/// Says what was done, with what the trash made of it.
void BookChanges::add(const QString &title, RecordChange change, int record)
{
    const QString line = FrameLines::withTrash(title, change.trashState());
    m_desk.undo.push(title, std::move(change), [this, record] { show(record); });
    emit said(line);
    m_desk.undo.offer();
}

void BookChanges::pictureExchanged(const QString &before, const QString &now)
{
    if (m_isExchanging)
        return;
    const QString title = AddressLines::picture(m_desk.editor.hasPicture());
    m_desk.undo.push({title, [=, this] { return exchangePicture(now, before); },
                      [=, this] { return exchangePicture(before, now); }, UndoStep::Typed});
    emit said(title);
    m_desk.undo.offer();
}

ChangeResult BookChanges::exchangePicture(const QString &shown, const QString &wanted)
{
    EntryEditor &editor = m_desk.editor;
    if (editor.picture() != shown)
        return ChangeResult::Outdated;
    const QScopedValueRollback<bool> exchanging(m_isExchanging, true);
    editor.setPicture(wanted);
    if (!editor.isNew() && !editor.isModified())
        editor.lock();
    return ChangeResult::Done;
}

/// A new entry goes on being typed where the step has left none to be shown.
void BookChanges::show(int record)
{
    if (m_desk.editor.isNew()) {
        m_desk.list.setNames(m_desk.book.loadNames());
        m_desk.list.showNone();
        if (m_desk.list.names().positionOf(record) < 0)
            return;
    }
    // A misread line of a long name could lead to a deleted entry.
    m_desk.openBook(IndexLine::isLastName(m_desk.book.read(record)[LastName]) ? record : 0);
}
