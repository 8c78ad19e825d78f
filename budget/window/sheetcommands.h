// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/frame/commands.h"

#include <QObject>

class QMenu;
class SheetGrid;
class SheetModel;
struct Message;
struct Program;

/// What is done to the sheet beside typing into its cells, each as one step of undo.
class SheetCommands final : public QObject
{
    Q_OBJECT
public:
    /// What it works on.
    struct Desk {
        SheetModel &model;
        SheetGrid &grid;
        Commands &commands;
        Commands::Reason unless; ///< why the sheet cannot be edited now
    };

    SheetCommands(Program &program, Desk desk, QWidget *window);

    /// Puts the commands into `edit`.
    void addCommands(QMenu *edit);
    QAction *deleteRowCommand() const { return m_deleteRow; }

    /// Asks for the income of `month` (from 0), and whether the later months have the same.
    void enterIncome(int month);

private:
    void deleteRow();
    bool isCellChosen();

    Program &m_program;
    Desk m_desk;
    QWidget *m_window;
    QAction *m_deleteRow = nullptr;
};
