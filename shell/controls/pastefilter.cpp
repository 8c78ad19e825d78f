// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/pastefilter.h"

#include "storage/ansitext.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>

#include <algorithm>

namespace {

/// `text` on one line: a blank for each run of line ends and tabs, none for those around it. Composed, so
/// that an accent on its own does not count as a character.
QString oneLine(const QString &text)
{
    QString line;
    bool wasControl = false;
    for (const QChar character : text.normalized(QString::NormalizationForm_C)) {
        if (isControl(character)) {
            wasControl = true;
            continue;
        }
        if (wasControl && !line.isEmpty())
            line += u' ';
        wasControl = false;
        line += character;
    }
    return line;
}

/// `text` without the characters in `foreign`, half surrogate pairs among them.
QString without(const QString &foreign, QString text)
{
    return foreign.isEmpty() ? text
                             : text.removeIf([&](QChar character) { return foreign.contains(character); });
}

bool bringsText(QEvent::Type type)
{
    return type == QEvent::KeyPress || type == QEvent::MouseButtonRelease || type == QEvent::ContextMenu ||
           type == QEvent::DragEnter || type == QEvent::DragMove || type == QEvent::Drop;
}

/// What is dragged stays where it comes from, since the box may not take all of it.
void copyInstead(QDropEvent &event)
{
    if (!event.isAccepted() || !event.possibleActions().testFlag(Qt::CopyAction))
        return;
    event.setDropAction(Qt::CopyAction);
    event.accept();
}

} // namespace

bool isControl(QChar character)
{
    return character < u' ' || character == QChar(0x7f) || character == QChar::LineSeparator ||
           character == QChar::ParagraphSeparator;
}

PasteFilter::PasteFilter(QLineEdit *box, Characters characters)
    : QObject(box)
    , m_box(box)
    , m_characters(characters)
{
    box->installEventFilter(this);
}

bool PasteFilter::eventFilter(QObject *, QEvent *event)
{
    // The last events reach what is no longer a box.
    if (!bringsText(event->type()) || m_box->isReadOnly())
        return false;
    switch (event->type()) {
    case QEvent::KeyPress: {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (!key->matches(QKeySequence::Paste))
            return false;
        if (key->key() == Qt::Key_Insert && key->modifiers().testFlag(Qt::ControlModifier))
            pasteSelection();
        else
            paste();
        return true;
    }
    case QEvent::MouseButtonRelease:
        if (static_cast<QMouseEvent *>(event)->button() != Qt::MiddleButton ||
            !QApplication::clipboard()->supportsSelection())
            return false;
        m_box->deselect();
        pasteSelection();
        return true;
    case QEvent::ContextMenu:
        showMenu(static_cast<QContextMenuEvent *>(event)->globalPos());
        return true;
    case QEvent::DragEnter:
    case QEvent::DragMove:
        m_box->event(event);
        copyInstead(*static_cast<QDropEvent *>(event));
        return true;
    case QEvent::Drop:
        drop(*static_cast<QDropEvent *>(event));
        return true;
    default:
        return false;
    }
}

void PasteFilter::paste()
{
    take(QApplication::clipboard()->text());
}

void PasteFilter::pasteSelection()
{
    take(QApplication::clipboard()->text(QClipboard::Selection));
}

void PasteFilter::showMenu(QPoint place)
{
    QMenu *menu = makeMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(place);
}

QMenu *PasteFilter::makeMenu()
{
    QMenu *menu = m_box->createStandardContextMenu();
    for (QAction *action : menu->actions())
        if (action->text().startsWith(QLineEdit::tr("&Paste"))) {
            action->disconnect(m_box);
            connect(action, &QAction::triggered, this, &PasteFilter::paste);
        }
    return menu;
}

void PasteFilter::drop(QDropEvent &event)
{
    // The box takes its mark of the place away.
    QDragLeaveEvent leave;
    m_box->event(&leave);
    event.acceptProposedAction();
    m_box->setCursorPosition(m_box->cursorPositionAt(event.position().toPoint()));
    copyInstead(event);
    take(event.mimeData()->text());
}

void PasteFilter::take(const QString &offered)
{
    if (m_taker && m_taker(offered))
        return;
    const QString line = oneLine(offered);
    const QString foreign =
        m_characters == Characters::OfTheFiles ? AnsiText::foreignCharacters(line) : QString();
    const QString holdable = without(foreign, line);
    const auto room = m_box->maxLength() - m_box->text().size() + m_box->selectedText().size();
    const QString taken = holdable.left(std::max<qsizetype>(room, 0));
    const QString cutOff = holdable.mid(taken.size());
    if (!taken.isEmpty())
        insertAsOneStep(taken);
    if (!foreign.isEmpty() || !cutOff.isEmpty())
        emit leftOut(foreign, cutOff);
}

void PasteFilter::insertAsOneStep(const QString &text)
{
    // A box begins another step of its undo wherever the cursor was moved.
    const auto separate = [this] {
        const int place = m_box->cursorPosition();
        m_box->setCursorPosition(place > 0 ? 0 : int(m_box->text().size()));
        m_box->setCursorPosition(place);
    };
    if (!m_box->hasSelectedText()) // a selection that is replaced separates by itself
        separate();
    m_box->insert(text);
    separate();
}
