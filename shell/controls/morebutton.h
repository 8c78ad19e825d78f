// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QToolButton>

class QMenu;

/// The button "More" at the end of a row: its menu has what found no room there. It is hidden while there is
/// nothing.
class MoreButton final : public QToolButton
{
    Q_OBJECT
public:
    explicit MoreButton(QWidget *parent);

    /// The actions that its menu shows, in this order.
    void hold(QList<QAction *> actions);

    static QString word();
    /// Opens a menu of `actions` below a button that stands for them.
    static QMenu *openMenu(QWidget *button, const QList<QAction *> &actions);

private:
    QList<QAction *> m_actions;
};
