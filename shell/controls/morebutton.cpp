// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/morebutton.h"

#include "shell/controls/controls.h"
#include "shell/controls/enterkey.h"

#include <QMenu>

#include <utility>

using namespace Qt::Literals::StringLiterals;

MoreButton::MoreButton(QWidget *parent)
    : QToolButton(parent)
{
    setObjectName(u"more"_s);
    setText(word());
    setToolTip(u"What has no room here"_s);
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    letEnterPress(this);
    hide();
    // No menu of the button's own, which would draw an arrow beside the word.
    connect(this, &QToolButton::clicked, this, [this] { openMenu(this, m_actions); });
}

void MoreButton::hold(QList<QAction *> actions)
{
    m_actions = std::move(actions);
    setVisible(!m_actions.isEmpty());
}

QString MoreButton::word()
{
    return u"More"_s;
}

QMenu *MoreButton::openMenu(QWidget *button, const QList<QAction *> &actions)
{
    auto *menu = named(new QMenu(button->window()), u"moreMenu"_s);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setToolTipsVisible(true);
    menu->addActions(actions);
    menu->popup(button->mapToGlobal(QPoint(0, button->height())));
    return menu;
}
