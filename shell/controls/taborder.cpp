// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/taborder.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QLayout>

QWidget *TabOrder::follow(const QLayout &layout, QWidget *before)
{
    for (int i = 0; i < layout.count(); ++i) {
        QLayoutItem *item = layout.itemAt(i);
        if (QWidget *part = item->widget()) {
            if (part->focusPolicy() == Qt::NoFocus)
                continue;
            if (before)
                QWidget::setTabOrder(before, part);
            before = part;
        } else if (const QLayout *inner = item->layout()) {
            before = follow(*inner, before);
        }
    }
    return before;
}

void TabOrder::findTheChosen(QButtonGroup &group)
{
    const auto follow = [&group] {
        const QAbstractButton *chosen = group.checkedButton();
        const QList<QAbstractButton *> buttons = group.buttons();
        for (QAbstractButton *button : buttons)
            button->setFocusPolicy(button == (chosen ? chosen : buttons.first()) ? Qt::StrongFocus
                                                                                 : Qt::ClickFocus);
    };
    QObject::connect(&group, &QButtonGroup::idToggled, &group, follow);
    follow();
}
