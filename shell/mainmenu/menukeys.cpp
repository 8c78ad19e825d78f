// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/mainmenu/menukeys.h"

#include <QKeyEvent>
#include <QKeySequence>
#include <QMenu>

MenuKeys::MenuKeys(QMenu *menu)
    : QObject(menu)
    , m_menu(menu)
{
    menu->installEventFilter(this);
}

bool MenuKeys::eventFilter(QObject *watched, QEvent *event)
{
    return watched == m_menu && event->type() == QEvent::KeyPress &&
           step(*static_cast<const QKeyEvent *>(event));
}

/// False where the menu does the right thing by itself.
bool MenuKeys::step(const QKeyEvent &event)
{
    if ((event.modifiers() & ~(Qt::ShiftModifier | Qt::AltModifier)) || event.text().size() != 1)
        return false;
    const QKeySequence key(Qt::ALT | Qt::Key(event.text().at(0).toUpper().unicode()));
    QList<QAction *> usable;
    const QList<QAction *> actions = m_menu->actions();
    for (QAction *action : actions) {
        if (action->isVisible() && action->isEnabled() && QKeySequence::mnemonic(action->text()) == key)
            usable.append(action);
    }
    if (usable.size() < 2)
        return false;
    const qsizetype now = usable.indexOf(m_menu->activeAction()); // -1 leads to the first
    m_menu->setActiveAction(usable.at((now + 1) % usable.size()));
    return true;
}
