// SPDX-License-Identifier: GPL-3.0-or-later
#include "todo/window/entryline.h"

#include "shell/controls/pastefilter.h"
#include "todo/model/todoitem.h"

#include <QAbstractItemView>
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
    auto *paste = findChild<PasteFilter *>({}, Qt::FindDirectChildrenOnly);
    paste->setTaker([this](const QString &pasted) { return takeLines(pasted); });
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
bool EntryLine::takeLines(const QString &pasted)
{
    const QStringList lines = linesOf(pasted);
    if (lines.size() < 2 || isReadOnly())
        return false;
    QStringList all = lines;
    if (const QString typed = text().trimmed(); !typed.isEmpty())
        all.prepend(typed);
    setText({});
    emit entered(all);
    return true;
}

void EntryLine::enter()
{
    const QString typed = text().trimmed();
    completer()->popup()->hide();
    if (typed.isEmpty() || isReadOnly())
        return;
    setText({}); // unlike clear(), undo goes on with the thing and not with the line
    emit entered({typed});
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
