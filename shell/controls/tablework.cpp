// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/tablework.h"

#include "shell/controls/listrowdelegate.h"

#include <QKeyEvent>
#include <QLabel>
#include <QTableView>
#include <QVBoxLayout>

TableWork::TableWork(QLabel *words, QTableView *view, const QString &accessibleName, QWidget *parent)
    : QWidget(parent)
    , m_view(view)
{
    setGridRows(view);
    view->setAccessibleName(accessibleName);
    view->installEventFilter(this);
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(12);
    rows->addWidget(words);
    rows->addWidget(new WholeRows(view), 1);
}

bool TableWork::eventFilter(QObject *watched, QEvent *event)
{
    const int key =
        event->type() == QEvent::KeyPress && watched == m_view ? static_cast<QKeyEvent *>(event)->key() : 0;
    if (key != Qt::Key_Return && key != Qt::Key_Enter)
        return QWidget::eventFilter(watched, event);
    emit entered();
    return true;
}
