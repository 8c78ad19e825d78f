// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/entry/namelistview.h"

#include "shell/controls/listrowdelegate.h"

#include <QHelpEvent>
#include <QToolTip>

NameListView::NameListView(QWidget *parent)
    : QListView(parent)
{
    setListRows(this);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
}

bool NameListView::viewportEvent(QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto *help = static_cast<QHelpEvent *>(event);
        const QModelIndex index = indexAt(help->pos());
        const bool isCut = index.isValid() && sizeHintForIndex(index).width() > viewport()->width();
        QToolTip::showText(help->globalPos(), isCut ? index.data().toString() : QString(), this);
        return true;
    }
    return QListView::viewportEvent(event);
}
