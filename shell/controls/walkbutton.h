// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractButton>

/// One of a grid of buttons: Enter presses it as Space does; the arrow keys, Home and End move to another.
class WalkButton : public QAbstractButton
{
    Q_OBJECT
public:
    using QAbstractButton::QAbstractButton;

signals:
    /// `key` is an arrow, Home or End.
    void walked(int key);

protected:
    void keyPressEvent(QKeyEvent *event) override;
};
