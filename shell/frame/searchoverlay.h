// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include <functional>

class Commands;
class EverythingBox;
class QMainWindow;
struct Program;

/// The search over everything in a window that has no box of its own for it: the box comes to the top of the
/// window and goes when the search is left.
class SearchOverlay final : public QWidget
{
    Q_OBJECT
public:
    SearchOverlay(Program &program, QMainWindow *window);

    void open();

    /// The command and its key, at the end of the window's Edit menu or, without one, of another.
    static void addCommand(Program &program, Commands &commands, QMainWindow *window,
                           const std::function<bool()> &mayOpen);

protected:
    void paintEvent(QPaintEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void place();

    QMainWindow *m_window;
    EverythingBox *m_box;
};
