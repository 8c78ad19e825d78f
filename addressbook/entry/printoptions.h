// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "addressbook/model/addresspages.h"
#include "shell/controls/taskpanel.h"

class EntryEditor;
class EntryList;
class FunctionWindow;
class QRadioButton;
class QSpinBox;
struct Program;

/// The print options, and the pages that they lead to: several entries on a sheet with their pictures, all of
/// them or so many from the selected name on; the shown entry; the worksheet.
class PrintOptions final : public TaskPanel
{
    Q_OBJECT
public:
    /// The pages are shown in `window`.
    PrintOptions(Program &program, const AddressBook &book, const EntryList &list, const EntryEditor &editor,
                 FunctionWindow *window);

    /// Offers what the list has now.
    void start();

    void printShown();
    void printWorksheet();

private:
    QWidget *makeChoices();
    QWidget *makeRange();
    void offerCount();
    void printCards(AddressPages::PerSheet perSheet);
    std::vector<int> chosenRecords() const;

    Program &m_program;
    const AddressBook &m_book;
    const EntryList &m_list;
    const EntryEditor &m_editor;
    FunctionWindow *m_window;
    QVector<QPushButton *> m_cards;
    QPushButton *m_entry = nullptr;
    QRadioButton *m_all = nullptr;
    QRadioButton *m_some = nullptr;
    QSpinBox *m_count = nullptr;
};
