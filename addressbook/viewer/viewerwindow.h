#pragma once

#include "addressbook/model/addressviewer.h"
#include "addressbook/shared/dialler.h"
#include "shell/frame/functionwindow.h"

#include <QPointer>
#include <QUrl>

class ADDBKDISPLAY2;
class ButtonRow;
class ElidedLabel;
class GridPane;
class LabelPanel;
class ListOptionsPanel;
class PictureCopies;
class ViewerChoices;
class QLabel;
class QMenu;
class QPushButton;
class QScrollArea;
class QSplitter;
class QStackedWidget;

/// The viewer of the address book: all names in one grid with one piece of information beside each, to be
/// searched, narrowed, dialled, copied, exported and printed. It never writes to the address book.
class ADDBKDISPLAY final : public FunctionWindow
{
    Q_OBJECT
public:
    /// What reaches out of the program; a test hands in its own.
    struct Surroundings {
        Dialler::MakeModem makeModem;                  ///< empty: the machine's serial ports
        std::function<bool(const QUrl &)> openAddress; ///< empty: the desktop's mail program
    };

    explicit ADDBKDISPLAY(Program &program, QWidget *parent = nullptr, Surroundings surroundings = {});
    ~ADDBKDISPLAY() override;

protected:
    Page page(const PageSetup &setup) const override;
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    // The parts of the window.
    QWidget *makeLeftPane();
    QWidget *makeWorkPanel();
    QWidget *makeGridPage();
    QWidget *makeButtonRow(QWidget *parent);
    void makeMenus();
    void makeOptionsMenu();
    void makeToolbar();
    void addSortMenu(QMenu &options);
    void connectParts();
    void setTabOrders();
    void placeSplitter();

    // What is on the screen.
    void chooseInformation();
    void updateDisplay();
    void sayRange();
    void search();
    void narrow(const QString &text);
    void switchDisplayMode();
    void refresh();
    void refreshHead();
    void refreshCommands();
    void sortBy(int column);
    void showGrid();
    void leavePanel();

    // The commands.
    void removeRow();
    void dial();
    void writeMail();
    void openMail(const QString &address);
    void openEntry();
    void copyRows();
    void exportRows();
    void showPrintOptions();
    void printList();
    void printPictures();
    void showPictureList();
    void showPictures();
    void showLabels();
    void stop();
    void openBackup();
    void showHelp();
    void choosePanelColor();

    Surroundings m_surroundings;
    PictureCopies *m_copies;
    std::unique_ptr<Dialler> m_dialler;
    QPointer<ADDBKDISPLAY2> m_pictures;

    QSplitter *m_splitter = nullptr;
    ViewerChoices *m_choices = nullptr;
    QStackedWidget *m_pages = nullptr;
    QWidget *m_gridPage = nullptr;
    ListOptionsPanel *m_listOptions = nullptr;
    LabelPanel *m_labels = nullptr;
    ElidedLabel *m_title = nullptr;
    QLabel *m_chip = nullptr;
    QLabel *m_dialing = nullptr;
    GridPane *m_grid = nullptr;
    ButtonRow *m_buttonRow = nullptr;
    QPushButton *m_removeButton = nullptr;
    QPushButton *m_dialButton = nullptr;
    QPushButton *m_mailButton = nullptr;
    QPushButton *m_openButton = nullptr;

    QAction *m_modeAction = nullptr;
    QAction *m_openAction = nullptr;
    QAction *m_copyAction = nullptr;
    QAction *m_editCopyAction = nullptr;
    QAction *m_exportAction = nullptr;
    QAction *m_removeAction = nullptr;
    QAction *m_sortInformationAction = nullptr;
    QAction *m_editRemoveAction = nullptr;
    QAction *m_printAction = nullptr;
    QAction *m_picturesAction = nullptr;
    QAction *m_labelsAction = nullptr;
    QAction *m_panelColorAction = nullptr;
    QAction *m_backupAction = nullptr;
    QAction *m_restoreAction = nullptr;
    QAction *m_helpAction = nullptr;
};
