// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budget/model/sheetrange.h"
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
        Commands::Reason unless; ///< why the sheet cannot be used now
    };

    SheetCommands(Program &program, Desk desk, QWidget *window);

    /// Puts the commands into `edit`. The menu of a cell has them too; in the layer of what was spent also
    /// `amounts`, which opens what was spent in the cell.
    void addCommands(QMenu *edit, QAction *amounts);
    /// "Delete Row", which stands in `menu`, and last in the menu of a cell.
    QAction *addDeleteRow(QMenu *menu);

    /// Asks for the income of `month` (from 0), and whether the later months have the same.
    void enterIncome(int month);

signals:
    /// A quiet line for the status bar.
    void said(const QString &line);
    /// The same of what undo takes back.
    void done(const QString &line);

private:
    using Edit = std::function<void(BudgetSheet &sheet, const SheetRange &range)>;

    void addClipboardCommands(QMenu *edit);
    void addFillCommands(QMenu *edit);
    void addRowCommands(QMenu *edit);
    /// A command that does `run` once a cell is chosen, with a key that works in the grid.
    QAction *add(QMenu *menu, const QString &name, const QString &caption, std::function<void()> run,
                 const QKeySequence &key = {});
    QString whyNoEdit() const;
    bool isCellChosen();
    void change(const QString &title, const Edit &edit);
    void finish(const QString &title, const BudgetSheet &wanted, const SheetRange &range,
                const QString &line = {});
    void openCellMenu(QPoint place, QAction *amounts);
    void show(const std::optional<Message> &message);
    void sayRange();

    void copy();
    void paste();
    void repeatAmount(const QString &title, int step);
    void spread();
    void insertRow();
    void deleteRow();
    void moveRows(int by);

    Program &m_program;
    Desk m_desk;
    QWidget *m_window;
    QList<QAction *> m_cellActions; ///< of the menu of a cell
};
