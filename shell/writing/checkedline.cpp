// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/writing/checkedline.h"

#include "shell/controls/pastefilter.h"
#include "shell/look/theme.h"
#include "shell/writing/wavyline.h"
#include "shell/writing/writing.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QScopedValueRollback>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QTextLayout>

#include <utility>

CheckedLine::CheckedLine(Writing &writing, QLineEdit *box)
    : CheckedBox(writing, box)
    , m_line(box)
    , m_length(box->text().size())
{
    connect(box, &QLineEdit::textEdited, this, &CheckedLine::edited);
    connect(box, &QLineEdit::textChanged, this, [this] {
        if (!std::exchange(m_isEdited, false) && !m_isReplacing)
            beginText();
        m_length = m_line->text().size();
        mark();
    });
    connect(box, &QLineEdit::cursorPositionChanged, box, qOverload<>(&QWidget::update));
    mark();
}

void CheckedLine::edited()
{
    if (!m_isReplacing && m_line->text().size() == m_length + 1)
        typed(); // a correction comes through here as well
    else if (!m_isReplacing)
        changedOtherwise();
    m_isEdited = true;
}

/// What nobody has typed in stays as it is.
void CheckedLine::finish()
{
    if (m_line->isModified())
        taken();
}

CheckedBox::Line CheckedLine::lineAt(qsizetype) const
{
    return {m_line->text(), 0};
}

qsizetype CheckedLine::cursor() const
{
    return m_line->cursorPosition();
}

qsizetype CheckedLine::placeUnder(QPoint point) const
{
    return m_line->cursorPositionAt(m_line->mapFromGlobal(point));
}

bool CheckedLine::isLocked() const
{
    return m_line->isReadOnly();
}

bool CheckedLine::replace(const WordPlace &word, const QString &by)
{
    const QString before = m_line->text();
    if (word.end() > before.size() || before.size() - word.length + by.size() > m_line->maxLength())
        return false;
    const QScopedValueRollback<bool> still(m_isReplacing, true);
    const qsizetype cursor = m_line->cursorPosition();
    m_line->setSelection(int(word.at), int(word.length));
    m_line->insert(by);
    const bool isTaken = m_line->text() == QString(before).replace(word.at, word.length, by);
    if (!isTaken) // a character that the box does not take
        m_line->undo();
    m_line->deselect();
    const qsizetype moved = isTaken ? by.size() - word.length : 0;
    m_line->setCursorPosition(
        int(cursor < word.end() ? word.at + (isTaken ? by.size() : word.length) : cursor + moved));
    return isTaken;
}

void CheckedLine::takeBack(qsizetype place)
{
    const QScopedValueRollback<bool> still(m_isReplacing, true);
    m_line->undo();
    m_line->deselect();
    m_line->setCursorPosition(int(place));
}

QMenu *CheckedLine::usualMenu() const
{
    auto *paste = m_line->findChild<PasteFilter *>({}, Qt::FindDirectChildrenOnly);
    return paste ? paste->makeMenu() : m_line->createStandardContextMenu();
}

void CheckedLine::mark()
{
    m_wrong = writing().spelling().wrongWords(m_line->text());
    m_line->update();
}

QStringList CheckedLine::marked() const
{
    QStringList words;
    for (const WordPlace &word : m_wrong) {
        if (!isBeingTyped(word))
            words += m_line->text().sliced(word.at, word.length);
    }
    return words;
}

/// The box has no way to draw a part of its text otherwise: the marks are drawn over it.
bool CheckedLine::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter)
            finish();
    }
    const bool isHandled = CheckedBox::eventFilter(watched, event);
    if (isHandled || event->type() != QEvent::Paint || m_wrong.empty() ||
        m_line->echoMode() != QLineEdit::Normal)
        return isHandled;
    m_line->event(event);
    drawMarks();
    return true;
}

void CheckedLine::drawMarks() const
{
    QTextLayout layout(m_line->displayText(), m_line->font());
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    // How far the text is scrolled is told by where the cursor stands.
    const QRect cursor = m_line->inputMethodQuery(Qt::ImCursorRectangle).toRect();
    const qreal begin = cursor.center().x() - line.cursorToX(m_line->cursorPosition());
    QStyleOptionFrame frame;
    frame.initFrom(m_line);
    QPainter painter(m_line);
    painter.setClipRect(m_line->style()->subElementRect(QStyle::SE_LineEditContents, &frame, m_line));
    for (const WordPlace &word : m_wrong) {
        if (isBeingTyped(word))
            continue;
        const qreal from = line.cursorToX(int(word.at));
        const qreal to = line.cursorToX(int(word.end()));
        drawWavyLine(painter, begin + std::min(from, to), begin + std::max(from, to),
                     cursor.top() + line.ascent() + 2, Theme::of(m_line).negative);
    }
}
