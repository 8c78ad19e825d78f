// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/writing/checkedtext.h"

#include "shell/look/theme.h"
#include "shell/writing/writing.h"

#include <QMenu>
#include <QPlainTextEdit>
#include <QScopedValueRollback>

#include <utility>

CheckedText::CheckedText(Writing &writing, QPlainTextEdit *box, LineStyles styles)
    : CheckedBox(writing, box)
    , m_text(box)
    , m_styles(std::move(styles))
{
    box->viewport()->installEventFilter(this); // which is what gets painted
    connect(box, &QPlainTextEdit::textChanged, this, [this] {
        if (std::exchange(m_isTyped, false) && !m_isReplacing)
            typed();
    });
    connect(box, &QPlainTextEdit::cursorPositionChanged, this, &CheckedText::moved);
    followDocument();
}

CheckedText::~CheckedText()
{
    letGo();
}

void CheckedText::letGo()
{
    if (!m_marks)
        return;
    m_marks->document()->disconnect(this);
    delete m_marks;
}

void CheckedText::followDocument()
{
    letGo();
    QTextDocument *document = m_text->document();
    m_marks = new SpellHighlighter(
        document, [this](const QString &line, qsizetype begin) { return wrongWords(line, begin); }, m_styles);
    connect(document, &QTextDocument::contentsChange, this, &CheckedText::noteChange);
    m_typedIn = {};
    beginText();
    mark();
}

/// The text must not be changed before this change is complete.
void CheckedText::noteChange(int place, int removed, int added)
{
    if (m_isReplacing)
        return;
    m_isTyped = removed == 0 && added == 1 && place + added == cursor();
    if (!m_isTyped)
        changedOtherwise();
    if (!m_text->document()->isUndoAvailable())
        beginText();
}

CheckedBox::Line CheckedText::lineAt(qsizetype place) const
{
    const QTextBlock block = m_text->document()->findBlock(int(place));
    return {block.text(), block.position()};
}

qsizetype CheckedText::cursor() const
{
    return m_text->textCursor().position();
}

qsizetype CheckedText::placeUnder(QPoint point) const
{
    return m_text->cursorForPosition(m_text->viewport()->mapFromGlobal(point)).position();
}

bool CheckedText::isLocked() const
{
    return m_text->isReadOnly();
}

bool CheckedText::replace(const WordPlace &word, const QString &by)
{
    const QScopedValueRollback<bool> still(m_isReplacing, true);
    QTextCursor cursor(m_text->document());
    cursor.setPosition(int(word.at));
    cursor.setPosition(int(word.end()), QTextCursor::KeepAnchor);
    const QString wrong = cursor.selectedText();
    cursor.insertText(by);
    cursor.setPosition(int(word.at));
    cursor.setPosition(int(word.at + by.size()), QTextCursor::KeepAnchor);
    return wrong.size() == word.length && cursor.selectedText() == by;
}

void CheckedText::takeBack(qsizetype place)
{
    const QScopedValueRollback<bool> still(m_isReplacing, true);
    m_text->undo();
    QTextCursor cursor = m_text->textCursor();
    cursor.setPosition(int(place));
    m_text->setTextCursor(cursor);
}

QMenu *CheckedText::usualMenu() const
{
    return m_text->createStandardContextMenu();
}

void CheckedText::mark()
{
    m_marks->setColor(Theme::of(m_text).negative);
    m_marks->rehighlight();
}

void CheckedText::markAtCursor()
{
    if (m_marks->color() == Theme::of(m_text).negative)
        m_marks->rehighlightBlock(m_text->textCursor().block());
    else
        mark();
}

std::vector<WordPlace> CheckedText::wrongWords(const QString &line, qsizetype begin) const
{
    std::vector<WordPlace> words = writing().spelling().wrongWords(line);
    std::erase_if(words, [&](const WordPlace &word) { return isBeingTyped({begin + word.at, word.length}); });
    return words;
}

/// A word that the cursor has left is marked now.
void CheckedText::moved()
{
    const QTextBlock now = m_text->textCursor().block();
    if (m_typedIn.isValid() && m_typedIn.document() == now.document())
        m_marks->rehighlightBlock(m_typedIn);
    m_typedIn = now;
}

QStringList CheckedText::marked() const
{
    QStringList words;
    for (QTextBlock block = m_text->document()->begin(); block.isValid(); block = block.next()) {
        for (const WordPlace &word : wrongWords(block.text(), block.position()))
            words += block.text().sliced(word.at, word.length);
    }
    return words;
}
