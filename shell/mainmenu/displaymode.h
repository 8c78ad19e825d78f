// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/program/program.h"

#include <QObject>
#include <QPointer>

class QAction;
class QWidget;

/// How the main window fills the screen: the whole of it, or a window of a remembered size. Keeps the window,
/// the display-mode records, the program-wide mode and the two menu entries in step.
class DisplayMode final : public QObject
{
    Q_OBJECT
public:
    DisplayMode(Program &program, QWidget *window, QAction *fullScreen, QAction *smallerScreen);

    /// Reads the mode and gives the window its state and size, without showing it. An empty record means full
    /// screen.
    void load();

    /// The menu's "Full Screen Display" and "Smaller Screen Display": the mode is written at once.
    void useFullScreen();
    void useSmallerScreen();

    /// Smaller screen at 800 x 600, written together with that size.
    void useDefaultSize();

    /// Whichever of the two is not in use.
    void toggle();

    /// The window's state has changed. Un-maximising by hand while the record says full screen makes the
    /// smaller-screen mode the one in use.
    void windowStateChanged(Qt::WindowStates before);

    /// Takes the mode from the window and writes it with the size: at exit.
    void save();

signals:
    /// The disk refused the mode or the size: it holds for this run.
    void notSaved();

private:
    void tellUnless(bool isSaved);
    void setMode(ScreenMode mode);
    void write(ScreenMode mode);
    QSize rememberedSize() const;

    Program &m_program;
    QWidget *m_window;
    QAction *m_fullScreen;
    QAction *m_smallerScreen;
    bool m_switching = false; ///< the window changes its state by our own will
};
