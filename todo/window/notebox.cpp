// SPDX-License-Identifier: GPL-3.0-or-later
#include "todo/window/notebox.h"

#include "todo/model/todoitem.h"
#include "todo/window/windowlines.h"

#include <QKeyEvent>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

NoteBox::NoteBox(QWidget *parent)
    : QPlainTextEdit(parent)
{
    setObjectName(u"noteBox"_s);
    setAccessibleName(u"Note"_s);
    setPlaceholderText(u"Note"_s);
    setTabChangesFocus(true);
    hide();
    connect(this, &QPlainTextEdit::textChanged, this, &NoteBox::limit);
}

void NoteBox::show(int item, const QString &note)
{
    if (item == m_item && note == m_before)
        return;
    if (item != m_item)
        finish();
    m_item = item;
    m_before = note;
    setPlainText(note);
}

void NoteBox::finish()
{
    if (m_item == 0 || toPlainText() == m_before)
        return;
    m_before = toPlainText();
    emit typed(m_item, m_before);
}

/// What is typed or pasted beyond the longest note is left out.
void NoteBox::limit()
{
    const qsizetype tooMuch = toPlainText().size() - ToDoItem::longestNote;
    if (tooMuch <= 0)
        return;
    QTextCursor cursor = textCursor();
    cursor.setPosition(std::max(0, int(cursor.position() - tooMuch)), QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    emit said(ToDoWindowLines::noteIsFull());
}

void NoteBox::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape) {
        finish();
        emit left();
        return;
    }
    QPlainTextEdit::keyPressEvent(event);
}

void NoteBox::focusOutEvent(QFocusEvent *event)
{
    QPlainTextEdit::focusOutEvent(event);
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason)
        finish();
}
