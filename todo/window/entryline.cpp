// SPDX-License-Identifier: GPL-3.0-or-later
#include "todo/window/entryline.h"

#include "todo/model/todoitem.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QCompleter>
#include <QKeyEvent>
#include <QStringListModel>

using namespace Qt::Literals::StringLiterals;

namespace {

QStringList linesOf(const QString &text)
{
    QStringList lines;
    for (const QString &line : text.split(QRegularExpression(u"[\\r\\n\\x{2028}\\x{2029}]+"_s))) {
        if (!line.trimmed().isEmpty())
            lines.append(line.trimmed());
    }
    return lines;
}

} // namespace

EntryLine::EntryLine(QWidget *parent)
    : FieldBox(parent)
    , m_offers(new QStringListModel(this))
{
    setObjectName(u"newItem"_s);
    setByteLimit(ToDoItem::longestText);
    installEventFilter(this); // before what pastes everything into one line
    auto *completer = new QCompleter(m_offers, this);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    completer->setFilterMode(Qt::MatchContains);
    setCompleter(completer);
}

void EntryLine::setOffers(const QStringList &offers)
{
    if (offers != m_offers->stringList())
        m_offers->setStringList(offers);
}

/// False where what would be pasted is a single line.
bool EntryLine::takeLines()
{
    const QStringList lines = linesOf(QApplication::clipboard()->text());
    if (lines.size() < 2 || isReadOnly())
        return false;
    QStringList all = lines;
    if (const QString typed = text().trimmed(); !typed.isEmpty())
        all.prepend(typed);
    clear();
    emit entered(all);
    return true;
}

void EntryLine::enter()
{
    const QString typed = text().trimmed();
    completer()->popup()->hide();
    if (typed.isEmpty() || isReadOnly())
        return;
    clear();
    emit entered({typed});
}

bool EntryLine::eventFilter(QObject *watched, QEvent *event)
{
    const bool isKey = watched == this && event->type() == QEvent::KeyPress;
    if (isKey && static_cast<QKeyEvent *>(event)->matches(QKeySequence::Paste) && takeLines())
        return true;
    return FieldBox::eventFilter(watched, event);
}

void EntryLine::keyPressEvent(QKeyEvent *event)
{
    const bool isOffering = completer()->popup()->isVisible();
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        enter();
        break;
    case Qt::Key_Down:
        if (isOffering)
            FieldBox::keyPressEvent(event);
        else
            emit leftDown();
        break;
    case Qt::Key_Escape:
        if (text().isEmpty())
            FieldBox::keyPressEvent(event);
        else
            clear();
        break;
    default:
        FieldBox::keyPressEvent(event);
    }
}
