// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "addressbook/entry/entryeditor.h"
#include "addressbook/entry/entrylinks.h"
#include "addressbook/entry/entrylist.h"
#include "addressbook/entry/printoptions.h"
#include "addressbook/model/addressbook.h"
#include "addressbook/shared/dialler.h"
#include "shell/frame/functionwindow.h"

class BookChanges;
class EmptyPage;
class EntryLabels;
class PicturePanel;

/// The address book's screen (`ADDBKVIEW`): entries are typed in, looked at, changed, deleted, given a
/// picture, dialled and printed.
class ADDBKVIEW final : public FunctionWindow
{
    Q_OBJECT
public:
    /// `makeModem` makes the modem of a call; without it, calls go over the machine's serial ports.
    /// `openAddress` opens what the links lead to; without it, the desktop does.
    explicit ADDBKVIEW(Program &program, QWidget *parent = nullptr, Dialler::MakeModem makeModem = {},
                       EntryLinks::OpenAddress openAddress = {});

    using Mode = EntryEditor::Mode;
    Mode mode() const { return m_editor->mode(); }

    /// Shows the entry of `record`, asking about unsaved changes first. False when no line of the list leads
    /// there.
    bool showRecord(int record);

    bool isModified() const override { return m_editor->isModified(); }

protected:
    Message leaveQuestion() const override;
    [[nodiscard]] bool save() override;

private:
    QWidget *makeWorkPanel();
    void makeMenus();
    void addCommands(QMenu *options, QMenu *edit);
    void addEditCommands(QMenu *edit, QAction *copy, QAction *remove);
    void makeButtons(QAction *clear, QAction *saveNew, QAction *remove);
    void connectParts(EntryLinks *links);

    bool isNew() const { return m_editor->isNew(); }
    bool isEmptyShown() const { return !isNew() && m_list->names().isEmpty(); }
    QString whyUnchangeable() const;
    QString whyNothingShown() const;
    void refreshScreen();

    /// Shows the entry of `record`; where the list has none, that of this row, or the last one.
    void openBook(int row, int record = 0);
    void showLine(int row);
    bool mayReplaceShown();
    bool isLastNameGiven();

    void viewSelected();
    void switchMode();
    void startEntry();
    void saveAndNew();
    void clearData();
    void modifyOrSave();
    void deleteShown();
    void copyShown();
    void printShown() { m_printOptions->printShown(); }
    void printWorksheet() { m_printOptions->printWorksheet(); }
    void showPrintOptions();
    void openPanel(TaskPanel *panel);
    void loadPicture();
    void takePicture(const QString &path);

    AddressBook m_book;
    EntryList *m_list;
    EntryEditor *m_editor;
    BookChanges *m_changes;
    Dialler m_dialler;
    WorkViews *m_views;
    EmptyPage *m_emptyPage;
    PicturePanel *m_picturePanel;
    PrintOptions *m_printOptions;
    EntryLabels *m_labels;
    QAction *m_modify = nullptr;
    QAction *m_otherScreen = nullptr;
    QString m_toSay; ///< in the status bar when the next entry is shown
};
