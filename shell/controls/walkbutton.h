#pragma once

#include <QAbstractButton>

/// A button in a grid of its like: Enter presses it as Space does, the arrow keys, Home and End walk on.
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
