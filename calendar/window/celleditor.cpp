// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/window/celleditor.h"

#include "calendar/model/wallcalendar.h"
#include "calendar/window/windowlines.h"
#include "shell/controls/controls.h"
#include "shell/controls/hangingtext.h"
#include "shell/controls/pastefilter.h"
#include "shell/look/theme.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTextBlock>

#include <algorithm>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int leastWidth = 180;
constexpr int leastLines = 2;
constexpr double hanging = 1.5; ///< widths of a letter

/// Lines are told apart as they are on the sheet.
class CellText final : public HangingText
{
public:
    using HangingText::HangingText;

protected:
    double insetOf(const QTextBlock &, const QTextLine &) const override
    {
        return hanging * QFontMetricsF(document()->defaultFont()).averageCharWidth();
    }
};

/// What is pasted, without anything that a line cannot show.
QString tidied(const QString &text)
{
    QStringList lines;
    QString ends = text;
    ends.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n').replace(QChar::ParagraphSeparator, u'\n');
    for (const QString &line : ends.split(u'\n')) {
        QString tidy = line;
        for (QChar &character : tidy)
            character = isControl(character) ? u' ' : character;
        lines.append(tidy);
    }
    return lines.join(u'\n');
}

} // namespace

CellEditor::CellEditor(QWidget *parent)
    : QPlainTextEdit(parent)
{
    setObjectName(u"cellEditor"_s);
    auto *text = new QTextDocument(this);
    text->setDocumentLayout(new CellText(text));
    setDocument(text);
    setTabChangesFocus(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFont(TypeScale::body());
    document()->setDocumentMargin(2);
    hide();
    connect(this, &QPlainTextEdit::textChanged, this, &CellEditor::follow);
}

void CellEditor::open(const QRect &place, const QStringList &lines, int current)
{
    const QScopedValueRollback<bool> setting(m_isSetting, true);
    const bool isNew = current < 0 || current >= lines.size();
    setPlainText((isNew && !lines.isEmpty() ? lines + QStringList{QString()} : lines).join(u'\n'));
    QTextCursor cursor(document()->findBlockByNumber(isNew ? document()->blockCount() - 1 : current));
    cursor.movePosition(QTextCursor::EndOfBlock);
    setTextCursor(cursor);
    m_isOpen = true;
    setPlace(place);
    show();
    raise();
    setFocus();
}

void CellEditor::setPlace(const QRect &place)
{
    m_place = place;
    if (m_isOpen)
        fit();
}

void CellEditor::close()
{
    const QScopedValueRollback<bool> setting(m_isSetting, true);
    m_isOpen = false;
    hide();
    setPlainText({});
}

QStringList CellEditor::lines() const
{
    return toPlainText().split(u'\n');
}

/// Over its day, as high as what is typed needs, and never beyond the page's view.
void CellEditor::fit()
{
    const QRect view = parentWidget()->rect();
    const int width = std::min(std::max(m_place.width(), TypeScale::wide(leastWidth)), view.width());
    const int x = std::clamp(m_place.left(), 0, view.width() - width);
    if (this->width() != width)
        resize(width, height()); // its lines are broken by it
    const double lines = leastLines * fontMetrics().lineSpacing();
    double typed = 2 * document()->documentMargin();
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next())
        typed += blockBoundingRect(block).height();
    const int around = this->height() - viewport()->height();
    const int needed = int(std::ceil(std::max(lines, typed))) + around;
    const int height = std::min(std::max(m_place.height(), needed), view.height());
    const int y = std::clamp(m_place.top(), 0, view.height() - height);
    setVerticalScrollBarPolicy(needed > height ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
    setGeometry(x, y, width, height);
    if (needed <= height)
        verticalScrollBar()->setValue(0);
}

void CellEditor::follow()
{
    if (m_isSetting)
        return;
    limit();
    fit();
    emit edited();
}

/// What is typed or pasted beyond the longest line is left out.
void CellEditor::limit()
{
    const QScopedValueRollback<bool> setting(m_isSetting, true);
    bool isCut = false;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        if (block.length() - 1 <= DayLine::most)
            continue;
        QTextCursor cursor(block);
        cursor.movePosition(QTextCursor::NextCharacter, QTextCursor::MoveAnchor, int(DayLine::most));
        cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
        cursor.removeSelectedText();
        isCut = true;
    }
    if (isCut)
        emit said(CalendarWindowLines::lineIsFull());
}

void CellEditor::orderLine(int by)
{
    QStringList now = lines();
    const int from = currentLine();
    const int to = from + by;
    if (to < 0 || to >= now.size())
        return;
    const int column = textCursor().positionInBlock();
    now.move(from, to);
    QTextCursor cursor(document());
    cursor.beginEditBlock();
    cursor.select(QTextCursor::Document);
    cursor.insertText(now.join(u'\n'));
    cursor.endEditBlock();
    QTextCursor at(document()->findBlockByNumber(to));
    at.movePosition(QTextCursor::NextCharacter, QTextCursor::MoveAnchor, column);
    setTextCursor(at);
}

void CellEditor::removeLine()
{
    QTextCursor cursor = textCursor();
    cursor.beginEditBlock();
    cursor.movePosition(QTextCursor::StartOfBlock);
    cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    if (document()->blockCount() > 1) {
        if (cursor.atEnd())
            cursor.deletePreviousChar();
        else
            cursor.deleteChar();
    }
    cursor.endEditBlock();
    setTextCursor(cursor);
}

void CellEditor::keyPressEvent(QKeyEvent *event)
{
    const bool isAlt = event->modifiers() == Qt::AltModifier;
    switch (event->key()) {
    case Qt::Key_Escape:
        emit left(true);
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        textCursor().insertBlock(); // a line of its own, with Shift too
        ensureCursorVisible();
        return;
    case Qt::Key_Up:
    case Qt::Key_Down:
        if (isAlt) {
            orderLine(event->key() == Qt::Key_Up ? -1 : 1);
            return;
        }
        break;
    default:
        break;
    }
    QPlainTextEdit::keyPressEvent(event);
}

void CellEditor::focusOutEvent(QFocusEvent *event)
{
    QPlainTextEdit::focusOutEvent(event);
    if (m_isOpen && event->reason() != Qt::PopupFocusReason &&
        event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::MenuBarFocusReason)
        emit left(false);
}

bool CellEditor::canInsertFromMimeData(const QMimeData *source) const
{
    return source->hasText();
}

void CellEditor::insertFromMimeData(const QMimeData *source)
{
    insertPlainText(tidied(source->text()));
}
