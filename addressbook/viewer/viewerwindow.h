// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "addressbook/shared/dialler.h"
#include "shell/frame/functionwindow.h"

#include <QDesktopServices>
#include <QPointer>
#include <QUrl>

class ADDBKDISPLAY2;
class ButtonRow;
class GridPane;
class LabelPanel;
class ListOptionsPanel;
class PicturePrint;
class TitleLine;
class ViewerChoices;
class WorkViews;
struct DisplayRange;

/// What reaches out of the program; a test hands in its own.
struct ViewerSurroundings {
    Dialler::MakeModem makeModem; ///< empty: the machine's serial ports
    std::function<bool(const QUrl &)> openAddress = &QDesktopServices::openUrl;
};

/// The viewer of the address book: all names in one grid with one piece of information beside each, to be
/// searched, narrowed, dialled, copied, exported and printed. It never writes to the address book.
class ADDBKDISPLAY final : public FunctionWindow
{
    Q_OBJECT
public:
    using Surroundings = ViewerSurroundings;

    explicit ADDBKDISPLAY(Program &program, QWidget *parent = nullptr, Surroundings surroundings = {});
    ~ADDBKDISPLAY() override;

protected:
    void filesChanged() override;

private:
    // The parts of the window.
    QWidget *makeWorkPanel();
    QWidget *makeGridPage();
    void makeCommands();
    void addRowCommands(QMenu &options);
    void addPrintCommands(QMenu &options);
    void addSortMenu(QMenu &options);
    void addButtons(QAction *remove, QAction *open);
    void connectParts();

    // What is on the screen.
    void updateDisplay();
    void showRange(const DisplayRange &range);
    void search();
    void switchDisplayMode();
    void followRows();
    void showGrid();

    // The commands.
    void removeRow();
    void writeMail(const QString &address);
    void openEntry();
    void copyRows();
    void exportRows();
    void showPrintOptions();
    void printList();
    void showLabels();
    void showPictures();

    Surroundings m_surroundings;
    PicturePrint *m_pictureList;
    ViewerChoices *m_choices = nullptr;
    WorkViews *m_views = nullptr; ///< the grid's page; print options and labels over it
    TitleLine *m_title = nullptr;
    GridPane *m_grid = nullptr;
    ButtonRow *m_buttons = nullptr;
    ListOptionsPanel *m_listOptions = nullptr;
    LabelPanel *m_labels = nullptr;
    std::unique_ptr<Dialler> m_dialler;
    QPointer<ADDBKDISPLAY2> m_pictures;
};
