// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/program/qtdialogs.h"
#include "tests/support/testprogram.h"
#include "tools/pictures/desk.h"

#include <QPointer>
#include <QStringList>
#include <QTimer>

#include <functional>
#include <memory>

class HelpViewer;
class Startfrm;

/// Where pictures are taken, and which of them are kept.
struct Camera {
    const Desk &desk;
    QString folder;     ///< receives the PNG files
    QStringList wanted; ///< pictures and albums by name; empty for all of them
    QString album;      ///< the one that is being taken
};

/// A whole program on a fresh copy of the sample household, worked as a person would: controls by their
/// object names, keys and clicks. It ends with its object.
///
/// To add a picture: go to what it shows in the album of its function (mainmenu.cpp, planner.cpp, ...), then
/// take("its-name"). To add an album: write a function like those in a file of its own, declare it in
/// albums.h and list it in main.cpp. A step that finds no control of its name ends the run and says which.
class PictureSession
{
public:
    explicit PictureSession(const Camera &camera);
    ~PictureSession();
    PictureSession(const PictureSession &) = delete;
    PictureSession &operator=(const PictureSession &) = delete;

    Program &program() { return m_program; }
    const Desk &desk() const { return m_camera.desk; }

    /// What follows happens in this window.
    void openMainMenu();
    void open(Function function);
    /// The window of this object name, which stands on the screen already.
    void use(const char *window);
    void close();

    void click(const char *button);
    void trigger(const char *action);
    void clickRow(const char *view, int row, int column = 0);
    void focus(const char *control);
    /// Types into what has the focus.
    void type(const QString &text);
    /// Types in place of what the box holds.
    void fill(const char *box, const QString &text);
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {});
    /// Does `opens`, waits for the modal box that comes of it, and does `inBox` there, where names are those
    /// of the box. A box that is then still open is cancelled, and so is what the program asks after it.
    void box(const std::function<void()> &opens, const std::function<void()> &inBox);

    /// Keeps a picture of the window, with the boxes that stand before it, when nothing changes any more.
    void take(const char *name);
    /// The same of what is on the screen just now.
    void takeAtOnce(const char *name);
    /// A picture of a widget alone.
    void takeWidget(const char *name, QWidget &widget);
    /// Keeps the sheet that the page view of this name shows, in the size of a page on the screen.
    void takePage(const char *name, const char *view = "VSPrinter1");

    /// The control of this name, in the box that is open or in the window.
    template <typename T>
    T &find(const char *name) const
    {
        T *found = place().findChild<T *>(QString::fromLatin1(name));
        if (!found)
            fail(name);
        return *found;
    }

private:
    void takeHousehold();
    QWidget &place() const;
    void show(QWidget &window);
    void settle() const;
    void keep(const char *name, const QImage &picture) const;
    [[noreturn]] void fail(const char *missing) const;

    const Camera &m_camera;
    TestProgram m_test{TestProgram::Household};
    QtDialogs m_dialogs;
    DataFolder m_programFolder;
    Program m_program;
    std::unique_ptr<Startfrm> m_mainMenu;
    std::unique_ptr<HelpViewer> m_manual;
    QPointer<QWidget> m_window;
    QTimer m_unexpected; ///< ends the run at a box that nobody waits for and nobody would close
};
