// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/window/commentsbox.h"

#include "shell/controls/controls.h"
#include "shell/core/shellmessages.h"
#include "storage/ansitext.h"
#include "weight/model/weightsheet.h"
#include "weight/window/windowlines.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QScopedValueRollback>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int fewestLines = 3;

/// A line end is two characters of the file.
qsizetype lengthInFile(const QString &text)
{
    return text.size() + text.count(u'\n');
}

/// The beginning of `text` that takes up `room` characters of the file.
QString cutTo(const QString &text, qsizetype room)
{
    qsizetype at = 0;
    for (; at < text.size(); ++at) {
        room -= text[at] == u'\n' ? 2 : 1;
        if (room < 0)
            break;
    }
    return text.left(at);
}

} // namespace

CommentsBox::CommentsBox(const QString &name, QWidget *parent)
    : QPlainTextEdit(parent)
    , m_length(named(makeQuietLabel({}, parent), u"commentsLength"_s))
{
    setObjectName(name);
    setTabChangesFocus(true);
    setAccessibleName(u"Additional Comments"_s);
    setMinimumHeight(fewestLines * fontMetrics().lineSpacing() + 20);
    connect(this, &QPlainTextEdit::textChanged, this, &CommentsBox::check);
    count();
}

void CommentsBox::show(const QString &text)
{
    if (text == m_shown && !isTouched())
        return;
    const QScopedValueRollback<bool> still(m_isChecking, true);
    setPlainText(text);
    m_shown = toPlainText();
    m_taken = m_shown;
    count();
}

void CommentsBox::setLocked(bool locked)
{
    setReadOnly(locked);
    setFocusPolicy(locked ? Qt::ClickFocus : Qt::StrongFocus);
}

/// What an input method or a drop brought goes again where it cannot be held.
void CommentsBox::check()
{
    if (m_isChecking)
        return;
    const QScopedValueRollback<bool> still(m_isChecking, true);
    const QString text = toPlainText();
    const QString foreign = AnsiText::foreignCharacters(QString(text).remove(u'\n'));
    // A longer text that a file has may become shorter, and stays otherwise as it is.
    const bool isLonger =
        lengthInFile(text) > WeightSheet::longestComments && lengthInFile(text) > lengthInFile(m_taken);
    if (!foreign.isEmpty() || isLonger) {
        undo();
        emit refused(foreign.isEmpty() ? TrackerLines::commentsFull()
                                       : ShellMessages::characterRefused(foreign));
    }
    m_taken = toPlainText();
    count();
    emit edited();
}

void CommentsBox::count()
{
    m_length->setText(u"Length (Max. = 1000) : %1"_s.arg(lengthInFile(toPlainText())));
}

/// As much of it as there is room for.
void CommentsBox::insertFromMimeData(const QMimeData *source)
{
    QString text = source->text();
    text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
    const QString foreign = AnsiText::foreignCharacters(QString(text).remove(u'\n').remove(u'\t'));
    text.replace(u'\t', u' ');
    text.removeIf([&](QChar character) { return foreign.contains(character); });
    const QString kept =
        toPlainText().remove(std::min(textCursor().selectionStart(), int(toPlainText().size())),
                             textCursor().selectionEnd() - textCursor().selectionStart());
    const qsizetype room = std::max<qsizetype>(0, WeightSheet::longestComments - lengthInFile(kept));
    const QString taken = cutTo(text, room);
    if (!taken.isEmpty())
        textCursor().insertText(taken);
    if (!foreign.isEmpty())
        emit refused(ShellMessages::characterRefused(foreign));
    else if (taken.size() < text.size())
        emit refused(TrackerLines::commentsFull());
}

/// Only plain characters and line ends come from the keyboard.
void CommentsBox::keyPressEvent(QKeyEvent *event)
{
    const QString typed = event->text();
    const bool isForeign = !typed.isEmpty() && typed[0].isPrint() && !AnsiText::isHoldable(typed);
    if (isForeign) {
        emit refused(ShellMessages::characterRefused(typed));
        return;
    }
    QPlainTextEdit::keyPressEvent(event);
}

void CommentsBox::focusOutEvent(QFocusEvent *event)
{
    QPlainTextEdit::focusOutEvent(event);
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason)
        emit left();
}
