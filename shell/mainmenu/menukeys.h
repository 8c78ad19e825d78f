// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QKeyEvent;
class QMenu;

/// Lets the access key that several entries of a menu share lead through those that can be used: a greyed one
/// would send every second press back to the first.
class MenuKeys final : public QObject
{
    Q_OBJECT
public:
    /// Belongs to `menu`.
    explicit MenuKeys(QMenu *menu);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool step(const QKeyEvent &event);

    QMenu *m_menu;
};
