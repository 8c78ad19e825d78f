// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <functional>

class ActivityBar;
class FlowToolBar;
class FunctionOpener;
class QAction;
class QPoint;
class QWidget;
class SideToolbar;
class ToolbarLayout;
struct Program;

/// The toolbars of the main menu: the one above the picture, whose buttons the user chooses, and those at its
/// two sides. They can be removed, and restored by the links of the status bar.
class MenuToolBars final : public QObject
{
    Q_OBJECT
public:
    MenuToolBars(Program &program, ActivityBar &activity, const FunctionOpener &opener, QWidget *window);

    FlowToolBar &top() const { return *m_top; }
    SideToolbar &left() const { return *m_left; }
    SideToolbar &right() const { return *m_right; }

    /// A button of a side toolbar, by its position, which never changes.
    QAction *addTool(const SideToolbar &bar, int position, QLatin1StringView icon, const QString &word,
                     const QString &tip, std::function<void()> run);

    /// The first button of the top toolbar can be pressed only when the program is loaded.
    void setFirstButtonEnabled(bool enabled);

    /// The bars, and the links that restore them, make room for what takes the whole window.
    void setCovered(bool covered);
    void showTop();
    void showSides(bool shown);

    void toggleTop();
    void removeSides();
    void customizeTop();

signals:
    /// A toolbar was removed, or the top one restored, by a button or the top toolbar's own menu.
    void rearranged();

private:
    void makeTop(const FunctionOpener &opener);
    void showTopMenu(const QPoint &place);

    void tellUnless(bool isSaved);

    Program &m_program;
    ActivityBar &m_activity;
    QWidget *m_window;
    FlowToolBar *m_top;
    SideToolbar *m_left;
    SideToolbar *m_right;
    ToolbarLayout *m_topLayout = nullptr;
    QAction *m_firstButton = nullptr;
    bool m_areSidesShown = false;
    bool m_isCovered = false;
};
