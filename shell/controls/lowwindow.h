// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

/// Tells a part of a main window whether the window is low: its bars and buttons take one row each then, and
/// its work scrolls where it cannot be as low.
class LowWindow final : public QObject
{
    Q_OBJECT
public:
    /// Windows of this height have room for everything, in logical pixels; those on a screen of 600 have not,
    /// with a title bar or without one.
    static constexpr int below = 620;

    explicit LowWindow(QWidget *part);

    bool isLow() const { return m_isLow; }

signals:
    void changed(bool isLow);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void watchWindow();
    void look();

    QWidget *m_part;
    QPointer<QWidget> m_window;
    bool m_isLow = false;
};
