#pragma once

#include "addressbook/model/addressbook.h"
#include "addressbook/model/addresspages.h"
#include "addressbook/shared/dialler.h"
#include "shell/frame/functionwindow.h"
#include "shell/pictures/picturefolder.h"

#include <QPersistentModelIndex>

class AddressForm;
class ButtonRow;
class ElidedLabel;
class EnlargedPicture;
class NameListModel;
class NameListView;
class PicturePanel;
class PrintOptions;
class QLabel;
class QLineEdit;
class QPushButton;
class QSplitter;
class QStackedWidget;

/// The address book's screen: entries are typed in, looked at, changed, deleted, given a picture, dialled and
/// printed.
class ADDBKVIEW final : public FunctionWindow
{
    Q_OBJECT
public:
    /// `makeModem` makes the modem of a call; without it, calls go over the machine's serial ports.
    explicit ADDBKVIEW(Program &program, QWidget *parent = nullptr, Dialler::MakeModem makeModem = {});
    ~ADDBKVIEW() override;

    enum class Mode {
        View,   ///< the selected entry, locked
        Modify, ///< the selected entry, open for typing
        Entry   ///< a new entry
    };
    Mode mode() const { return m_mode; }

    /// Shows the entry of `record`, asking about unsaved changes first. False when no line of the list leads
    /// there.
    bool showRecord(int record);

    bool isModified() const override;

protected:
    Page page(const PageSetup &setup) const override;
    bool mayDiscard() override;
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    // The parts of the window.
    QWidget *makeLeftPane();
    QWidget *makeWorkPanel();
    QWidget *makeEntryPage();
    QWidget *makeEmptyPage();
    QWidget *makeButtonRow();
    void makeMenus();
    void makeOptionsMenu();
    void makeToolbar();
    void connectParts();
    void setTabOrders();
    void placeSplitter();

    // What is on the screen.
    void setMode(Mode mode);
    void refreshCommands();
    void refreshButtons();
    void refreshTitle();
    void refreshCount();
    void refreshModified();
    void refreshNameHint();
    void showPage(QWidget *page);
    void showNothing(); ///< the empty book
    void showEntry(const AddressEntry &entry);
    void showPicture();
    AddressEntry typedEntry() const;
    bool isEmptyShown() const;

    // The list.
    void loadNames();
    int selectedRow() const;
    void selectRow(int row); ///< without showing its entry
    void selectionMoved();
    void followSelection();
    void showSelected();
    void searchNames();
    void focusSearchBox();

    // The commands.
    void viewSelected();
    void switchMode();
    void startEntry();
    void saveAndNew();
    void clearData();
    void modifyOrSave();
    void deleteShown();
    void copyShown();
    void printShown();
    void printWorksheet();
    void showPrintOptions();
    void printCards(AddressPages::PerSheet perSheet);
    AddressPages::Source entriesOf(int first, int count) const;
    bool hasManyPictures(int first, int count) const;
    void loadPicture();
    void takePicture(const QString &path);
    void enlargePicture();
    void leavePanel();
    void dial(const QString &number);
    void openBackup();
    void showHelp();
    void choosePanelColor();
    void chooseTextColor();

    // Saving.
    bool mayReplaceShown();
    bool save(); ///< with the routine of the mode; false: refused, and the user was told
    void showSaved();
    bool isLastNameGiven();
    bool saveNew();
    bool saveChanged();
    void takeSaved(const AddressBook::SaveResult &result, int oldRow);

    AddressBook m_book;
    PictureFolder m_pictures;
    Mode m_mode = Mode::View;
    int m_record = 0;         ///< of the shown entry; 0 for a new one and where none can be shown
    bool m_mayChange = false; ///< the selected line leads to the shown entry
    AddressEntry m_loaded;    ///< as the file has it
    std::array<QString, AddressFieldCount> m_shownTexts; ///< as the boxes took it
    QString m_picture;                                   ///< the shown entry's picture path
    QPersistentModelIndex m_shown;                       ///< line of the shown entry; none for a new one
    bool m_isFollowing = true;                           ///< a change of the selection shows its entry
    bool m_isAsking = false;                             ///< a question about unsaved changes is on its way

    NameListModel *m_names;
    NameListView *m_list = nullptr;
    QLineEdit *m_searchBox = nullptr;
    QLabel *m_count = nullptr;
    QSplitter *m_splitter = nullptr;
    QStackedWidget *m_pages = nullptr;
    QWidget *m_entryPage = nullptr;
    QWidget *m_emptyPage = nullptr;
    EnlargedPicture *m_enlarged = nullptr;
    PicturePanel *m_picturePanel = nullptr;
    PrintOptions *m_printOptions = nullptr;
    ElidedLabel *m_title = nullptr;
    QLabel *m_chip = nullptr;
    AddressForm *m_form = nullptr;
    ButtonRow *m_buttonRow = nullptr;
    std::unique_ptr<Dialler> m_dialler;

    QPushButton *m_saveNewButton = nullptr;
    QPushButton *m_clearButton = nullptr;
    QPushButton *m_deleteButton = nullptr;
    QPushButton *m_modifyButton = nullptr;
    QPushButton *m_printButton = nullptr;
    QPushButton *m_switchButton = nullptr;
    QPushButton *m_pictureButton = nullptr;
    QPushButton *m_exitButton = nullptr;
    QPushButton *m_restoreButton = nullptr;

    QAction *m_viewAction = nullptr;
    QAction *m_clearAction = nullptr;
    QAction *m_saveNewAction = nullptr;
    QAction *m_copyAction = nullptr;
    QAction *m_deleteAction = nullptr;
    QAction *m_printAction = nullptr;
    QAction *m_modifyAction = nullptr;
    QAction *m_viewScreenAction = nullptr;
    QAction *m_entryScreenAction = nullptr;
    QMenu *m_editMenu = nullptr;
    QString m_toSay; ///< for the status bar when the next entry is shown
    QAction *m_editCopyAction = nullptr;
    QAction *m_editModifyAction = nullptr;
    QAction *m_backupAction = nullptr;
    QAction *m_restoreAction = nullptr;
    QAction *m_panelColorAction = nullptr;
};
