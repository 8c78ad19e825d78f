// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPointer>
#include <QTimer>

class QMenuBar;
class QWidget;

/// Gives the focus back to where it was before the menus were walked by keys. The menu bar does so itself for
/// one menu; a second one, opened by its own key, makes it remember itself.
class MenuFocus final : public QObject
{
    Q_OBJECT
public:
    explicit MenuFocus(QMenuBar *bar);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void follow(QWidget *now);
    void giveBack();

    QMenuBar *m_bar;
    QTimer m_wait;
    QPointer<QWidget> m_last; ///< had the focus before the bar
};
