// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/entry/bookchanges.h"

#include "addressbook/entry/entryeditor.h"
#include "addressbook/entry/entrylist.h"
#include "addressbook/model/entrylines.h"
#include "addressbook/model/messages.h"
#include "shell/frame/undostack.h"

#include <utility>

BookChanges::BookChanges(Desk desk, QObject *parent)
    : QObject(parent)
    , m_desk(std::move(desk))
{
    connect(&m_desk.editor, &EntryEditor::changed, this, [this] {
        if (!m_desk.editor.isModified())
            m_desk.undo.forgetTyped();
    });
}

void BookChanges::removeShown()
{
    const QString title = AddressLines::deleted(m_desk.editor.names());
    const int record = m_desk.editor.record();
    auto change = m_desk.editor.remove(m_desk.book);
    if (!change) {
        emit said(AddressMessages::deleteFailed());
        return;
    }
    m_desk.openBook(0);
    m_desk.undo.push(title, *std::move(change), [this, record] { show(record); });
    emit said(title);
    m_desk.undo.offer();
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

void BookChanges::takePicture(const QString &path)
{
    const QString before = m_desk.editor.picture();
    if (path == before)
        return;
    m_desk.editor.setPicture(path);
    m_desk.undo.push({AddressLines::picture(m_desk.editor.hasPicture()),
                      [=, this] { return exchangePicture(path, before); },
                      [=, this] { return exchangePicture(before, path); }, UndoStep::Typed});
}

ChangeResult BookChanges::exchangePicture(const QString &shown, const QString &wanted)
{
    EntryEditor &editor = m_desk.editor;
    if (editor.picture() != shown)
        return ChangeResult::Outdated;
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
    m_desk.openBook(record);
}
