// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QWidget>

class LowWindow;
class MoreButton;
class QToolButton;
class ToolRows;

/// A toolbar that hides nothing: what does not fit in one row goes to the next, or into the menu of a button
/// "More" in a low window and where it gives way. Its actions become tool buttons in the order in which they
/// were added, named after their action with "_button" behind. A bar takes no focus by a click.
class FlowToolBar : public QWidget
{
    Q_OBJECT
public:
    explicit FlowToolBar(Qt::Orientation orientation, QWidget *parent = nullptr);
    ~FlowToolBar() override;

    Qt::Orientation orientation() const { return m_orientation; }

    /// Icon beside the word (the default; leads the word with a space) or above it.
    void setToolButtonStyle(Qt::ToolButtonStyle style);
    void setIconSize(int pixels);
    /// All buttons of the bar as wide as the widest, and wider up to `maximum` pixels while there is room.
    void setEqualWidths(int maximum);

    QAction *addSeparator();
    /// `action` goes into "More" where that saves a second row; what is named first goes first.
    void giveWay(const QAction *action);
    /// Takes all actions off the bar; they live on, separators aside.
    void clear();
    /// The button of an action that is on the bar, else null.
    QToolButton *button(const QAction *action) const { return m_buttons.value(action); }

protected:
    void actionEvent(QActionEvent *event) override;
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QWidget *makeItem(QAction *action);
    void styleButton(QToolButton &button) const;
    /// Those of `tools` that are to stand in the bar when it is as high as it likes to be.
    QList<QAction *> withoutGivingWay(const QList<QAction *> &tools) const;
    QList<QWidget *> itemsOf(const QList<QAction *> &tools) const;
    void fit();

    Qt::Orientation m_orientation;
    Qt::ToolButtonStyle m_style = Qt::ToolButtonTextBesideIcon;
    int m_iconSize = 20;
    ToolRows *m_layout;
    LowWindow *m_low = nullptr; ///< of a horizontal bar
    MoreButton *m_more = nullptr;
    QList<const QAction *> m_givingWay;
    QHash<const QAction *, QToolButton *> m_buttons;
    QHash<const QAction *, QWidget *> m_items; ///< buttons and separators
};
