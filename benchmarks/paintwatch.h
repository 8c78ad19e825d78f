// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>
#include <QEvent>
#include <QWidget>

/// Sees the paintings of what it watches.
class PaintWatch final : public QObject
{
public:
    explicit PaintWatch(QWidget *watched) { watched->installEventFilter(this); }

    /// Until the next one.
    void wait()
    {
        m_isPainted = false;
        while (!m_isPainted)
            QApplication::processEvents();
    }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        m_isPainted = m_isPainted || event->type() == QEvent::Paint;
        return false;
    }

private:
    bool m_isPainted = false;
};
