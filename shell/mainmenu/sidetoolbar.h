// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QScrollArea>

class FlowToolBar;

/// A toolbar at a side of the main window: a column of icons over their words. In a window that is too low
/// for it, it scrolls.
class SideToolbar final : public QScrollArea
{
    Q_OBJECT
public:
    enum Side { Left, Right };

    /// `name`: the object name of the bar proper.
    SideToolbar(const QString &name, Side side, QWidget *parent);

    FlowToolBar &bar() const { return *m_bar; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

private:
    FlowToolBar *m_bar;
};
